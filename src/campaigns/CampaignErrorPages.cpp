// SPDX-License-Identifier: MIT
#include "campaigns/CampaignErrorPages.h"

#include "browser/Cover.h"
#include "campaigns/FriendRequester.h"
#include "campaigns/SendRuns.h"
#include "core/ActivityWords.h"
#include "core/App.h"
#include "steps/Activities.h"
#include "steps/RunReport.h"
#include "steps/StepDispatcher.h"
#include "steps/Steps.h"
#include "steps/StopResume.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qint16 LimitPagesToStop = 3;

// A limit page may be a passing state: only the third is believed.
void CountLimitPage(App& app) {
    RunState& state = app.state;
    if (++state.intFRLimitHits < LimitPagesToStop) {
        app.Get<Cover>().Hide();
        StepDispatcher::GiveUpRequest(app, true);
        return;
    }
    state.blnDailyLimitHit = false;
    state.blnLinkFound = true;
    if (state.blnChaining) {
        app.Get<SendRuns>().RemoveUsedTarget(u"LoginNextCycleAccount"_s);
        app.Get<RunReport>().FinishRun(Ending::DailyLimit);
    }
    if (app.Get<StopResume>().HandOverInChain())
        return;
    app.Get<StopResume>().StopAll(StopReason::DailyLimit);
    if (!app.Get<StopResume>().DoFinishedExit())
        app.ShowMessage(
            u"You have reached the maximum limit of friend requests that MySpace allows in a day."_s);
}

} // namespace

void HandleRequesterErrorPage(App& app) {
    TraceErrorPage(app, u"FR Maint: "_s);
    app.Get<RunReport>().RemarkPage(app.state.intPageClass);
    if (app.state.blnDailyLimitHit) {
        CountLimitPage(app);
        return;
    }
    if (app.state.intPageClass != ErrorRedirectClass) {
        app.Get<Cover>().Hide();
        StepDispatcher::GiveUpRequest(app, true);
        return;
    }
    // The site reports an error although the request has gone out.
    app.Get<FriendRequester>().NoticeErrorRedirect();
    app.Get<Cover>().Show();
    app.state.intFRStep = FriendStep::AfterSend;
    app.Get<StopResume>().ResumeNext();
}

void HandleMessengerErrorPage(App& app) {
    RunState& state = app.state;
    TraceErrorPage(app, u"Maint: "_s);
    app.Get<RunReport>().RemarkPage(state.intPageClass);
    if (state.blnDailyLimitHit) {
        state.blnDailyLimitHit = false;
        // The next account writes to this one.
        if (state.blnChaining)
            app.Get<SendRuns>().MoveCursorBack();
        app.Get<StopResume>().StopAll(StopReason::DailyLimit);
        if (!app.Get<StopResume>().HandOverInChain())
            app.Get<StopResume>().DoFinishedExit();
        return;
    }
    if (state.strFRResumeURL.isEmpty()) {
        state.intMsgStep = MessageStep::AfterSend;
        app.Get<StopResume>().ResumeNext();
        return;
    }
    state.CurrentAction = ActivityWord::FriendRequests;
    state.strLinkType = u"Text"_s;
    state.strLinkValue = u"Request Sent!"_s;
    state.blnLinkFound = false;
    app.timers->tmrCheckLinkLoaded.Restart();
    app.WebBrowser1().Navigate(state.strFRResumeURL);
    state.strFRResumeURL.clear();
    state.intMsgStep = MessageStep::None;
    state.intFRStep = FriendStep::Submit;
}

void HandleCommenterErrorPage(App& app) {
    RunState& state = app.state;
    TraceErrorPage(app, u"Maint: "_s);
    app.Get<RunReport>().RemarkPage(state.intPageClass);
    if (state.blnDailyLimitHit) {
        state.blnDailyLimitHit = false;
        app.Get<Cover>().Hide();
        app.Get<StopResume>().StopAll(StopReason::DailyLimit);
        app.Get<StopResume>().DoFinishedExit();
        return;
    }
    if (state.intComStep != CommentStep::AfterSend)
        state.blnSkipCurrentID = true;
    state.intComStep = CommentStep::AfterSend;
    app.Get<StopResume>().ResumeNext();
}

} // namespace qlm
