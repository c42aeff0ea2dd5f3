// SPDX-License-Identifier: MIT
#include "campaigns/BulletinPoster.h"

#include "browser/Cover.h"
#include "browser/PageSigns.h"
#include "campaigns/BulletinPage.h"
#include "campaigns/SendRuns.h"
#include "core/ActivityWords.h"
#include "core/App.h"
#include "steps/Lending.h"
#include "steps/RunReport.h"
#include "steps/Steps.h"
#include "steps/StopResume.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

const QString PostPage = u"{SiteRootHost}/bulletins/new"_s;
const QString PostedPage = u"{SiteRootHost}/bulletins/"_s;
const QString Confirmation = u"bulletin has been posted"_s;
constexpr int PageSeconds = 25;
constexpr int DeletionSeconds = 4;

} // namespace

BulletinPoster::BulletinPoster(App& app)
    : m_app(app), m_posts(app, Bulletins, "tmrBulletinWait_Timer", [this] {
          m_app.state.intBulStep = BulletinStep::Open;
          IterateSendBulletins();
      }) {}

const StepMachine<BulletinPoster>& BulletinPoster::Machine() {
    static const StepMachine<BulletinPoster> machine{
        .word = ActivityWord::Bulletins,
        .step = &RunState::intBulStep,
        .procedure = "IterateSendBulletins",
        .begin = &BulletinPoster::BeginStep,
        .states = {{BulletinStep::Open, &BulletinPoster::OpenPage},
                   {BulletinStep::Submit, &BulletinPoster::SubmitBulletin},
                   {BulletinStep::Rest, &BulletinPoster::Rest},
                   {BulletinStep::Posted, &BulletinPoster::TakePosted},
                   {BulletinStep::DeleteLast, &BulletinPoster::DeleteLast}},
        .errorData = nullptr,
    };
    return machine;
}

void BulletinPoster::BeginRun() {
    m_app.WebBrowser1().Navigate(u"about:blank"_s);
    m_app.state.blnBulletinDeleted = false;
    m_posts.Begin();
    m_app.diagnostics.DebugForAction(u"START - "_s + m_app.controls.Text("txtPostAmount"_L1) + u", "_s +
                                     m_app.controls.Text("txtBulTimerFrom"_L1) + u", "_s +
                                     m_app.controls.Text("txtBulTimerTo"_L1));
}

void BulletinPoster::IterateSendBulletins() {
    m_posts.Repair();
    if (RunSteps(m_app, *this, Machine()).isEmpty())
        return;
    // A form that failed while it was filled in is opened anew; any other page is looked at again.
    if (m_app.state.intBulStep == BulletinStep::Submit)
        OpenPage();
    m_app.state.blnLinkFound = false;
    m_app.timers->tmrCheckLinkLoaded.Restart();
}

void BulletinPoster::BeginStep() {
    m_app.WebBrowser1().SetSilent(true);
    m_app.webHide().SetSilent(true);
    m_app.Get<Cover>().Hide();
}

void BulletinPoster::Await(qint16 nextStep, const QString& type, const QString& value) {
    m_app.state.intBulStep = nextStep;
    m_app.state.strLinkType = type;
    m_app.state.strLinkValue = value;
    m_app.state.blnLinkFound = false;
    m_app.timers->tmrCheckLinkLoaded.Restart();
}

bool BulletinPoster::MustDeleteFirst() const {
    const RunState& state = m_app.state;
    return m_app.controls.Ticked("chkAntiFlood"_L1) && state.lngSessionBul > 0 && !state.blnBulletinDeleted;
}

Next BulletinPoster::OpenPage() {
    m_app.WebBrowser1().Navigate(u"about:blank"_s);
    if (MustDeleteFirst()) {
        m_app.SetStatus(u"Anti-Flood: waiting for your posted bulletins page to load..."_s);
        m_app.WebBrowser1().Navigate(m_app.Expand(PostedPage) + m_app.state.MyProfileID);
        Await(BulletinStep::DeleteLast, u"Text"_s, u"My posts"_s);
        return Next::Wait;
    }
    m_app.SetStatus(u"Waiting for the bulletin board page to load..."_s);
    m_app.state.blnBulletinDeleted = false;
    m_app.WebBrowser1().Navigate(m_app.Expand(PostPage));
    m_posts.Hold();
    Await(BulletinStep::Submit, u"Button"_s, u"post"_s);
    return Next::Wait;
}

void BulletinPoster::WaitUntilComplete() {
    m_app.waiting.WaitWhile([this] { return m_app.WebBrowser1().ReadyState() != 4; }, PageSeconds);
}

bool BulletinPoster::IsOnSite() {
    return m_app.Get<SendRuns>().IsOnSite();
}

