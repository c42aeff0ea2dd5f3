// SPDX-License-Identifier: MIT
// Every form and panel, worked by the keyboard and read out by a screen reader.
#include "WindowTest.h"
#include "shell/FormRegistry.h"
#include "shell/TabStrip.h"
#include "steps/StopResume.h"

#include <QAccessible>
#include <QComboBox>
#include <QKeyEvent>
#include <QRadioButton>
#include <QSet>

namespace qlm {
namespace {

// By the label whose buddy it is, or by its own name; a combo box's own is its value.
QString SpokenName(QWidget& widget) {
    QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(&widget);
    for (const auto& [label, relation] : spoken->relations(QAccessible::Label))
        if (relation & QAccessible::Label)
            return label->text(QAccessible::Name);
    return qobject_cast<QComboBox*>(&widget) ? QString() : spoken->text(QAccessible::Name);
}

QString Described(const QWidget& widget) {
    return widget.objectName() + u" ("_s + QString::fromLatin1(widget.metaObject()->className()) + u')';
}

class AccessibilityTest : public WindowTest {
protected:
    // What can have the input focus now, and doesn't hand it on.
    static QList<QWidget*> Focusable(QWidget& window) {
        QList<QWidget*> found;
        for (auto* widget : window.findChildren<QWidget*>())
            if (widget->focusPolicy() != Qt::NoFocus && !widget->focusProxy() && widget->isVisible() &&
                widget->isEnabled() && widget->window() == &window)
                found.append(widget);
        return found;
    }
    // Of options that exclude one another Tab comes to the chosen one alone.
    static bool IsTabStop(const QWidget& widget) {
        const auto* option = qobject_cast<const QRadioButton*>(&widget);
        return option ? option->isChecked() : (widget.focusPolicy() & Qt::TabFocus) != 0;
    }
    static void ExpectSpoken(QWidget& window) {
        for (QWidget* widget : Focusable(window))
            EXPECT_FALSE(SpokenName(*widget).trimmed().isEmpty())
                << window.objectName().toStdString() << ": " << Described(*widget).toStdString();
    }
    // Once around by the Tab key.
    static void ExpectTabVisitsAll(QWidget& window) {
        QApplication::setActiveWindow(&window);
        QSet<QWidget*> visited;
        for (QWidget* at = window.focusWidget(); at && !visited.contains(at); at = window.focusWidget()) {
            visited.insert(at);
            QKeyEvent press(QEvent::KeyPress, Qt::Key_Tab, Qt::NoModifier);
            QApplication::sendEvent(at, &press);
        }
        for (QWidget* widget : Focusable(window))
            EXPECT_EQ(visited.contains(widget), IsTabStop(*widget))
                << window.objectName().toStdString() << ": " << Described(*widget).toStdString();
    }
};

} // namespace

TEST_F(AccessibilityTest, WhateverCanHaveTheFocusOfAFormHasANameAndIsReachedByTab) {
    int widgets = 0;
    for (const QString& name : FormNames()) {
        dialogs.ShowForm(name);
        QWidget& form = *dialogs.FormWidget(name);
        widgets += static_cast<int>(Focusable(form).size());
        ExpectSpoken(form);
        ExpectTabVisitsAll(form);
        dialogs.CloseForm(name);
    }
    EXPECT_GT(widgets, 90);
}

TEST_F(AccessibilityTest, WhateverCanHaveTheFocusOfTheMainWindowHasANameAndIsReachedByTab) {
    dialogs.ShowForm(u"frmMain"_s);
    app->Get<StopResume>().StopAll(StopReason::WindowStop);
    QWidget& window = *dialogs.FormWidget(u"frmMain"_s);
    auto* tabs = dynamic_cast<TabStrip*>(window.findChild<QWidget*>(u"TabStrip1"_s));
    for (int tab = 0; tab < tabs->model()->rowCount(); ++tab) {
        const QModelIndex row = tabs->model()->index(tab, 0);
        SCOPED_TRACE(row.data().toString().toStdString());
        tabs->setCurrentIndex(row);
        window.findChild<QWidget*>(u"txtAddress"_s)->setFocus();
        EXPECT_GT(Focusable(window).size(), 14);
        ExpectSpoken(window);
        ExpectTabVisitsAll(window);
    }
}

// A key that is typed when the page calls for one goes to the page, not to the button that was pressed last.
TEST_F(AccessibilityTest, ThePageTakesTheKeysOfTheButtonThatWasPressedLast) {
    dialogs.ShowForm(u"frmMain"_s);
    app->Get<StopResume>().StopAll(StopReason::WindowStop);
    QWidget* window = dialogs.FormWidget(u"frmMain"_s);
    QApplication::setActiveWindow(window);
    auto* tabs = window->findChild<QListView*>(u"TabStrip1"_s);
    tabs->setCurrentIndex(tabs->model()->index(1, 0));
    auto* send = window->findChild<QWidget*>(u"piccmdAddFriends"_s);
    send->setFocus();
    ASSERT_EQ(window->focusWidget(), send);
    app->WebBrowser1().TakeFocus();
    EXPECT_EQ(window->focusWidget(), &browserView);
}

} // namespace qlm
