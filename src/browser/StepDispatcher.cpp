// SPDX-License-Identifier: MIT
#include "browser/StepDispatcher.h"

#include "browser/GatherPageTest.h"
#include "browser/PageClassifier.h"
#include "browser/PageTests.h"
#include "core/App.h"
#include "core/StopResume.h"
#include "core/Text.h"

#include <algorithm>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int RepeatedPageLimit = 10;
constexpr int MessageConfirmPolls = 10;
constexpr qint16 ErrorRedirectClass = 32;

bool SameWord(const QString& text, const QString& word) {
    return text.trimmed().toLower() == word;
}

// An advertiser's profile has no such line.
bool AdvertiserInstead(App& app) {
    return app.state.strLinkValue.compare(u"last login:"_s, Qt::CaseInsensitive) == 0 &&
           (app.pageTests->IsAdvertiserProfile() || app.pageTests->IsTextInPage(u"view my:"_s));
}

bool FormInsteadOfComment(App& app) {
    RunState& state = app.state;
    if (state.CurrentAction != u"COM"_s || state.intComStep != 8 || !StepDispatcher::IsCommentFormBack(app))
        return false;
    state.intComStep = 4;
    return true;
}

// A message that the site doesn't confirm on one complete page after another counts as failed.
bool UnconfirmedMessage(App& app) {
    RunState& state = app.state;
    if (state.CurrentAction != u"MSG"_s || state.intMsgStep != 8 ||
        state.strLinkValue.compare(u"your message has been sent"_s, Qt::CaseInsensitive) != 0 ||
        app.WebBrowser1().ReadyState() != 4 || app.pageTests->IsCaptchaPage())
        return false;
    if (++state.intConfirmPolls >= MessageConfirmPolls) {
        state.intConfirmPolls = 0;
        state.blnSkipCurrentID = true;
        app.stopResume->ResumeNext();
    }
    return false;
}

} // namespace

