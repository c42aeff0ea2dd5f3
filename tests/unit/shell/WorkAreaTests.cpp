// SPDX-License-Identifier: MIT
// The strip of tabs, the panels and the browser beside one another.
#include "WindowTest.h"
#include "core/Tabs.h"
#include "shell/Look.h"
#include "shell/TabStrip.h"
#include "steps/StopResume.h"

#include <QAccessible>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollArea>
#include <QScrollBar>
#include <QStackedWidget>
#include <QToolButton>
#include <QToolTip>

namespace qlm {
namespace {

class WorkAreaTest : public WindowTest {
protected:
    WorkAreaTest() {
        ApplyLook(*qApp);
        dialogs.ShowForm(u"frmMain"_s);
        app->Get<StopResume>().StopAll(StopReason::WindowStop);
        window = dialogs.FormWidget(u"frmMain"_s);
        strip = dynamic_cast<TabStrip*>(window->findChild<QWidget*>(u"TabStrip1"_s));
        panels = window->findChild<QStackedWidget*>(u"fraPanels"_s);
        QApplication::setActiveWindow(window);
    }
    ~WorkAreaTest() override { qApp->setStyleSheet({}); }

    void Resize(int width, int height) {
        window->resize(width, height);
        QApplication::processEvents();
    }
    int WidthOfBrowser() const { return browserView.parentWidget()->parentWidget()->width(); }
    void ClickTab(int row) {
        const QPoint at = strip->visualRect(strip->model()->index(row, 0)).center();
        for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
            QMouseEvent event(type, at, strip->viewport()->mapToGlobal(at), Qt::LeftButton,
                              type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton,
                              Qt::NoModifier);
            QApplication::sendEvent(strip->viewport(), &event);
        }
    }
    void Press(int key) {
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
        QApplication::sendEvent(strip, &press);
    }

    QWidget* window = nullptr;
    TabStrip* strip = nullptr;
    QStackedWidget* panels = nullptr;
};

} // namespace

TEST_F(WorkAreaTest, StripPanelAndBrowserShareANarrowAndAWideWindow) {
    Resize(1024, 700);
    EXPECT_EQ(strip->width(), 44);
    EXPECT_EQ(panels->width(), 340);
    EXPECT_EQ(WidthOfBrowser(), 640);
    Resize(1440, 700);
    EXPECT_EQ(strip->width(), 160);
    EXPECT_EQ(panels->width(), 360);
    EXPECT_EQ(WidthOfBrowser(), 920);
    Resize(1279, 700);
    EXPECT_FALSE(strip->IsWide());
    Resize(1280, 700);
    EXPECT_TRUE(strip->IsWide());
}

TEST_F(WorkAreaTest, ATabBringsUpItsPanelByMouseAndArrowKeys) {
    ASSERT_EQ(panels->count(), static_cast<int>(Tabs().size()));
    ClickTab(1);
    EXPECT_EQ(panels->currentWidget()->objectName(), u"picFriendRequester"_s);
    EXPECT_EQ(app->controls.Selected("TabStrip1"_L1), 1);
    Press(Qt::Key_Up);
    EXPECT_EQ(panels->currentWidget()->objectName(), u"picScanIDs"_s);
    Press(Qt::Key_Down);
    EXPECT_EQ(panels->currentWidget()->objectName(), u"picFriendRequester"_s);
}

TEST_F(WorkAreaTest, FoldingKeepsTheTabsAndAClickOnOneBringsThePanelBack) {
    auto* fold = window->findChild<QToolButton*>(u"picCollapse"_s);
    fold->click();
    EXPECT_TRUE(panels->isHidden());
    EXPECT_TRUE(strip->isVisible());
    EXPECT_EQ(fold->toolTip(), u"Show the control panel"_s);
    ClickTab(0);
    EXPECT_FALSE(panels->isHidden());
    EXPECT_EQ(fold->toolTip(), u"Fold the control panel away"_s);
}

// A narrow strip says its captions when the mouse rests on a picture, and always to a screen reader.
TEST_F(WorkAreaTest, ATabIsNamedWhereItsCaptionHasNoRoom) {
    QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(strip);
    EXPECT_EQ(spoken->text(QAccessible::Name), u"Control panel"_s);
    for (const int width : {1024, 1440}) {
        Resize(width, 700);
        ASSERT_GT(spoken->childCount(), 1);
        EXPECT_EQ(spoken->child(1)->text(QAccessible::Name), u"Friend Requester"_s);
    }
    Resize(1024, 700);
    const QPoint at = strip->visualRect(strip->model()->index(1, 0)).center();
    QHelpEvent rest(QEvent::ToolTip, at, strip->viewport()->mapToGlobal(at));
    QApplication::sendEvent(strip->viewport(), &rest);
    EXPECT_EQ(QToolTip::text(), u"Friend Requester"_s);
    QToolTip::hideText();
}

TEST_F(WorkAreaTest, StartStopAndCountersStayInSightHoweverLowTheWindowIs) {
    Resize(1024, 560);
    for (const auto& [tab, names] :
         {std::pair{0, QStringList{u"picScanStart"_s, u"picScanStop"_s, u"lblProfilesGathered"_s}},
          {1,
           {u"piccmdAddFriends"_s, u"piccmdAddFriendsStop"_s, u"lblFrSentCount"_s,
            u"lblFrSkippedCount"_s}}}) {
        ClickTab(tab);
        QApplication::processEvents();
        const auto* options = panels->currentWidget()->findChild<QScrollArea*>();
        EXPECT_GT(options->verticalScrollBar()->maximum(), 0) << "nothing had to scroll";
        for (const QString& name : names) {
            const auto* widget = panels->currentWidget()->findChild<QWidget*>(name);
            EXPECT_EQ(widget->visibleRegion().boundingRect(), widget->rect()) << name.toStdString();
        }
    }
}

TEST_F(WorkAreaTest, NothingScrollsWhereThereIsRoom) {
    Resize(1440, 900);
    for (int tab = 0; tab < panels->count(); ++tab) {
        ClickTab(tab);
        QApplication::processEvents();
        const auto* options = panels->currentWidget()->findChild<QScrollArea*>();
        EXPECT_EQ(options->verticalScrollBar()->maximum(), 0)
            << tab << ": " << options->height() << " of " << options->sizeHint().height() << ", content "
            << options->widget()->sizeHint().height() << " least "
            << options->widget()->minimumSizeHint().height();
    }
}

TEST_F(WorkAreaTest, NoPanelIsCutOff) {
    Resize(1024, 700);
    for (int tab = 0; tab < panels->count(); ++tab) {
        ClickTab(tab);
        QApplication::processEvents();
        EXPECT_LE(panels->currentWidget()->minimumSizeHint().width(), 340) << tab;
        const auto* options = panels->currentWidget()->findChild<QScrollArea*>();
        EXPECT_LE(options->widget()->width(), options->viewport()->width()) << tab;
    }
}

} // namespace qlm
