// SPDX-License-Identifier: MIT
#include "steps/Lending.h"

#include "browser/Cover.h"
#include "browser/PageSigns.h"
#include "core/App.h"
#include "steps/Activities.h"
#include "steps/RunReport.h"

#include <utility>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

bool Lending::MayTake() const {
    const Activity* activity = RunningActivity(m_app);
    if (!activity)
        return m_app.state.CurrentAction.isEmpty();
    return (activity->lent && !IsLent()) || (activity->waits && m_app.state.*activity->waits);
}

void Lending::Take(QLatin1StringView borrower, Page page) {
    RunState& state = m_app.state;
    const Activity* lender = RunningActivity(m_app);
    if (lender && lender->lent)
        Lend(*lender, page);
    else
        m_app.waiting.OutdateSteps();
    m_app.Get<RunReport>().SetAside();
    state.CurrentAction = borrower;
    static_cast<Expectation&>(state) = {};
    state.blnWaitingForCaptcha = false;
    state.blnInDelay = false;
    state.blnHoldLinkCheck = false;
    m_app.controls.SetText("lblWaitingFor"_L1, {});
    m_app.timers->tmrCheckLinkLoaded.SetEnabled(false);
    m_app.timers->Timer1.SetEnabled(false);
}

void Lending::Lend(const Activity& lender, Page page) {
    RunState& state = m_app.state;
    m_loan = {&lender,
              state,
              m_app.Get<RunReport>().SetAside(),
              state.blnWaitingForCaptcha,
              state.blnInDelay,
              state.blnInDelay || (lender.nextTarget != 0 && state.*lender.step == lender.nextTarget),
              page == Page::Kept && lender.isDone && lender.isDone(m_app),
              state.blnHoldLinkCheck,
              m_app.timers->tmrCheckLinkLoaded.Enabled(),
              m_app.timers->tmrAutoResume.Enabled()};
    state.*lender.lent = true;
    if (page == Page::Kept && !m_loan->isParked && !m_loan->isDone) {
        const QString shown = m_app.WebBrowser1().LocationURL();
        state.strResumeURL = shown == u"about:blank"_s ? m_app.WebBrowser1().LastAsked() : shown;
    }
    if (m_loan->isParked)
        m_app.waiting.Park();
    else
        m_app.waiting.OutdateSteps();
}

bool Lending::GiveBack() {
    if (!m_loan)
        return false;
    RunState& state = m_app.state;
    const Loan loan = *std::exchange(m_loan, std::nullopt);
    const QString address = std::exchange(state.strResumeURL, {});
    state.*loan.lender->lent = false;
    state.CurrentAction = loan.lender->word;
    static_cast<Expectation&>(state) = loan.expectation;
    state.blnWaitingForCaptcha = loan.asksForCaptcha;
    m_app.Get<RunReport>().TakeUp(loan.report);
    state.blnSkipRequested = false;
    m_app.timers->Timer1.SetEnabled(false);
    m_app.timers->tmrAutoResume.SetEnabled(loan.watchdog);
    if (loan.isParked) {
        state.blnInDelay = loan.isInDelay;
        state.blnHoldLinkCheck = loan.isHeld;
        m_app.timers->tmrCheckLinkLoaded.SetEnabled(loan.linkTimer);
        if (loan.isInDelay)
            m_app.Get<Cover>().Show();
        else
            m_app.WebBrowser1().Navigate(u"about:blank"_s);
        m_app.waiting.Readmit();
        return true;
    }
    m_app.waiting.OutdateSteps();
    state.blnHoldLinkCheck = false;
    state.blnLinkFound = loan.isDone;
    if (loan.isDone) {
        if (loan.asksForCaptcha)
            m_app.Get<RunReport>().Remark(u"A post fell due while its CAPTCHA was awaited"_s);
        m_app.timers->tmrCheckLinkLoaded.SetEnabled(false);
        m_app.timers->Timer1.Restart();
        return true;
    }
    if (!address.isEmpty())
        m_app.WebBrowser1().Navigate(address);
    m_app.timers->tmrCheckLinkLoaded.Restart();
    return true;
}

void Lending::Forget() {
    if (m_loan)
        m_app.state.*m_loan->lender->lent = false;
    m_app.state.strResumeURL.clear();
    m_loan.reset();
}

} // namespace qlm
