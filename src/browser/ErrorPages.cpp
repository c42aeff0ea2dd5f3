// SPDX-License-Identifier: MIT
#include "browser/StepDispatcher.h"
#include "campaigns/FriendRequester.h"
#include "campaigns/Pacing.h"
#include "campaigns/SendRuns.h"
#include "core/App.h"
#include "core/StopResume.h"

#include <vector>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qint16 ErrorRedirectClass = 32;
constexpr qint16 LimitPagesToStop = 3;

void TraceClass(App& app, const QString& mark) {
    app.diagnostics.DebugForAction(mark + QString::number(app.state.intPageClass));
}

// A limit page may be a passing state: only the third is believed.
void CountLimitPage(App& app) {
    RunState& state = app.state;
    if (++state.intFRLimitHits < LimitPagesToStop) {
        app.pacing->HideCover();
        StepDispatcher::GiveUpRequest(app, true);
        return;
    }
    state.blnDailyLimitHit = false;
    state.blnLinkFound = true;
    if (app.stopResume->HandOverInChain())
        return;
    app.stopResume->StopAll(u"LF2"_s);
    if (!app.stopResume->DoFinishedExit())
        app.ShowMessage(
            u"You have reached the maximum limit of friend requests that MySpace allows in a day."_s);
}

void HandleForRequester(App& app) {
    TraceClass(app, u"FR Maint: "_s);
    app.sendRuns->Report().RemarkPage(app.state.intPageClass);
    if (app.state.blnDailyLimitHit) {
        CountLimitPage(app);
        return;
    }
    if (app.state.intPageClass != ErrorRedirectClass) {
        app.pacing->HideCover();
        StepDispatcher::GiveUpRequest(app, true);
        return;
    }
    // The site reports an error although the request has gone out.
    app.friendRequester->NoticeErrorRedirect();
    app.pacing->ShowCover();
    app.state.intFRStep = 9;
    app.stopResume->ResumeNext();
}

void HandleForMessenger(App& app) {
    RunState& state = app.state;
    TraceClass(app, u"Maint: "_s);
    if (state.strFRResumeURL.isEmpty()) {
        state.intMsgStep = 8;
        app.stopResume->ResumeNext();
        return;
    }
    state.CurrentAction = u"FR"_s;
    state.strLinkType = u"Text"_s;
    state.strLinkValue = u"Request Sent!"_s;
    state.blnLinkFound = false;
    app.timers->tmrCheckLinkLoaded.Restart();
    app.WebBrowser1().Navigate(state.strFRResumeURL);
    state.strFRResumeURL.clear();
    state.intMsgStep = 0;
    state.intFRStep = 8;
}

void HandleForCommenter(App& app) {
    RunState& state = app.state;
    TraceClass(app, u"Maint: "_s);
    if (state.blnDailyLimitHit) {
        state.blnDailyLimitHit = false;
        state.intComStep = 0;
        app.commands.Run(u"picCmdComStop_Click"_s);
        return;
    }
    if (state.intComStep != 8)
        state.blnSkipCurrentID = true;
    state.intComStep = 8;
    app.stopResume->ResumeNext();
}

// An account that meets an error page costs the chain no more than itself.
void LeaveAccount(App& app) {
    TraceClass(app, u"Maint1: "_s);
    app.stopResume->HandOverInChain();
}

void LoadSiteAgain(App& app) {
    TraceClass(app, u"Maint2: "_s);
    const RunMark mark = app.waiting.Mark();
    app.ClearPage();
    if (!app.waiting.IsCurrent(mark))
        return;
    app.WebBrowser1().Navigate(app.Expand(u"{SiteRootHost}"_s));
    app.waiting.Pump();
}

void HandleForPendingDeletion(App& app) {
    app.state.intDelPenStep = 1;
    app.stopResume->ResumeNext();
}

bool Always(const RunState&) {
    return true;
}

struct ErrorPageRow {
    QLatin1StringView action;
    bool (*applies)(const RunState&);
    void (*handle)(App&);
};

const std::vector<ErrorPageRow>& ErrorPages() {
    static const std::vector<ErrorPageRow> rows{
        {"FR"_L1, Always, HandleForRequester},
        {"MSG"_L1, Always, HandleForMessenger},
        {"COM"_L1, Always, HandleForCommenter},
        {"DEL PEN"_L1, Always, HandleForPendingDeletion},
        {"LOGIN"_L1, [](const RunState& state) { return state.blnChaining; }, LeaveAccount},
        {"LOGIN"_L1, [](const RunState& state) { return state.intLoginStep == 1; }, LoadSiteAgain},
        {"LOGIN"_L1, Always, [](App& app) { TraceClass(app, u"Maint3: "_s); }},
        {"BUL"_L1, Always, [](App& app) { TraceClass(app, u"Maint: "_s); }},
    };
    return rows;
}

} // namespace

void HandleErrorPage(App& app) {
    for (const ErrorPageRow& row : ErrorPages())
        if (app.state.CurrentAction == row.action && row.applies(app.state)) {
            row.handle(app);
            return;
        }
}

} // namespace qlm
