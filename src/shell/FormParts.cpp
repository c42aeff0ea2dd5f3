// SPDX-License-Identifier: MIT
#include "shell/FormParts.h"

#include "core/App.h"
#include "shell/ElidedLabel.h"
#include "shell/LowWidget.h"

#include <QBoxLayout>
#include <QDialogButtonBox>
#include <QEvent>
#include <QGroupBox>
#include <QLineEdit>
#include <QPlainTextEdit>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

// Letters stand at fractions of a pixel: a width that is rounded down cuts the last one.
class Link : public QPushButton {
public:
    using QPushButton::QPushButton;
    QSize sizeHint() const override { return QPushButton::sizeHint() + QSize(2, 0); }
};

int HeightOf(const QWidget& lines, int linesInSight) {
    return lines.fontMetrics().lineSpacing() * linesInSight + 14;
}

class SecondClickFilter : public QObject {
public:
    using QObject::QObject;
    bool eventFilter(QObject*, QEvent* event) override {
        return event->type() == QEvent::MouseButtonDblClick;
    }
};

} // namespace

void TakeDoubleClickAsOne(QAbstractButton& button) {
    button.installEventFilter(new SecondClickFilter(&button));
}

QPushButton* NewButton(QLatin1StringView name) {
    return Named(new QPushButton, name);
}

QPushButton* NewLink(QLatin1StringView name) {
    QPushButton* link = Named<QPushButton>(new Link, name);
    link->setFlat(true);
    link->setAutoDefault(true); // Return follows it in the main window, too
    link->setCursor(Qt::PointingHandCursor);
    link->setProperty("look", u"link"_s);
    link->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    return link;
}

QLineEdit* NewLine(QLatin1StringView name) {
    return Named(new QLineEdit, name);
}

QLineEdit* NewNumber(QLatin1StringView name, int signs) {
    QLineEdit* line = NewLine(name);
    line->setMaximumWidth(line->fontMetrics().averageCharWidth() * signs);
    return line;
}

QPlainTextEdit* NewLines(QLatin1StringView name, int linesInSight) {
    auto* lines = Named(new QPlainTextEdit, name);
    lines->setTabChangesFocus(true);
    lines->setFixedHeight(HeightOf(*lines, linesInSight));
    return lines;
}

QPlainTextEdit* NewGrowingLines(QLatin1StringView name, int leastLines) {
    auto* lines = Named(new LowWidget<QPlainTextEdit>, name);
    lines->setTabChangesFocus(true);
    lines->setMinimumHeight(HeightOf(*lines, leastLines));
    return lines;
}

QLabel* NewLabel(QLatin1StringView name, const QString& look) {
    auto* label = Named(new QLabel, name);
    label->setTextFormat(Qt::PlainText);
    label->setProperty("look", look);
    return label;
}

QLabel* NewWrappedLabel(QLatin1StringView name, const QString& look, bool hideWhenEmpty) {
    QLabel* label = NewLabel(name, look);
    label->setWordWrap(true);
    label->setProperty("hideWhenEmpty", hideWhenEmpty);
    return label;
}

ElidedLabel* NewElidedLabel(QLatin1StringView name, const QString& look) {
    auto* label = Named(new ElidedLabel, name);
    label->setTextFormat(Qt::PlainText);
    label->setProperty("look", look);
    label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    return label;
}

QLabel* NewCaptionOf(QWidget& input) {
    auto* caption = new QLabel;
    caption->setBuddy(&input);
    return caption;
}

QLabel* NewText(const QString& text, const QString& look) {
    auto* label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setProperty("look", look);
    return label;
}

QLabel* NewHintOnRows(App& app, QLatin1StringView list, const QString& text,
                      std::function<bool(const QStringList& rows)> isWanted) {
    QLabel* hint = NewText(text, u"hint"_s);
    auto show = [&app, list, hint, isWanted = std::move(isWanted)] {
        hint->setVisible(isWanted(app.controls.Items(list)));
    };
    show();
    const int listener =
        app.controls.AddListener([list, show](const Control& control, Controls::Change, int) {
            if (control.name == list)
                show();
        });
    QObject::connect(hint, &QObject::destroyed, [&app, listener] { app.controls.RemoveListener(listener); });
    return hint;
}

QHBoxLayout* NewRow(std::initializer_list<QWidget*> widgets) {
    auto* row = new QHBoxLayout;
    for (QWidget* widget : widgets)
        row->addWidget(widget);
    row->addStretch();
    return row;
}

QGroupBox* NewFrame(const QString& title, std::initializer_list<QLayout*> rows) {
    auto* frame = new QGroupBox(title);
    auto* column = new QVBoxLayout(frame);
    for (QLayout* row : rows)
        column->addLayout(row);
    return frame;
}

QDialogButtonBox* NewButtonRow(std::initializer_list<QLatin1StringView> buttons) {
    auto* row = new QDialogButtonBox;
    auto leaves = [](QLatin1StringView name) { return name == "cmdCancel"_L1 || name == "cmdClose"_L1; };
    // In the order in which they stand, or Tab misses one that was put after a later one.
    for (const bool leaving : {false, true})
        for (const QLatin1StringView name : buttons)
            if (leaves(name) == leaving) {
                QPushButton* button = NewButton(name);
                row->addButton(button, leaving ? QDialogButtonBox::RejectRole : QDialogButtonBox::AcceptRole);
                button->setDefault(name == *buttons.begin());
            }
    return row;
}

} // namespace qlm
