// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>
#include <QWidget>

class QStackedLayout;

namespace qlm {

class App;
class BrowserViews;

// Where the browsers are: the visible one and the cover lie over one another at the same place, and ZOrder
// tells which is seen. Both stay shown, because an engine slows down a page that is hidden. The notice of a
// Full Gather lies on top.
class BrowserStack : public QWidget {
public:
    BrowserStack(App& app, BrowserViews& views);
    ~BrowserStack() override;

private:
    void Place(QWidget* view);
    // position 0 brings the view to the front, anything else shows the other one.
    void SetOrder(QWidget* view, QWidget* other, int position);

    App& m_app;
    QWidget* m_pages;
    QStackedLayout* m_stack;
    QPointer<QWidget> m_browser;
    QPointer<QWidget> m_cover;
};

} // namespace qlm
