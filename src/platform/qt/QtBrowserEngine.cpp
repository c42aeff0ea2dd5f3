// SPDX-License-Identifier: MIT
#include "platform/ErrorPage.h"
#include "platform/qt/BlankDocument.h"
#include "platform/qt/QtBrowser.h"

#include <QWebEngineLoadingInfo>
#include <signal.h>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr int formLimitMs = 1000;
}

// The queue may outlive the control.
void QtBrowser::Post(std::function<void()> event) {
    m_pump.Queue().Post([self = QPointer(this), event = std::move(event)] {
        if (self)
            event();
    });
}

// A change that is reported while the program reads the page waits until the turn is over.
void QtBrowser::Note(std::function<void()> noted) {
    const auto change = [this, page = m_page, noted = std::move(noted)] {
        if (page == m_page)
            noted();
    };
    if (m_notes.empty() && !m_calls.IsUnderWay()) {
        change();
        return;
    }
    m_notes.push_back(change);
    m_notedTurn = m_pump.Queue().Turn();
    Post([this] { Settle(); });
}

void QtBrowser::Settle() {
    if (m_notes.empty() || m_calls.IsUnderWay() || m_notedTurn == m_pump.Queue().Turn())
        return;
    for (const auto& change : std::exchange(m_notes, {}))
        change();
}

void QtBrowser::OnMessage(const PageMessage& message) {
    // The navigation that the form leads to comes soon, from the engine's other process. Until then the page
    // is on its way: who waits for what a click has begun would otherwise leave too early and cancel it. A
    // script may collect a form's fields without sending it, hence the limit.
    if (message.kind == PageMessage::Kind::Inputs) {
        m_form = {};
        m_form.isForm = true;
        if (message.method == u"post"_s)
            m_form.headers = u"Content-Type: application/x-www-form-urlencoded\r\n"_s;
        for (const QStringList& input : message.inputs)
            m_form.inputs.push_back({input.at(0), input.at(1), input.at(2), input.at(3)});
        m_form.pageAddress = message.url;
        m_form.pageText = message.text;
        m_formLimit.start(formLimitMs);
        return;
    }
    Note([this, message] { Apply(message); });
}

void QtBrowser::Apply(const PageMessage& message) {
    using Kind = PageMessage::Kind;
    const bool isBlankPage = message.url == u"about:blank"_s;
    if (m_awaitsBlank) {
        if (message.kind == Kind::Arrived && isBlankPage)
            OnEngineBlank();
        return;
    }
    switch (message.kind) {
    case Kind::Arrived:
        // The one that has been written to was shown before it could tell; any other may have been met by
        // an answer of its own already.
        if ((isBlankPage && m_isEngineBlank) || message.document == m_documentId)
            break;
        Arrive(message.document, message.url);
        break;
    case Kind::Complete:
        if (message.document == m_documentId)
            Complete();
        break;
    case Kind::CompleteEmpty:
        m_isEmpty = message.document == m_documentId;
        break;
    case Kind::FrameComplete:
        Post([this, document = m_document, url = message.url] {
            if (document == m_document && events.documentComplete)
                events.documentComplete(false, url);
        });
        break;
    case Kind::Inputs:
        break;
    }
}

void QtBrowser::Arrive(const QString& document, const QString& url) {
    m_pump.Queue().EndTurn();
    m_calls.BeginDocument();
    m_refused.clear();
    m_silenceLimit.stop();
    m_isOnItsWay = false;
    m_answersForm = std::exchange(m_sendsForm, false);
    m_isProgramLoad = false;
    m_granted.clear();
    if (url == u"about:blank"_s) {
        m_isEngineBlank = true;
        ShowBlank();
    } else {
        m_isEngineBlank = false;
        m_isBlank = false;
        DocumentOwner& owner = *this;
        m_document = std::make_shared<PageDocument>(m_pump, m_calls, owner, document);
        m_documentId = document;
        m_isError = !m_failing.isEmpty();
        m_location = m_isError ? m_failing.toString(QUrl::FullyEncoded) : url;
        m_failing.clear();
        m_isCompleteTold = false;
        m_isEmpty = false;
    }
    Post([this, shown = m_document] {
        if (shown == m_document && events.navigateComplete2)
            events.navigateComplete2(m_location);
    });
    if (m_isBlank)
        Complete();
}

