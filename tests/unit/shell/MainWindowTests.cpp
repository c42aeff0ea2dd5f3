// SPDX-License-Identifier: MIT
#include "WindowTest.h"
#include "core/SettingsFields.h"
#include "program/MainForm.h"
#include "shell/Look.h"
#include "steps/StopResume.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QMenuBar>
#include <QMouseEvent>
#include <QProgressBar>
#include <QPushButton>
#include <QScreen>
#include <QStackedLayout>
#include <QStackedWidget>
#include <QToolButton>

namespace qlm {

namespace {

class MainWindowTest : public WindowTest {
protected:
    MainWindowTest() {
        dialogs.ShowForm(u"frmMain"_s);
        app->Get<StopResume>().StopAll(StopReason::WindowStop);
        window = dialogs.FormWidget(u"frmMain"_s);
    }

    template <typename Widget> Widget* Named(const char* name) {
        return window->findChild<Widget*>(QString::fromLatin1(name));
    }

    // The view that lies on top.
    QWidget* Front() { return browserView.parentWidget()->findChild<QStackedLayout*>()->currentWidget(); }

    QWidget* window = nullptr;
};

} // namespace

TEST_F(MainWindowTest, ComesUpLoadedAndTitled) {
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(window->windowTitle(),
              u"Quillmere v"_s + app->Version() + u" – Start Growing Your MySpace Friends!"_s);
    const QAbstractItemModel* tabs = Named<QListView>("TabStrip1")->model();
    EXPECT_EQ(tabs->index(0, 0).data().toString(), u"Gather ID's"_s);
    EXPECT_EQ(tabs->index(1, 0).data().toString(), u"Friend Requester"_s);
    EXPECT_TRUE(Named<QWidget>("ucpanelFullGatherIDNotify")->isHidden());
}

TEST_F(MainWindowTest, MenuBarAndStatusLineHaveOneBackground) {
    ApplyLook(*qApp);
    const QColor bar = QColor::fromRgb(0xE9, 0xE9, 0xED);
    for (QWidget* widget : {static_cast<QWidget*>(window->findChild<QMenuBar*>()), Named<QWidget>("fraFoot"),
                            Named<QWidget>("lblStatus")}) {
        const QImage picture = widget->grab().toImage();
        EXPECT_EQ(picture.pixelColor(picture.width() - 2, picture.height() / 2).name(), bar.name());
    }
    qApp->setStyleSheet({});
}

TEST_F(MainWindowTest, ClosingItUnloadsTheProgram) {
    window->close();
    EXPECT_TRUE(app->state.blnClosing);
    EXPECT_FALSE(dialogs.IsFormOpen(u"frmMain"_s));
}

TEST_F(MainWindowTest, ZOrderBringsTheCoverOverTheBrowserAndBack) {
    EXPECT_EQ(Front(), &browserView);
    app->webHide().ZOrder(0);
    EXPECT_EQ(Front(), &coverView);
    app->webHide().ZOrder(1);
    EXPECT_EQ(Front(), &browserView);
}

TEST_F(MainWindowTest, BothBrowsersStayShownSoThatNeitherIsSlowedDown) {
    EXPECT_TRUE(browserView.isVisible());
    EXPECT_TRUE(coverView.isVisible());
}

TEST_F(MainWindowTest, ATabClickGoesThroughTheLogicAndTheLogicMovesTheTab) {
    app->controls.SetTicked("optImportClickedProfiles"_L1, true);
    auto* tabs = Named<QListView>("TabStrip1");
    tabs->setCurrentIndex(tabs->model()->index(1, 0));
    EXPECT_EQ(app->controls.Selected("TabStrip1"_L1), 1);
    EXPECT_TRUE(app->controls.Ticked("optScanFollowing"_L1));
    app->ShowTab(u"Gather ID's"_s);
    EXPECT_EQ(tabs->currentIndex().row(), 0);
}

TEST_F(MainWindowTest, EnterOnALinkFollowsIt) {
    for (const char* name : {"lblFullGatherHelp", "lblProfileIDHelp"}) {
        Count((QByteArray(name) + "_Click").constData());
        runs = 0;
        QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
        QApplication::sendEvent(Named<QPushButton>(name), &press);
        EXPECT_EQ(runs, 1) << name;
    }
}

TEST_F(MainWindowTest, EnterInTheAddressLineGoesThere) {
    Count("picGO_Click");
    Q_EMIT Named<QLineEdit>("txtAddress")->returnPressed();
    EXPECT_EQ(runs, 1);
}

TEST_F(MainWindowTest, TheControlPanelFoldsAwayAndComesBack) {
    auto* fold = Named<QToolButton>("picCollapse");
    fold->click();
    EXPECT_TRUE(Named<QStackedWidget>("fraPanels")->isHidden());
    fold->click();
    EXPECT_FALSE(Named<QStackedWidget>("fraPanels")->isHidden());
}

TEST_F(MainWindowTest, TheProgressBarFollowsWhichOfHowMany) {
    auto* bar = Named<QProgressBar>("prgProgress");
    EXPECT_TRUE(bar->isHidden());
    app->controls.SetProgress({3, 120});
    EXPECT_FALSE(bar->isHidden());
    EXPECT_EQ(bar->value(), 3);
    EXPECT_EQ(bar->maximum(), 120);
    app->controls.SetProgress({});
    EXPECT_TRUE(bar->isHidden());
}

TEST_F(MainWindowTest, WhatIsWaitedForHasALineOnlyWhileThereIsSomething) {
    auto* waiting = Named<QLabel>("lblWaitingFor");
    EXPECT_TRUE(waiting->isHidden());
    app->controls.SetText("lblWaitingFor"_L1, u"Waiting for a page since 10:00"_s);
    EXPECT_FALSE(waiting->isHidden());
}

TEST_F(MainWindowTest, TheListsMenuRunsItsItemsByTheirNumbers) {
    Count("mnuContextIDsListItem_Click");
    auto* menu = Named<QMenu>("mnuContextIDsList");
    QStringList captions;
    for (QAction* action : menu->actions())
        captions.append(action->isSeparator() ? u"-"_s : action->text().remove(u'&'));
    EXPECT_EQ(captions, (QStringList{u"Go to profile's page..."_s, u"-"_s, u"Remove ID"_s,
                                     u"Export ID's..."_s, u"Import ID's..."_s}));
    menu->actions().at(3)->trigger();
    EXPECT_EQ(lastArgument, 3);
}

TEST_F(MainWindowTest, AMenuGoesWithTheLastOfItsItems) {
    const QMenu* menu = Named<QMenu>("mnuCAPTCHAAlerts");
    EXPECT_TRUE(menu->menuAction()->isVisible());
    for (const auto item : {"mnuCaptchaSound"_L1, "mnuCaptchaPopup"_L1, "mnuCaptchaRestoreIfMinimized"_L1,
                            "mnuSkipProfileCAPTCHAs"_L1})
        app->controls.SetVisible(item, false);
    EXPECT_FALSE(menu->menuAction()->isVisible());
    app->controls.SetVisible("mnuCaptchaSound"_L1, true);
    EXPECT_TRUE(menu->menuAction()->isVisible());
    EXPECT_EQ(menu->title(), u"&CAPTCHA Settings"_s);
}

TEST_F(MainWindowTest, TheWaitPointerShowsWhileTheLogicAsksForIt) {
    app->controls.SetPointer(PointerShape::Busy);
    EXPECT_EQ(window->cursor().shape(), Qt::WaitCursor);
    app->controls.SetPointer(PointerShape::Usual);
    EXPECT_EQ(window->cursor().shape(), Qt::ArrowCursor);
}

TEST_F(MainWindowTest, ItsPlaceComesBackAsItWasTold) {
    app->Get<SettingsFields>().setPlace({40, 30, 700, 500, false, false});
    const WindowPlace place = app->Get<SettingsFields>().getPlace();
    EXPECT_EQ(place.left, 40);
    EXPECT_EQ(place.top, 30);
    EXPECT_GE(place.width, 700);
    EXPECT_FALSE(place.maximized);
}

TEST_F(MainWindowTest, APlaceOffTheScreenIsBroughtBackOntoIt) {
    app->Get<SettingsFields>().setPlace({9000, 9000, 700, 500, false, false});
    EXPECT_TRUE(window->screen()->availableGeometry().contains(window->geometry()));
}

TEST_F(MainWindowTest, ItComesUpMaximisedThoughTheDisplayForgetsIt) {
    app->Get<SettingsFields>().setPlace({40, 30, 700, 500, true, false});
    window->setWindowState(Qt::WindowNoState);
    QEvent active(QEvent::WindowActivate);
    QApplication::sendEvent(window, &active);
    EXPECT_TRUE(window->isMaximized());
}

// The offscreen display draws a frame of two pixels around a window.
TEST_F(MainWindowTest, TheFrameIsBroughtOntoTheScreenToo) {
    app->Get<SettingsFields>().setPlace({0, 0, 9000, 9000, false, false});
    ASSERT_FALSE(window->screen()->availableGeometry().contains(window->frameGeometry()));
    QEvent active(QEvent::WindowActivate);
    QApplication::sendEvent(window, &active);
    EXPECT_TRUE(window->screen()->availableGeometry().contains(window->frameGeometry()));
    // From then on it stays where the user puts it.
    window->move(-20, 5);
    QApplication::sendEvent(window, &active);
    EXPECT_EQ(window->pos(), QPoint(-20, 5));
}

TEST_F(WindowTest, ATabThatIsShownFirstLaterDoesNotPushThePage) {
    ApplyLook(*qApp);
    dialogs.ShowForm(u"frmMain"_s);
    app->Get<StopResume>().StopAll(StopReason::WindowStop);
    QApplication::processEvents();
    auto* tabs = Find<QListView>("frmMain", "TabStrip1");
    const auto* panels = Find<QStackedWidget>("frmMain", "fraPanels");
    const int width = panels->width();
    tabs->setCurrentIndex(tabs->model()->index(1, 0));
    QApplication::processEvents();
    EXPECT_EQ(panels->currentIndex(), 1);
    EXPECT_EQ(panels->width(), width);
}

TEST_F(MainWindowTest, TheOptionsOfARequestAreShownAndSayWhatTheyAreGoodFor) {
    EXPECT_NE(Named<QToolButton>("piccmdFRRefreshCategories"), nullptr);
    for (const char* name : {"chkFRNote", "txtFRNote", "chkFRFullName", "chkFRAddToUpdates",
                             "chkFRAddToCategory", "cboFRCategories"})
        EXPECT_EQ(Named<QWidget>(name)->toolTip(), u"This setting appears on the friend request page"_s)
            << name;
    EXPECT_EQ(Named<QWidget>("chkFrSendMessage")->toolTip(),
              u"Uses the message specified on the 'Auto Messenger' tab"_s);
}

TEST_F(MainWindowTest, LaterErrorsHaveALineOnlyWhenThereIsOne) {
    auto* errors = Named<QLabel>("lblLaterErrors");
    EXPECT_TRUE(errors->isHidden());
    app->controls.SetText("lblLaterErrors"_L1, u"Another error at 10:00:00: Overflow"_s);
    EXPECT_FALSE(errors->isHidden());
}

TEST_F(MainWindowTest, TheLimitSaysWhatADayCounts) {
    EXPECT_EQ(
        Named<QComboBox>("cboFRPerDayOrSession")->toolTip(),
        u"If you select \"per day\" then QLM takes all your sending activity into account and ensures you "
        "don't send too much in a 24-hour period"_s);
}

// A limit of 3 asks four.
TEST_F(MainWindowTest, TheLimitSaysWhenTheRunStops) {
    auto* limit = Named<QLineEdit>("txtFriendRequestsToSend");
    QString caption;
    for (const QLabel* label : window->findChildren<QLabel*>())
        if (label->buddy() == limit)
            caption = QString(label->text()).remove(u'&');
    EXPECT_EQ(caption, u"Stop one request after"_s);
    EXPECT_TRUE(limit->toolTip().startsWith(u"With 3 here four requests are sent: "_s));
}

TEST_F(MainWindowTest, ADoubleClickOnAStartButtonIsOneClick) {
    auto clicksOf = [this](const QString& name) {
        int clicks = 0;
        app->commands.Add(name + u"_Click"_s, [&clicks] { ++clicks; });
        auto* button = window->findChild<QWidget*>(name);
        const QPointF at = button->rect().center();
        for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease,
                                        QEvent::MouseButtonDblClick, QEvent::MouseButtonRelease}) {
            const auto held = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
            QMouseEvent event(type, at, button->mapToGlobal(at), Qt::LeftButton, held, Qt::NoModifier);
            QApplication::sendEvent(button, &event);
        }
        return clicks;
    };
    for (const QString& name :
         {u"piccmdAddFriends"_s, u"picScanStart"_s, u"picRemoveFriends"_s, u"piccmdFRRefreshCategories"_s})
        EXPECT_EQ(clicksOf(name), 1) << name.toStdString();
    // Of any other button each click counts.
    EXPECT_EQ(clicksOf(u"picRandomize"_s), 2);
}

TEST_F(MainWindowTest, EveryWayOfGatheringIsShown) {
    for (const char* name : {"optScanCurrentPage", "optScanFollowing", "optScanGoogle",
                             "optImportClickedProfiles", "piccmdBlackList", "picRemoveFriends"})
        EXPECT_NE(Named<QObject>(name), nullptr) << name;
}

TEST_F(MainWindowTest, OptionsWithoutEffectAreNotShown) {
    EXPECT_EQ(Named<QObject>("mnuShowInfoBar"), nullptr);
}

} // namespace qlm
