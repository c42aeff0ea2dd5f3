// SPDX-License-Identifier: MIT
#include "platform/qt/PopupWindow.h"

#include <QWebEngineLoadingInfo>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

PopupWindow::PopupWindow(QWebEngineProfile& profile, std::function<bool()> isSilent)
    : m_isSilent(std::move(isSilent)), m_page(new BrowserPage(&profile, *this, this)) {
    setPage(m_page);
    setAttribute(Qt::WA_DeleteOnClose);
    setAcceptDrops(false);
    resize(800, 600);
    connect(m_page, &QWebEnginePage::titleChanged, this, &QWidget::setWindowTitle);
    connect(m_page, &QWebEnginePage::windowCloseRequested, this, &QWidget::close);
}

PopupWindow::~PopupWindow() {
    m_page->Disown();
}

bool PopupWindow::AcceptNavigation(const QUrl& url, QWebEnginePage::NavigationType, bool isMainFrame) {
    if (m_isOpen || !isMainFrame)
        return m_isOpen;
    if (m_address.isEmpty()) {
        m_address = url;
        Q_EMIT AddressKnown();
    }
    return false;
}

// An empty window asks for no address: it is blank from the start.
void PopupWindow::OnLoading(const QWebEngineLoadingInfo& info) {
    if (m_isOpen || !m_address.isEmpty() || info.status() != QWebEngineLoadingInfo::LoadSucceededStatus)
        return;
    m_address = info.url();
    Q_EMIT AddressKnown();
}

void PopupWindow::Open() {
    m_isOpen = true;
    if (m_address != QUrl(u"about:blank"_s))
        m_page->load(m_address);
    show();
}

} // namespace qlm
