// SPDX-License-Identifier: MIT
#include "shell/WorkArea.h"

#include "core/App.h"
#include "core/Tabs.h"
#include "shell/BrowserStack.h"
#include "shell/Panels.h"
#include "shell/PictureButtons.h"
#include "shell/PictureIcon.h"
#include "shell/TabStrip.h"

#include <QBoxLayout>
#include <QSplitter>
#include <QStackedWidget>
#include <QToolButton>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {
// From here on there is room for words beside the pictures of the tabs.
constexpr int WideWindow = 1280;
constexpr int PanelWidth = 340;
constexpr int PanelWidthInWideWindow = 360;
} // namespace

// From the outside in: a widget that joins another one is dressed anew, with all that it holds.
WorkArea::WorkArea(App& app, ControlBinder& binder, BrowserViews& views, QWidget* parent)
    : QWidget(parent),
      m_app(app),
      m_strip(new TabStrip),
      m_collapse(NewPictureButton("picCollapse"_L1, Caption::None)),
      m_panels(new QStackedWidget),
      m_splitter(new QSplitter) {
    m_panels->setObjectName(u"fraPanels"_s);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    m_stripColumn = NewStripColumn();
    row->addWidget(m_stripColumn);
    row->addWidget(m_splitter, 1);
    m_splitter->setChildrenCollapsible(false);
    m_splitter->setHandleWidth(0); // the edge itself is dragged
    m_splitter->addWidget(m_panels);
    m_splitter->addWidget(new BrowserStack(app, views));
    m_splitter->setStretchFactor(0, 0);
    m_splitter->setStretchFactor(1, 1);
    AddPanels(binder);

    connect(m_splitter, &QSplitter::splitterMoved, this, [this] { m_isDragged = true; });
    connect(m_strip, &TabStrip::clicked, this, [this] { Fold(false); });
    connect(m_strip, &TabStrip::activated, this, [this] { Fold(false); });
    connect(m_collapse, &QToolButton::clicked, this, [this] { Fold(m_panels->isVisibleTo(this)); });
    m_listener = app.controls.AddListener([this](const Control& control, Controls::Change change, int) {
        if (control.name == "TabStrip1"_L1 && change == Controls::Change::Selected)
            m_panels->setCurrentIndex(control.selected);
    });
    m_panels->setCurrentIndex(app.controls.Selected("TabStrip1"_L1));
    Fold(false);
}

WorkArea::~WorkArea() {
    m_app.controls.RemoveListener(m_listener);
}

void WorkArea::FocusTabs() {
    m_strip->setFocus();
}

QWidget* WorkArea::NewStripColumn() {
    auto* strip = new QWidget;
    strip->setObjectName(u"fraTabs"_s);
    strip->setAttribute(Qt::WA_StyledBackground);
    m_collapse->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    auto* column = new QVBoxLayout(strip);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(m_strip, 1);
    column->addWidget(m_collapse);
    return strip;
}

void WorkArea::AddPanels(ControlBinder& binder) {
    for (const Tab& tab : Tabs())
        m_panels->addWidget(BuildPanel(QLatin1StringView(tab.panel), m_app, binder));
}

void WorkArea::Fold(bool isFolded) {
    m_panels->setVisible(!isFolded);
    m_collapse->setIcon(PictureIcon(isFolded ? u"UNCOLLAPSE_RIGHT"_s : u"COLLAPSE_LEFT"_s));
    const QString words = isFolded ? u"Show the control panel"_s : u"Fold the control panel away"_s;
    m_app.controls.SetText("picCollapse"_L1, words);
    m_app.controls.SetToolTip("picCollapse"_L1, words);
}

void WorkArea::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    const bool isWide = width() >= WideWindow;
    m_strip->SetWide(isWide);
    m_stripColumn->setFixedWidth(isWide ? TabStrip::WideWidth : TabStrip::NarrowWidth);
    layout()->activate(); // what the strip leaves is shared out at once
    if (!m_isDragged)
        ShareWidth();
}

void WorkArea::ShareWidth() {
    const int panel = m_strip->IsWide() ? PanelWidthInWideWindow : PanelWidth;
    m_splitter->setSizes({panel, width() - m_stripColumn->width() - panel});
}

} // namespace qlm
