// SPDX-License-Identifier: MIT
#include "WindowTest.h"
#include "shell/DesktopDialogs.h"
#include "shell/FormRegistry.h"
#include "shell/Look.h"
#include "shell/PictureButtons.h"

#include <QAction>
#include <QApplication>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPainter>
#include <QPushButton>
#include <QShortcut>
#include <QStyleOption>
#include <QTemporaryDir>
#include <QTextBrowser>
#include <QTimer>

namespace qlm {

namespace {

class FormsTest : public WindowTest {};

// Named buttons that would do nothing when pressed.
QStringList IdleButtons(const App& app, const QWidget& window, const QString& prefix) {
    QStringList idle;
    for (const auto* button : window.findChildren<QAbstractButton*>()) {
        const QString name = button->objectName();
        const bool isQts = name.isEmpty() || name.startsWith(u"qt_"_s);
        if (isQts || button->isCheckable() || name == "picCollapse"_L1)
            continue;
        const QByteArray row = (prefix + name).toLatin1();
        if (!app.commands.Has(Controls::RowNamed(QLatin1StringView(row)).Command()))
            idle.append(prefix + name);
    }
    return idle;
}

} // namespace

TEST_F(FormsTest, EveryControlOfAFormHasItsWidget) {
    for (const QString& form : FormNames()) {
        dialogs.ShowForm(form);
        const QString prefix = form + u'.';
        for (const Control& control : app->controls.All())
            if (const QString name = control.name; name.startsWith(prefix)) {
                EXPECT_NE(dialogs.FormWidget(form)->findChild<QWidget*>(name.mid(prefix.size())), nullptr)
                    << name.toStdString();
            }
        dialogs.CloseForm(form);
    }
}

TEST_F(FormsTest, NoButtonOfAFormDoesNothing) {
    for (const QString& form : FormNames()) {
        dialogs.ShowForm(form);
        EXPECT_EQ(IdleButtons(*app, *dialogs.FormWidget(form), form + u'.'), QStringList());
        dialogs.CloseForm(form);
    }
}

TEST_F(FormsTest, NoButtonOrMenuItemOfTheMainWindowDoesNothing) {
    dialogs.ShowForm(u"frmMain"_s);
    const QWidget* window = dialogs.FormWidget(u"frmMain"_s);
    ASSERT_NE(window, nullptr);
    EXPECT_EQ(IdleButtons(*app, *window, {}), QStringList());
    int items = 0;
    for (const auto* action : window->findChildren<QAction*>()) {
        const QString name = action->objectName();
        if (!name.startsWith(u"mnu"_s) || name.contains(u'('))
            continue;
        EXPECT_TRUE(app->commands.Has(name + u"_Click"_s)) << name.toStdString();
        ++items;
    }
    EXPECT_GT(items, 0);
}

TEST_F(FormsTest, EveryInputSaysWhatItIsToAScreenReader) {
    for (const QString& form : FormNames()) {
        dialogs.ShowForm(form);
        const QWidget* window = dialogs.FormWidget(form);
        for (const auto* line : window->findChildren<QLineEdit*>())
            EXPECT_FALSE(line->accessibleName().isEmpty()) << line->objectName().toStdString();
        for (const auto* view : window->findChildren<QAbstractItemView*>()) {
            const bool isWhole = !qobject_cast<const QHeaderView*>(view) &&
                                 !view->window()->inherits("QComboBoxPrivateContainer");
            EXPECT_FALSE(isWhole && view->accessibleName().isEmpty()) << view->objectName().toStdString();
        }
        for (const auto* button : window->findChildren<QAbstractButton*>())
            EXPECT_FALSE(button->isVisible() && button->text().isEmpty() &&
                         button->accessibleName().isEmpty())
                << form.toStdString() << ' ' << button->objectName().toStdString();
        dialogs.CloseForm(form);
    }
}

TEST_F(FormsTest, TheFirstNumberOfTheTimeDelayIsReplacedByWhatIsTyped) {
    app->controls.SetText("frmTimeDelay.txtMinutes"_L1, u"12"_s);
    dialogs.ShowForm(u"frmTimeDelay"_s);
    EXPECT_EQ(Find<QLineEdit>("frmTimeDelay", "txtMinutes")->selectedText(), u"12"_s);
}

TEST_F(FormsTest, ThePromptForTheNameOfABookmarkIsReplacedByWhatIsTyped) {
    dialogs.whileModal = [&](QDialog&) {
        EXPECT_EQ(Find<QLineEdit>("frmBookmark", "txtName")->selectedText(),
                  u"Enter a name for this bookmark"_s);
    };
    app->commands.Run(u"mnuBookmarkThisPage_Click"_s);
}

// Fusion's own frames of empty boxes are darker than a dark window.
TEST_F(FormsTest, EmptyBoxesAndHintsCanBeSeenInADarkLook) {
    const QPalette before = QApplication::palette();
    QPalette dark(QColor(49, 54, 59), QColor(42, 46, 50));
    dark.setColor(QPalette::Base, QColor(27, 30, 32));
    dark.setColor(QPalette::PlaceholderText, Qt::black);
    QApplication::setPalette(dark);
    ApplyLook(*qApp);
    const QPalette palette = QApplication::palette();
    EXPECT_GT(palette.color(QPalette::PlaceholderText).lightness(),
              palette.color(QPalette::Base).lightness() + 80);
    for (const QStyle::PrimitiveElement element :
         {QStyle::PE_IndicatorCheckBox, QStyle::PE_IndicatorItemViewItemCheck,
          QStyle::PE_IndicatorRadioButton}) {
        QImage picture(16, 16, QImage::Format_RGB32);
        picture.fill(palette.color(QPalette::Base));
        QPainter painter(&picture);
        QStyleOptionButton option;
        option.rect = picture.rect();
        option.palette = palette;
        option.state = QStyle::State_Enabled | QStyle::State_Off;
        QApplication::style()->drawPrimitive(element, &option, &painter);
        int lightest = 0;
        for (int x = 0; x < 16; ++x)
            lightest = std::max(lightest, picture.pixelColor(x, 8).lightness());
        EXPECT_GT(lightest, palette.color(QPalette::Base).lightness() + 80) << element;
    }
    QApplication::setPalette(before);
    ApplyLook(*qApp);
}

TEST_F(FormsTest, OpenFormsStandInTheOrderInWhichTheyCameUp) {
    dialogs.ShowForm(u"frmError"_s);
    dialogs.ShowForm(u"frmLoginProblem"_s);
    dialogs.ShowForm(u"frmError"_s);
    EXPECT_EQ(dialogs.OpenForms(), (QStringList{u"frmError"_s, u"frmLoginProblem"_s}));
    dialogs.CloseForm(u"frmError"_s);
    EXPECT_FALSE(dialogs.IsFormOpen(u"frmError"_s));
    EXPECT_TRUE(dialogs.IsFormOpen(u"frmLoginProblem"_s));
}

TEST_F(FormsTest, AModalFormIsOpenWhileItIsWaitedForAndGoneAfterwards) {
    bool wasOpen = false;
    dialogs.whileModal = [&](QDialog& dialog) {
        wasOpen = dialogs.IsFormOpen(u"frmTimeDelay"_s) && dialog.isVisible();
        dialogs.CloseForm(u"frmTimeDelay"_s);
        EXPECT_FALSE(dialog.isVisible());
    };
    dialogs.ShowModal(u"frmTimeDelay"_s);
    EXPECT_TRUE(wasOpen);
    EXPECT_TRUE(dialogs.OpenForms().isEmpty());
}

// Behind a modal form it could neither be seen nor used.
TEST_F(FormsTest, AFormThatComesUpBesideAModalOneStandsOverItAndOutlivesIt) {
    dialogs.ShowForm(u"frmMain"_s);
    QWidget* main = dialogs.FormWidget(u"frmMain"_s);
    dialogs.whileModal = [&](QDialog& dialog) {
        dialogs.ShowForm(u"frmError"_s);
        QWidget* error = dialogs.FormWidget(u"frmError"_s);
        EXPECT_EQ(error->parentWidget(), &dialog);
        dialogs.CloseForm(u"frmTimeDelay"_s);
        EXPECT_EQ(error->parentWidget(), main);
        EXPECT_TRUE(error->isVisible());
    };
    dialogs.ShowModal(u"frmTimeDelay"_s);
    EXPECT_TRUE(dialogs.IsFormOpen(u"frmError"_s));
    dialogs.CloseForm(u"frmError"_s);
    EXPECT_EQ(dialogs.OpenForms(), QStringList{u"frmMain"_s});
}

TEST_F(FormsTest, TheTermsLoadNothingAndLeadNowhere) {
    app->controls.SetText("frmTerms.txtTerms"_L1,
                          u"<h1>Terms</h1><img src='file:///etc/passwd'><a href='http://x/'>Be kind</a>"_s);
    Shown("frmTerms");
    auto* page = Find<QTextBrowser>("frmTerms", "txtTerms");
    EXPECT_TRUE(page->toPlainText().contains(u"Be kind"_s));
    EXPECT_FALSE(page->loadResource(QTextDocument::ImageResource, QUrl(u"file:///etc/passwd"_s)).isValid());
    EXPECT_FALSE(page->openLinks());
    EXPECT_FALSE(page->textInteractionFlags() & Qt::LinksAccessibleByMouse);
}

TEST_F(FormsTest, EscapeAndTheFramesCrossLeaveTheGlobalSettingsUnstored) {
    Count("frmGlobalSettings.cmdClose_Click");
    for (const bool byEscape : {true, false}) {
        QDialog* form = Shown("frmGlobalSettings");
        byEscape ? form->reject() : static_cast<void>(form->close());
        EXPECT_FALSE(dialogs.IsFormOpen(u"frmGlobalSettings"_s));
    }
    EXPECT_EQ(runs, 0);
}

TEST_F(FormsTest, AnUnknownFormIsAFault) {
    EXPECT_THROW(dialogs.ShowForm(u"frmNowhere"_s), std::logic_error);
}

// The keyboard's Return presses what it stands on; anywhere else the form's default button.
TEST_F(FormsTest, ReturnPressesTheButtonThatHasTheFocus) {
    int pressed = 0;
    for (const QString& form : FormNames()) {
        dialogs.ShowForm(form);
        QWidget* window = dialogs.FormWidget(form);
        QApplication::setActiveWindow(window);
        const QList<QPushButton*> buttons = window->findChildren<QPushButton*>();
        EXPECT_EQ(std::count_if(buttons.begin(), buttons.end(), [](auto* b) { return b->isDefault(); }), 1)
            << form.toStdString();
        for (auto* button : buttons) {
            const QString command = form + u'.' + button->objectName() + u"_Click"_s;
            Count(command.toLatin1().constData());
            if (!button->isVisible() || !button->isEnabled())
                continue;
            runs = 0;
            button->setFocus();
            QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
            QApplication::sendEvent(button, &press);
            EXPECT_EQ(runs, 1) << command.toStdString();
            ++pressed;
        }
        dialogs.CloseForm(form);
    }
    EXPECT_GT(pressed, 30);
}

TEST_F(FormsTest, ReturnOnAnInputPressesTheFirstButtonOfTheFoot) {
    for (const auto& [form, input, button] : {std::tuple{"frmAccountDetails", "txtEmail", "cmdOK"},
                                              {"frmSwitchAccount", "lstAccounts", "cmdOK"},
                                              {"frmInteken", "lstAccounts", "cmdContinue"},
                                              {"frmInteken", "chkTOS", "cmdContinue"},
                                              {"frmGlobalSettings", "chkUseGlobalLogs", "cmdClose"},
                                              {"frmTimeDelay", "txtSeconds", "cmdOK"},
                                              {"frmFilters", "txtFilterLocation", "cmdOK"},
                                              {"frmGoogleSearch", "txtGoogleTerm", "cmdOK"},
                                              {"frmBlacklist", "txtID", "cmdAdd"}}) {
        Count((QByteArray(form) + '.' + button + "_Click").constData());
        dialogs.ShowForm(QString::fromLatin1(form));
        auto* widget = Find<QWidget>(form, input);
        QApplication::setActiveWindow(widget->window());
        runs = 0;
        widget->setEnabled(true);
        widget->setFocus();
        QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
        QApplication::sendEvent(widget, &press);
        EXPECT_EQ(runs, 1) << form << ' ' << input;
        dialogs.CloseForm(QString::fromLatin1(form));
    }
}

TEST_F(FormsTest, ReturnClosesTheErrorFormRatherThanFollowingItsLink) {
    Count("frmError.cmdOK_Click");
    QWidget* form = Shown("frmError");
    ASSERT_NE(form->focusWidget(), nullptr);
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    QApplication::sendEvent(form->focusWidget(), &press);
    EXPECT_EQ(runs, 1);
}

TEST_F(FormsTest, EscapeWorksAsTheCancelButton) {
    Count("frmAccountDetails.cmdCancel_Click");
    dialogs.ShowForm(u"frmAccountDetails"_s);
    static_cast<QDialog*>(dialogs.FormWidget(u"frmAccountDetails"_s))->reject();
    EXPECT_EQ(runs, 1);
}

TEST_F(FormsTest, EscapeLeavesAPreviewWhosePageHasTheKeys) {
    auto* leave = Shown("frmPreview")->findChild<QShortcut*>();
    ASSERT_NE(leave, nullptr);
    EXPECT_EQ(leave->key(), QKeySequence(Qt::Key_Escape));
    Q_EMIT leave->activated();
    EXPECT_FALSE(dialogs.IsFormOpen(u"frmPreview"_s));
}

TEST_F(FormsTest, TheViewOfAPreviewGoesBackToItsGiver) {
    EXPECT_EQ(Shown("frmPreview")->findChild<QWidget*>(u"webPreview"_s), &coverView);
    dialogs.CloseForm(u"frmPreview"_s);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(coverView.parentWidget(), nullptr);
}

TEST_F(FormsTest, AFormThatIsOffTheScreenIsStillWaitedFor) {
    dialogs.whileModal = [&](QDialog& dialog) {
        dialogs.SetFormVisible(u"frmMessagesList"_s, false);
        EXPECT_FALSE(dialog.isVisible());
        EXPECT_TRUE(dialogs.IsFormOpen(u"frmMessagesList"_s));
        dialogs.SetFormVisible(u"frmMessagesList"_s, true);
        EXPECT_TRUE(dialog.isVisible());
    };
    dialogs.ShowModal(u"frmMessagesList"_s);
}

TEST(ModalForm, IsWaitedForWhileItIsOffTheScreen) {
    struct OpenDialogs : DesktopDialogs {
        void Wait(QDialog& dialog) { RunModal({}, dialog); }
    } dialogs;
    QDialog dialog;
    QStringList order;
    QTimer::singleShot(0, &dialog, [&] {
        dialog.hide();
        QTimer::singleShot(20, &dialog, [&] {
            order.append(u"back"_s);
            dialog.show();
            dialog.done(0);
        });
    });
    dialogs.Wait(dialog);
    order.append(u"closed"_s);
    EXPECT_EQ(order, (QStringList{u"back"_s, u"closed"_s}));
}

TEST_F(FormsTest, EscapeLeavesAFormThatIsBusyOpen) {
    Count("frmAccountDetails.cmdCancel_Click");
    dialogs.ShowForm(u"frmAccountDetails"_s);
    app->controls.SetEnabled("frmAccountDetails.cmdCancel"_L1, false);
    static_cast<QDialog*>(dialogs.FormWidget(u"frmAccountDetails"_s))->reject();
    EXPECT_EQ(runs, 0);
    EXPECT_TRUE(dialogs.IsFormOpen(u"frmAccountDetails"_s));
}

TEST_F(FormsTest, AWindowIsClosedByItsTitle) {
    dialogs.ShowForm(u"frmLoginProblem"_s);
    EXPECT_FALSE(dialogs.CloseWindowTitled(u"Login"_s));
    EXPECT_TRUE(dialogs.CloseWindowTitled(u"Login problem"_s));
    EXPECT_FALSE(dialogs.IsFormOpen(u"frmLoginProblem"_s));
}

TEST_F(FormsTest, ClosingTheLoginScreenEndsTheProgram) {
    dialogs.ShowForm(u"frmInteken"_s);
    dialogs.FormWidget(u"frmInteken"_s)->close();
    EXPECT_TRUE(app->state.blnClosing);
}

TEST_F(FormsTest, TheLoginScreenSaysWhatToDoWithoutAnAccount) {
    app->controls.SetItems("frmInteken.lstAccounts"_L1, {u"No Accounts added..."_s});
    dialogs.ShowForm(u"frmInteken"_s);
    auto hintShows = [this] {
        for (const auto* label : dialogs.FormWidget(u"frmInteken"_s)->findChildren<QLabel*>())
            if (label->text().startsWith(u"Press Add"_s))
                return !label->isHidden();
        return false;
    };
    EXPECT_TRUE(hintShows());
    app->controls.SetItems("frmInteken.lstAccounts"_L1, {u"a@example.com"_s});
    EXPECT_FALSE(hintShows());
}

TEST_F(FormsTest, TheErrorFormNamesTheLogAndWhereToSendIt) {
    app->controls.SetText("frmError.lblErrorLogPath"_L1, u"/data/Error.log"_s);
    dialogs.ShowForm(u"frmError"_s);
    QStringList texts;
    for (const auto* label : dialogs.FormWidget(u"frmError"_s)->findChildren<QLabel*>())
        texts.append(label->text());
    EXPECT_TRUE(texts.contains(u"An error has occurred."_s));
    EXPECT_TRUE(texts.contains(u"/data/Error.log"_s));
    EXPECT_EQ(texts.filter(u"help@example.com"_s).size(), 1);
}

TEST_F(FormsTest, AMessageWithoutATitleCarriesTheProgramsName) {
    app->ShowMessage(u"words"_s);
    app->ShowMessage(u"words"_s, u"A title"_s);
    EXPECT_EQ(dialogs.messages, (QStringList{u"Quillmere: words"_s, u"A title: words"_s}));
    EXPECT_EQ(dialogs.MessageCount(), 2);
}

// A Return that was meant for something else says nothing that can't be taken back.
TEST(Question, HasNoAsItsDefaultUnlessItCanBeCancelled) {
    DesktopDialogs dialogs;
    const auto answerByReturn = [&](Dialogs::Buttons buttons) {
        QTimer::singleShot(0, [] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_NE(box, nullptr);
            QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
            QApplication::sendEvent(box, &press);
        });
        return dialogs.ShowMessage(u"Are you sure?"_s, {}, buttons);
    };
    EXPECT_EQ(answerByReturn(Dialogs::Buttons::YesNo), Dialogs::Answer::No);
    EXPECT_EQ(answerByReturn(Dialogs::Buttons::YesNoCancel), Dialogs::Answer::Yes);
    EXPECT_EQ(answerByReturn(Dialogs::Buttons::OkCancel), Dialogs::Answer::Cancel);
}

