// SPDX-License-Identifier: MIT
#include "campaigns/StatusUpdater.h"

#include "browser/Cover.h"
#include "browser/PageSigns.h"
#include "campaigns/SendRuns.h"
#include "campaigns/StatusPage.h"
#include "core/App.h"
#include "core/Text.h"
#include "steps/RunReport.h"
#include "steps/StopResume.h"

#include <stdexcept>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

const QString NewHomePage = u"{HomeHost}/index.cfm?fuseaction=home&f=7"_s;
const QString OldHomePage = u"{HomeHost}"_s;
constexpr int MostCharacters = 140;
constexpr int TypingSeconds = 3;
constexpr int MenuSeconds = 2;

} // namespace

StatusUpdater::StatusUpdater(App& app)
    : m_app(app), m_posts(app, StatusUpdates, "tmrStatusUpdatesWait_Timer", [this] { SendStatusUpdates(); }) {
    m_listener = app.controls.AddListener([this](const Control& control, Controls::Change change, int) {
        if (change == Controls::Change::Text && control.name == "txtStatusBody"_L1)
            ShowCharactersLeft();
    });
    ShowCharactersLeft();
}

StatusUpdater::~StatusUpdater() {
    m_app.controls.RemoveListener(m_listener);
}

void StatusUpdater::ShowCharactersLeft() {
    const qsizetype left = MostCharacters - m_app.controls.Text("txtStatusBody"_L1).size();
    m_app.controls.SetText("lblStatusCharactersRemaining"_L1,
                           QString::number(left) + u" characters remaining"_s);
}

void StatusUpdater::BeginRun() {
    m_app.Get<StopResume>().EndChain();
    m_posts.Begin();
}

// The waits belong to the run: whatever ends it ends them.
void StatusUpdater::SendStatusUpdates() {
    Waiting::LeaveHere([this] {
        const Waiting::Owned owned(m_app.waiting);
        const QString error = m_app.diagnostics.Trap("SendStatusUpdates", [this] {
            m_posts.Hold();
            OpenHomePage();
            Post();
        });
        if (error.isEmpty())
            m_posts.Posted();
        else
            m_posts.Failed(error);
        m_posts.Return();
    });
}

Document StatusUpdater::OwnPage() {
    return m_app.Get<SendRuns>().IsOnSite() ? m_app.WebBrowser1().Document() : Document();
}

Document StatusUpdater::NeedPage() {
    const Document page = OwnPage();
    if (!page)
        throw std::runtime_error("A page that is not the site's came; nothing was done on it");
    return page;
}

void StatusUpdater::WaitOnPage(const QString& what, const std::function<bool(const Document&)>& condition) {
    m_app.waiting.WaitFor(what, [&] {
        const Document page = OwnPage();
        return !page || !condition(page);
    });
}

void StatusUpdater::OpenHomePage() {
    m_app.WebBrowser1().SetSilent(true);
    m_app.Get<Cover>().Hide();
    m_app.SetStatus(u"Waiting for your MySpace home page to load..."_s);
    m_app.WebBrowser1().Navigate(u"about:blank"_s);
    m_app.WebBrowser1().Navigate(m_app.Expand(m_app.state.blnNewLayout ? NewHomePage : OldHomePage));
    m_app.Get<PageSigns>().WaitForDocument();
    WaitOnPage(u"the status box of your home page"_s,
               [this](const Document& page) { return HasStatusBox(page, m_app.state.blnNewLayout); });
}

void StatusUpdater::Post() {
    const QString text = m_posts.Text().body;
    WaitOnPage(u"\"Share what you're into\" on the page"_s, [this](const Document& page) {
        return m_app.state.blnHoldLinkCheck || InvitesToShare(page.BodyText());
    });
    m_app.waiting.WaitSeconds(1);
    if (m_app.controls.Ticked("chkStatusAntiFlood"_L1) && m_app.state.lngSessionStatus >= 1) {
        m_app.SetStatus(u"Anti-flood: deleting your previously posted status update..."_s);
        DeleteStatusUpdate();
        m_app.waiting.WaitSeconds(1);
    }
    m_app.SetStatus(u"Posting your status update..."_s);
    StatusBox(NeedPage()).Focus();
    m_app.waiting.WaitSeconds(TypingSeconds);
    StatusBox(NeedPage()).SetValue(text);
    m_app.waiting.WaitSeconds(TypingSeconds);
    m_posts.NoteBeforePost();
    if (!PressShare(NeedPage()))
        m_app.Get<RunReport>().Remark(u"The page has no button that shares"_s);
    m_app.waiting.WaitSeconds(TypingSeconds);
}

void StatusUpdater::DeleteStatusUpdate() {
    m_app.diagnostics.Trap("DeleteStatusUpdate",
                           [this] { m_app.state.blnNewLayout ? DeleteInNewLayout() : DeleteInOldLayout(); });
}

void StatusUpdater::DeleteInOldLayout() {
    ShowOwnUpdates(NeedPage());
    m_app.waiting.Pump();
    m_app.waiting.Pump();
    m_app.waiting.WaitFor(u"the page to be complete"_s,
                          [this] { return m_app.WebBrowser1().ReadyState() != 4; });
    WaitOnPage(u"\"Delete This Update\" on the page"_s,
               [](const Document& page) { return Has(page.BodyHTML(), u"Delete This Update"_s); });
    m_app.Get<PageSigns>().ClickLink(u"InnerHTML"_s, u"Delete This Update"_s);
    m_app.waiting.WaitSeconds(MenuSeconds);
    ConfirmOldDeletion(NeedPage());
}

// The stream is loaded anew: its mark comes, and then it goes.
void StatusUpdater::ChooseInStream(const QString& link) {
    m_app.Get<PageSigns>().ClickLink(u"Innertext"_s, link);
    WaitOnPage(u"the stream to load"_s, IsStreamLoading);
    WaitOnPage(u"the stream to load"_s, [](const Document& page) { return !IsStreamLoading(page); });
}

void StatusUpdater::DeleteInNewLayout() {
    ChooseInStream(u"Just me"_s);
    ChooseInStream(u"Status"_s);
    m_app.waiting.WaitSeconds(TypingSeconds);
    PressDeleteUpdate(NeedPage());
    m_app.waiting.WaitSeconds(1);
    ConfirmNewDeletion(NeedPage());
}

} // namespace qlm
