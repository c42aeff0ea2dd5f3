// SPDX-License-Identifier: MIT
// The user before the window while friends are accepted.
#include "AcceptTrial.h"

#include "core/ActivityWords.h"
#include "steps/Steps.h"

#include <utility>

namespace qlm::fire {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qint64 LongestStandMs = 20 * 60 * 1000;
constexpr qint64 MostTurnsBetweenLooks = 1'000'000;
// Two loads without a body, which end by themselves, go before a wait that is told.
constexpr qint64 SilentMs = 2 * 33'000 + 130'000;
constexpr int MostRuns = 600;
constexpr int HoldsBeforeTheLift = 3;

} // namespace

bool AcceptTrial::IsAccepting() const {
    return m_app->state.CurrentAction == ActivityWord::Accepting;
}

void AcceptTrial::Do(const QString& command) {
    Trace(u"user: "_s + command);
    m_app->commands.Run(command);
}

// At each turn of the message loop, also deep inside the program's waits.
void AcceptTrial::Watch() {
    if (++m_turnsSinceLook > MostTurnsBetweenLooks)
        throw Broken{u"the program turns without letting time pass"_s};
    if (m_telling.trace) {
        const RunState& state = m_app->state;
        const QString now = u"    %1 steps %2 %3 %4, target %5, \"%6\", at %7"_s.arg(state.CurrentAction)
                                .arg(state.intAccStep)
                                .arg(state.intMsgStep)
                                .arg(state.intComStep)
                                .arg(state.strCurrentID, m_app->Status(), m_app->WebBrowser1().LocationURL());
        if (now != std::exchange(m_traced, now))
            Trace(now);
    }
    if (m_killAtTurn >= 0 && --m_killAtTurn < 0)
        throw ProcessEnds();
}

void AcceptTrial::MaybeKill() {
    if (!m_dice.Happens(m_plan.killsInThousandLooks))
        return;
    if (m_dice.Happens(600))
        m_world.gate.CrashAtWrite(m_dice.Between(1, 12));
    else
        m_killAtTurn = m_dice.Below(300);
}

void AcceptTrial::MaybeRefuseDisk() {
    if (m_diskRefusesUntilMs >= 0) {
        if (m_world.clock.NowMs() <= m_diskRefusesUntilMs)
            return;
        m_world.gate.readOnlyFolders.clear();
        m_diskRefusesUntilMs = -1;
    } else if (m_dice.Happens(m_plan.refusedDisksInThousandLooks)) {
        Trace(u"the disk refuses"_s);
        m_judge.OnDiskRefuses();
        m_world.gate.readOnlyFolders = {m_world.installationFolder};
        m_diskRefusesUntilMs = m_world.clock.NowMs() + m_dice.Between(1, 20) * 1000;
    }
}

void AcceptTrial::Look() {
    m_platform->Pump().Queue().PostAt(m_world.clock.NowMs() + LookEveryMs, [this] { Look(); });
    m_turnsSinceLook = 0;
    if (m_world.clock.NowMs() > LongestTrialMs)
        throw Broken{u"the trial takes longer than two days"_s};
    MaybeKill();
    MaybeRefuseDisk();
    if (m_dice.Happens(m_plan.listFaultsInThousandLooks)) {
        const QString fault = m_plan.listFaults[m_dice.Below(static_cast<int>(m_plan.listFaults.size()))];
        Trace(fault);
        m_site.Control(fault);
    }
    if (m_app->state.CurrentAction.isEmpty())
        LookAtIdleProgram();
    else
        LookAtRunningProgram();
}