TEST(Question, WithOkAndCancelHasTheseTwoAnswers) {
    DesktopDialogs dialogs;
    const auto answerBy = [&](const std::function<void(QMessageBox&)>& act) {
        QTimer::singleShot(0, [act] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_NE(box, nullptr);
            EXPECT_EQ(box->standardButtons(), QMessageBox::Ok | QMessageBox::Cancel);
            act(*box);
        });
        return dialogs.ShowMessage(u"That file already exists, replace?"_s, u"Backup"_s,
                                   Dialogs::Buttons::OkCancel);
    };
    EXPECT_EQ(answerBy([](QMessageBox& box) { box.button(QMessageBox::Ok)->click(); }), Dialogs::Answer::Ok);
    EXPECT_EQ(answerBy([](QMessageBox& box) { box.button(QMessageBox::Cancel)->click(); }),
              Dialogs::Answer::Cancel);
    EXPECT_EQ(answerBy([](QMessageBox& box) { box.reject(); }), Dialogs::Answer::Cancel);
}

TEST(FileFilter, IsTranslatedForTheFileDialog) {
    EXPECT_EQ(DesktopDialogs::QtFilter(u"Text files (txt)|*.txt;|All files (*.*)|*.*"_s),
              u"Text files (txt) (*.txt);;All files (*)"_s);
    EXPECT_EQ(DesktopDialogs::QtFilter(u"Pictures|*.bmp;*.png"_s), u"Pictures (*.bmp *.png)"_s);
    EXPECT_EQ(DesktopDialogs::QtFilter({}), QString());
}

