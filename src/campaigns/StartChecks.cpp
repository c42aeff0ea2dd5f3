// SPDX-License-Identifier: MIT
#include "campaigns/StartChecks.h"

#include "campaigns/SentLog.h"
#include "content/ContentLists.h"
#include "core/App.h"
#include "core/Text.h"

#include <vector>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

struct StartCheck {
    bool (*fails)(const App&);
    const char16_t* message;
    const char* focus = "";    // "" for none
    const char16_t* tab = u""; // to show; "" leaves the tab as it is
};

bool IsBlank(const App& app, QLatin1StringView field) {
    return app.controls.Text(field).trimmed().isEmpty();
}

bool IsNoNumber(const App& app, QLatin1StringView field) {
    return !IsBlank(app, field) && !IsNumeric(app.controls.Text(field));
}

bool IsBelowOne(const App& app, QLatin1StringView field) {
    return ToLong(app.controls.Text(field)).value_or(0) < 1;
}

bool LoginRuns(const App& app) {
    return app.state.CurrentAction == u"LOGIN"_s && app.state.blnWaitForLoginFirst;
}

bool ListIsShuffled(const App& app) {
    return app.state.CurrentAction == u"RANDOMIZING"_s;
}

bool ListIsEmpty(const App& app) {
    return app.controls.Items("lstFriendIDs"_L1).isEmpty();
}

// A log that can't be opened counts as empty, and the run tells; one that can be and says nothing would have
// everybody asked again without a word.
bool LogIsIllegible(const App& app) {
    bool isIllegible = false;
    Diagnostics::IgnoreErrors(
        [&] { isIllegible = app.files.IsIllegible(app.Get<SentLog>().PathFor(u"FR"_s)); });
    return isIllegible;
}

bool SendsMessageBehind(const App& app) {
    return app.controls.Ticked("chkFrSendMessage"_L1);
}

bool LacksCategory(const App& app) {
    static const QStringList noCategories{u"Retrieving, please wait..."_s,
                                          u"Press button to fill list -> -> ->"_s,
                                          u"Select a category from the list"_s};
    return app.controls.Ticked("chkFRAddToCategory"_L1) &&
           noCategories.contains(app.controls.Text("cboFRCategories"_L1));
}

bool LacksAlternative(const App& app) {
    return app.controls.Ticked("optCOMHTMLBLocked(2)"_L1) &&
           (IsBlank(app, "txtCommentNonHTML"_L1) ||
            Has(app.controls.Text("txtCommentNonHTML"_L1), u"Enter non-HTML comment here"_s));
}

// The campaign's kind of list and the option pair of its tab.
template <ContentKind kind> struct Content {
    static bool FromList(const App& app) {
        static const QLatin1StringView options[] = {"optSendFromList(0)"_L1, "optSendFromList(1)"_L1,
                                                    "optSendFromList(2)"_L1, "optSendFromList(3)"_L1};
        return app.controls.Ticked(options[static_cast<int>(kind)]);
    }
    static bool ListLacksEntries(const App& app) {
        return FromList(app) && !app.Get<ContentLists>().ListHasEntries(kind);
    }
    static bool ListLacksSelected(const App& app) {
        return FromList(app) && app.Get<ContentLists>().CountListEntries(kind, SelectedFlag) == 0;
    }
};

using Messages = Content<ContentKind::Message>;
using Comments = Content<ContentKind::Comment>;
using Bulletins = Content<ContentKind::Bulletin>;
using Statuses = Content<ContentKind::Status>;

// What a blank field means depends on the mode: only a single text is typed on the tab.
template <typename Kind> bool LacksText(const App& app, QLatin1StringView field) {
    return !Kind::FromList(app) && IsBlank(app, field);
}

constexpr StartCheck LoginCheck{LoginRuns, u"Please wait for the login process to finish"};
constexpr StartCheck ShuffleCheck{ListIsShuffled,
                                  u"QLM is still busy randomizing your gathered ID's list, please wait until "
                                  u"the list is loaded and try again"};

