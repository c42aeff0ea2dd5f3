// SPDX-License-Identifier: MIT
#include "guided/GuidedRun.h"

#include "core/App.h"
#include "guided/PracticeControls.h"

#include <QDir>
#include <QFile>
#include <QWidget>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

// The request that meets the limit goes out and is neither counted nor logged.
constexpr int Limit = 6;
constexpr int RequestsBeforeCaptcha = 2;
const QString CaptchaWord = u"harbour"_s;
const QString RequestPages = u"www.myspace.example.com/my/friends/addtofriends/"_s;
const QString Account = u"a@example.com"_s;
const QString Password = u"secret"_s;
// Somebody with two pages of friends.
const QString Popular = u"100001"_s;
constexpr int PopularFriends = 76;
constexpr QSize PictureSize(1180, 760);

} // namespace

GuidedRun::GuidedRun(App& app, PracticeControls& site, const QString& outFolder)
    : WindowDriver(app), m_site(site), m_outFolder(outFolder) {
    QDir().mkpath(outFolder);
    PlanLogin();
    PlanGathering();
    PlanFilter();
    PlanLimit();
    PlanSending();
    PlanCaptcha();
    PlanReport();
}

void GuidedRun::PlanLogin() {
    Add({u"The login screen is up; adding the account "_s + Account, 30,
         [this] { return Form("frmInteken") != nullptr; },
         [this] {
             m_site.Tell(u"share captcha 0"_s);
             m_site.Tell(u"share limit 0"_s);
             m_site.Tell(u"share error-redirect 0"_s);
             m_site.Tell(u"friends "_s + Popular + u' ' + QString::number(PopularFriends));
             Press("frmInteken", "cmdAdd");
         }});
    Add({u"Typing e-mail and password into the account dialog"_s, 10,
         [this] { return Form("frmAccountDetails") != nullptr; },
         [this] {
             Type("frmAccountDetails", "txtEmail", Account);
             Type("frmAccountDetails", "txtPassword", Password);
             Type("frmAccountDetails", "txtConfirmPassword", Password);
             Press("frmAccountDetails", "cmdOK");
         }});
    Add({u"Agreeing to the terms and pressing Continue"_s, 10,
         [this] {
             return !Form("frmAccountDetails") &&
                    m_app.controls.Items("frmInteken.lstAccounts"_L1).contains(Account);
         },
         [this] {
             if (!m_app.controls.Ticked("frmInteken.chkTOS"_L1))
                 Press("frmInteken", "chkTOS");
             KeepPicture("frmInteken", u"login.png"_s);
             Press("frmInteken", "cmdContinue");
         }});
    Add({u"Logged in; opening the friends of profile "_s + Popular, 60,
         [this] { return m_app.Status() == u"Login successful!"_s; },
         [this] {
             m_summary.append(u"Signed in as "_s + m_app.state.AccountEmail + u", own profile "_s +
                              m_app.state.MyProfileID);
             // An offscreen display is small; the pictures want the size of a usual window.
             if (QWidget* window = Form("frmMain"))
                 window->resize(PictureSize);
             Type("frmMain", "txtAddress", m_app.Expand(u"{SiteRootHost}/"_s) + Popular + u"/friends"_s);
             Press("frmMain", "picGO");
         }});
}

void GuidedRun::PlanGathering() {
    Add({u"The friends page stands; gathering from all pages"_s, 30,
         [this] {
             return m_app.WebBrowser1().LocationURL().endsWith(Popular + u"/friends"_s) &&
                    m_app.WebBrowser1().ReadyState() == 4;
         },
         [this] {
             Press("frmMain", "optScanFollowing");
             Press("frmMain", "picScanStart");
         }});
    Add({u"Gathering has ended"_s, 90,
         [this] {
             if (!m_pictureOfGathering && m_app.controls.Items("lstFriendIDs"_L1).size() > 50) {
                 m_pictureOfGathering = true;
                 KeepPicture("frmMain", u"gathering.png"_s);
             }
             return m_app.Status() == u"Finished gathering ID's"_s;
         },
         [this] {
             m_summary.append(u"Gathered "_s + QString::number(m_app.state.arrFriendIDs.size()) +
                              u" profiles from two friends pages"_s);
         }});
}

void GuidedRun::PlanFilter() {
    Add({u"Opening the filters"_s, 10, [this] { return Find("frmMain", "picFilterOptions") != nullptr; },
         [this] { Press("frmMain", "picFilterOptions"); }});
    Add({u"Only women, looked at when sending"_s, 10, [this] { return Form("frmFilters") != nullptr; },
         [this] {
             Press("frmFilters", "optFilterFemale");
             Press("frmFilters", "optFilterWhenSending");
             Press("frmFilters", "cmdOK");
         }});
}

void GuidedRun::PlanLimit() {
    Add({u"Turning to the Friend Requester; opening the time delay"_s, 10,
         [this] { return !Form("frmFilters"); },
         [this] {
             ChooseTab(u"Friend Requester"_s);
             Choose("mnuTimeDelay");
         }});
    Add({u"Setting a pause of one second, and a limit of "_s + QString::number(Limit), 10,
         [this] { return Form("frmTimeDelay") != nullptr; },
         [this] {
             Type("frmTimeDelay", "txtSeconds", u"1"_s);
             Type("frmTimeDelay", "txtSeconds2", u"1"_s);
             Press("frmTimeDelay", "cmdOK");
             Type("frmMain", "txtFriendRequestsToSend", QString::number(Limit));
             ChooseItem("frmMain", "cboFRPerDayOrSession", u"this session"_s);
         }});
}

