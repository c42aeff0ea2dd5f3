// SPDX-License-Identifier: MIT
// Logging in on the real engine: every design of the sign-in page, what may come in between, one account
// after the other, and where the password does not go.
#include "PrintText.h"
#include "RunningProgram.h"
#include "SiteProcess.h"
#include "accounts/AccountFile.h"
#include "core/AnsiText.h"

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QListView>
#include <gtest/gtest.h>
#include <stdexcept>

namespace qlm {
namespace {

const QString HomePage = u"home.myspace.example.com/index.cfm?fuseaction=home"_s;
const QString SignInProcess = u"login.myspace.example.com/index.cfm?fuseaction=login.process"_s;

class Login : public testing::Test {
protected:
    Login() { program.emplace(folders); }

    // The site shows its form on the front page, too; without it the login goes on to the home page.
    void ShowNoFormInFront() { site.Tell(u"fault www.myspace.example.com/$ wrong"_s); }
    bool IsLoggedIn() const {
        return program->app.Status() == u"Login successful!"_s && program->app.state.CurrentAction.isEmpty();
    }
    void PlanContinue() {
        program->driver.Add({u"The login screen"_s, 60,
                             [this] { return program->driver.Form("frmInteken") != nullptr; },
                             [this] { program->driver.Press("frmInteken", "cmdContinue"); }});
    }
    void PlanEnd() {
        program->driver.Add({u"The login's end"_s, 60, [this] { return IsLoggedIn(); },
                             [this] {
                                 ownIDs += program->app.state.MyProfileID;
                                 shownAccount = program->app.controls.Text("lblLoggedInAs"_L1);
                                 program->driver.End({});
                             }});
    }
    void Run() {
        const bool isWell = program->Run();
        EXPECT_TRUE(isWell) << program->driver.Problem().toStdString()
                            << "; the status: " << program->app.Status().toStdString();
        program.reset();
        for (const QString& line : site.Journal())
            (line.startsWith(u"visit "_s) ? visits : journal) += line;
    }

