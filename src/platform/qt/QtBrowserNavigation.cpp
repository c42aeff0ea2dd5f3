// SPDX-License-Identifier: MIT
#include "platform/qt/QtBrowser.h"

#include <QDir>
#include <QEventLoop>
#include <QWebEngineHistory>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int blankLimitMs = 2000;
constexpr int holdLimitMs = 500;

bool IsBlankAddress(const QString& url) {
    return url.compare(u"about:blank"_s, Qt::CaseInsensitive) == 0;
}

bool HasScheme(const QString& url) {
    const qsizetype colon = url.indexOf(u':');
    if (colon <= 0)
        return false;
    // "host:8080/page" has none.
    if (colon + 1 < url.size() && url.at(colon + 1).isDigit())
        return false;
    return std::all_of(url.begin(), url.begin() + colon,
                       [](QChar c) { return c.isLetterOrNumber() || c == u'+' || c == u'-' || c == u'.'; });
}

QUrl AddressOf(const QString& text) {
    if (QDir::isAbsolutePath(text))
        return QUrl::fromLocalFile(text);
    QUrl url(HasScheme(text) ? text : u"http://"_s + text, QUrl::TolerantMode);
    // As every browser tells a site's own address.
    if (url.scheme().startsWith(u"http"_s) && url.path().isEmpty())
        url.setPath(u"/"_s);
    return url;
}

NavigationRequest RequestFor(const QString& url) {
    NavigationRequest request;
    request.url = url;
    return request;
}

} // namespace

void QtBrowser::GoTo(const QString& url) {
    Settle();
    m_pump.Queue().EndTurn();
    const QString address = url.trimmed();
    if (address.startsWith(u"javascript:"_s, Qt::CaseInsensitive))
        return RunScriptAddress(address);
    if (IsBlankAddress(address))
        return NavigateToBlank();
    const QUrl target = AddressOf(address);
    Ask(Asker::Program, RequestFor(target.toString(QUrl::FullyEncoded)), [this, target] { Load(target); });
}

// Raises the question from the queue. A newer wish takes an older one's place, answered or not.
void QtBrowser::Ask(Asker asker, const NavigationRequest& request, std::function<void()> go) {
    const quint64 wish = ++m_wish;
    m_asking = asker;
    m_askedUrl = request.url;
    Post([this, self = QPointer(this), wish, asker, request, go = std::move(go)] {
        if (wish != m_wish)
            return;
        NavigationRequest question = request;
        question.isProgram = asker == Asker::Program;
        const bool isCancelled = events.beforeNavigate2 && events.beforeNavigate2(question);
        if (!self || wish != m_wish)
            return;
        m_asking.reset();
        if (isCancelled)
            return;
        m_isProgramLoad = asker == Asker::Program;
        go();
    });
}

// The page is blank already when the question is raised, so that its answer has nothing to hold.
void QtBrowser::NavigateToBlank() {
    const quint64 wish = ++m_wish;
    m_asking.reset();
    m_afterBlank.reset();
    SetAtRest();
    ShowBlank();
    BlankEngine();
    const auto isCurrent = [this, self = QPointer(this), wish] { return self && wish == m_wish; };
    Post([this, isCurrent] {
        if (isCurrent() && events.beforeNavigate2)
            events.beforeNavigate2(RequestFor(u"about:blank"_s));
        if (isCurrent() && events.navigateComplete2)
            events.navigateComplete2(u"about:blank"_s);
        if (isCurrent() && events.documentComplete)
            events.documentComplete(true, u"about:blank"_s);
    });
}

// Runs in the page, which stays.
void QtBrowser::RunScriptAddress(const QString& url) {
    const auto document = m_document;
    Post([this, url, document] {
        NavigationRequest question = RequestFor(url);
        question.isProgram = true;
        const bool isCancelled = events.beforeNavigate2 && events.beforeNavigate2(question);
        if (isCancelled || m_isBlank || !m_document || document != m_document)
            return;
        const QString scheme = u"javascript:"_s;
        m_calls.Post(QUrl::fromPercentEncoding(url.sliced(scheme.size()).toUtf8()));
        m_pump.Queue().EndTurn();
    });
}

