// SPDX-License-Identifier: MIT
#include "WindowTest.h"
#include "shell/ControlBinder.h"
#include "shell/FormParts.h"
#include "shell/TickBox.h"

#include <QAction>
#include <QActionGroup>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QVBoxLayout>

namespace qlm {

namespace {

class ControlBinderTest : public WindowTest {
protected:
    template <typename Widget> Widget* Add(QLatin1StringView name) {
        auto* widget = Named(new Widget, name);
        layout->addWidget(widget);
        return widget;
    }

    ControlBinder& Bind(const QString& prefix = {}) {
        binder.emplace(*app, prefix, [this] { return dialogs.MessageCount(); });
        binder->BindAll(window);
        return *binder;
    }

    Controls& Table() { return app->controls; }

    static void Press(QWidget& widget, int key) {
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
        QApplication::sendEvent(&widget, &press);
    }

    static void LoseFocus(QWidget& widget, Qt::FocusReason reason) {
        QFocusEvent out(QEvent::FocusOut, reason);
        QApplication::sendEvent(&widget, &out);
    }

    QWidget window;
    QVBoxLayout* layout = new QVBoxLayout(&window);
    std::optional<ControlBinder> binder;
};

} // namespace

TEST_F(ControlBinderTest, AFieldShowsItsControlAndHandsTheUsersTextBack) {
    Table().SetText("txtAddress"_L1, u"before"_s);
    auto* line = Add<QLineEdit>("txtAddress"_L1);
    Bind();
    EXPECT_EQ(line->text(), u"before"_s);
    Table().SetText("txtAddress"_L1, u"from the logic"_s);
    EXPECT_EQ(line->text(), u"from the logic"_s);
    line->setText(u"from the user"_s);
    EXPECT_EQ(Table().Text("txtAddress"_L1), u"from the user"_s);
}

TEST_F(ControlBinderTest, TypingInTheMiddleOfAFieldKeepsTheCursorThere) {
    auto* line = Add<QLineEdit>("txtAddress"_L1);
    Bind();
    line->setText(u"abcd"_s);
    line->setCursorPosition(2);
    line->insert(u"X"_s);
    EXPECT_EQ(line->text(), u"abXcd"_s);
    EXPECT_EQ(line->cursorPosition(), 3);
}

TEST_F(ControlBinderTest, ManyLinesHaveTheTablesLineEnds) {
    Table().SetText("txtMsgMessage"_L1, u"one\r\ntwo"_s);
    auto* lines = Add<QPlainTextEdit>("txtMsgMessage"_L1);
    Bind();
    EXPECT_EQ(lines->toPlainText(), u"one\ntwo"_s);
    lines->moveCursor(QTextCursor::End);
    lines->insertPlainText(u"\nthree"_s);
    EXPECT_EQ(Table().Text("txtMsgMessage"_L1), u"one\r\ntwo\r\nthree"_s);
    EXPECT_TRUE(lines->textCursor().atEnd());
    Table().SetText("txtMsgMessage"_L1, u"from the logic\r\n"_s);
    EXPECT_EQ(lines->toPlainText(), u"from the logic\n"_s);
}

TEST_F(ControlBinderTest, TheWidgetsOfAFormCarryItsPrefixInTheTable) {
    auto* line = Add<QLineEdit>("txtMinutes"_L1);
    Bind(u"frmTimeDelay."_s);
    line->setText(u"7"_s);
    EXPECT_EQ(Table().Text("frmTimeDelay.txtMinutes"_L1), u"7"_s);
}

TEST_F(ControlBinderTest, EnabledVisibleAndToolTipFollowTheTable) {
    Table().SetEnabled("txtAddress"_L1, false);
    auto* line = Add<QLineEdit>("txtAddress"_L1);
    Bind();
    EXPECT_FALSE(line->isEnabled());
    Table().SetEnabled("txtAddress"_L1, true);
    EXPECT_TRUE(line->isEnabled());
    Table().SetVisible("txtAddress"_L1, false);
    EXPECT_TRUE(line->isHidden());
    Table().SetVisible("txtAddress"_L1, true);
    EXPECT_FALSE(line->isHidden());
    Table().SetToolTip("txtAddress"_L1, u"a tip"_s);
    EXPECT_EQ(line->toolTip(), u"a tip"_s);
}

TEST_F(ControlBinderTest, TheLogicMovesTheInputFocusAndWhatStandsThereIsSelected) {
    Add<QLineEdit>("txtFriendRequestsToSend"_L1);
    auto* line = Add<QLineEdit>("txtAddress"_L1);
    Bind();
    window.show();
    QApplication::setActiveWindow(&window);
    line->setText(u"wrong"_s);
    Table().SetFocus("txtAddress"_L1);
    EXPECT_TRUE(line->hasFocus());
    EXPECT_EQ(line->selectedText(), u"wrong"_s);
    line->deselect();
    Table().SetFocus("txtAddress"_L1);
    EXPECT_EQ(line->selectedText(), u"wrong"_s);
}

TEST_F(ControlBinderTest, AButtonRunsItsCommandAndKeepsItsAccessKey) {
    Count("frmInteken.cmdContinue_Click");
    auto* button = Add<QPushButton>("cmdContinue"_L1);
    Bind(u"frmInteken."_s);
    EXPECT_EQ(button->text(), u"&Continue"_s);
    button->click();
    EXPECT_EQ(runs, 1);
    Table().SetText("frmInteken.cmdContinue"_L1, u"Please Wait..."_s);
    EXPECT_EQ(button->text(), u"Please Wait..."_s);
    Table().SetText("frmInteken.cmdContinue"_L1, u"Continue"_s);
    EXPECT_EQ(button->text(), u"&Continue"_s);
}

TEST_F(ControlBinderTest, ADisabledButtonRunsNothing) {
    Count("frmInteken.cmdContinue_Click");
    auto* button = Add<QPushButton>("cmdContinue"_L1);
    Bind(u"frmInteken."_s);
    Table().SetEnabled("frmInteken.cmdContinue"_L1, false);
    button->click();
    EXPECT_EQ(runs, 0);
}

TEST_F(ControlBinderTest, OptionsOfOneGroupExcludeOneAnotherAcrossDifferentParents) {
    auto* all = Add<QRadioButton>("optScanFollowing"_L1);
    auto* box = new QWidget;
    layout->addWidget(box);
    auto* clicked = Named(new QRadioButton(box), "optImportClickedProfiles"_L1);
    auto* quick = Add<QRadioButton>("optQuickGather"_L1);
    Bind();
    EXPECT_TRUE(all->isChecked());
    clicked->click();
    EXPECT_FALSE(all->isChecked());
    EXPECT_FALSE(Table().Ticked("optScanFollowing"_L1));
    EXPECT_TRUE(Table().Ticked("optImportClickedProfiles"_L1));
    EXPECT_TRUE(quick->isChecked());
    // A second click on the chosen one leaves it chosen.
    clicked->click();
    EXPECT_TRUE(clicked->isChecked());
}

TEST_F(ControlBinderTest, TheLogicCanLeaveAGroupWithNothingChosen) {
    auto* all = Add<QRadioButton>("optScanFollowing"_L1);
    Bind();
    Table().SetTicked("optScanFollowing"_L1, false);
    EXPECT_FALSE(all->isChecked());
}

TEST_F(ControlBinderTest, ACheckBoxWhoseMouseDownSaysSomethingStaysAsItIs) {
    app->commands.Add(u"chkRemoveAfterSent_MouseDown"_s, [this] { app->ShowMessage(u"not now"_s); });
    auto* box = Add<TickBox>("chkRemoveAfterSent"_L1);
    Bind();
    box->click();
    EXPECT_FALSE(box->isChecked());
    EXPECT_FALSE(Table().Ticked("chkRemoveAfterSent"_L1));
    EXPECT_EQ(dialogs.messages, QStringList{u"Quillmere: not now"_s});
}

TEST_F(ControlBinderTest, ACheckBoxWhoseMouseDownIsSilentTurns) {
    Count("chkRemoveAfterSent_MouseDown");
    auto* box = Add<TickBox>("chkRemoveAfterSent"_L1);
    Bind();
    box->click();
    EXPECT_EQ(runs, 1);
    EXPECT_TRUE(Table().Ticked("chkRemoveAfterSent"_L1));
}

TEST_F(ControlBinderTest, ALeftFieldRunsLostFocusButNotWhenAnotherProgramComesUp) {
    Count("frmTimeDelay.txtMinutes_LostFocus");
    auto* line = Add<QLineEdit>("txtMinutes"_L1);
    Bind(u"frmTimeDelay."_s);
    LoseFocus(*line, Qt::ActiveWindowFocusReason);
    LoseFocus(*line, Qt::PopupFocusReason);
    EXPECT_EQ(runs, 0);
    LoseFocus(*line, Qt::TabFocusReason);
    EXPECT_EQ(runs, 1);
}

TEST_F(ControlBinderTest, AComboBoxShowsTheChoicesOfItsRow) {
    auto* combo = Add<QComboBox>("cboFRPerDayOrSession"_L1);
    Bind();
    EXPECT_EQ(combo->count(), 2);
    EXPECT_EQ(combo->currentText(), u"this session"_s);
    combo->setCurrentIndex(1);
    EXPECT_EQ(Table().Text("cboFRPerDayOrSession"_L1), u"per day"_s);
    Table().SetText("cboFRPerDayOrSession"_L1, u"this session"_s);
    EXPECT_EQ(combo->currentIndex(), 0);
}

TEST_F(ControlBinderTest, AListFollowsAddingRemovingAndReplacingItsRows) {
    Table().SetItems("lstFriendIDs"_L1, {u"1"_s, u"2"_s});
    auto* list = Add<QListView>("lstFriendIDs"_L1);
    Bind();
    Table().AddItem("lstFriendIDs"_L1, u"3"_s);
    Table().RemoveItem("lstFriendIDs"_L1, 0);
    ASSERT_EQ(list->model()->rowCount(), 2);
    EXPECT_EQ(list->model()->index(1, 0).data().toString(), u"3"_s);
    Table().SetItems("lstFriendIDs"_L1, {});
    EXPECT_EQ(list->model()->rowCount(), 0);
}

TEST_F(ControlBinderTest, ARemovedRowLeavesNoSelectionThatTheTableDoesNotKnow) {
    Table().SetItems("lstFriendIDs"_L1, {u"1"_s, u"2"_s, u"3"_s});
    auto* list = Add<QListView>("lstFriendIDs"_L1);
    Bind();
    list->setCurrentIndex(list->model()->index(1, 0));
    ASSERT_EQ(Table().Selected("lstFriendIDs"_L1), 1);
    Table().RemoveItem("lstFriendIDs"_L1, 1);
    EXPECT_EQ(Table().Selected("lstFriendIDs"_L1), -1);
    EXPECT_FALSE(list->selectionModel()->hasSelection());
    Table().SetSelected("lstFriendIDs"_L1, 0);
    EXPECT_EQ(list->currentIndex().row(), 0);
}

TEST_F(ControlBinderTest, DeleteInAListRunsItsKeyDownWithTheKeysCode) {
    Count("lstFriendIDs_KeyDown");
    auto* list = Add<QListView>("lstFriendIDs"_L1);
    Bind();
    Press(*list, Qt::Key_Delete);
    EXPECT_EQ(runs, 1);
    EXPECT_EQ(lastArgument, 46);
    Press(*list, Qt::Key_Down);
    EXPECT_EQ(runs, 1);
}

TEST_F(ControlBinderTest, TheOtherKeysOfAListHaveTheirCodesToo) {
    Count("lstFriendIDs_KeyDown");
    auto* list = Add<QListView>("lstFriendIDs"_L1);
    Bind();
    for (const auto& [key, code] :
         {std::pair<int, int>{Qt::Key_Return, 13}, {Qt::Key_Enter, 13}, {Qt::Key_Insert, 45}}) {
        lastArgument = 0;
        Press(*list, key);
        EXPECT_EQ(lastArgument, code);
    }
}

// Return would press the form's default button as well.
TEST_F(ControlBinderTest, AKeyThatAListKnowsGoesNoFurther) {
    struct KeyCounter : QObject {
        bool eventFilter(QObject*, QEvent* event) override {
            keys += event->type() == QEvent::KeyPress;
            return false;
        }
        int keys = 0;
    } counter;
    window.installEventFilter(&counter);
    Table().SetItems("frmInteken.lstAccounts"_L1, {u"1"_s});
    auto* list = Add<QListView>("frmInteken.lstAccounts"_L1);
    Bind();
    list->setCurrentIndex(list->model()->index(0, 0));
    Press(*list, Qt::Key_Return);
    EXPECT_EQ(counter.keys, 1);
    Count("frmInteken.lstAccounts_KeyDown");
    Press(*list, Qt::Key_Return);
    EXPECT_EQ(counter.keys, 1);
    EXPECT_EQ(runs, 1);
    window.removeEventFilter(&counter);
}

TEST_F(ControlBinderTest, ARowsBoxIsTurnedByTheUserAndByTheLogic) {
    Count("lstFriendIDs_ItemCheck");
    auto* list = Add<QListView>("lstFriendIDs"_L1);
    Bind();
    Table().SetItems("lstFriendIDs"_L1, {u"1"_s, u"2"_s, u"none"_s}, {true, false});
    const auto state = [list](int row) { return list->model()->index(row, 0).data(Qt::CheckStateRole); };
    EXPECT_EQ(state(0), QVariant(Qt::Checked));
    EXPECT_EQ(state(1), QVariant(Qt::Unchecked));
    EXPECT_FALSE(state(2).isValid());
    list->setCurrentIndex(list->model()->index(1, 0));
    Press(*list, Qt::Key_Space);
    EXPECT_TRUE(Table().RowTicked("lstFriendIDs"_L1, 1));
    EXPECT_EQ(runs, 1);
    EXPECT_EQ(lastArgument, 1);
    int told = 0;
    QObject::connect(list->model(), &QAbstractItemModel::dataChanged, list, [&told] { ++told; });
    Table().SetRowTicked("lstFriendIDs"_L1, 0, false);
    EXPECT_EQ(state(0), QVariant(Qt::Unchecked));
    EXPECT_EQ(told, 1);
    EXPECT_EQ(runs, 1);
    list->setCurrentIndex(list->model()->index(2, 0));
    Press(*list, Qt::Key_Space);
    EXPECT_EQ(runs, 1);
}

TEST_F(ControlBinderTest, ABoxGoesWithItsRow) {
    auto* list = Add<QListView>("lstFriendIDs"_L1);
    Bind();
    Table().SetItems("lstFriendIDs"_L1, {u"1"_s, u"2"_s}, {true, false});
    Table().RemoveItem("lstFriendIDs"_L1, 0);
    EXPECT_EQ(list->model()->index(0, 0).data(Qt::CheckStateRole), QVariant(Qt::Unchecked));
    Table().SetItems("lstFriendIDs"_L1, {u"1"_s});
    EXPECT_FALSE(list->model()->index(0, 0).data(Qt::CheckStateRole).isValid());
}

TEST_F(ControlBinderTest, ARowIsDraggedToAnotherPlaceWhereTheListTakesIt) {
    auto* fixed = Add<QListView>("frmBlacklist.lstFriendIDs"_L1);
    Count("lstFriendIDs_DragDrop");
    auto* list = Add<QListView>("lstFriendIDs"_L1);
    Bind();
    EXPECT_EQ(fixed->dragDropMode(), QAbstractItemView::NoDragDrop);
    Table().SetItems("lstFriendIDs"_L1, {u"1"_s, u"2"_s, u"3"_s}, {true, true, true});
    const auto drop = [list](int row, int inFrontOf) {
        list->setCurrentIndex(list->model()->index(row, 0));
        list->model()->moveRow({}, row, {}, inFrontOf);
    };
    drop(0, 3);
    EXPECT_EQ(lastArgument, 2);
    drop(2, 0);
    EXPECT_EQ(lastArgument, 0);
    EXPECT_EQ(runs, 2);
    EXPECT_TRUE(list->model()->index(0, 0).flags() & Qt::ItemIsDragEnabled);
    EXPECT_FALSE(list->model()->index(0, 0).flags() & Qt::ItemIsDropEnabled);
}

TEST_F(ControlBinderTest, TheRowsOfAMenusControlStandBelowItsOwnItems) {
    Count("mnuBookmarksItem_Click");
    auto* menu = Named(new QMenu(&window), "mnuBookmarks"_L1);
    menu->addAction(u"own"_s);
    Bind();
    const auto texts = [menu] {
        QStringList found;
        for (const QAction* action : menu->actions())
            found.append(action->isSeparator() ? u"-"_s : action->text());
        return found;
    };
    Table().SetItems("mnuBookmarks"_L1, {u"a & b"_s, u"-"_s, u"c"_s});
    EXPECT_EQ(texts(), (QStringList{u"own"_s, u"-"_s, u"a && b"_s, u"-"_s, u"c"_s}));
    menu->actions().at(4)->trigger();
    EXPECT_EQ(runs, 1);
    EXPECT_EQ(lastArgument, 2);
    Table().SetItems("mnuBookmarks"_L1, {});
    EXPECT_EQ(texts(), QStringList{u"own"_s});
}

TEST_F(ControlBinderTest, AListRunsItsClickAndItsDoubleClick) {
    Table().SetItems("lstFriendIDs"_L1, {u"1"_s});
    auto* list = Add<QListView>("lstFriendIDs"_L1);
    Bind();
    Count("lstFriendIDs_Click");
    Q_EMIT list->clicked(list->model()->index(0, 0));
    EXPECT_EQ(runs, 1);
    Count("lstFriendIDs_DblClick");
    Q_EMIT list->doubleClicked(list->model()->index(0, 0));
    EXPECT_EQ(runs, 2);
}

TEST_F(ControlBinderTest, AComboBoxRunsItsClickWhenTheUserChoosesAndNotWhenTheLogicDoes) {
    auto* combo = Add<QComboBox>("cboFRPerDayOrSession"_L1);
    Bind();
    Count("cboFRPerDayOrSession_Click");
    Table().SetText("cboFRPerDayOrSession"_L1, u"per day"_s);
    EXPECT_EQ(runs, 0);
    combo->setCurrentIndex(0);
    EXPECT_EQ(runs, 1);
}

TEST_F(ControlBinderTest, AMenuItemIsEnabledAsTheTableSays) {
    QAction action;
    action.setObjectName(u"mnuCaptchaPopup"_s);
    action.setCheckable(true);
    Bind().Bind(action);
    Table().SetEnabled("mnuCaptchaPopup"_L1, false);
    EXPECT_FALSE(action.isEnabled());
    Table().SetEnabled("mnuCaptchaPopup"_L1, true);
    EXPECT_TRUE(action.isEnabled());
}

// By the keyboard, and by a screen reader that follows it, the chosen option is the one that is come to.
TEST_F(ControlBinderTest, TheTabKeyComesToTheChosenOptionOfAGroup) {
    auto* first = Add<QRadioButton>("optScanCurrentPage"_L1);
    auto* second = Add<QRadioButton>("optScanFollowing"_L1);
    auto* line = Add<QLineEdit>("txtAddress"_L1);
    Table().SetTicked("optScanCurrentPage"_L1, true);
    Bind();
    window.show();
    QApplication::setActiveWindow(&window);
    for (const auto& [name, chosen] :
         {std::pair{"optScanFollowing"_L1, second}, {"optScanCurrentPage"_L1, first}}) {
        Table().SetTicked(name, true);
        line->setFocus();
        Press(*line, Qt::Key_Tab);
        EXPECT_EQ(window.focusWidget(), chosen) << name.data();
    }
}

TEST_F(ControlBinderTest, AListOfThirtyThousandRowsIsShownWithoutCopyingThem) {
    QStringList ids;
    for (int i = 0; i < 30001; ++i)
        ids.append(QString::number(100000 + i));
    auto* list = Add<QListView>("lstFriendIDs"_L1);
    Bind();
    Table().SetItems("lstFriendIDs"_L1, ids);
    EXPECT_EQ(list->model()->rowCount(), 30001);
    EXPECT_EQ(list->model()->index(30000, 0).data().toString(), u"130000"_s);
    EXPECT_TRUE(list->uniformItemSizes());
}

TEST_F(ControlBinderTest, AMenuItemsTickIsTurnedByItsCommandAlone) {
    QAction action;
    action.setObjectName(u"mnuCaptchaPopup"_s);
    action.setCheckable(true);
    bool turns = false;
    app->commands.Add(u"mnuCaptchaPopup_Click"_s, [this, &turns] {
        if (turns)
            Table().SetTicked("mnuCaptchaPopup"_L1, true);
    });
    Bind().Bind(action);
    action.trigger();
    EXPECT_FALSE(action.isChecked());
    turns = true;
    action.trigger();
    EXPECT_TRUE(action.isChecked());
}

TEST_F(ControlBinderTest, MenuItemsOfOneGroupShowAsOptions) {
    QAction on;
    on.setObjectName(u"mnuMultipleAccountsFROn"_s);
    QAction off;
    off.setObjectName(u"mnuMultipleAccountsFROff"_s);
    app->commands.Add(u"mnuMultipleAccountsFROn_Click"_s,
                      [this] { Table().SetTicked("mnuMultipleAccountsFROn"_L1, true); });
    ControlBinder& menu = Bind();
    menu.Bind(on);
    menu.Bind(off);
    EXPECT_EQ(on.text(), u"On (always)"_s);
    ASSERT_NE(on.actionGroup(), nullptr);
    EXPECT_EQ(on.actionGroup(), off.actionGroup());
    EXPECT_TRUE(on.actionGroup()->isExclusive());
    EXPECT_TRUE(off.isChecked());
    on.trigger();
    EXPECT_TRUE(on.isChecked());
    EXPECT_FALSE(off.isChecked());
    Table().SetTicked("mnuMultipleAccountsFROn"_L1, false);
    EXPECT_FALSE(on.isChecked());
}

TEST_F(ControlBinderTest, AMenuItemComesAndGoesAndChangesItsWordsWithTheTable) {
    Table().SetVisible("mnuCaptchaPopup"_L1, false);
    QAction action;
    action.setObjectName(u"mnuCaptchaPopup"_s);
    Bind().Bind(action);
    EXPECT_FALSE(action.isVisible());
    Table().SetVisible("mnuCaptchaPopup"_L1, true);
    EXPECT_TRUE(action.isVisible());
    Table().SetText("mnuCaptchaPopup"_L1, u"Popups & sounds"_s);
    EXPECT_EQ(action.text(), u"&Popups && sounds"_s);
}

TEST_F(ControlBinderTest, AnItemOfAnArrayRunsTheArraysCommandWithItsNumber) {
    Count("mnuContextIDsListItem_Click");
    QAction action;
    action.setObjectName(u"mnuContextIDsListItem(3)"_s);
    Bind().Bind(action);
    action.trigger();
    EXPECT_EQ(runs, 1);
    EXPECT_EQ(lastArgument, 3);
}

TEST_F(ControlBinderTest, AFormShowsThePointerThatTheLogicAsksFor) {
    Table().SetPointer(PointerShape::Busy);
    Bind();
    EXPECT_EQ(window.cursor().shape(), Qt::WaitCursor);
    Table().SetPointer(PointerShape::Usual);
    EXPECT_EQ(window.cursor().shape(), Qt::ArrowCursor);
}

TEST_F(ControlBinderTest, AFaultInACommandIsReportedUnderItsName) {
    app->state.ErrorLogPath = app->DataFile(u"Error.log"_s);
    app->commands.Add(u"picStop_Click"_s, [] { throw std::runtime_error("broken"); });
    auto* button = Add<QPushButton>("picStop"_L1);
    Bind();
    button->click();
    EXPECT_TRUE(app->files.ReadLines(app->state.ErrorLogPath).contains(u"Proc: picStop_Click"_s));
}

TEST_F(ControlBinderTest, AClickThatEndsTheProgramIsNoFault) {
    app->state.ErrorLogPath = app->DataFile(u"Error.log"_s);
    app->commands.Add(u"picStop_Click"_s, []() -> void { throw ProgramEnding(); });
    auto* button = Add<QPushButton>("picStop"_L1);
    Bind();
    button->click();
    EXPECT_FALSE(app->files.FileExists(app->state.ErrorLogPath));
}

TEST_F(ControlBinderTest, ABinderThatIsGoneHearsNoMoreOfTheTable) {
    auto* line = Add<QLineEdit>("txtAddress"_L1);
    Bind();
    binder.reset();
    Table().SetText("txtAddress"_L1, u"later"_s);
    EXPECT_EQ(line->text(), QString());
}

} // namespace qlm