TEST(FileToSave, TakesTheUsualSuffixWhenTheUserTypesNone) {
    const QTemporaryDir folder;
    DesktopDialogs dialogs;
    const auto choose = [&](const QString& typed, const QString& suggested, const QString& filter) {
        QTimer::singleShot(0, [&] {
            auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            auto* name = dialog->findChild<QLineEdit*>();
            EXPECT_EQ(name->text(), suggested);
            name->setText(folder.filePath(typed));
            dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Save)->click();
        });
        return QFileInfo(dialogs.ChooseFileToSave({}, suggested, filter)).fileName();
    };
    const QString texts = u"Text files (txt)|*.txt;|All files (*.*)|*.*"_s;
    EXPECT_EQ(choose(u"list"_s, {}, texts), u"list.txt"_s);
    EXPECT_EQ(choose(u"list.ids"_s, {}, texts), u"list.ids"_s);
    EXPECT_EQ(choose(u"page"_s, u"Pagesource.txt"_s, u"Documents|*.bmp;"_s), u"page.txt"_s);
    EXPECT_EQ(choose(u"any"_s, {}, u"All files (*.*)|*.*"_s), u"any"_s);
}

TEST(ControlsTable, KnowsNoOtherNames) {
    EXPECT_STREQ(Controls::RowNamed("picSkip"_L1).image, "SKIP");
    EXPECT_THROW(Controls::RowNamed("picNowhere"_L1), std::logic_error);
}

} // namespace qlm