void QtBrowser::GoInHistory(QWebEnginePage::WebAction action) {
    Settle();
    m_pump.Queue().EndTurn();
    const bool isBack = action == QWebEnginePage::Back;
    QWebEngineHistory* history = m_page->history();
    if (isBack ? !history->canGoBack() : !history->canGoForward())
        return;
    const QWebEngineHistoryItem item = isBack ? history->backItem() : history->forwardItem();
    Ask(Asker::Program, RequestFor(item.url().toString(QUrl::FullyEncoded)), [this, action] {
        m_isEngineBlank = false;
        BeginLoad([this, action] { m_page->TriggerNow(action); });
    });
}

void QtBrowser::OnHistoryWish(QWebEnginePage::WebAction action) {
    if (IsSealed())
        return;
    if (action == QWebEnginePage::Back || action == QWebEnginePage::Forward)
        GoInHistory(action);
    else
        Refresh();
}

void QtBrowser::Load(const QUrl& url) {
    if (m_calls.IsSilent())
        RenewPage(OldRenderer::Kill);
    m_failing.clear();
    if (m_awaitsBlank) {
        m_afterBlank = url;
        return;
    }
    m_afterBlank.reset();
    m_isEngineBlank = false;
    ++m_loads;
    if (IsWithinDocument(url)) {
        m_page->load(url);
        m_location = url.toString(QUrl::FullyEncoded);
        return;
    }
    SetOnItsWay(url);
    BeginLoad([this, url] {
        SetOnItsWay(url);
        LoadInEngine(url);
    });
}

// The engine reports two loads that overlap as one, so that nobody would hear how the second one ended. It
// begins when the first has ended, which is stopped for that. A page that is too busy to stop is not waited
// for.
void QtBrowser::BeginLoad(std::function<void()> load) {
    m_heldLoad = std::move(load);
    if (!m_isEngineLoading)
        return BeginHeldLoad();
    m_page->TriggerNow(QWebEnginePage::Stop);
    m_holdLimit.start(holdLimitMs);
}

void QtBrowser::BeginHeldLoad() {
    if (m_calls.IsUnderWay())
        return Post([this] { BeginHeldLoad(); });
    m_holdLimit.stop();
    if (const auto load = std::exchange(m_heldLoad, {}))
        load();
}

void QtBrowser::LoadInEngine(const QUrl& url) {
    m_isEngineLoading = true;
    m_page->load(url);
}

// An engine that is at rest on its blank page is left there.
void QtBrowser::BlankEngine() {
    if (m_awaitsBlank || m_isEngineBlank)
        return;
    if (m_loads >= loadsPerPage || m_calls.IsSilent()) {
        RenewPage(OldRenderer::Kill);
        return;
    }
    m_awaitsBlank = true;
    m_blankLimit.start(blankLimitMs);
    BeginLoad([this] { LoadInEngine(QUrl(u"about:blank"_s)); });
}

void QtBrowser::OnEngineBlank() {
    m_awaitsBlank = false;
    m_isEngineBlank = true;
    m_blankLimit.stop();
    if (m_blankWait)
        m_blankWait->quit();
    if (m_afterBlank)
        Load(*std::exchange(m_afterBlank, std::nullopt));
}

// As in a call into a page, no handler runs meanwhile. The limit for the blank page ends the wait.
void QtBrowser::AwaitEngineBlank() {
    if (!m_awaitsBlank)
        return;
    const QtPump::Hold hold(m_pump);
    QEventLoop loop;
    m_blankWait = &loop;
    loop.exec(QEventLoop::ExcludeUserInputEvents);
    m_blankWait = nullptr;
}

// The engine's own blank page takes the markup and is from then on the page that is shown.
void QtBrowser::WriteBlank(const QString& html) {
    m_afterBlank.reset();
    AwaitEngineBlank();
    const auto answer = m_calls.Call(PageCalls::Kind::Act, QString(), u"version"_s, {});
    if (!m_isBlank || !m_isEngineBlank || !answer)
        throw BrowserError();
    DocumentOwner& owner = *this;
    const auto page = std::make_shared<PageDocument>(m_pump, m_calls, owner, answer->document);
    m_document = page;
    m_documentId = answer->document;
    m_isBlank = false;
    m_isEngineBlank = false;
    m_isCompleteTold = true;
    page->SetInnerHTML(page->Body(), html);
}