bool StepDispatcher::CheckLinkFound() {
    try {
        return RunStages();
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
    const bool captchaPage = m_app.pageTests->IsCaptchaPage();
    state.blnForceAdvance = false;
    m_app.pageTests->WaitForDocument();

    if (const Verdict verdict = StillLastPage())
        return *verdict;
    if (const Verdict verdict = ErrorPage())
        return *verdict;
    if (const Verdict verdict = TakeDetour(m_app, captchaPage))
        return *verdict;
    return ExpectedElement();
}

bool StepDispatcher::IsCommentFormBack(App& app) {
    const QString form = app.state.blnCommentUsedEditor
                             ? u"ctl00$ctl00$cpMain$UserWriteCommentsControl$commentTextBox"_s
                             : u"ctl00_ctl00_cpMain_cpMain_ctl02_ctl00"_s;
    return app.pageTests->IsTextInPage(form, true);
}

void StepDispatcher::GiveUpRequest(App& app, bool skipCurrentID) {
    RunState& state = app.state;
    if (app.controls.Ticked("chkFrSendMessage"_L1))
        state.blnFRSkipMessage = true;
    if (skipCurrentID)
        state.blnSkipCurrentID = true;
    state.intFRStep = 9;
    app.stopResume->ResumeNext();
}

Verdict StepDispatcher::StillLastPage() {
    RunState& state = m_app.state;
    state.blnLastPageTextSeen = m_app.pageTests->IsTextInPage(state.strLastPageText, state.blnLastPageAsHTML);
    state.blnLastPageHrefSeen = m_app.pageTests->HrefLoaded(state.strLastPageHref, state.blnLastPageAsHTML);
    if (!state.blnLastPageTextSeen && !state.blnLastPageHrefSeen)
        return std::nullopt;

    if (state.CurrentAction == u"ACC"_s && (state.intAccStep == 2 || state.intAccStep == 3) &&
        state.strLinkValue == u"spanapprovebottom"_s) {
        if (!m_app.pageTests->IsTextInPage(u"You have no requests"_s))
            return false;
        state.blnLinkFound = true;
        state.blnForceAdvance = true;
        return true;
    }
    if (state.CurrentAction == u"COM"_s && state.intComStep == 11 && IsCommentFormBack(m_app)) {
        m_app.diagnostics.DebugForAction(u"GONE BACK - "_s + m_app.WebBrowser1().Document().BodyText());
        state.intComStep = 4;
        state.blnLinkFound = true;
        return true;
    }
    if (state.CurrentAction == u"SCANNING"_s && state.intGatherStep == 3) {
        ++state.intGatherRetryTicks;
        if (!Has(state.strGatherStartURL, u"page/1001"_s) || state.intGatherRetryTicks < RepeatedPageLimit)
            return false;
        m_app.stopResume->StopAll(u"LF2"_s);
        if (!m_app.stopResume->DoFinishedExit())
            m_app.ShowMessage(
                u"MySpace only displays the first 1000 pages, after which the same ID's just repeat page "
                "after page.\n\nThe gathering process has been stopped."_s);
        return false;
    }
    if (state.CurrentAction == u"COM"_s || state.CurrentAction == u"FR"_s)
        m_app.diagnostics.DebugForAction(u"STILL LAST PAGE - "_s + state.strLastPageText + u", "_s +
                                         QString::number(state.intPageClass));
    return false;
}

Verdict StepDispatcher::ErrorPage() {
    RunState& state = m_app.state;
    state.blnDailyLimitHit = false;
    if (!m_app.pageClassifier->ClassifyErrorPage())
        return std::nullopt;
    // While the request's own confirmation is on its way only the error redirect counts.
    const bool awaitingConfirmation = state.CurrentAction == u"FR"_s && state.intFRStep == 9;
    if (awaitingConfirmation && state.intPageClass != ErrorRedirectClass)
        return std::nullopt;
    const QString action = state.CurrentAction;
    if (action != u"LOGIN"_s)
        m_app.ClearPage();
    // A stop while the page was cleared leaves nothing to handle.
    if (state.CurrentAction == action)
        HandleErrorPage(m_app);
    return false;
}

bool StepDispatcher::ExpectedElement() {
    RunState& state = m_app.state;
    if (state.blnLinkFound)
        return false;
    const bool folderActivity = state.CurrentAction == u"ACC"_s || state.CurrentAction == u"DEL PEN"_s;
    const bool emptyFolder =
        folderActivity && (m_app.pageTests->IsTextInPage(u"there are 0 messages in this folder"_s) ||
                           m_app.pageTests->IsTextInPage(u"there are 0 requests in this folder"_s) ||
                           m_app.pageTests->IsTextInPage(u"You have no requests"_s));
    const bool found = IsElementThere() || emptyFolder || (state.strLinkType == u"Text"_s && TextRiders());
    if (found)
        state.blnLinkFound = true;
    return found;
}

bool StepDispatcher::IsElementThere() {
    const RunState& state = m_app.state;
    const Document document = m_app.WebBrowser1().Document();
    const QString wanted = state.strLinkValue.toLower();
    auto any = [&document](const QString& tag, const auto& test) {
        const auto elements = document.GetElementsByTagName(tag);
        return std::any_of(elements.begin(), elements.end(), test);
    };
    if (state.strLinkType == u"Link"_s) {
        const auto links = document.Links();
        return std::any_of(links.begin(), links.end(), [&wanted](const Element& link) {
            return link.InnerText().toLower().contains(wanted) || link.Href().toLower().contains(wanted);
        });
    }
    if (state.strLinkType == u"Image"_s)
        return m_app.pageTests->ImageExists(state.strLinkValue) ||
               any(u"input"_s,
                   [&](const Element& input) { return input.Name().toLower().contains(wanted); }) ||
               (state.intComStep == 7 && any(u"button"_s, [](const Element& button) {
                    return SameWord(button.Value(), u"post a comment"_s);
                }));
    if (state.strLinkType == u"Button"_s)
        return any(u"input"_s, [&](const Element& input) { return SameWord(input.Value(), wanted); }) ||
               any(u"button"_s, [&](const Element& button) {
                   return SameWord(button.Value(), wanted) || SameWord(button.InnerText(), wanted);
               });
    if (state.strLinkType == u"ID"_s)
        return state.strLinkValue == u"ListOfIDs"_s ? IsGatherPageComplete(m_app)
                                                    : !document.GetElementById(state.strLinkValue).IsNull();
    if (state.strLinkType == u"TextHTML"_s)
        return m_app.pageTests->IsTextInPage(state.strLinkValue, true);
    return state.strLinkType == u"Text"_s && m_app.pageTests->IsTextInPage(state.strLinkValue);
}

// Pages on which a plain text test is not the whole story. Asked only when that test has failed.
bool StepDispatcher::TextRiders() {
    return AdvertiserInstead(m_app) || FormInsteadOfComment(m_app) || UnconfirmedMessage(m_app);
}

} // namespace qlm
