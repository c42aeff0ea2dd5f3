// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>
#include <QWebEnginePage>
#include <vector>

class QWebEngineLoadingInfo;

namespace qlm {

// What a document told through the watching script.
struct PageMessage {
    enum class Kind { Arrived, Complete, CompleteEmpty, FrameComplete, Inputs };

    Kind kind = Kind::Arrived;
    QString document; // empty for a frame
    QString url;
    // Inputs: how the form is sent, its page's text, and id, name, value and type of each, in page order.
    QString method; // lower case
    QString text;
    std::vector<QStringList> inputs;
};

// The control or window that a page belongs to. Everything here is called from inside the engine's own work:
// an observer notes and queues, and never touches the page.
class PageObserver {
public:
    virtual ~PageObserver() = default;
    virtual bool AcceptNavigation(const QUrl& url, QWebEnginePage::NavigationType type, bool isMainFrame) = 0;
    // Back, forward or reload, begun by the page's own menu.
    virtual void OnHistoryWish(QWebEnginePage::WebAction action) = 0;
    virtual void OnLoading(const QWebEngineLoadingInfo& info) = 0;
    virtual void OnMessage(const PageMessage& message) = 0;
    virtual void OnTerminated() = 0;
    // The page for a window that is to open; null refuses it.
    virtual QWebEnginePage* OpenWindow() = 0;
    virtual void OnNotice(const QString& text) = 0;
    virtual bool AnswersSilently() const = 0;
};

class PageSeal;

// The engine's page with every question that it can ask answered: scripts' boxes, certificates, permissions,
// files, full screen, downloads. Nothing that a page does brings up a box while its observer answers
// silently.
class BrowserPage final : public QWebEnginePage {
    Q_OBJECT

public:
    BrowserPage(QWebEngineProfile* profile, PageObserver& observer, QObject* parent);
    ~BrowserPage() override;

    // From now on nothing is told any more and everything is refused.
    void Disown() { m_observer = nullptr; }
    // No script of a page runs from now on, nothing that a page names is fetched, and none is heard.
    void Seal();
    // What installs the bridge and the watching script in a document, with this page's secret.
    QString BridgeSource() const;
    void Notice(const QString& text);

    void triggerAction(WebAction action, bool checked = false) override;
    // The same without asking the observer, for the observer's own use.
    void TriggerNow(WebAction action) { QWebEnginePage::triggerAction(action); }

    // True while the engine waits for a navigation's answer; a call into a page would then wait for ever.
    static bool IsInsideRequest();
    // Live pages that the process of that number renders.
    static int CountRenderedBy(qint64 processId);

protected:
    bool acceptNavigationRequest(const QUrl& url, NavigationType type, bool isMainFrame) override;
    QWebEnginePage* createWindow(WebWindowType type) override;
    QStringList chooseFiles(FileSelectionMode mode, const QStringList& old,
                            const QStringList& types) override;
    void javaScriptAlert(const QUrl& origin, const QString& text) override;
    bool javaScriptConfirm(const QUrl& origin, const QString& text) override;
    bool javaScriptPrompt(const QUrl& origin, const QString& text, const QString& suggestion,
                          QString* answer) override;
    void javaScriptConsoleMessage(JavaScriptConsoleMessageLevel level, const QString& text, int line,
                                  const QString& source) override;

private:
    void RefusePermissions();
    bool TakeMessage(const QString& text);
    bool IsSilent() const { return !m_observer || m_observer->AnswersSilently(); }

    PageObserver* m_observer;
    PageSeal* m_seal = nullptr;
    // Unguessable, so that a page can't speak in the watching script's name.
    QString m_secret;
};

} // namespace qlm
