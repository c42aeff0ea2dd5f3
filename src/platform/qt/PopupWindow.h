// SPDX-License-Identifier: MIT
#pragma once

#include "platform/qt/BrowserPage.h"

#include <QUrl>
#include <QWebEngineView>
#include <functional>

namespace qlm {

// A window that a page wants to open. It waits, unseen and unloaded, until its first address is known and
// somebody has decided; then it is either opened or deleted. An open one is the user's: closing it deletes
// it.
class PopupWindow final : public QWebEngineView, private PageObserver {
    Q_OBJECT

public:
    PopupWindow(QWebEngineProfile& profile, std::function<bool()> isSilent);
    ~PopupWindow() override;

    QWebEnginePage* Page() const { return m_page; }
    QString Address() const { return m_address.toString(QUrl::FullyEncoded); }
    void Open();

Q_SIGNALS:
    void AddressKnown();

private:
    bool AcceptNavigation(const QUrl& url, QWebEnginePage::NavigationType type, bool isMainFrame) override;
    void OnHistoryWish(QWebEnginePage::WebAction action) override { m_page->TriggerNow(action); }
    void OnLoading(const QWebEngineLoadingInfo& info) override;
    void OnMessage(const PageMessage&) override {}
    void OnTerminated() override { close(); }
    // A pop-up opens no further ones.
    QWebEnginePage* OpenWindow() override { return nullptr; }
    void OnNotice(const QString&) override {}
    bool AnswersSilently() const override { return m_isSilent(); }

    std::function<bool()> m_isSilent;
    BrowserPage* m_page;
    QUrl m_address;
    bool m_isOpen = false;
};

} // namespace qlm