void GuidedRun::PlanSending() {
    Add({u"Sending friend requests"_s, 10, [this] { return !Form("frmTimeDelay"); },
         [this] { Press("frmMain", "piccmdAddFriends"); }});
    Add({u"Two requests are out; the site is told to want a CAPTCHA next"_s, 120,
         [this] { return m_app.state.lngSessionFR >= RequestsBeforeCaptcha && m_app.state.blnInDelay; },
         [this] {
             KeepPicture("frmMain", u"sending.png"_s);
             m_site.Tell(u"captcha-word "_s + CaptchaWord);
             m_site.Tell(u"fault "_s + RequestPages + u" captcha times 1"_s);
         }});
}

void GuidedRun::PlanCaptcha() {
    auto field = [this] { return m_app.WebBrowser1().Document().GetElementById(u"captchaText"_s); };
    Add({u"The program has called the user. This run plays the user: it has set the word itself and types "
         u"it; "
         "nothing reads the image"_s,
         60,
         [this, field] {
             return m_app.state.blnWaitingForCaptcha && m_app.WebBrowser1().ReadyState() == 4 && field();
         },
         [this] { KeepPicture("frmMain", u"captcha.png"_s); }});
    Add({u"Typing the word"_s, 10, [] { return true; }, [this] { TypeKeys(CaptchaWord); }});
    Add({u"The word stands in its field; pressing Enter"_s, 20,
         [field] { return field().Value() == CaptchaWord; },
         [this] {
             m_summary.append(u"The CAPTCHA's word was typed key by key"_s);
             TypeKeys(u"\n"_s);
         }});
}

void GuidedRun::PlanReport() {
    Add({u"The run has met its limit; opening the report"_s, 180,
         [this] { return WasTold(u"Your specified limit has been reached"_s); },
         [this] {
             ChooseTab(u"Friend Requester"_s);
             Press("frmMain", "piccmdFrReport");
         }});
    Add({u"The report is open; comparing the site's journal with the program's log"_s, 10,
         [this] { return Form("frmRunReport") != nullptr; },
         [this] {
             m_end = m_app.controls.Text("frmRunReport.lblSummary"_L1).replace(u'\n', u". "_s);
             KeepPicture("frmRunReport", u"report.png"_s);
             Press("frmRunReport", "cmdClose");
             End(Summarise());
         }});
}

void GuidedRun::KeepPicture(const char* form, const QString& fileName) {
    QWidget* top = Form(form);
    const QString path = QDir(m_outFolder).filePath(fileName);
    if (!top || !top->grab().save(path))
        End(u"The picture could not be kept: "_s + path);
    else
        Say(u"    picture: "_s + path);
}

QStringList GuidedRun::LogLines() const {
    const QString path = m_app.ProgramFile(u"FriendsLog.txt"_s);
    return m_app.files.FileExists(path) ? m_app.files.ReadLines(path) : QStringList();
}

// Empty when the journal and the log agree, else what is wrong. Whoever met the limit was asked and is not in
// the log: the limit is tested before the count.
QString GuidedRun::Summarise() {
    QStringList asked;
    int askedAgain = 0;
    for (const QString& line : m_site.Journal()) {
        const QStringList words = line.split(u' ');
        if (words.value(0) == u"asked"_s)
            asked.append(words.value(2));
        askedAgain += words.value(0) == u"asked-again"_s ? 1 : 0;
    }
    const QStringList logged = LogLines();
    m_summary.append(u"Sent "_s + QString::number(m_app.state.lngSessionFR) + u" friend requests; "_s +
                     m_app.controls.Text("lblFrFailedCount"_L1) + u", "_s +
                     m_app.controls.Text("lblFrSkippedCount"_L1));
    m_summary.append(u"The report: "_s + m_end);
    m_summary.append(u"The site's journal: "_s + QString::number(asked.size()) + u" people asked, "_s +
                     QString::number(askedAgain) + u" of them twice"_s);
    m_summary.append(u"The program's log: "_s + QString::number(logged.size()) + u" people: "_s +
                     logged.join(u", "_s));
    if (logged.size() != Limit)
        return u"The log holds "_s + QString::number(logged.size()) + u" people instead of "_s +
               QString::number(Limit) + u'.';
    if (asked.mid(0, Limit) != logged || asked.size() != Limit + 1)
        return u"The journal says that these were asked: "_s + asked.join(u", "_s);
    m_summary.append(u"Asked and, as the one that met the limit, neither counted nor logged: "_s +
                     asked.constLast());
    return askedAgain ? u"Somebody was asked twice."_s : QString();
}

void GuidedRun::OnEnd(const QString& problem) {
    m_summary.append(problem.isEmpty()
                         ? u"The journal and the log agree, but for the one that met the limit."_s
                         : u"FAILED: "_s + problem);
    for (const QString& line : m_summary)
        Say(line);
    QFile file(QDir(m_outFolder).filePath(u"summary.txt"_s));
    if (!file.open(QIODevice::WriteOnly) || file.write(m_summary.join(u'\n').toUtf8() + '\n') < 0)
        Say(u"The summary could not be kept: "_s + file.errorString());
}

} // namespace qlm
