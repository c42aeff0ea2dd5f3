// SPDX-License-Identifier: MIT
#pragma once

#include "platform/BrowserControl.h"
#include "platform/qt/BrowserPage.h"
#include "platform/qt/PageDocument.h"

#include <QPointer>
#include <QTimer>
#include <QUrl>
#include <QWebEngineView>
#include <optional>
#include <set>

class QEventLoop;

namespace qlm {

class PopupWindow;

// The browser control on the real engine.
//
// The engine reports from inside its own work. What it reports is noted, and the control's state follows it
// only between two turns, so that within a turn the program always sees one document. Every event is posted
// to the queue.
//
// about:blank is the control's own: it stands at once. After it the engine is sent to a real blank page, and
// nothing else is loaded before that has arrived; so what arrives afterwards can't be anything older.
class QtBrowser final : public QObject, public BrowserControl, private PageObserver, private DocumentOwner {
    Q_OBJECT

public:
    // A page that gives no answer for so long is given up.
    static constexpr int givenUpMs = 15 * 1000;
    // Loads after which the page is exchanged for a fresh one, to give back what the engine keeps of each.
    static constexpr int loadsPerPage = 100;
    static constexpr size_t popupLimit = 5;

    QtBrowser(QtPump& pump, QWebEngineProfile& profile);
    ~QtBrowser() override;

    void GoTo(const QString& url) override;
    void OnSealed() override { m_page->Seal(); }
    void Stop() override;
    void GoBack() override;
    void GoForward() override;
    void Refresh() override;

    qlm::Document Document() override;
    QString LocationURL() override;
    int ReadyState() override;
    bool Busy() override;
    qint64 RendererProcessId() const override;
    qint64 EngineCalls() const override { return m_calls.Count(); }

    // How long a single call waits for the page, and how long a page may stay silent before it is given up.
    void SetAnswerLimit(int milliseconds) { m_calls.SetAnswerLimit(milliseconds); }
    void SetGiveUpAfter(int milliseconds) { m_giveUpAfterMs = milliseconds; }

    // The widget that shows the page. A container may own it.
    QWidget* View() const { return m_view; }

private:
    // PageObserver
    bool AcceptNavigation(const QUrl& url, QWebEnginePage::NavigationType type, bool isMainFrame) override;
    void OnHistoryWish(QWebEnginePage::WebAction action) override;
    void OnLoading(const QWebEngineLoadingInfo& info) override;
    void OnMessage(const PageMessage& message) override;
    void OnTerminated() override;
    QWebEnginePage* OpenWindow() override;
    void OnNotice(const QString& text) override;
    bool AnswersSilently() const override { return Silent(); }

    // DocumentOwner
    bool IsPresent(const DocumentBackend* document) const override { return document == m_document.get(); }
    void OnOtherDocument(const QString& document) override;
    void OnAddress(const QString& url) override;

    // Navigation that the program or the page wants (QtBrowserNavigation.cpp).
    enum class Asker { Program, Page };
    void Ask(Asker asker, const NavigationRequest& request, std::function<void()> go);
    void NavigateToBlank();
    void RunScriptAddress(const QString& url);
    void GoInHistory(QWebEnginePage::WebAction action);
    void Load(const QUrl& url);
    void BeginLoad(std::function<void()> load);
    void BeginHeldLoad();
    void LoadInEngine(const QUrl& url);
    void BlankEngine();
    void OnEngineBlank();
    void AwaitEngineBlank();
    void WriteBlank(const QString& html);
    bool AcceptFrame(const QUrl& url);
    bool AcceptPageWish(const QUrl& url, QWebEnginePage::NavigationType type);
    bool AcceptForm(const QUrl& url);
    bool Refuse(const QUrl& url);
    bool IsWithinDocument(const QUrl& url) const;
    void SetOnItsWay(const QUrl& url);
    void SetAtRest();

    // What the engine reports (QtBrowserEngine.cpp).
    void Post(std::function<void()> event);
    void Note(std::function<void()> change);
    void Settle();
    void Apply(const PageMessage& message);
    void Arrive(const QString& document, const QString& url);
    void ShowBlank();
    void Complete();
    enum class LoadEnd { Finished, CutShort, ErrorStatus, Failed, Stopped };
    static LoadEnd EndOf(const QWebEngineLoadingInfo& info);
    void OnEnd(const QUrl& url, LoadEnd end);
    void OnFailed(const QUrl& url);
    void OnCutShort(const QUrl& url);
    void ShowError(const QUrl& url);
    enum class OldRenderer { Kill, IsGone };
    void RenewPage(OldRenderer old);
    void Connect();
    void OnSilence();
    void GiveUpPage();
    void Recover(OldRenderer old);
    void OnContextMenu(const QPoint& position);
    void AskForPopup(PopupWindow* popup);

    QtPump& m_pump;
    QWebEngineProfile& m_profile;
    QPointer<QWebEngineView> m_view;
    BrowserPage* m_page = nullptr;
    PageCalls m_calls;

    // What the program sees.
    std::shared_ptr<DocumentBackend> m_document;
    QString m_location;
    bool m_isBlank = false;
    // The document of the engine that m_document stands for, and whether its end was told.
    QString m_documentId;
    bool m_isCompleteTold = false;
    bool m_isEmpty = false;
    QString m_status;

    // Every wish to go elsewhere has a number; the newest one counts.
    quint64 m_wish = 0;
    std::optional<Asker> m_asking; // whose question waits for its answer
    QString m_askedUrl;
    QUrl m_granted; // the page's own wish, granted and about to be repeated
    bool m_isProgramLoad = false;
    bool m_isOnItsWay = false; // the engine was sent to m_target and nothing has arrived yet
    bool m_isLoading = false;
    bool m_sendsForm = false;   // what is on its way was asked for by a form
    bool m_answersForm = false; // the document was
    QUrl m_target;
    std::vector<QUrl> m_refused; // whose end the engine has still to report
    QUrl m_failing;              // the error page for this address is on its way
    bool m_isError = false;      // the error page is shown

    bool m_isEngineLoading = false;
    std::function<void()> m_heldLoad; // waits for the end of the one before
    QTimer m_holdLimit;
    bool m_isEngineBlank = true;
    bool m_awaitsBlank = false;
    std::optional<QUrl> m_afterBlank;
    QEventLoop* m_blankWait = nullptr;
    QTimer m_blankLimit;
    QTimer m_silenceLimit;
    int m_giveUpAfterMs = givenUpMs;
    int m_loads = 0;

    NavigationRequest m_form; // that is being sent
    QTimer m_formLimit;       // runs from then on until the engine asks for leave
    std::vector<std::function<void()>> m_notes;
    quint64 m_notedTurn = 0;
    std::vector<QPointer<PopupWindow>> m_popups;
};

} // namespace qlm
