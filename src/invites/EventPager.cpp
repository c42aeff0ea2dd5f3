// SPDX-License-Identifier: MIT
#include "invites/EventPager.h"

#include "core/App.h"
#include "core/Text.h"
#include "invites/InvitePages.h"
#include "invites/InviteRun.h"

#include <QRegularExpression>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

const QString Selected = u"SELECTED"_s;
const QString PersonPrefix = u"userAdd"_s;
const QString WaitingForList = u"Waiting for guest list page to load..."_s;
const QString ExpiredMessage = u"A problem in MySpace has caused the friends section to expire, after "
                               u"submitting QLM will return to this "
                               "page and try again."_s;

std::vector<Element> People(const Document& page) {
    std::vector<Element> people;
    for (const Element& element : page.Body().Tags(u"*"_s))
        if (element.Id().startsWith(PersonPrefix) && IsDigits(element.Id().mid(PersonPrefix.size())))
            people.push_back(element);
    return people;
}

} // namespace

bool EventPager::Fits() const {
    return m_run.HasElement(u"SelectAllLink"_s);
}

bool EventPager::IsLoaded() const {
    return m_run.IsComplete() && m_run.Has(u"select your friends"_s) && m_run.Has(u"Results"_s);
}

bool EventPager::IsExpired() const {
    return m_run.Has(u"you have been away for too long"_s);
}

// "1-12 of 40": nobody comes behind the last one. A list that doesn't say so has one page.
bool EventPager::IsLastPage() const {
    static const QRegularExpression slice(u"(\\d+)\\s*-\\s*(\\d+)\\s+of\\s+(\\d+)"_s);
    const QRegularExpressionMatch match = slice.match(m_app.WebBrowser1().Document().BodyText());
    return !match.hasMatch() || match.captured(2).toInt() >= match.captured(3).toInt();
}

void EventPager::Run() {
    while (!m_isFinished && !m_run.IsStopped()) {
        m_run.BeginBatch();
        FillBatch();
        m_isFinished = m_run.FinishAfterStop() || m_isFinished;
        const QString address = m_app.WebBrowser1().LocationURL();
        if (!m_run.SendBatch([this] { WaitForUser(); }) || m_isFinished)
            return;
        m_app.ClearPage();
        m_app.WebBrowser1().Navigate(address);
        GoBackToList();
    }
}

void EventPager::GoToPage(const QString& status) {
    m_app.SetStatus(status);
    const QString mark = m_run.PageMark();
    m_app.WebBrowser1().Navigate(u"javascript:Events.Pager.AjaxPagerPrimary.getNewPagingData("_s +
                                 QString::number(m_page) + u")"_s);
    m_run.Wait(u"the next page"_s, [&] { return (IsLoaded() && m_run.HasTurned(mark)) || IsExpired(); });
}

// The first page is there already.
void EventPager::FillBatch() {
    m_run.Wait(u"the guest list"_s, [this] { return IsLoaded() || IsExpired(); });
    if (m_page > 1 && !m_run.IsStopped())
        GoToPage(u"Going to the start page..."_s);
    while (!m_run.IsStopped() && !IsExpired()) {
        ChooseOnPage();
        m_isFinished = IsLastPage();
        if (m_isFinished)
            return;
        ++m_page;
        GoToPage(WaitingForList);
    }
    if (IsExpired() && !m_run.IsStopped())
        m_app.ShowMessage(ExpiredMessage);
}

// Whoever isn't to be invited is let go.
void EventPager::ChooseOnPage() {
    m_app.SetStatus(u"Adding people on page to guest list..."_s);
    for (const Element& person : People(m_app.WebBrowser1().Document())) {
        const bool isSelected = Has(person.Read(ElementText::ClassName), Selected);
        const QString id = person.Id().mid(PersonPrefix.size());
        if (m_run.MayInvite(id))
            m_run.Choose(id, [&] {
                if (!isSelected)
                    person.Click();
            });
        else if (isSelected && !m_run.IsChosen(id))
            person.Click();
    }
}

void EventPager::WaitForUser() {
    m_app.SetStatus(u"Waiting for user to enter CAPTCHA and submit invites..."_s);
    m_run.ShowWaiting(u"you to send them"_s);
    m_run.WaitForText(u"you to send the invitations"_s, u"cancel event"_s);
}

void EventPager::GoBackToList() {
    m_app.SetStatus(
        u"Proceeding to send next batch of event invites, waiting for guest list page to load..."_s);
    m_run.Wait(u"the guest list"_s, [this] { return IsLoaded(); });
    m_app.SetStatus(u"Continuing from the last page..."_s);
}

} // namespace qlm
