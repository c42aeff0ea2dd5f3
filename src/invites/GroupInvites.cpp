// SPDX-License-Identifier: MIT
#include "invites/GroupInvites.h"

#include "campaigns/SendRuns.h"
#include "core/App.h"
#include "core/Tabs.h"
#include "core/Text.h"
#include "gather/GatherDriver.h"
#include "gather/GatheredList.h"
#include "invites/FrameWalk.h"
#include "invites/GroupGrid.h"
#include "invites/InvitePages.h"
#include "invites/InviteRun.h"
#include "steps/StopResume.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

const QString WrongPage = u"You must be on the group's main page."_s;
const QString InvitePage = u"Find a MySpace User to Invite"_s;
const QString NoneGathered =
    u"Your Gathered ID's List is Empty!\r\n\r\nFirst you need to go to a page in the browser and, using the "
    "'Gather IDs' tab, extract the profiles you would like to send invites to.\r\n\r\nQuillmere will now "
    "switch to the Gather ID's tab."_s;

} // namespace

GroupInvites::GroupInvites(App& app) : m_app(app), m_options(app), m_blocks(app) {
    app.commands.Add(u"cmdGroupInvite_Click"_s, [this] { cmdGroupInvite_Click(); });
    app.commands.Add(u"piccmdInviteStop_Click"_s, [this] { piccmdInviteStop_Click(); });
    app.commands.Add(u"piccmdInviteReport_Click"_s,
                     [this] { m_app.Get<SendRuns>().ReportWindow().Show(InviteReport); });
    HideBusy();
}

void GroupInvites::piccmdInviteStop_Click() {
    if (m_app.Get<GatherDriver>().RefuseDuringLogin())
        return;
    m_app.controls.SetText("lblInviteBusy"_L1, u"Finishing the current list..."_s);
    m_app.Get<StopResume>().StopAll(StopReason::InviteStop);
}

void GroupInvites::HideBusy() {
    m_app.controls.SetVisible("lblInviteBusy"_L1, false);
}

void GroupInvites::ShowBusy() {
    m_app.controls.SetText("lblInviteBusy"_L1, u"Busy... please be patient"_s);
    m_app.controls.SetVisible("lblInviteBusy"_L1, true);
}

// Whatever happens, the procedure ends with nothing running of its own.
void GroupInvites::cmdGroupInvite_Click() {
    const Waiting::Unowned outlives(m_app.waiting);
    const QString error = m_app.diagnostics.Trap("cmdGroupInvite_Click", [this] {
        if (MayStart())
            Run();
    });
    if (!error.isEmpty()) {
        m_app.Get<StopResume>().StopAll(GroupInviteKind.fails);
        m_app.SetStatus(u"Inviting has ended with an error: "_s + error);
        m_app.Get<StopResume>().DoFinishedExit();
    }
    HideBusy();
}

bool GroupInvites::MayStart() {
    if (m_app.Get<GatherDriver>().RefuseDuringLogin())
        return false;
    if (!m_app.Get<SendRuns>().IsOnSite() || !PageHas(m_app.WebBrowser1(), u"members"_s) ||
        !PageHas(m_app.WebBrowser1(), u"group leader"_s)) {
        m_app.ShowMessage(WrongPage);
        return false;
    }
    if (!m_options.Ask(true))
        return false;
    if (!m_options.SendsToGatheredIDs() || !m_app.Get<GatheredList>().IsEmpty())
        return true;
    m_app.ShowMessage(NoneGathered);
    m_app.ShowTab(TabCaptions().first());
    return false;
}

void GroupInvites::Run() {
    ShowBusy();
    InviteRun run(m_app, GroupInviteKind);
    run.Begin();
    run.LimitToGathered(m_options.SendsToGatheredIDs());
    const QString name = GroupNameIn(TitleOf(m_app.WebBrowser1().Document()));
    if (name.isEmpty()) {
        m_app.Get<StopResume>().StopAll(GroupInviteKind.fails);
        m_app.ShowMessage(WrongPage);
        return;
    }
    run.OpenLog(name);
    GotoInviteOthers();
    m_app.SetStatus(u"Waiting for invite page to load..."_s);
    run.WaitForText(u"the invite page"_s, InvitePage);
    run.WaitUntilIdle();
    for (BrowserControl* browser : {&m_app.WebBrowser1(), &m_app.webTemp()})
        browser->SetSilent(true);
    if (!run.IsStopped() && run.HasMarkup(u">Friends Picture<"_s))
        GroupGrid(m_app, run, m_options.StartPage()).Run();
    else if (!run.IsStopped())
        FrameWalk(m_app, run, m_blocks, GroupFrame, m_options.SendsToGatheredIDs()).Run();
    Finish();
}

void GroupInvites::Finish() {
    m_app.Get<StopResume>().StopAll(StopReason::GroupInvitesDone);
    m_app.SetStatus({});
    HideBusy();
    m_app.timers->tmrAutoResume.Restart();
    if (!m_app.Get<StopResume>().DoFinishedExit())
        m_app.ShowMessage(u"Finished!"_s);
}

void GroupInvites::GotoInviteOthers() {
    for (const Element& image : m_app.WebBrowser1().Document().Images())
        if (Has(image.Read(ElementText::Src), u"images/button_invite_others.gif"_s)) {
            image.Click();
            return;
        }
    m_app.ShowMessage(u"The link that navigates to the 'Invite Guests' page could not be found. Please "
                      "restart the operation."_s);
}

} // namespace qlm
