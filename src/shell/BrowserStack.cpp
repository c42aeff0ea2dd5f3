// SPDX-License-Identifier: MIT
#include "shell/BrowserStack.h"

#include "core/App.h"
#include "shell/FormParts.h"
#include "shell/WindowDialogs.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QStackedLayout>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

QGroupBox* NewFullGatherNotice() {
    auto* notice = Named(new QGroupBox, "ucpanelFullGatherIDNotify"_L1);
    notice->setAutoFillBackground(true);
    QLabel* words = NewLabel("lblFullGatherIDNotify"_L1);
    words->setAlignment(Qt::AlignCenter);
    auto* column = new QVBoxLayout(notice);
    column->setContentsMargins(28, 18, 28, 18);
    column->addWidget(words);
    return notice;
}

} // namespace

BrowserStack::BrowserStack(App& app, BrowserViews& views)
    : m_app(app),
      m_pages(new QWidget),
      m_browser(views.ViewOf(BrowserName::WebBrowser1)),
      m_cover(views.ViewOf(BrowserName::webHide)) {
    m_stack = new QStackedLayout(m_pages);
    m_stack->setStackingMode(QStackedLayout::StackAll);
    Place(m_cover);
    Place(m_browser);
    if (m_browser)
        m_stack->setCurrentWidget(m_browser);
    m_app.WebBrowser1().onZOrder = [this](int position) { SetOrder(m_browser, m_cover, position); };
    m_app.webHide().onZOrder = [this](int position) { SetOrder(m_cover, m_browser, position); };
    QWidget* page = Named(m_browser ? m_browser.data() : m_pages, "WebBrowser1"_L1);
    page->setAccessibleName(u"Page"_s);
    m_app.WebBrowser1().onTakeFocus = [page = QPointer(page)] {
        if (page)
            page->setFocus(Qt::OtherFocusReason);
    };

    // One cell for both: the notice lies over the pages, in the middle.
    auto* cell = new QGridLayout(this);
    cell->setContentsMargins(0, 0, 0, 0);
    QGroupBox* notice = NewFullGatherNotice();
    cell->addWidget(m_pages, 0, 0);
    cell->addWidget(notice, 0, 0, Qt::AlignCenter);
    notice->raise();
    setMinimumSize(200, 120);
}

BrowserStack::~BrowserStack() {
    m_app.WebBrowser1().onZOrder = nullptr;
    m_app.webHide().onZOrder = nullptr;
    m_app.WebBrowser1().onTakeFocus = nullptr;
    // The views belong to who gave them.
    for (const QPointer<QWidget>& view : {m_browser, m_cover})
        if (view)
            view->setParent(nullptr);
}

void BrowserStack::Place(QWidget* view) {
    if (view)
        m_stack->addWidget(view);
}

void BrowserStack::SetOrder(QWidget* view, QWidget* other, int position) {
    if (QWidget* front = position == 0 ? view : other)
        m_stack->setCurrentWidget(front);
}

} // namespace qlm