void QtBrowser::SetOnItsWay(const QUrl& url) {
    m_target = url;
    m_isOnItsWay = true;
    m_isLoading = true;
    m_sendsForm = false;
    m_formLimit.stop();
}

void QtBrowser::SetAtRest() {
    m_isOnItsWay = false;
    m_isLoading = false;
    m_formLimit.stop();
    m_isProgramLoad = false;
    m_failing.clear();
    m_granted.clear();
}

bool QtBrowser::IsWithinDocument(const QUrl& url) const {
    return !m_isBlank && m_document && url.hasFragment() &&
           url.adjusted(QUrl::RemoveFragment) == QUrl(m_location).adjusted(QUrl::RemoveFragment);
}

// The engine waits for the answer and a call into the page would never come back: decided from what is known
// here. Typed is what was asked for by Load().
bool QtBrowser::AcceptNavigation(const QUrl& url, QWebEnginePage::NavigationType type, bool isMainFrame) {
    using Page = QWebEnginePage;
    if (!isMainFrame)
        return AcceptFrame(url);
    if (type == Page::NavigationTypeTyped) {
        if (m_isOnItsWay)
            m_target = url;
        return true;
    }
    if (type == Page::NavigationTypeRedirect && m_isOnItsWay) {
        m_target = url;
        return true;
    }
    if (!m_granted.isEmpty() && url == m_granted) {
        m_granted.clear();
        return true;
    }
    if (m_awaitsBlank)
        return Refuse(url);
    if (type == Page::NavigationTypeReload || type == Page::NavigationTypeBackForward) {
        SetOnItsWay(url);
        return true;
    }
    return AcceptPageWish(url, type);
}

// Frames are parts of their page and not held up; the event says that they are no click of the user's.
bool QtBrowser::AcceptFrame(const QUrl& url) {
    if (RefusesNavigations() || m_awaitsBlank)
        return false;
    NavigationRequest request = RequestFor(url.toString(QUrl::FullyEncoded));
    request.topLevel = false;
    request.headers = u"Referer: %1\r\n"_s.arg(m_location);
    Post([this, request] {
        if (events.beforeNavigate2)
            events.beforeNavigate2(request);
    });
    return true;
}

bool QtBrowser::AcceptPageWish(const QUrl& url, QWebEnginePage::NavigationType type) {
    if (type == QWebEnginePage::NavigationTypeFormSubmitted)
        m_formLimit.stop();
    const bool isProgramUnderWay =
        m_asking == Asker::Program || (m_isProgramLoad && m_isOnItsWay) || m_isBlank;
    if (RefusesNavigations() || isProgramUnderWay)
        return Refuse(url);
    if (type == QWebEnginePage::NavigationTypeFormSubmitted)
        return AcceptForm(url);
    if (IsWithinDocument(url))
        return true;
    const QString address = url.toString(QUrl::FullyEncoded);
    if (m_asking && address == m_askedUrl)
        return Refuse(url);
    Ask(Asker::Page, RequestFor(address), [this, url, address] {
        m_granted = url;
        SetOnItsWay(url);
        ++m_loads;
        BeginLoad([this, address] { m_calls.PostCall(m_documentId, u"leaveFor"_s, {address}); });
    });
    return Refuse(url);
}

bool QtBrowser::AcceptForm(const QUrl& url) {
    ++m_wish;
    m_asking.reset();
    ++m_loads;
    SetOnItsWay(url);
    m_sendsForm = true;
    NavigationRequest request = std::exchange(m_form, {});
    request.url = url.toString(QUrl::FullyEncoded);
    request.isForm = true;
    Post([this, request] {
        if (events.beforeNavigate2)
            events.beforeNavigate2(request);
    });
    return true;
}

bool QtBrowser::Refuse(const QUrl& url) {
    m_refused.push_back(url);
    return false;
}

} // namespace qlm
