// SPDX-License-Identifier: MIT
#include "platform/qt/QtBrowser.h"

#include "platform/qt/BlankDocument.h"
#include "platform/qt/PopupWindow.h"

#include <QContextMenuEvent>
#include <QMenu>
#include <QWebEngineHistory>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

// The view leaves the question whether a menu comes up to the control.
class BrowserView final : public QWebEngineView {
public:
    explicit BrowserView(std::function<void(const QPoint&)> onContextMenu)
        : m_onContextMenu(std::move(onContextMenu)) {
        // An address dropped on the page would be loaded past every question.
        setAcceptDrops(false);
        resize(1024, 768);
    }

protected:
    void contextMenuEvent(QContextMenuEvent* event) override { m_onContextMenu(event->globalPos()); }

private:
    std::function<void(const QPoint&)> m_onContextMenu;
};

} // namespace

QtBrowser::QtBrowser(QtPump& pump, QWebEngineProfile& profile)
    : m_pump(pump),
      m_profile(profile),
      m_view(new BrowserView([this](const QPoint& position) { OnContextMenu(position); })),
      m_calls(pump, [this] { return m_page->BridgeSource(); }) {
    m_blankLimit.setSingleShot(true);
    m_holdLimit.setSingleShot(true);
    m_silenceLimit.setSingleShot(true);
    m_formLimit.setSingleShot(true);
    connect(&m_blankLimit, &QTimer::timeout, this, [this] {
        RenewPage(OldRenderer::Kill);
        OnEngineBlank();
    });
    connect(&m_holdLimit, &QTimer::timeout, this, &QtBrowser::BeginHeldLoad);
    connect(&m_silenceLimit, &QTimer::timeout, this, &QtBrowser::GiveUpPage);
    m_calls.onSilence = [this] { OnSilence(); };
    m_calls.onAnswer = [this] { m_silenceLimit.stop(); };
    RenewPage(OldRenderer::IsGone);
}

QtBrowser::~QtBrowser() {
    m_calls.SetPage(nullptr);
    m_page->Disown();
    for (const QPointer<PopupWindow>& popup : m_popups)
        delete popup;
    delete m_view;
    delete m_page;
}

Document QtBrowser::Document() {
    Settle();
    if (m_calls.IsSilent() && !m_isBlank)
        return {};
    return m_document ? qlm::Document(m_document) : qlm::Document();
}

QString QtBrowser::LocationURL() {
    Settle();
    return m_location;
}

int QtBrowser::ReadyState() {
    Settle();
    constexpr int uninitialised = 0, loading = 1, interactive = 3, complete = 4;
    if (m_asking || m_isOnItsWay || m_afterBlank || m_formLimit.isActive())
        return loading;
    if (!m_document)
        return uninitialised;
    return m_isLoading || (m_calls.IsSilent() && !m_isBlank) ? interactive : complete;
}

bool QtBrowser::Busy() {
    const int state = ReadyState();
    return state != 0 && state != 4;
}

qint64 QtBrowser::RendererProcessId() const {
    return m_page->renderProcessPid();
}

void QtBrowser::Stop() {
    ++m_wish;
    m_pump.Queue().EndTurn();
    m_asking.reset();
    m_afterBlank.reset();
    SetAtRest();
    // The real blank page behind the program's own must not be stopped on its way.
    if (m_awaitsBlank)
        return;
    m_heldLoad = {};
    m_page->TriggerNow(QWebEnginePage::Stop);
}

void QtBrowser::GoBack() {
    GoInHistory(QWebEnginePage::Back);
}

void QtBrowser::GoForward() {
    GoInHistory(QWebEnginePage::Forward);
}

void QtBrowser::Refresh() {
    Settle();
    m_pump.Queue().EndTurn();
    if (m_isBlank) {
        NavigateToBlank();
    } else if (m_isError || m_calls.IsSilent() || m_answersForm) {
        // The engine would send the form again, without a question.
        ++m_wish;
        Load(QUrl(m_location));
    } else if (m_document) {
        BeginLoad([this] { m_page->TriggerNow(QWebEnginePage::Reload); });
    }
}

void QtBrowser::OnContextMenu(const QPoint& position) {
    Post([this, position] {
        const bool isAllowed = !events.contextMenu || events.contextMenu();
        if (!isAllowed || !m_view)
            return;
        QMenu* menu = m_view->createStandardContextMenu();
        menu->setAttribute(Qt::WA_DeleteOnClose);
        menu->popup(position);
    });
}

QWebEnginePage* QtBrowser::OpenWindow() {
    std::erase_if(m_popups, [](const QPointer<PopupWindow>& popup) { return popup.isNull(); });
    if (RefusesNavigations() || m_awaitsBlank || m_isBlank || m_popups.size() >= popupLimit)
        return nullptr;
    auto* popup = new PopupWindow(m_profile, [this] { return Silent(); });
    m_popups.emplace_back(popup);
    connect(popup, &PopupWindow::AddressKnown, this, [this, popup] { AskForPopup(popup); });
    return popup->Page();
}

void QtBrowser::AskForPopup(PopupWindow* popup) {
    Post([this, popup = QPointer(popup)] {
        if (!popup)
            return;
        const bool isCancelled = events.newWindow2 && events.newWindow2(popup->Address());
        if (!popup)
            return;
        if (isCancelled)
            popup->deleteLater();
        else
            popup->Open();
    });
}

} // namespace qlm