// Without a button the form is opened again, however often: nothing has been posted.
Next BulletinPoster::SubmitBulletin() {
    m_app.SetStatus(u"Waiting for bulletin page to finish loading..."_s);
    m_app.Get<PageSigns>().WaitForDocument();
    WaitUntilComplete();
    if (IsOnSite() && !HasText())
        return Next::Wait;
    if (IsOnSite())
        FillForm();
    // A stranger's page may have come in the waits of the form.
    const Element button = IsOnSite() ? FindPostButton(m_app.WebBrowser1().Document()) : Element();
    if (!button) {
        m_app.state.intBulStep = BulletinStep::Open;
        return Next::Again;
    }
    m_posts.NoteBeforePost();
    m_app.SetStatus(u"Bulletin posted, waiting for confirmation page..."_s);
    Await(BulletinStep::Posted, u"Text"_s, Confirmation);
    Diagnostics::IgnoreErrors([&button] { button.Click(); });
    return Next::Wait;
}

// Without one, as when the list has been emptied since the start, the post waits for its next minute: the
// form would be opened again and again.
bool BulletinPoster::HasText() {
    const QString error = m_app.diagnostics.Trap("SubmitBulletin", [this] { m_posts.Text(); });
    if (error.isEmpty())
        return true;
    m_app.state.intBulStep = BulletinStep::None;
    m_posts.Failed(error);
    m_posts.Return();
    return false;
}

void BulletinPoster::FillForm() {
    const SubjectAndBody& text = m_posts.Text();
    m_app.Get<PageSigns>().WaitForDocument();
    TypeSubject(m_app.WebBrowser1().Document(), text.subject);
    OpenSourceView();
    if (!IsOnSite())
        return;
    TypeBulletin(m_app.WebBrowser1().Document(), text.body, m_app.state.blnNewLayout);
    WaitUntilComplete();
    if (IsOnSite())
        AllowComments(m_app.WebBrowser1().Document(), m_app.controls.Ticked("chkBulAllowComments"_L1));
}

void BulletinPoster::OpenSourceView() {
    PageSigns& page = m_app.Get<PageSigns>();
    m_app.waiting.WaitWhile([&page] { return !page.IsTextInPage(u"View Source"_s, true); }, PageSeconds);
    page.ClickLink(u"Title"_s, u"View Source"_s);
    WaitUntilComplete();
}

// No step leads here.
Next BulletinPoster::Rest() {
    m_app.diagnostics.DebugForAction(QString::number(BulletinStep::Rest));
    return Next::Wait;
}

// However it is entered: who comes here a second time has pressed the button.
Next BulletinPoster::TakePosted() {
    const bool isConfirmed = m_app.Get<PageSigns>().IsTextInPage(Confirmation);
    m_posts.Posted(isConfirmed ? QString() : u"The site's confirmation was not seen"_s);
    RunState& state = m_app.state;
    if (m_posts.IsLast() && state.ChainedCampaign == ActivityWord::Bulletins &&
        m_app.Get<StopResume>().HandOverInChain()) {
        m_app.Get<Lending>().Forget();
        return Next::Wait;
    }
    state.intBulStep = BulletinStep::None;
    m_posts.Return();
    return Next::Wait;
}

Next BulletinPoster::DeleteLast() {
    PageSigns& page = m_app.Get<PageSigns>();
    const bool hasNone = page.IsTextInPage(u"you have no bulletins posted at this time"_s) ||
                         page.IsTextInPage(u"send any bulletins yet"_s);
    if (!hasNone) {
        m_app.SetStatus(u"Anti-Flood: deleting your last bulletin..."_s);
        DeleteBulletin();
    }
    m_app.state.intBulStep = BulletinStep::Open;
    if (!hasNone)
        m_app.waiting.WaitSeconds(DeletionSeconds);
    m_app.state.blnBulletinDeleted = true;
    return Next::Again;
}

void BulletinPoster::DeleteBulletin() {
    m_app.diagnostics.Trap("DeleteBulletin", [this] {
        m_app.Get<PageSigns>().WaitForDocument();
        m_app.waiting.WaitFor(u"your posted bulletins"_s, [this] {
            const Document page = m_app.WebBrowser1().Document();
            return !IsOnSite() || !page || !HasBulletinList(page);
        });
        DeleteNewest(m_app.WebBrowser1().Document());
        m_app.state.blnBulletinDeleted = true;
    });
}

void BulletinPoster::ConfirmBulletin() {
    m_app.diagnostics.Trap("ConfirmBulletin", [this] {
        const Element button = FindBulletinConfirmation(m_app.WebBrowser1().Document());
        m_app.state.intBulStep = button ? BulletinStep::Posted : BulletinStep::Open;
        if (!button)
            return;
        m_app.SetStatus(u"Bulletin confirmed, waiting for MySpace confirmation..."_s);
        button.Click();
    });
}

} // namespace qlm
