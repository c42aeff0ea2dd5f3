// SPDX-License-Identifier: MIT
#include "browser/PageSigns.h"
#include "core/App.h"
#include "core/Text.h"
#include "gather/GatherDriver.h"
#include "gather/IdResolution.h"
#include "gather/LinkScanner.h"
#include "gather/Pager.h"
#include "steps/Steps.h"
#include "steps/StopResume.h"

#include <QRegularExpression>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int SecondsForClick = 5;
const QString ClickID = u"CLICKID="_s;

bool SaysHidden(const QString& markup) {
    static const QRegularExpression hidden(u"display\\s*:\\s*none"_s,
                                           QRegularExpression::CaseInsensitiveOption);
    return markup.contains(hidden);
}

bool IsMoreLink(const Element& link, const QString& address) {
    if (address.endsWith(u"/comments"_s, Qt::CaseInsensitive)) {
        const QString outer = link.OuterHTML();
        return Has(outer, u"moreComments"_s) && !SaysHidden(outer);
    }
    return Has(link.OuterHTML(), u"moreLink"_s) && !SaysHidden(link.ParentElement().OuterHTML());
}

// "20 of 35": the first number, and the one after the "of".
bool AllIsShown(const QString& text) {
    const qsizetype of = text.indexOf(u"of"_s, 0, Qt::CaseInsensitive);
    return ExtractNumberFromString(text) >= ExtractNumberFromString(text.mid(of + 3));
}

} // namespace

Next GatherDriver::TurnPage() {
    RunState& state = m_app.state;
    state.lngPageScanOffset = 0;
    if (m_app.controls.Ticked("optScanFollowing"_L1) &&
        m_app.Get<LinkScanner>().IsCommentsOrNotificationsPage())
        GrowInPlace();
    if (state.strNextPageLink.isEmpty()) {
        FinishGathering();
        return Next::Wait;
    }
    // Growing: the tick waits until the old end of the list has gone, and the new part is scanned then.
    if (!state.strLastPageText.isEmpty())
        return Next::Wait;
    return OpenNextPage() ? Next::Again : Next::Wait;
}

void GatherDriver::GrowInPlace() {
    RunState& state = m_app.state;
    const QString address = m_app.Get<PageSigns>().LocationURL();
    const bool notifications = address.endsWith(u"/notifications"_s, Qt::CaseInsensitive);
    state.strNextPageLink.clear();
    for (const Element& link : m_app.WebBrowser1().Document().Links()) {
        if (!IsMoreLink(link, address))
            continue;
        m_app.WebBrowser1().Stop();
        m_app.waiting.Pump();
        link.ScrollIntoView();
        m_app.waiting.Pump();
        const QString text = link.InnerText();
        if (notifications && AllIsShown(text))
            return;
        state.strLastPageText = notifications ? link.ParentElement().InnerText() : text;
        const QString html = m_app.WebBrowser1().Document().BodyHTML();
        const QString listEnd = notifications ? u"paginationProgress"_s : u"moduleBodyEnd"_s;
        state.lngPageScanOffset = static_cast<qint32>(html.indexOf(listEnd, 0, Qt::CaseInsensitive)) + 1;
        link.Click();
        break;
    }
    if (state.strLastPageText.isEmpty())
        return;
    m_app.SetStatus(u"Waiting for the next page to load..."_s);
    m_app.timers->tmrCheckLinkLoaded.Restart();
    state.blnLinkFound = false;
    state.strLinkType = u"Text"_s;
    state.strLinkValue = u"e"_s;
    state.intGatherStep = GatherStep::ScanPage;
    state.strNextPageLink = u"temp"_s;
}

void GatherDriver::FinishGathering() {
    const bool comparing = m_app.state.blnComparingIDs;
    m_app.Get<StopResume>().StopAll(StopReason::GatherDone);
    Trace(u"IGP4.5"_s);
    if (!comparing)
        m_app.SetStatus(u"Finished gathering ID's"_s);
    if (!m_app.Get<StopResume>().DoFinishedExit() && comparing)
        m_app.ShowMessage(u"Finished removing your friends from the list"_s);
}

// True when the next page stands already and is to be scanned at once; otherwise the tick goes on.
bool GatherDriver::OpenNextPage() {
    RunState& state = m_app.state;
    Trace(u"IGP4.1 - "_s + state.strNextPageLink);
    state.intGatherStep = GatherStep::ScanPage;
    SetMustNotHaveTexts();
    m_app.waiting.LeaveIfObsolete();
    if (!state.blnNewLayout)
        AwaitListOfIDs();
    m_standingPage.Leave();
    const QString oldURL = m_app.Get<PageSigns>().LocationURL();
    m_app.WebBrowser1().Stop();
    m_app.waiting.Pump();
    m_app.SetStatus(u"Waiting for the next page to load..."_s);
    if (state.blnClickNextLink) {
        ClickCaption();
    } else {
        Trace(u"IGP4.4"_s);
        if (state.strNextPageLink.contains(ClickID)) {
            const QString id = QString(state.strNextPageLink).remove(ClickID);
            m_app.WebBrowser1().Document().GetElementById(id).Click();
        } else {
            m_app.waiting.Pump();
            m_app.waiting.Pump();
            m_app.WebBrowser1().Navigate(state.strNextPageLink);
        }
        m_app.waiting.Pump();
    }
    Trace(u"NEXTPAGEWAIT0"_s);
    m_app.waiting.LeaveIfObsolete();
    if (!state.blnNewLayout) {
        state.blnLinkFound = false;
        m_app.timers->tmrCheckLinkLoaded.Restart();
        return false;
    }
    m_app.timers->tmrCheckLinkLoaded.SetEnabled(false);
    m_app.waiting.Pump();
    m_app.waiting.WaitSeconds(1);
    Trace(u"NEXTPAGEWAIT1"_s);
    WaitPageLoad(oldURL);
    Trace(u"NEXTPAGEWAIT - END"_s);
    return true;
}

// A browse page is slow to take the click up; when nothing has moved after some seconds it is clicked once
// more.
void GatherDriver::ClickCaption() {
    Trace(u"IGP4.3"_s);
    const QString caption = m_app.state.strNextPageLink;
    m_app.Get<Pager>().ClickNextPageLink(caption, {});
    if (m_app.Get<PageSigns>().AddressContains(u"/browse/"_s)) {
        const bool taken =
            m_app.waiting.WaitWhile([&] { return m_app.WebBrowser1().ReadyState() == 4; }, SecondsForClick);
        if (!taken)
            m_app.Get<Pager>().ClickNextPageLink(caption, {});
    }
    m_app.state.blnClickNextLink = false;
}

void GatherDriver::SetMustNotHaveTexts() {
    RunState& state = m_app.state;
    state.strLastPageText = GetListingText();
    if (!m_app.Get<PageSigns>().AddressContains(u"{SiteDomain}/forums/t/"_s) &&
        state.strLastPageText.isEmpty())
        state.strLastPageHref = m_app.Get<PageSigns>().GetHrefFromSecondID();
    if (state.strLastPageText.isEmpty() && state.strLastPageHref.isEmpty() && state.blnNewLayout) {
        state.strLastPageText = LastPageMarkup();
        state.blnLastPageAsHTML = !state.strLastPageText.isEmpty();
    }
    Trace(u"IGP4.2 - "_s + state.strLastPageText + u", "_s + state.strLastPageHref);
}

} // namespace qlm