void AcceptTrial::FillIn() {
    Controls& controls = m_app->controls;
    const Campaign* followUp = m_plan.followUp;
    controls.SetTicked(followUp == &Messages   ? "optAcceptSendMsg"_L1
                       : followUp == &Comments ? "optAcceptSendCom"_L1
                                               : "optAcceptDontSend"_L1,
                       true);
    controls.SetText("txtAcceptSubject"_L1, u"Hi"_s);
    controls.SetText("txtAcceptMessage"_L1, u"Hello, and thanks for asking"_s);
    controls.SetText("txtAcceptComment"_L1, u"Hello, and thanks for the add"_s);
    controls.SetTicked("chkAcceptFromOldest"_L1, m_plan.fromOldest);
    controls.SetText("txtAcceptToPage"_L1, u"1"_s);
    controls.SetTicked("mnuAddToLogWhenAccepting"_L1, m_plan.isLogged);
    if (followUp && m_plan.isLogged)
        controls.SetTicked(followUp->checkLogBox, true);
}

void AcceptTrial::Begin() {
    if (++m_runs > MostRuns)
        throw Broken{u"the run doesn't come to its end"_s};
    m_isHeld = false;
    m_isStopped = false;
    m_standing.clear();
    m_app->state.blnNewLayout = !m_plan.oldLayout;
    m_judge.OnRun();
    Do(u"picCmdAutoApprove_Click"_s);
}

void AcceptTrial::LookAtIdleProgram() {
    if (m_isOver || m_app->state.MyProfileID.isEmpty() || !m_dialogs.IsFormOpen(u"frmMain"_s))
        return;
    FillIn();
    Begin();
}

// What stays, or is never answered, would hold up each run anew.
void AcceptTrial::LiftObstacles() {
    Trace(u"the site takes every request from now on"_s);
    for (const QString& id : m_plan.stuck)
        m_site.Control(u"accept-outcome "_s + id + u" accepted"_s);
}

void AcceptTrial::StopAll() {
    m_isHeld = false;
    m_judge.OnCutOff(u"the user pressed Stop"_s);
    Do(u"picStop_Click"_s);
}

void AcceptTrial::LookAtRunningProgram() {
    const RunState& state = m_app->state;
    const QString standing =
        u"%1 %2 %3 %4 %5 %6 %7"_s.arg(state.CurrentAction, m_app->Status(), state.strLinkValue)
            .arg(state.intAccStep)
            .arg(state.lngTargetNumber)
            .arg(state.intLoginStep)
            .arg(m_judge.Settled());
    if (standing != m_standing) {
        m_standing = standing;
        m_standingSinceMs = m_world.clock.NowMs();
    }
    const qint64 standsMs = m_world.clock.NowMs() - m_standingSinceMs;
    if (m_isHeld) {
        if (++m_holds == HoldsBeforeTheLift)
            LiftObstacles();
        StopAll();
        return;
    }
    if (standsMs > LongestStandMs)
        throw Broken{u"the program waits without an end at "_s + m_app->Status()};
    if (state.CurrentAction == ActivityWord::Login)
        return;
    const bool isTold = !m_app->controls.Text("lblWaitingFor"_L1).isEmpty();
    // One press after the other, each of them up to 50 seconds long, has one status line.
    if (standsMs > SilentMs && !isTold && m_app->Status() != u"Approving friend requests..."_s)
        throw Broken{u"a wait of two minutes isn't told: "_s + m_app->Status()};
    if (m_dice.Happens(m_plan.startsInThousandLooks))
        Begin();
    else if (m_dice.Happens(m_plan.stopsInThousandLooks) || (isTold && IsAccepting()))
        StopAll();
    else if (IsAccepting())
        LookAtAccepting();
    else if (isTold || m_dice.Happens(m_plan.skipsInThousandLooks)) {
        m_judge.OnSkip(state.strCurrentID);
        Do(u"picSkip_Click"_s);
    }
}

// Its own Stop lets the request on which it works come to its end.
void AcceptTrial::LookAtAccepting() {
    if (m_isStopped || !m_dice.Happens(m_plan.stopsInThousandLooks))
        return;
    m_isStopped = true;
    Do(u"piccmdAccStop_Click"_s);
}

} // namespace qlm::fire
