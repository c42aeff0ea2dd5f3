// SPDX-License-Identifier: MIT
#include "platform/qt/BrowserPage.h"

#include <QAuthenticator>
#include <QCoreApplication>
#include <QFile>
#include <QInputDialog>
#include <QJsonArray>
#include <QJsonDocument>
#include <QMessageBox>
#include <QRandomGenerator>
#include <QWebEngineCertificateError>
#include <QWebEngineClientCertificateSelection>
#include <QWebEngineFullScreenRequest>
#include <QWebEngineLoadingInfo>
#include <QWebEngineProfile>
#include <QWebEngineQuotaRequest>
#include <QWebEngineRegisterProtocolHandlerRequest>
#include <QWebEngineScript>
#include <QWebEngineScriptCollection>
#include <QWebEngineSettings>
#include <QWebEngineUrlRequestInterceptor>
#include <QWebEngineView>

#include <algorithm>
#include <stdexcept>

namespace qlm {

// Lets through what the program itself asked for and nothing that a page names.
class PageSeal final : public QWebEngineUrlRequestInterceptor {
public:
    using QWebEngineUrlRequestInterceptor::QWebEngineUrlRequestInterceptor;
    void Admit(const QUrl& url) { m_admitted = url; }
    // A link to a file that is to be saved asks for it as a page, but nobody is asked whether to go there.
    void interceptRequest(QWebEngineUrlRequestInfo& info) override {
        const bool isPage = info.resourceType() == QWebEngineUrlRequestInfo::ResourceTypeMainFrame;
        info.block(!isPage || info.requestUrl() != m_admitted);
    }

private:
    QUrl m_admitted;
};

using namespace Qt::Literals::StringLiterals;

namespace {

// The title by which the program finds a box that is in its way.
constexpr auto boxTitle = "Message from webpage";

int requestDepth = 0;

std::vector<BrowserPage*>& LivePages() {
    static std::vector<BrowserPage*> pages;
    return pages;
}

QString NewSecret() {
    QString secret;
    for (int i = 0; i < 4; ++i)
        secret += QString::number(QRandomGenerator::system()->generate64(), 36);
    return secret;
}

QString ScriptFile(const QString& name) {
    QFile file(u":/quillmere/js/"_s + name);
    if (!file.open(QIODevice::ReadOnly))
        throw std::logic_error("a script of the page bridge is missing from the program");
    return QString::fromUtf8(file.readAll());
}

// The engine asks for leave in the same way as a script's own confirm box, with these words.
bool IsUnloadPrompt(const QString& text) {
    return text == QCoreApplication::translate("QWebEnginePage",
                                               "Are you sure you want to leave this page? Changes "
                                               "that you made may not be saved.");
}

std::optional<PageMessage::Kind> KindOf(const QString& word) {
    using Kind = PageMessage::Kind;
    static const std::pair<QString, Kind> kinds[] = {
        {u"arrived"_s, Kind::Arrived},
        {u"complete"_s, Kind::Complete},
        {u"completeEmpty"_s, Kind::CompleteEmpty},
        {u"frameComplete"_s, Kind::FrameComplete},
        {u"inputs"_s, Kind::Inputs},
    };
    for (const auto& [name, kind] : kinds)
        if (name == word)
            return kind;
    return std::nullopt;
}

} // namespace

BrowserPage::BrowserPage(QWebEngineProfile* profile, PageObserver& observer, QObject* parent)
    : QWebEnginePage(profile, parent), m_observer(&observer), m_secret(NewSecret()) {
    LivePages().push_back(this);

    QWebEngineScript script;
    script.setName(u"quillmere"_s);
    script.setInjectionPoint(QWebEngineScript::DocumentCreation);
    script.setWorldId(QWebEngineScript::ApplicationWorld);
    script.setRunsOnSubFrames(true);
    script.setSourceCode(BridgeSource());
    scripts().insert(script);

    connect(this, &QWebEnginePage::loadingChanged, this, [this](const QWebEngineLoadingInfo& info) {
        if (m_observer)
            m_observer->OnLoading(info);
    });
    connect(this, &QWebEnginePage::renderProcessTerminated, this,
            [this](RenderProcessTerminationStatus status) {
                if (m_observer && status != NormalTerminationStatus)
                    m_observer->OnTerminated();
            });
    RefusePermissions();
}

BrowserPage::~BrowserPage() {
    std::erase(LivePages(), this);
}

void BrowserPage::RefusePermissions() {
    connect(this, &QWebEnginePage::certificateError, this,
            [](QWebEngineCertificateError error) { error.rejectCertificate(); });
    connect(this, &QWebEnginePage::featurePermissionRequested, this,
            [this](const QUrl& origin, Feature feature) {
                setFeaturePermission(origin, feature, PermissionDeniedByUser);
            });
    connect(this, &QWebEnginePage::fullScreenRequested, this,
            [](QWebEngineFullScreenRequest request) { request.reject(); });
    connect(this, &QWebEnginePage::registerProtocolHandlerRequested, this,
            [](QWebEngineRegisterProtocolHandlerRequest request) { request.reject(); });
    connect(this, &QWebEnginePage::quotaRequested, this,
            [](QWebEngineQuotaRequest request) { request.reject(); });
    connect(this, &QWebEnginePage::selectClientCertificate, this,
            [](QWebEngineClientCertificateSelection selection) { selection.selectNone(); });
    // An authenticator that is left null cancels the request.
    connect(this, &QWebEnginePage::authenticationRequired, this,
            [](const QUrl&, QAuthenticator* authenticator) { *authenticator = QAuthenticator(); });
    connect(this, &QWebEnginePage::proxyAuthenticationRequired, this,
            [](const QUrl&, QAuthenticator* authenticator, const QString&) {
                *authenticator = QAuthenticator();
            });
}

// The program's own script world is not the page's and goes on running.
void BrowserPage::Seal() {
    settings()->setAttribute(QWebEngineSettings::JavascriptEnabled, false);
    m_seal = new PageSeal(this);
    setUrlRequestInterceptor(m_seal);
    setAudioMuted(true);
}

QString BrowserPage::BridgeSource() const {
    static const QString bridge = ScriptFile(u"bridge.js"_s);
    static const QString watch = ScriptFile(u"watch.js"_s);
    return bridge + u"\n"_s + watch + u"('%1');\ntrue;\n"_s.arg(m_secret);
}

void BrowserPage::Notice(const QString& text) {
    if (m_observer)
        m_observer->OnNotice(text);
}

bool BrowserPage::IsInsideRequest() {
    return requestDepth > 0;
}

int BrowserPage::CountRenderedBy(qint64 processId) {
    return static_cast<int>(std::ranges::count_if(
        LivePages(), [processId](BrowserPage* page) { return page->renderProcessPid() == processId; }));
}

void BrowserPage::triggerAction(WebAction action, bool checked) {
    const bool isHistory =
        action == Back || action == Forward || action == Reload || action == ReloadAndBypassCache;
    if (isHistory && m_observer)
        m_observer->OnHistoryWish(action);
    else
        QWebEnginePage::triggerAction(action, checked);
}

bool BrowserPage::acceptNavigationRequest(const QUrl& url, NavigationType type, bool isMainFrame) {
    ++requestDepth;
    const bool isAccepted = m_observer && m_observer->AcceptNavigation(url, type, isMainFrame);
    --requestDepth;
    if (m_seal && isAccepted && isMainFrame)
        m_seal->Admit(url);
    return isAccepted;
}

QWebEnginePage* BrowserPage::createWindow(WebWindowType) {
    return m_observer ? m_observer->OpenWindow() : nullptr;
}

QStringList BrowserPage::chooseFiles(FileSelectionMode, const QStringList&, const QStringList&) {
    Notice(u"The page asked for a file. None was given."_s);
    return {};
}

void BrowserPage::javaScriptAlert(const QUrl&, const QString& text) {
    if (IsSilent())
        return;
    QMessageBox(QMessageBox::Warning, QLatin1String(boxTitle), text, QMessageBox::Ok,
                QWebEngineView::forPage(this))
        .exec();
}

// The safe answers: a page may always be left, and nothing that a script asks about is agreed to.
bool BrowserPage::javaScriptConfirm(const QUrl&, const QString& text) {
    if (IsUnloadPrompt(text))
        return true;
    if (IsSilent())
        return false;
    return QMessageBox(QMessageBox::Question, QLatin1String(boxTitle), text,
                       QMessageBox::Ok | QMessageBox::Cancel, QWebEngineView::forPage(this))
               .exec() == QMessageBox::Ok;
}

bool BrowserPage::javaScriptPrompt(const QUrl&, const QString& text, const QString& suggestion,
                                   QString* answer) {
    if (TakeMessage(text))
        return false;
    if (IsSilent())
        return false;
    bool isGiven = false;
    *answer = QInputDialog::getText(QWebEngineView::forPage(this), QLatin1String(boxTitle), text,
                                    QLineEdit::Normal, suggestion, &isGiven);
    return isGiven;
}

// What pages write to their console is of no interest; what the watching script writes is meant for the
// program.
void BrowserPage::javaScriptConsoleMessage(JavaScriptConsoleMessageLevel, const QString& text, int,
                                           const QString&) {
    TakeMessage(text);
}

bool BrowserPage::TakeMessage(const QString& text) {
    if (!text.startsWith(m_secret))
        return false;
    const QJsonArray parts =
        QJsonDocument::fromJson(QStringView(text).sliced(m_secret.size()).toUtf8()).array();
    const std::optional<PageMessage::Kind> kind = KindOf(parts.at(0).toString());
    if (!kind || !m_observer)
        return true;
    PageMessage message{
        *kind, parts.at(1).toString(), parts.at(2).toString(), parts.at(3).toString(), parts.at(4).toString(),
        {}};
    for (qsizetype i = 5; i < parts.size(); ++i) {
        const QJsonArray input = parts.at(i).toArray();
        message.inputs.push_back(
            {input.at(0).toString(), input.at(1).toString(), input.at(2).toString(), input.at(3).toString()});
    }
    m_observer->OnMessage(message);
    return true;
}

} // namespace qlm
