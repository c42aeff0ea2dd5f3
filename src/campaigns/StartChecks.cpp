// SPDX-License-Identifier: MIT
#include "campaigns/StartChecks.h"

#include "campaigns/Campaigns.h"
#include "campaigns/SentLog.h"
#include "content/ContentLists.h"
#include "core/ActivityWords.h"
#include "core/App.h"
#include "core/Text.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

bool LoginRuns(App& app, const Campaign&) {
    return app.state.CurrentAction == ActivityWord::Login && app.state.blnWaitForLoginFirst;
}

bool ListIsShuffled(App& app, const Campaign&) {
    return app.state.CurrentAction == ActivityWord::Shuffling;
}

bool ListIsEmpty(App& app, const Campaign&) {
    return app.controls.Items("lstFriendIDs"_L1).isEmpty();
}

void Refuse(App& app, const Campaign& campaign, const StartCheck& check) {
    const QString message = QString::fromUtf16(check.message);
    app.ShowMessage(QString(message).replace(u"%1"_s, QString::fromLatin1(campaign.what)));
    const QString tab = QString::fromUtf16(check.tab);
    if (app.controls.Items("TabStrip1"_L1).contains(tab))
        app.ShowTab(tab);
    if (check.focus[0])
        app.controls.SetFocus(QLatin1StringView(check.focus));
}

} // namespace

constinit const StartCheck WaitForLogin{LoginRuns, u"Please wait for the login process to finish"};
constinit const StartCheck WaitForShuffle{ListIsShuffled,
                                          u"QLM is still busy randomizing your gathered ID's list, "
                                          u"please wait until the list is loaded and try again"};
constinit const StartCheck EmptyList{
    ListIsEmpty,
    u"Your Gathered ID's List is Empty!\nFirst you need to go to a page in the browser and, "
    u"using the 'Gather IDs' tab, extract the profiles you would like to send %1 to.\n"
    u"Quillmere will now switch to the Gather ID's tab.",
    "", u"Gather ID's"};

bool CampaignMayStart(App& app, const Campaign& campaign) {
    for (const StartCheck& check : campaign.checks())
        if (check.fails(app, campaign)) {
            Refuse(app, campaign, check);
            return false;
        }
    return true;
}

bool IsBlank(const App& app, QLatin1StringView field) {
    return app.controls.Text(field).trimmed().isEmpty();
}

bool AmountIsNoNumber(App& app, const Campaign& campaign) {
    return !IsBlank(app, campaign.amount) && !IsNumeric(app.controls.Text(campaign.amount));
}

bool AmountIsBelowOne(App& app, const Campaign& campaign) {
    return ToLong(app.controls.Text(campaign.amount)).value_or(0) < 1;
}

bool IsFromList(App& app, const Campaign& campaign) {
    return app.controls.Ticked(campaign.content.fromList);
}

bool LacksSubject(App& app, const Campaign& campaign) {
    return !IsFromList(app, campaign) && IsBlank(app, campaign.content.subject);
}

bool LacksText(App& app, const Campaign& campaign) {
    return !IsFromList(app, campaign) && IsBlank(app, campaign.content.text);
}

bool ListLacksEntries(App& app, const Campaign& campaign) {
    return IsFromList(app, campaign) && !app.Get<ContentLists>().ListHasEntries(campaign.content.kind);
}

bool ListLacksSelected(App& app, const Campaign& campaign) {
    return IsFromList(app, campaign) &&
           app.Get<ContentLists>().CountListEntries(campaign.content.kind, SelectedFlag) == 0;
}

bool LogIsIllegible(App& app, const Campaign& campaign) {
    if (!campaign.checkLogBox.isEmpty() && !app.controls.Ticked(campaign.checkLogBox))
        return false;
    bool isIllegible = false;
    Diagnostics::IgnoreErrors([&] { isIllegible = app.files.IsIllegible(SentLog(app, &campaign).Path()); });
    return isIllegible;
}

} // namespace qlm
