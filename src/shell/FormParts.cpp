// SPDX-License-Identifier: MIT
#include "shell/FormParts.h"

#include <QAbstractItemModel>
#include <QDialogButtonBox>
#include <QEvent>
#include <QLineEdit>
#include <QListView>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

// Letters stand at fractions of a pixel: a width that is rounded down cuts the last one.
class Link : public QPushButton {
public:
    using QPushButton::QPushButton;
    QSize sizeHint() const override { return QPushButton::sizeHint() + QSize(2, 0); }
};

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

QPushButton* NewButton(QLatin1StringView name, const QString& caption) {
    return Named(new QPushButton(caption), name);
}

QPushButton* NewLink(QLatin1StringView name, const QString& caption) {
    QPushButton* link = Named<QPushButton>(new Link(caption), name);
    link->setFlat(true);
    link->setAutoDefault(true); // Return follows it in the main window, too
    link->setCursor(Qt::PointingHandCursor);
    link->setProperty("look", u"link"_s);
    link->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    return link;
}

QLineEdit* NewLine(QLatin1StringView name, const QString& accessibleName) {
    return Named(new QLineEdit, name, accessibleName);
}

QLabel* NewLabel(QLatin1StringView name, const QString& look) {
    auto* label = Named(new QLabel, name);
    label->setTextFormat(Qt::PlainText);
    label->setProperty("look", look);
    return label;
}

QLabel* NewCaptionOf(QWidget& input, const QString& words, const QString& accessibleName) {
    auto* caption = new QLabel(words);
    caption->setBuddy(&input);
    caption->setAccessibleName(accessibleName);
    return caption;
}

QLabel* NewText(const QString& text, const QString& look) {
    auto* label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setProperty("look", look);
    return label;
}

void HintOnRows(QListView& list, QLabel& hint, std::function<bool()> isWanted) {
    auto show = [&hint, isWanted = std::move(isWanted)] { hint.setVisible(isWanted()); };
    QObject::connect(list.model(), &QAbstractItemModel::modelReset, &hint, show);
    QObject::connect(list.model(), &QAbstractItemModel::rowsInserted, &hint, show);
    QObject::connect(list.model(), &QAbstractItemModel::rowsRemoved, &hint, show);
    show();
}

QDialogButtonBox* NewButtonRow(std::initializer_list<QPushButton*> buttons) {
    auto* row = new QDialogButtonBox;
    auto leaves = [](const QPushButton* button) {
        return button->objectName() == "cmdCancel"_L1 || button->objectName() == "cmdClose"_L1;
    };
    // In the order in which they stand, or Tab misses one that was put behind a later one.
    for (QPushButton* button : buttons)
        if (!leaves(button))
            row->addButton(button, QDialogButtonBox::AcceptRole);
    for (QPushButton* button : buttons)
        if (leaves(button))
            row->addButton(button, QDialogButtonBox::RejectRole);
    for (QPushButton* button : buttons)
        button->setDefault(button == *buttons.begin());
    return row;
}

} // namespace qlm