void QtBrowser::ShowBlank() {
    m_document = std::make_shared<BlankDocument>(
        [this](const DocumentBackend* document) { return IsPresent(document); },
        [this](const QString& html) { WriteBlank(html); });
    m_documentId.clear();
    m_location = u"about:blank"_s;
    m_isBlank = true;
    m_isCompleteTold = false;
    m_isError = false;
    m_failing.clear();
}

// A document that has been left by the time its turn comes says nothing any more.
void QtBrowser::Complete() {
    if (!m_isOnItsWay)
        m_isLoading = false;
    if (std::exchange(m_isCompleteTold, true))
        return;
    Post([this, shown = m_document] {
        if (shown == m_document && events.documentComplete)
            events.documentComplete(true, m_location);
    });
}

QtBrowser::LoadEnd QtBrowser::EndOf(const QWebEngineLoadingInfo& info) {
    if (info.status() == QWebEngineLoadingInfo::LoadStoppedStatus)
        return LoadEnd::Stopped;
    if (info.status() == QWebEngineLoadingInfo::LoadSucceededStatus)
        return LoadEnd::Finished;
    if (info.errorDomain() == QWebEngineLoadingInfo::HttpStatusCodeDomain)
        return LoadEnd::ErrorStatus;
    // The answer ended before its announced end.
    constexpr int lengthMismatch = -354, incompleteChunks = -355;
    const bool isCutShort = info.errorCode() == lengthMismatch || info.errorCode() == incompleteChunks;
    return isCutShort ? LoadEnd::CutShort : LoadEnd::Failed;
}

// The end of a load as the engine tells it: the watching script has told the good ends before, so this is
// about those that never reached a document.
void QtBrowser::OnLoading(const QWebEngineLoadingInfo& info) {
    using Info = QWebEngineLoadingInfo;
    // The failure that the error page is about, told once more under the error page's own address, while that
    // is still being loaded.
    if (info.status() == Info::LoadFailedStatus && info.errorCode() == 0 && info.url().scheme() == u"data"_s)
        return;
    m_isEngineLoading = info.status() == Info::LoadStartedStatus;
    if (m_isEngineLoading)
        return;
    const auto refused = std::find(m_refused.begin(), m_refused.end(), info.url());
    if (info.status() == Info::LoadStoppedStatus && refused != m_refused.end()) {
        m_refused.erase(refused);
        return;
    }
    if (m_heldLoad) {
        const auto begin = [this] {
            if (!m_isEngineLoading)
                BeginHeldLoad();
        };
        QMetaObject::invokeMethod(this, begin, Qt::QueuedConnection);
        return;
    }
    Note([this, url = info.url(), end = EndOf(info)] {
        if (!m_awaitsBlank && !m_isEngineBlank)
            OnEnd(url, end);
    });
}

void QtBrowser::OnEnd(const QUrl& url, LoadEnd end) {
    const bool isTarget = url == m_target;
    if (end == LoadEnd::Failed && (isTarget || !m_isOnItsWay))
        OnFailed(url);
    else if (end == LoadEnd::Stopped && isTarget)
        SetAtRest();
    else if ((end == LoadEnd::Finished || end == LoadEnd::CutShort) && isTarget && m_isOnItsWay)
        m_calls.InstallBridge();
    else if (end == LoadEnd::CutShort && !m_isOnItsWay && m_document)
        OnCutShort(url);
    else if (end == LoadEnd::ErrorStatus && !m_isOnItsWay && m_isEmpty)
        ShowError(url);
    else if (end != LoadEnd::Stopped && !m_isOnItsWay && m_document)
        Complete();
}

void QtBrowser::OnFailed(const QUrl& url) {
    if (!m_isOnItsWay) {
        // The page broke off in the middle: what has come is all that there will be.
        if (m_document)
            Complete();
        return;
    }
    const quint64 wish = m_wish;
    QMetaObject::invokeMethod(
        this,
        [this, url, wish] {
            if (wish == m_wish && m_isOnItsWay)
                ShowError(url);
        },
        Qt::QueuedConnection);
}

// What has come is shown, and where nothing has, the error page. How much the engine has kept of the last
// bytes is chance.
void QtBrowser::OnCutShort(const QUrl& url) {
    Post([this, url, shown = m_document] {
        if (shown != m_document || m_isOnItsWay)
            return;
        try {
            if (qlm::Document(shown).BodyHTML().trimmed().isEmpty())
                return ShowError(url);
        } catch (const BrowserError&) {
            return; // the page is gone
        }
        Complete();
    });
}