const std::vector<StartCheck>& FriendRequestChecks() {
    static const std::vector<StartCheck> rows{
        LoginCheck,
        ShuffleCheck,
        {ListIsEmpty,
         u"Your Gathered ID's List is Empty!\nFirst you need to go to a page in the browser and, using the "
         u"'Gather IDs' tab, extract the profiles you would like to send friend requests to.\nQuillmere will "
         u"now "
         u"switch to the Gather ID's tab.",
         "", u"Gather ID's"},
        {[](const App& app) { return IsNoNumber(app, "txtFriendRequestsToSend"_L1); },
         u"Please specify a numeric value for the number of friend requests to send.\nYou can leave the "
         u"entry "
         u"blank to send an unlimited number of requests.",
         "txtFriendRequestsToSend"},
        {[](const App& app) { return SendsMessageBehind(app) && IsBlank(app, "txtMsgSubject"_L1); },
         u"You have selected to send a message after each friend request. Please enter subject for the "
         u"message.",
         "txtMsgSubject", u"Auto Messenger"},
        {[](const App& app) { return SendsMessageBehind(app) && IsBlank(app, "txtMsgMessage"_L1); },
         u"You have selected to send a message after each friend request. Please enter a message.",
         "txtMsgMessage", u"Auto Messenger"},
        {LacksCategory,
         u"You have selected to add the requested friends to a category, but no category has been selected.",
         "cboFRCategories"},
        {[](const App& app) { return SendsMessageBehind(app) && Messages::ListLacksEntries(app); },
         u"You have selected to send a message with the friend request. On the messenger tab you selected "
         u"'send "
         u"from list', but you havent added any messages to the list yet."},
        {[](const App& app) { return SendsMessageBehind(app) && Messages::ListLacksSelected(app); },
         u"You have selected to send a message with the friend request. On the messenger tab you selected "
         u"'send "
         u"from list', but you havent selected any of the messages in your list."},
        // Requests without the message that was asked for would be gone for good.
        {[](const App& app) { return SendsMessageBehind(app) && !HasMessenger(app); },
         u"You have selected to send a message after each friend request, but this version of Quillmere has "
         u"no "
         u"Auto Messenger yet. No friend requests have been sent."},
        {LogIsIllegible,
         u"The log of everybody you have asked is written in UTF-16 (\"Unicode\"). Nobody in it would be "
         u"recognised, and all would be asked again. Please save it as plain text (ANSI or UTF-8), or clear "
         u"it."},
    };
    return rows;
}

const std::vector<StartCheck>& MessageChecks() {
    static const std::vector<StartCheck> rows{
        LoginCheck,
        ShuffleCheck,
        {[](const App& app) { return LacksText<Messages>(app, "txtMsgSubject"_L1); },
         u"Please enter subject for the message.", "txtMsgSubject"},
        {[](const App& app) { return LacksText<Messages>(app, "txtMsgMessage"_L1); },
         u"Please enter a message.", "txtMsgMessage"},
        {[](const App& app) { return IsNoNumber(app, "txtMsgStopAt"_L1); },
         u"Please enter a valid 'stop at' number, or leave it blank for unlimited messages", "txtMsgStopAt"},
        {ListIsEmpty,
         u"Your Gathered ID's List is Empty!\nFirst you need to go to a page in the browser and, using the "
         u"'Gather IDs' tab, extract the profiles you would like to send messages to.\nQuillmere will now "
         u"switch "
         u"to the Gather ID's tab.",
         "", u"Gather ID's"},
        {Messages::ListLacksEntries,
         u"You have selected 'send from list', but you havent added any messages to the list yet."},
        {Messages::ListLacksSelected, u"Please select at least one message in the list to send."},
    };
    return rows;
}

