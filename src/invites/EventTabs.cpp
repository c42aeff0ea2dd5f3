// SPDX-License-Identifier: MIT
#include "invites/EventTabs.h"

#include "core/App.h"
#include "core/Text.h"
#include "invites/InvitePages.h"
#include "invites/InviteRun.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

const QString BoxPrefix = u"cbInviteMetro_"_s;

std::vector<Element> Boxes(const Document& page) {
    std::vector<Element> boxes;
    for (const Element& input : page.GetElementsByTagName(u"input"_s))
        if (Has(input.Id(), BoxPrefix))
            boxes.push_back(input);
    return boxes;
}

} // namespace

void EventTabs::Trace(const QString& text) {
    m_app.diagnostics.Debug(u"debugevinv.txt"_s, u"SEND3 - "_s + text);
}

bool EventTabs::Fits() const {
    return !Boxes(m_app.WebBrowser1().Document()).empty();
}

void EventTabs::Run() {
    Trace(u"1"_s);
    m_run.BeginBatch();
    TickBoxes();
    if (m_run.IsStopped())
        Trace(u"STOPCLICKED"_s);
    if (m_run.FinishAfterStop())
        Trace(u"STOPCONFIRMED"_s);
    m_run.SendBatch([this] { m_isPublic ? SubmitPublic() : SubmitPrivate(); });
}

void EventTabs::TickBoxes() {
    for (const Element& box : Boxes(m_app.WebBrowser1().Document())) {
        m_app.waiting.Pump();
        if (m_run.IsStopped())
            return;
        const QString id = box.Id().section(BoxPrefix, -1);
        if (!m_run.MayInvite(id))
            continue;
        m_run.Choose(id, [&] { box.Click(); });
        Trace(u"CLICKED"_s);
    }
}

void EventTabs::SubmitPrivate() {
    const QString asked = u"Please enter the text from the image"_s;
    m_run.Press(u"saveButton3"_s);
    Trace(u"PRIVATE - SAVECLICKED"_s);
    // Whole: the user is called to it.
    m_run.Wait(u"the site's answer"_s, [&] {
        return m_run.IsComplete() && (m_run.HasElement(u"saveButton4"_s) || m_run.Has(asked));
    });
    if (m_run.Has(asked)) {
        Trace(u"CAPTCHA ASKED"_s);
        m_app.SetStatus(u"Waiting for user to enter CAPTCHA and submit invites..."_s);
        m_run.ShowWaiting(u"the CAPTCHA"_s);
    }
    m_run.Wait(u"you to type the text from the image"_s, [this] { return m_run.Press(u"saveButton4"_s); });
    m_run.Wait(u"the site to process the invitations"_s,
               [this] { return m_run.HasElement(u"post_rsvp_div"_s) && m_run.IsComplete(); });
}

void EventTabs::SubmitPublic() {
    Trace(u"PUBLIC - SAVEPROMPTED"_s);
    m_run.ShowWaiting(u"you to press Invite"_s);
    m_app.ShowMessage(u"Please press the Invite button at the bottom of the list and enter the CAPTCHA."_s);
    m_run.Wait(u"you to send the invitations"_s, [this] { return m_run.HasMarkup(u"your-event-btns"_s); });
}

} // namespace qlm
