// SPDX-License-Identifier: MIT
#include "shell/PanelBands.h"

#include "shell/FormParts.h"
#include "shell/PictureButtons.h"

#include <QBoxLayout>
#include <QEvent>
#include <QScrollArea>
#include <QScrollBar>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int LeastOptionsHeight = 96;
constexpr QMargins Margins(6, 7, 6, 7);

// Scrolls down rather than forcing the window to be tall; what is in it always has its full width.
class OptionsArea : public QScrollArea {
public:
    explicit OptionsArea(QLayout* options) {
        auto* content = new QWidget;
        options->setContentsMargins(Margins);
        content->setLayout(options);
        setWidget(content);
        setWidgetResizable(true);
        setFrameShape(QFrame::NoFrame);
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        // It follows what has the focus in it and needs none of its own.
        setFocusPolicy(Qt::NoFocus);
    }

    bool eventFilter(QObject* object, QEvent* event) override {
        const bool isHandled = QScrollArea::eventFilter(object, event);
        // Longer words may need more width.
        if (object == widget() && event->type() == QEvent::LayoutRequest)
            updateGeometry();
        return isHandled;
    }

    QSize sizeHint() const override { return widget()->sizeHint().expandedTo(minimumSizeHint()); }
    void resizeEvent(QResizeEvent* event) override {
        QScrollArea::resizeEvent(event);
        // What is in it may have come to know its height just now, with its style.
        if (height() < sizeHint().height())
            updateGeometry();
    }
    QSize minimumSizeHint() const override {
        const QSize least = widget()->minimumSizeHint();
        const int bar = verticalScrollBar()->sizeHint().width();
        return {least.width() + bar, std::min(LeastOptionsHeight, least.height())};
    }
};

QWidget* NewBand(const QString& look, QLayout* content) {
    auto* band = new QFrame;
    band->setProperty("band", look);
    content->setContentsMargins(Margins);
    band->setLayout(content);
    return band;
}

} // namespace

QLayout* NewToolRow(const Commands& commands, std::initializer_list<QLatin1StringView> names) {
    auto* row = new QHBoxLayout;
    row->setSpacing(2);
    AddPictureButtons(*row, commands, Caption::Beside, names);
    row->addStretch();
    return row;
}

QWidget* NewPanel(QLatin1StringView name, const PanelBands& bands) {
    auto* panel = Named(new QWidget, name);
    auto* options = new OptionsArea(bands.options);
    options->setSizePolicy(QSizePolicy::Preferred,
                           bands.runGrows ? QSizePolicy::Maximum : QSizePolicy::Expanding);
    auto* column = new QVBoxLayout(panel);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(options, bands.runGrows ? 0 : 1);
    column->addWidget(NewBand(u"run"_s, bands.run), bands.runGrows ? 1 : 0);
    column->addWidget(NewBand(u"tools"_s, bands.tools));
    return panel;
}

} // namespace qlm
