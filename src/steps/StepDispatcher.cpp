// SPDX-License-Identifier: MIT
#include "steps/StepDispatcher.h"

#include "browser/PageClassifier.h"
#include "browser/PageSigns.h"
#include "core/ActivityWords.h"
#include "core/App.h"
#include "steps/Activities.h"
#include "steps/Steps.h"
#include "steps/StopResume.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

bool StepDispatcher::CheckLinkFound() {
    try {
        return RunStages();
    } catch (const RunEnded&) {
        throw;
    } catch (const std::exception&) {
        // The page was replaced or the browser is busy: the next tick tries again.
        return false;
    }
}

bool StepDispatcher::RunStages() {
    RunState& state = m_app.state;
    state.blnLastPageTextSeen = false;
    state.blnLastPageHrefSeen = false;
    if (state.strLinkType.isEmpty() || state.strLinkValue.isEmpty())
        return false;
    m_app.WebBrowser1().SetSilent(true);
    if (const Document document = m_app.WebBrowser1().Document())
        document.Foresee(WhatACheckAsks(state));
    const bool captchaPage = m_app.Get<PageSigns>().IsCaptchaPage();
    state.blnForceAdvance = false;
    m_app.Get<PageSigns>().WaitForDocument();

    if (const Verdict verdict = JudgeLastPage(m_app))
        return *verdict;
    if (const Verdict verdict = ErrorPage())
        return *verdict;
    if (const Verdict verdict = TakeDetour(m_app, captchaPage))
        return *verdict;
    return FindExpectedElement(m_app);
}

bool StepDispatcher::IsCommentFormBack(App& app) {
    const QString form = app.state.blnCommentUsedEditor
                             ? u"ctl00$ctl00$cpMain$UserWriteCommentsControl$commentTextBox"_s
                             : u"ctl00_ctl00_cpMain_cpMain_ctl02_ctl00"_s;
    // Until the next page has come the form stands there as it was sent.
    return app.Get<PageSigns>().IsTextInPage(form, true) && app.WebBrowser1().ReadyState() == 4;
}

bool StepDispatcher::LeaveComment(App& app) {
    RunState& state = app.state;
    app.diagnostics.DebugForAction(u"GONE BACK - "_s + app.WebBrowser1().Document().BodyText());
    state.intComStep = CommentStep::NextTarget;
    state.blnLinkFound = true;
    state.blnForceAdvance = true;
    return true;
}

void StepDispatcher::GiveUpRequest(App& app, bool skipCurrentID) {
    RunState& state = app.state;
    if (app.controls.Ticked("chkFrSendMessage"_L1))
        state.blnFRSkipMessage = true;
    if (skipCurrentID)
        state.blnSkipCurrentID = true;
    state.intFRStep = FriendStep::AfterSend;
    app.Get<StopResume>().ResumeNext();
}

Verdict StepDispatcher::ErrorPage() {
    RunState& state = m_app.state;
    state.blnDailyLimitHit = false;
    if (!m_app.Get<PageClassifier>().ClassifyErrorPage())
        return std::nullopt;
    // While the request's own confirmation is on its way only the error redirect counts.
    const bool awaitingConfirmation =
        state.CurrentAction == ActivityWord::FriendRequests && state.intFRStep == FriendStep::AfterSend;
    if (awaitingConfirmation && state.intPageClass != ErrorRedirectClass)
        return std::nullopt;
    // The refusal is that of the page that showed it: the wait ends the check for whom a Skip or a start has
    // taken up since.
    if (state.CurrentAction != ActivityWord::Login)
        m_app.ClearPage();
    if (const Activity* activity = FindActivity(state.CurrentAction); activity && activity->onErrorPage)
        activity->onErrorPage(m_app);
    return false;
}

} // namespace qlm