// Keeps the address that was asked for.
void QtBrowser::ShowError(const QUrl& url) {
    SetOnItsWay(url);
    m_failing = url;
    m_isEngineBlank = false;
    BeginLoad([this, url] { m_page->setHtml(ErrorPageHTML(url.toString(QUrl::FullyEncoded)), url); });
}

void QtBrowser::OnOtherDocument(const QString& document) {
    if (m_awaitsBlank || !m_notes.empty())
        return;
    m_notes.push_back([this, document] {
        if (document != m_documentId)
            Arrive(document, m_page->url().toString(QUrl::FullyEncoded));
    });
    m_notedTurn = m_pump.Queue().Turn();
    Post([this] { Settle(); });
}

void QtBrowser::OnAddress(const QString& url) {
    if (!m_isError)
        m_location = url;
}

void QtBrowser::OnNotice(const QString& text) {
    if (text == std::exchange(m_status, text))
        return;
    Post([this, text] {
        if (events.statusTextChange)
            events.statusTextChange(text);
    });
}

// A fresh page in the old one's place: nothing of what was there can come back.
void QtBrowser::RenewPage(OldRenderer oldRenderer) {
    BrowserPage* old = m_page;
    m_page = new BrowserPage(&m_profile, *this, this);
    m_calls.SetPage(m_page);
    if (IsSealed())
        m_page->Seal();
    Connect();
    if (m_view)
        m_view->setPage(m_page);
    m_notes.clear();
    m_refused.clear();
    m_granted.clear();
    m_awaitsBlank = false;
    m_isEngineBlank = true;
    m_isEngineLoading = false;
    m_heldLoad = {};
    m_blankLimit.stop();
    m_silenceLimit.stop();
    m_loads = 0;
    if (!old)
        return;
    old->Disown();
    // A renderer that is caught in a script would outlive its page.
    const qint64 process = old->renderProcessPid();
    const bool isAlone = BrowserPage::CountRenderedBy(process) == 1;
    old->deleteLater();
    if (oldRenderer == OldRenderer::Kill && process > 0 && isAlone)
        ::kill(static_cast<pid_t>(process), SIGKILL);
}

void QtBrowser::Connect() {
    connect(m_page, &QWebEnginePage::titleChanged, this, [this](const QString& title) {
        Post([this, title] {
            if (events.titleChange)
                events.titleChange(title);
        });
    });
    connect(m_page, &QWebEnginePage::linkHovered, this, [this](const QString& url) { OnNotice(url); });
    connect(m_page, &QWebEnginePage::urlChanged, this, [this](const QUrl& url) {
        Note([this, url] {
            if (!m_isOnItsWay && !m_isBlank && !m_awaitsBlank && !m_isError && m_document)
                m_location = url.toString(QUrl::FullyEncoded);
        });
    });
}

// What is on its way may never arrive in a page that is stuck. It is not asked for again: the server may have
// heard it.
void QtBrowser::OnSilence() {
    m_silenceLimit.start(std::max(m_giveUpAfterMs - m_calls.AnswerLimit(), 0));
}

void QtBrowser::GiveUpPage() {
    if (m_calls.IsSilent())
        Recover(OldRenderer::Kill);
}

void QtBrowser::OnTerminated() {
    m_calls.Lose();
    QMetaObject::invokeMethod(
        this,
        [this, page = QPointer(m_page)] {
            if (page == m_page)
                Recover(OldRenderer::IsGone);
        },
        Qt::QueuedConnection);
}

// The page is lost. The program goes on with the error page in its place.
void QtBrowser::Recover(OldRenderer old) {
    const std::optional<QUrl> next = m_afterBlank;
    const QUrl lost = m_isOnItsWay ? m_target : QUrl(m_location);
    const bool wasBlank = m_isBlank && !m_isOnItsWay;
    const bool isStillToAsk = m_heldLoad && m_isOnItsWay && !m_awaitsBlank && m_failing.isEmpty();
    RenewPage(old);
    if (next)
        Load(*next);
    else if (isStillToAsk)
        Load(lost);
    else if (!wasBlank && !lost.isEmpty())
        ShowError(lost);
}

} // namespace qlm
