// SPDX-License-Identifier: MIT
#include "campaigns/StartChecks.h"

#include "core/App.h"
#include "core/MainForm.h"
#include "core/Text.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

struct StartCheck {
    bool (*fails)(const App&);
    const char16_t* message;
    const char16_t* tab; // to show; "" leaves the tab as it is
    const char* focus;   // "" for none
};

bool IsBlank(const App& app, QLatin1StringView field) {
    return app.controls.Text(field).trimmed().isEmpty();
}

bool SendsMessage(const App& app) {
    return app.controls.Ticked("chkFrSendMessage"_L1);
}

bool LacksCategory(const App& app) {
    static const QStringList noCategories{u"Retrieving, please wait..."_s,
                                          u"Press button to fill list -> -> ->"_s,
                                          u"Select a category from the list"_s};
    return app.controls.Ticked("chkFRAddToCategory"_L1) &&
           noCategories.contains(app.controls.Text("cboFRCategories"_L1));
}

constexpr StartCheck FriendRequestChecks[] = {
    {[](const App& app) { return app.state.CurrentAction == u"LOGIN"_s && app.state.blnWaitForLoginFirst; },
     u"Please wait for the login process to finish", u"", ""},
    {[](const App& app) { return app.state.CurrentAction == u"RANDOMIZING"_s; },
     u"QLM is still busy randomizing your gathered ID's list, please wait until the list is loaded and try "
     u"again",
     u"", ""},
    {[](const App& app) { return app.controls.Items("lstFriendIDs"_L1).isEmpty(); },
     u"Your Gathered ID's List is Empty!\nFirst you need to go to a page in the browser and, using the "
     u"'Gather IDs' "
     u"tab, extract the profiles you would like to send friend requests to.\nQuillmere will now switch to "
     u"the Gather "
     u"ID's tab.",
     u"Gather ID's", ""},
    {[](const App& app) {
         return !IsBlank(app, "txtFriendRequestsToSend"_L1) &&
                !IsNumeric(app.controls.Text("txtFriendRequestsToSend"_L1));
     },
     u"Please specify a numeric value for the number of friend requests to send.\nYou can leave the entry "
     u"blank to "
     u"send an unlimited number of requests.",
     u"", "txtFriendRequestsToSend"},
    {[](const App& app) { return SendsMessage(app) && IsBlank(app, "txtMsgSubject"_L1); },
     u"You have selected to send a message after each friend request. Please enter subject for the message.",
     u"Auto Messenger", "txtMsgSubject"},
    {[](const App& app) { return SendsMessage(app) && IsBlank(app, "txtMsgMessage"_L1); },
     u"You have selected to send a message after each friend request. Please enter a message.",
     u"Auto Messenger", "txtMsgMessage"},
    {LacksCategory,
     u"You have selected to add the requested friends to a category, but no category has been selected.", u"",
     "cboFRCategories"},
    // Requests without the message that was asked for would be gone for good.
    {[](const App& app) { return SendsMessage(app) && !app.commands.Has(u"picCmdMsgSend_Click"_s); },
     u"You have selected to send a message after each friend request, but this version of Quillmere has no "
     u"Auto "
     u"Messenger yet. No friend requests have been sent.",
     u"", ""},
};

void Refuse(App& app, const StartCheck& check) {
    app.ShowMessage(QString::fromUtf16(check.message));
    const QString tab = QString::fromUtf16(check.tab);
    if (app.controls.Items("TabStrip1"_L1).contains(tab))
        app.mainForm->ShowTab(tab);
    if (check.focus[0])
        app.controls.SetFocus(QLatin1StringView(check.focus));
}

} // namespace

bool FriendRequestMayStart(App& app) {
    for (const StartCheck& check : FriendRequestChecks)
        if (check.fails(app)) {
            Refuse(app, check);
            return false;
        }
    return true;
}

} // namespace qlm
