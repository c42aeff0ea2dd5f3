// SPDX-License-Identifier: MIT
#include "steps/ActionTick.h"

#include "browser/PageSigns.h"
#include "core/ActivityWords.h"
#include "core/App.h"
#include "core/LongWait.h"
#include "steps/Activities.h"
#include "steps/StepDispatcher.h"
#include "steps/StopResume.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr int BlankTickLimit = 30;

QString Flag(bool value) {
    return value ? u"True"_s : u"False"_s;
}
} // namespace

ActionTick::ActionTick(App& app) : m_app(app) {
    app.timers->Timer1.SetHandler([this] { Timer1_Timer(); });
    app.timers->tmrCheckLinkLoaded.SetHandler([this] { tmrCheckLinkLoaded_Timer(); });
    app.timers->tmrAutoResume.SetHandler(
        [this] { m_app.diagnostics.Debug(u"debugautoresume.txt"_s, m_app.NowText()); });
    app.timers->tmrQuit.SetHandler([this] {
        if (m_app.state.blnClosing)
            m_app.platform.Shell().EndProcess();
    });
}

ActionTick::~ActionTick() = default;

void ActionTick::Timer1_Timer() {
    m_app.diagnostics.Trap("Timer1_Timer", [this] {
        m_app.Get<PageSigns>().WaitForDocument();
        m_app.timers->Timer1.SetEnabled(false);
        for (const Activity& activity : Activities())
            if (activity.stepRoutine && m_app.state.CurrentAction == activity.word) {
                activity.stepRoutine(m_app);
                return;
            }
    });
}

void ActionTick::tmrCheckLinkLoaded_Timer() {
    const QString error = m_app.diagnostics.Trap("tmrCheckLinkLoaded_Timer", [this] { CheckPage(); });
    if (error.isEmpty() || m_app.state.CurrentAction.isEmpty())
        return;
    // What had been found is looked for anew.
    m_app.state.blnLinkFound = false;
    m_app.timers->tmrCheckLinkLoaded.Restart();
}

void ActionTick::CheckPage() {
    RunState& state = m_app.state;
    if (m_app.WebBrowser1().Document().IsNull() || state.blnHoldLinkCheck ||
        m_app.Get<PageSigns>().IsAwaitingBody())
        return;
    const qint32 run = state.lngRunNumber;
    const Waiting::Owned owned(m_app.waiting);
    const bool found = m_app.Get<StepDispatcher>().CheckLinkFound();
    // The check has ended the run itself, or another one has been begun in one of its waits.
    if (state.lngRunNumber != run)
        return;
    LogCheck(found);
    if (state.CurrentAction.isEmpty())
        return;
    if (!found) {
        CountBlankTick();
        TellLongWait();
        return;
    }
    state.intBlankTicks = 0;
    const bool lastPageStillThere = m_app.Get<PageSigns>().IsTextInPage(state.strLastPageText) ||
                                    m_app.Get<PageSigns>().HrefLoaded(state.strLastPageHref, false);
    // The page hasn't really changed yet: the next tick looks again.
    if (lastPageStillThere && !state.blnForceAdvance) {
        state.blnLinkFound = false;
        TellLongWait();
        return;
    }
    StepIsReady();
}

void ActionTick::LogCheck(bool found) {
    const RunState& state = m_app.state;
    const Activity* activity = FindActivity(state.CurrentAction);
    if (!activity)
        return;
    if (state.CurrentAction == ActivityWord::Login &&
        m_app.Get<PageSigns>().IsTextInPage(u"enter the text"_s))
        m_app.diagnostics.DebugForAction(u"waiting for CAPTCHA"_s);
    QString line = QString::fromLatin1(activity->checkMark);
    if (activity->sends)
        line += u" - "_s + state.strLinkType + u", "_s + state.strLinkValue;
    m_app.diagnostics.DebugForAction(line + u" ... Found = "_s + Flag(found) + u" ... EX: "_s +
                                     Flag(state.blnLastPageTextSeen) + u" ... PRESSED: "_s +
                                     Flag(state.blnLastPageHrefSeen));
}

void ActionTick::StepIsReady() {
    RunState& state = m_app.state;
    state.intGatherRetryTicks = 0;
    if (const Activity* activity = FindActivity(state.CurrentAction); activity && activity->tracesFound)
        m_app.diagnostics.DebugForAction(u"Link Found"_s);
    state.blnLinkCheckFired = true;
    m_app.timers->tmrCheckLinkLoaded.SetEnabled(false);
    state.blnRetryGatherPage = false;
    if (state.blnWaitingForCaptcha) {
        // A messenger's check takes the page with the CAPTCHA for found.
        TellLongWait();
    } else {
        m_wait.reset();
        m_app.timers->tmrAutoResume.Restart();
    }
    m_app.timers->Timer1.Restart();
}

void ActionTick::CountBlankTick() {
    RunState& state = m_app.state;
    if (m_app.WebBrowser1().LocationURL() != u"about:blank"_s)
        return;
    if (++state.intBlankTicks > BlankTickLimit) {
        state.intBlankTicks = 0;
        m_app.Get<StopResume>().ResumeNext();
    }
}

// No wait for a page of the site has a limit.
void ActionTick::TellLongWait() {
    RunState& state = m_app.state;
    if (state.CurrentAction.isEmpty() || state.strLinkValue.isEmpty())
        return;
    const QString awaited = AwaitedInWords();
    const QString wait = state.strCurrentID + u' ' + state.strLinkType + u' ' + awaited;
    if (!m_wait || state.strWaitingFor != wait) {
        state.strWaitingFor = wait;
        m_wait = std::make_unique<LongWait>(m_app, awaited);
    }
    m_wait->Tell();
}

QString ActionTick::AwaitedInWords() const {
    const RunState& state = m_app.state;
    if (state.strLinkValue == u"ListOfIDs"_s)
        return u"a full list of profiles"_s;
    // The page that comes after the answer may be another one than the awaited.
    const bool isUsersTurn = state.blnWaitingForCaptcha && m_app.Get<PageSigns>().IsCaptchaPage();
    return isUsersTurn ? u"you to answer the CAPTCHA"_s : u"\""_s + state.strLinkValue + u"\" on the page"_s;
}

} // namespace qlm