    SiteProcess site;
    UsedProgram folders{site.Port()};
    std::optional<RunningProgram> program;
    QStringList ownIDs;
    QString shownAccount;
    QStringList journal; // without the visits
    QStringList visits;
};

const QString SignedIn = u"signed-in a@example.com 900001"_s;

class LoginDesign : public Login, public testing::WithParamInterface<const char*> {};

} // namespace

TEST_P(LoginDesign, IsFilledAndSent) {
    site.Tell(u"sign-in "_s + QString::fromLatin1(GetParam()));
    PlanContinue();
    PlanEnd();
    Run();
    EXPECT_EQ(journal, QStringList{SignedIn});
    EXPECT_EQ(ownIDs, QStringList{u"900001"_s});
    EXPECT_EQ(shownAccount, u"a@example.com"_s);
}

INSTANTIATE_TEST_SUITE_P(All, LoginDesign,
                         testing::Values("ids", "splash", "names", "button", "image", "link", "element",
                                         "get"),
                         [](const auto& design) { return std::string(design.param); });

// Each page comes once, in one login: the front page fails, two notices stand before the form, the first
// sign-in only leads back, the second only says that it has come about.
TEST_F(Login, PagesInBetweenAreLeftBehind) {
    ShowNoFormInFront();
    site.Tell(u"fault www.myspace.example.com error times 1"_s);
    site.Tell(u"fault home.myspace.example.com advert times 1"_s);
    site.Tell(u"fault "_s + HomePage + u" moving times 1"_s);
    site.Tell(u"fault login.myspace.example.com welcome times 1"_s);
    site.Tell(u"fault "_s + SignInProcess + u" return times 1"_s);
    PlanContinue();
    PlanEnd();
    Run();
    EXPECT_EQ(journal, QStringList{SignedIn});
    EXPECT_EQ(ownIDs, QStringList{u"900001"_s});
}

TEST_F(Login, ACachedPageIsSignedOutAndASlowSignInWaitedFor) {
    ShowNoFormInFront();
    site.Tell(u"fault "_s + HomePage + u" cached times 1"_s);
    site.Tell(u"fault "_s + SignInProcess + u" slow 2500 times 1"_s);
    PlanContinue();
    PlanEnd();
    Run();
    EXPECT_EQ(journal, QStringList{SignedIn});
    EXPECT_EQ(ownIDs, QStringList{u"900001"_s});
    EXPECT_EQ(visits.count(u"visit www.myspace.example.com/signout?from=cache"_s), 1);
}

TEST_F(Login, ABirthdayQuestionIsLeftThroughTheLoginPage) {
    site.Tell(u"fault "_s + SignInProcess + u" birthday times 1"_s);
    PlanContinue();
    program->driver.Add({u"The login page"_s, 60,
                         [this] {
                             return program->app.WebBrowser1().LocationURL().endsWith(
                                        u"fuseaction=login"_s) &&
                                    program->app.WebBrowser1().ReadyState() == 4;
                         },
                         [this] { program->driver.End({}); }});
    Run();
}

TEST_F(Login, AForeignSiteIsToldAndEndsTheLogin) {
    ShowNoFormInFront();
    site.Tell(u"fault "_s + HomePage + u" foreign"_s);
    PlanContinue();
    program->driver.Add({u"The message"_s, 60,
                         [this] { return program->driver.WasTold(u"In order to use Quillmere"_s); },
                         [this] { program->driver.End({}); }});
    Run();
    EXPECT_EQ(journal, QStringList());
}

// The user types the right password into the page himself.
TEST_F(Login, AWrongPasswordLeavesTheFormToTheUser) {
    folders.Write(folders.File(u"scalemodelight.txt"_s),
                  EncodeAccountLine(u"a@example.com;wrong"_s).toLatin1() + "\r\n");
    PlanContinue();
    program->driver.Add(
        {u"The form again"_s, 60,
         [this] {
             return program->app.state.intLoginStep == 4 &&
                    program->app.WebBrowser1().LocationURL().contains(u"login.process"_s) &&
                    program->app.WebBrowser1().ReadyState() == 4;
         },
         [this] {
             const Document page = program->app.WebBrowser1().Document();
             page.GetElementById(u"ctl00_Main_Email_Textbox"_s).SetInnerText(u"B@example.com"_s);
             page.GetElementById(u"ctl00_Main_Password_Textbox"_s).SetInnerText(u"secret"_s);
             page.GetElementById(u"ctl00_Main_loginBtn"_s).Click();
         }});
    PlanEnd();
    Run();
    EXPECT_EQ(journal, (QStringList{u"wrong-password a@example.com"_s, u"signed-in b@example.com 900002"_s}));
    EXPECT_EQ(shownAccount, u"b@example.com"_s);
    EXPECT_EQ(folders.Read(folders.File(u"scalemodelight.txt"_s)),
              EncodeAccountLine(u"a@example.com;wrong"_s).toLatin1() + "\r\n");
}

TEST_F(Login, TenAccountsInARowEachEndAsThemselves) {
    QByteArray accounts;
    QStringList expected;
    for (int i = 0; i < 10; ++i)
        accounts += EncodeAccountLine(QChar(u'a' + i) + u"@example.com;secret"_s).toLatin1() + "\r\n";
    folders.Write(folders.File(u"scalemodelight.txt"_s), accounts);
    PlanContinue();
    for (int i = 0; i < 10; ++i) {
        const QString account = u"%1@example.com"_s.arg(QChar(u'a' + i));
        const QString who = u"%1 90000%2"_s.arg(account).arg(i + 1).replace(u"9000010"_s, u"900010"_s);
        expected += u"signed-in "_s + who;
        if (i == 9)
            break;
        expected += u"signed-out "_s + who;
        program->driver.Add({u"Logged in as "_s + account, 60,
                             [this, account] {
                                 return IsLoggedIn() &&
                                        program->app.controls.Text("lblLoggedInAs"_L1) == account;
                             },
                             [this] {
                                 ownIDs += program->app.state.MyProfileID;
                                 program->driver.Choose("mnuSwitchLogin");
                             }});
        program->driver.Add({u"The list of accounts"_s, 10,
                             [this] { return program->driver.Form("frmSwitchAccount") != nullptr; },
                             [this, i] {
                                 auto* list = qobject_cast<QListView*>(
                                     program->driver.Find("frmSwitchAccount", "lstAccounts"));
                                 list->setCurrentIndex(list->model()->index(i + 1, 0));
                                 program->driver.Press("frmSwitchAccount", "cmdOK");
                             }});
    }
    program->driver.Add(
        {u"The last account"_s, 60,
         [this] { return program->app.controls.Text("lblLoggedInAs"_L1) == u"j@example.com"_s; }, [] {}});
    PlanEnd();
    Run();
    EXPECT_EQ(journal, expected);
    for (int i = 0; i < 10; ++i)
        EXPECT_EQ(ownIDs.value(i).toInt(), 900001 + i);
}

namespace {

// Also as an address would write it.
QList<QByteArray> WritingsOf(const QString& text) {
    QList<QByteArray> writings{text.toUtf8(), ToAnsi(text), text.toUtf8().toPercentEncoding(),
                               ToAnsi(text).toPercentEncoding(),
                               text.toUtf8().toPercentEncoding({}, "*!'()")};
    for (const QByteArray& writing : QList<QByteArray>(writings))
        writings.append(writing.toLower());
    return writings;
}

bool Holds(const QByteArray& bytes, const QString& text) {
    const QByteArray lower = bytes.toLower();
    for (const QByteArray& writing : WritingsOf(text))
        if (lower.contains(writing.toLower()))
            return true;
    return false;
}

// The settings keep the password last used under one key, as the file alone its owner can read.
QByteArray WithoutTheKeptPassword(const QByteArray& settings) {
    QByteArray rest;
    for (const QByteArray& line : settings.split('\n'))
        if (!line.startsWith("Login%20-%20txtPassword="))
            rest += line + '\n';
    return rest;
}

QByteArray CommandLinesOfThisAndItsChildren() {
    QByteArray lines;
    for (const QString& process : QDir(u"/proc"_s).entryList(QDir::Dirs)) {
        QFile status(u"/proc/"_s + process + u"/status"_s);
        QFile line(u"/proc/"_s + process + u"/cmdline"_s);
        if (!status.open(QIODevice::ReadOnly) || !line.open(QIODevice::ReadOnly))
            continue;
        if (process.toLongLong() == QCoreApplication::applicationPid() ||
            status.readAll().contains("PPid:\t" + QByteArray::number(QCoreApplication::applicationPid())))
            lines += line.readAll() + '\n';
    }
    return lines;
}

} // namespace

// The worst site: it sends the form in the address, and answers with a page that stays at that address.
TEST_F(Login, ThePasswordStandsInNoFileAndOnNoCommandLine) {
    const QString password = u"Mark%r&\u00e9\"Pw+7"_s;
    site.Tell(u"sign-in get"_s);
    site.Tell(u"account a@example.com "_s + password + u" 900001"_s);
    site.Tell(u"fault login.myspace.example.com/index.cfm wrong times 1"_s);
    folders.Set(u"General"_s, u"mnuEnableLogging"_s, u"True"_s);
    folders.Write(folders.File(u"scalemodelight.txt"_s),
                  EncodeAccountLine(u"a@example.com;"_s + password).toLatin1() + "\r\n");
    QString address;
    QByteArray commandLines;
    PlanContinue();
    program->driver.Add({u"The page at the telling address"_s, 60,
                         [this] {
                             return program->app.WebBrowser1().LocationURL().contains(u"email="_s) &&
                                    program->app.WebBrowser1().ReadyState() == 4;
                         },
                         [&] {
                             EXPECT_TRUE(Holds(program->app.WebBrowser1().LocationURL().toUtf8(), password));
                             address = program->app.controls.Text("txtAddress"_L1);
                             program->app.diagnostics.ReportError(
                                 u"Somewhere"_s, std::runtime_error((u"with "_s + password).toStdString()));
                             commandLines = CommandLinesOfThisAndItsChildren();
                             program->driver.Press("frmMain", "picRefresh");
                         }});
    PlanEnd();
    Run();
    EXPECT_EQ(journal, QStringList{SignedIn});
    EXPECT_TRUE(address.contains(u"email="_s)) << address.toStdString();
    EXPECT_FALSE(Holds(address.toUtf8(), password)) << address.toStdString();
    EXPECT_TRUE(commandLines.contains("practice-site"));
    EXPECT_FALSE(Holds(commandLines, password));

    int files = 0;
    for (QDirIterator all(folders.File({}), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
         all.hasNext(); ++files) {
        const QString path = all.next();
        QByteArray bytes = folders.Read(path);
        if (path == folders.SettingsFile()) {
            EXPECT_TRUE(bytes.contains("Login%20-%20txtPassword="));
            bytes = WithoutTheKeptPassword(bytes);
        }
        EXPECT_FALSE(Holds(bytes, password)) << path.toStdString();
    }
    EXPECT_GE(files, 5);
    EXPECT_TRUE(folders.Read(folders.DataFile(u"debuginitial.txt"_s)).contains("password=****"));
    EXPECT_TRUE(folders.Read(folders.DataFile(u"Error.log"_s)).contains("password=****"));
    const QFile::Permissions others =
        QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther;
    for (const QString& path : {folders.SettingsFile(), folders.File(u"scalemodelight.txt"_s)})
        EXPECT_EQ(QFile::permissions(path) & others, QFile::Permissions()) << path.toStdString();
}

} // namespace qlm
