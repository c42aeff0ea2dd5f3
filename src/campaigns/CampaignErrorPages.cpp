// SPDX-License-Identifier: MIT
#include "campaigns/CampaignErrorPages.h"

#include "browser/Cover.h"
#include "campaigns/FriendRequester.h"
#include "core/App.h"
#include "steps/Activities.h"
#include "steps/RunReport.h"
#include "steps/StepDispatcher.h"
#include "steps/StopResume.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qint16 ErrorRedirectClass = 32;
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
    if (app.Get<StopResume>().HandOverInChain())
        return;
    app.Get<StopResume>().StopAll(u"LF2"_s);
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
    app.state.intFRStep = 9;
    app.Get<StopResume>().ResumeNext();
}

void HandleMessengerErrorPage(App& app) {
    RunState& state = app.state;
    TraceErrorPage(app, u"Maint: "_s);
    if (state.strFRResumeURL.isEmpty()) {
        state.intMsgStep = 8;
        app.Get<StopResume>().ResumeNext();
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

void HandleCommenterErrorPage(App& app) {
    RunState& state = app.state;
    TraceErrorPage(app, u"Maint: "_s);
    if (state.blnDailyLimitHit) {
        state.blnDailyLimitHit = false;
        state.intComStep = 0;
        app.commands.Run(u"picCmdComStop_Click"_s);
        return;
    }
    if (state.intComStep != 8)
        state.blnSkipCurrentID = true;
    state.intComStep = 8;
    app.Get<StopResume>().ResumeNext();
}

} // namespace qlm
