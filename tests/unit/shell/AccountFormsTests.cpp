// SPDX-License-Identifier: MIT
// The windows in which the user keeps the accounts: words, keyboard, what they never show.
#include "WindowTest.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>

namespace qlm {
namespace {

class AccountFormsTest : public WindowTest {};

} // namespace

TEST_F(AccountFormsTest, CarryTheirTitles) {
    EXPECT_EQ(Shown("frmInteken")->windowTitle(), u"Quillmere v"_s + app->Version() + u" - Login Screen -"_s);
    EXPECT_EQ(app->Version().count(u'.'), 2);
    EXPECT_EQ(Shown("frmSwitchAccount")->windowTitle(), u"Switch Account"_s);
    EXPECT_EQ(Shown("frmAccountDetails")->windowTitle(), u"Account Details"_s);
    EXPECT_EQ(Shown("frmLoginProblem")->windowTitle(), u"Login problem"_s);
}

TEST_F(AccountFormsTest, TheLoginScreenIsWorkedThroughByTheKeyboardInOrder) {
    QDialog* form = Shown("frmInteken");
    EXPECT_EQ(TabOrder(*form), (QStringList{u"lstAccounts"_s, u"cmdAdd"_s, u"cmdEdit"_s, u"cmdDelete"_s,
                                            u"chkTOS"_s, u"lblTOS"_s, u"cmdContinue"_s}));
    EXPECT_EQ(Caption(*form, "lblTOS"), u"I agree to the Quillmere Terms of Service"_s);
    EXPECT_TRUE(Texts(*form).contains(u"Quillmere is in no way affiliated with MySpace\u2122"_s));
}

TEST_F(AccountFormsTest, TheSwitchScreenIsWorkedThroughByTheKeyboardInOrder) {
    QDialog* form = Shown("frmSwitchAccount");
    EXPECT_EQ(TabOrder(*form),
              (QStringList{u"lstAccounts"_s, u"cmdAdd"_s, u"cmdEdit"_s, u"cmdDelete"_s, u"cmdClear"_s,
                           u"cmdExport"_s, u"cmdImport"_s, u"cmdOK"_s, u"cmdCancel"_s}));
    EXPECT_EQ(Caption(*form, "cmdOK"), u"Login"_s);
    EXPECT_TRUE(Texts(*form).contains(u"Log in with another MySpace account:"_s));
}

TEST_F(AccountFormsTest, TheDetailsAreWorkedThroughByTheKeyboardInOrder) {
    EXPECT_EQ(
        TabOrder(*Shown("frmAccountDetails")),
        (QStringList{u"txtEmail"_s, u"txtPassword"_s, u"txtConfirmPassword"_s, u"cmdOK"_s, u"cmdCancel"_s}));
}

TEST_F(AccountFormsTest, ReturnOnTheListGoesOnAsTheDefaultButton) {
    for (const auto& [formName, button] :
         {std::pair{"frmInteken", "cmdContinue"}, {"frmSwitchAccount", "cmdOK"}}) {
        Count((QByteArray(formName) + '.' + button + "_Click").constData());
        app->controls.SetItems(QLatin1StringView(QByteArray(formName) + ".lstAccounts"),
                               {u"a@example.com"_s});
        runs = 0;
        QDialog* form = Shown(formName);
        auto* list = form->findChild<QListView*>(u"lstAccounts"_s);
        QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
        QApplication::sendEvent(list, &press);
        EXPECT_EQ(runs, 1) << formName;
        dialogs.CloseForm(QString::fromLatin1(formName));
    }
}

TEST_F(AccountFormsTest, EveryListAndButtonSaysWhatItIsToAScreenReader) {
    for (const char* name : {"frmInteken", "frmSwitchAccount", "frmAccountDetails", "frmLoginProblem"}) {
        const QDialog* form = Shown(name);
        for (const auto* list : form->findChildren<QListView*>())
            EXPECT_FALSE(list->accessibleName().isEmpty()) << name;
        for (const auto* button : form->findChildren<QAbstractButton*>())
            EXPECT_FALSE(button->accessibleName().isEmpty() && button->text().isEmpty()) << name;
    }
}

TEST_F(AccountFormsTest, EmptyScreensSayWhatToDo) {
    app->controls.SetItems("frmSwitchAccount.lstAccounts"_L1, {});
    auto hintShows = [this] {
        for (const auto* label : dialogs.FormWidget(u"frmSwitchAccount"_s)->findChildren<QLabel*>())
            if (label->text().startsWith(u"Press Add"_s))
                return !label->isHidden();
        return false;
    };
    Shown("frmSwitchAccount");
    EXPECT_TRUE(hintShows());
    app->controls.SetItems("frmSwitchAccount.lstAccounts"_L1, {u"a@example.com"_s});
    EXPECT_FALSE(hintShows());
}

// A picture of the dialog is the same for two passwords of one length.
TEST_F(AccountFormsTest, APictureOfTheDetailsTellsNoPassword) {
    auto picture = [this](const QString& password) {
        app->controls.SetText("frmAccountDetails.txtPassword"_L1, password);
        app->controls.SetText("frmAccountDetails.txtConfirmPassword"_L1, password);
        QDialog* form = Shown("frmAccountDetails");
        form->findChild<QLineEdit*>(u"txtEmail"_s)->clearFocus();
        const QImage image = form->grab().toImage();
        dialogs.CloseForm(u"frmAccountDetails"_s);
        return image;
    };
    EXPECT_EQ(picture(u"secret"_s), picture(u"WWWWWW"_s));
    EXPECT_NE(picture(u"secret"_s), picture(u"sec"_s));
    const QDialog* form = Shown("frmAccountDetails");
    for (const auto* line : form->findChildren<QLineEdit*>())
        EXPECT_EQ(line->echoMode(),
                  line->objectName() == "txtEmail"_L1 ? QLineEdit::Normal : QLineEdit::Password);
}

TEST_F(AccountFormsTest, PasswordsShowAStarForEachCharacter) {
    QDialog* form = Shown("frmAccountDetails");
    for (auto* line : form->findChildren<QLineEdit*>()) {
        line->setText(u"secret"_s);
        EXPECT_EQ(line->displayText(), line->objectName() == "txtEmail"_L1 ? u"secret"_s : u"******"_s)
            << line->objectName().toStdString();
    }
}

TEST_F(AccountFormsTest, TheTroubleShootingGuideReadsLineByLine) {
    EXPECT_EQ(
        Texts(*Shown("frmLoginProblem")),
        (QStringList{
            u"There was a problem logging into your MySpace account"_s, u"Troubleshooting Guide:"_s,
            u"1) It could just be slower than usual, wait a while for login to complete"_s,
            u"2) Please double check your Login name and Password."_s,
            u"3) Try again later, it could be a temporary issue on MySpace's end"_s,
            u"4) Try logging in by hand"_s,
            u"5) Make sure you are using the \"United States (English)\" version of MySpace."_s,
            u"6) You may have an Internet Explorer addon installed that is causing this problem. Reset IE by "
            "launching Internet Explorer, then go to Tools -> Internet Options -> "
            "Advanced tab -> RESET button"_s,
            u"7) In your Internet Explorer Options, go to the \"Security\" tab, click the \"Custom Level\" "
            u"button "
            "and make sure \"submit nonencrypted form data\" is set to Enabled."_s,
            u"8) Check your \"Firewall settings\" and make sure that Quillmere is approved. "_s}));
}

TEST_F(AccountFormsTest, FitASmallScreen) {
    for (const char* name : {"frmInteken", "frmSwitchAccount", "frmAccountDetails", "frmLoginProblem"}) {
        const QDialog* form = Shown(name);
        EXPECT_LE(form->width(), 1024) << name;
        EXPECT_LE(form->height(), 700) << name;
        EXPECT_GE(form->height(), form->minimumSizeHint().height()) << name;
        for (const auto* button : form->findChildren<QPushButton*>()) {
            EXPECT_GE(button->width(), button->minimumSizeHint().width()) << name;
        }
    }
}

} // namespace qlm
