// SPDX-License-Identifier: MIT
#include "invites/GroupGrid.h"

#include "core/App.h"
#include "core/Text.h"
#include "invites/InvitePages.h"
#include "invites/InviteRun.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int BatchLimit = 25;
constexpr int FriendsOnPage = 10;
const QString HeaderBox =
    u"ctl00_ctl00_ctl00_cpMain_cpMain_cpMain_inviteFriendsDisplay_gridFriends_ctl01_headerCheckbox"_s;
const QString Pager = u"ctl00$ctl00$ctl00$cpMain$cpMain$cpMain$inviteFriendsDisplay$pagerTop"_s;
const QString WordField = u"captchaResponseTextBox"_s;
const QString CaptchaMessage =
    u"MySpace only allows you to send 25 invites at a time.\r\n\r\nPlease enter the text from the image and "
    "press the 'Invite' button to proceed."_s;

// From the first friend on every box is one.
std::vector<Element> FriendBoxes(const Document& page) {
    std::vector<Element> boxes;
    bool isInGrid = false;
    for (const Element& input : page.GetElementsByTagName(u"input"_s)) {
        if (input.Read(ElementText::Type) != u"checkbox")
            continue;
        isInGrid = isInGrid || Has(input.Id(), u"checkBoxFriend"_s);
        if (isInGrid)
            boxes.push_back(input);
    }
    return boxes;
}

} // namespace

bool GroupGrid::IsFull() const {
    return m_run.Chosen() >= BatchLimit;
}

void GroupGrid::Run() {
    while (!m_isFinished && !m_run.IsStopped()) {
        m_run.BeginBatch();
        GoToStartPage();
        FillBatch();
        m_isFinished = m_run.FinishAfterStop() || m_isFinished;
        const QString address = m_app.WebBrowser1().LocationURL();
        if (!m_run.SendBatch([this] { WaitForUser(); }))
            return;
        GoBackTo(address);
    }
}

// The first page is there already.
void GroupGrid::GoToStartPage() {
    if (m_startPage <= 1)
        return;
    m_run.WaitUntilComplete();
    m_app.SetStatus(u"Going to the start page..."_s);
    const QString mark = m_run.PageMark();
    m_app.WebBrowser1().Navigate(u"javascript:__doPostBack('"_s + Pager + u"','"_s +
                                 QString::number(m_startPage) + u"')"_s);
    m_run.Wait(u"the start page"_s, [&] { return m_run.HasTurned(mark); });
    m_startPage = 1;
}

void GroupGrid::FillBatch() {
    while (!IsFull() && !m_isFinished && !m_run.IsStopped()) {
        WaitForGrid();
        if (m_run.IsStopped())
            return;
        const int ticked = TickBoxes();
        if (!IsFull()) {
            GoToNextPage();
            continue;
        }
        const qint16 page = PageNumberOf(m_app.WebBrowser1().Document());
        m_startPage = ticked == FriendsOnPage ? page + 1 : page;
    }
}

void GroupGrid::WaitForGrid() {
    m_app.SetStatus(u"Waiting for page to load..."_s);
    m_run.Wait(u"the list of friends"_s, [this] { return m_run.HasElement(HeaderBox); });
    m_run.WaitUntilComplete();
}

int GroupGrid::TickBoxes() {
    m_app.SetStatus(u"Selecting friends on page to invite..."_s);
    int ticked = 0;
    for (const Element& box : FriendBoxes(m_app.WebBrowser1().Document())) {
        if (IsFull())
            break;
        const QString id = box.GetAttribute(u"value"_s);
        if (!m_run.MayInvite(id))
            continue;
        m_run.Choose(id, [&] { box.Click(); });
        ++ticked;
    }
    return ticked;
}

// Without a next page this batch is the last one.
void GroupGrid::GoToNextPage() {
    const QString mark = m_run.PageMark();
    const Element next = LinkReading(m_app.WebBrowser1().Document(), u"next ›"_s);
    m_isFinished = next.IsNull();
    if (m_isFinished)
        return;
    next.Click();
    m_app.SetStatus(u"Waiting for next page to load..."_s);
    m_run.Wait(u"the next page"_s, [&] { return m_run.HasTurned(mark); });
}

void GroupGrid::WaitForUser() {
    const bool asksForWord = m_run.Has(u"Please enter the text from the image"_s);
    m_app.SetStatus(u"Waiting for user to enter CAPTCHA and submit invites..."_s);
    m_run.ShowWaiting(asksForWord ? u"the CAPTCHA"_s : u"you to press Invite"_s);
    if (asksForWord) {
        m_app.ShowMessage(CaptchaMessage);
        if (const Element field = m_app.WebBrowser1().Document().GetElementById(WordField)) {
            m_app.WebBrowser1().TakeFocus();
            field.Focus();
        }
    }
    m_run.Wait(u"you to send the invitations"_s,
               [this] { return m_run.Has(u"Invited MySpace member(s)"_s) || m_run.Has(u"group leader:"_s); });
}

void GroupGrid::GoBackTo(const QString& address) {
    m_app.ClearPage();
    m_app.WebBrowser1().Navigate(address);
    m_app.SetStatus(u"Waiting for invite page to load..."_s);
    m_run.WaitForText(u"the invite page"_s, u"Find a MySpace User to Invite"_s);
}

} // namespace qlm