const std::vector<StartCheck>& CommentChecks() {
    static const std::vector<StartCheck> rows{
        LoginCheck,
        ShuffleCheck,
        {ListIsEmpty,
         u"Your Gathered ID's List is Empty!\nFirst you need to go to a page in the browser and, using the "
         u"'Gather IDs' tab, extract the profiles you would like to send comments to.\nQuillmere will now "
         u"switch "
         u"to the Gather ID's tab.",
         "", u"Gather ID's"},
        {[](const App& app) { return LacksText<Comments>(app, "txtComment"_L1); }, u"Please enter a comment.",
         "txtComment"},
        {[](const App& app) { return !Comments::FromList(app) && LacksAlternative(app); },
         u"Please enter an alternate non-HTML comment, or disable the setting.", "txtCommentNonHTML"},
        {[](const App& app) { return IsNoNumber(app, "txtComStopAt"_L1); },
         u"Please enter a valid number of comments to send.", "txtComStopAt"},
        {Comments::ListLacksEntries,
         u"You have selected 'send from list', but you havent added any comments to the list yet."},
        {Comments::ListLacksSelected, u"Please select at least one comment in the list to send."},
    };
    return rows;
}

const std::vector<StartCheck>& BulletinChecks() {
    static const std::vector<StartCheck> rows{
        LoginCheck,
        {[](const App& app) { return IsBelowOne(app, "txtPostAmount"_L1); },
         u"Please specify how many times to post the bulletin.", "txtPostAmount"},
        {[](const App& app) { return LacksText<Bulletins>(app, "txtBulSubject"_L1); },
         u"Please enter a subject.", "txtBulSubject"},
        {[](const App& app) { return LacksText<Bulletins>(app, "txtBulMessage"_L1); },
         u"Please enter a message.", "txtBulMessage"},
        {Bulletins::ListLacksEntries,
         u"You have selected 'send from list', but you havent added any bulletins to the list yet."},
        {Bulletins::ListLacksSelected, u"Please select at least one bulletin in the list to post."},
    };
    return rows;
}

const std::vector<StartCheck>& StatusChecks() {
    static const std::vector<StartCheck> rows{
        LoginCheck,
        {[](const App& app) { return IsBelowOne(app, "txtStatusPostAmount"_L1); },
         u"Please specify how many status updates to post in total.", "txtStatusPostAmount"},
        {[](const App& app) { return LacksText<Statuses>(app, "txtStatusBody"_L1); },
         u"Please enter a status update.", "txtStatusBody"},
        {Statuses::ListLacksEntries,
         u"You have selected 'send from list', but you havent added any statuses to the list yet."},
        {Statuses::ListLacksSelected, u"Please select at least one status in the list to post."},
    };
    return rows;
}

void Refuse(App& app, const StartCheck& check) {
    app.ShowMessage(QString::fromUtf16(check.message));
    const QString tab = QString::fromUtf16(check.tab);
    if (app.controls.Items("TabStrip1"_L1).contains(tab))
        app.ShowTab(tab);
    if (check.focus[0])
        app.controls.SetFocus(QLatin1StringView(check.focus));
}

bool Passes(App& app, const std::vector<StartCheck>& checks) {
    for (const StartCheck& check : checks)
        if (check.fails(app)) {
            Refuse(app, check);
            return false;
        }
    return true;
}

} // namespace

bool HasMessenger(const App& app) {
    return app.commands.Has(u"picCmdMsgSend_Click"_s);
}

bool CampaignMayStart(App& app, const QString& campaign) {
    if (campaign == u"FR"_s)
        return Passes(app, FriendRequestChecks());
    if (campaign == u"MSG"_s)
        return Passes(app, MessageChecks());
    if (campaign == u"COM"_s)
        return Passes(app, CommentChecks());
    return campaign == u"BUL"_s ? Passes(app, BulletinChecks()) : Passes(app, StatusChecks());
}

} // namespace qlm
