// SPDX-License-Identifier: MIT
#include "invites/EventBoxes.h"

#include "core/App.h"
#include "core/Text.h"
#include "gather/Pager.h"
#include "invites/InvitePages.h"
#include "invites/InviteRun.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

// Of which each is somebody.
std::vector<Element> Blocks(const Document& page) {
    std::vector<Element> blocks;
    for (const Element& element : page.GetElementsByTagName(u"div"_s))
        if (Has(element.Id(), u"divInviteFriendCheck"_s))
            blocks.push_back(element);
    return blocks;
}

} // namespace

bool EventBoxes::Fits() const {
    return !Blocks(m_app.WebBrowser1().Document()).empty();
}

void EventBoxes::Run() {
    m_run.BeginBatch();
    do
        ChooseOnPage();
    while (!m_run.IsStopped() && GoToNextPage());
    m_run.FinishAfterStop();
    m_run.SendBatch([this] { Submit(); });
}

void EventBoxes::ChooseOnPage() {
    m_app.SetStatus(u"Selecting friends to invite..."_s);
    for (const Element& block : Blocks(m_app.WebBrowser1().Document())) {
        const QString id = GetNumberFromEnd(block.Id());
        if (Has(block.InnerHTML(), u"unchecked"_s) && m_run.MayInvite(id))
            m_run.Choose(id, [&] { block.Click(); });
    }
}

bool EventBoxes::GoToNextPage() {
    const QString mark = m_run.PageMark();
    if (!m_app.Get<Pager>().ClickNextPageLink(u"next"_s, {}))
        return false;
    m_app.SetStatus(u"Waiting for next page to load..."_s);
    m_run.Wait(u"the next page"_s, [&] { return m_run.HasTurned(mark) && m_run.Has(u"listing"_s); });
    m_run.WaitUntilComplete();
    return !m_run.IsStopped();
}

void EventBoxes::Submit() {
    const QString asked = u"Please enter the text from the image"_s;
    if (m_run.Has(asked)) {
        m_app.SetStatus(u"Waiting for user to enter CAPTCHA and submit invites..."_s);
        m_run.ShowWaiting(u"the CAPTCHA"_s);
        m_run.Wait(u"you to type the text from the image"_s,
                   [&] { return m_run.IsComplete() && !m_run.Has(asked); });
    }
    if (!m_run.IsStopped() && !m_run.Press(u"saveButton3"_s))
        m_run.Press(u"alertOKButton"_s);
    m_app.SetStatus(u"Event invites submitted, waiting for MySpace to process..."_s);
    m_run.Wait(u"the site to process the invitations"_s, [this] { return m_run.Press(u"saveButton4"_s); });
    m_run.Wait(u"the site to process the invitations"_s, [this] {
        const Document page = m_app.WebBrowser1().Document();
        const Element list = page && page.Body() ? page.GetElementById(u"post_rsvp_div"_s) : Element();
        return list && !IsHidden(list) && Has(m_app.WebBrowser1().LocationURL(), u"event/view/"_s);
    });
}

} // namespace qlm
