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

constexpr int RequestsToSend = 10;
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
    PlanSending();
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
    Add({u"Gathering has ended; turning to the Friend Requester"_s, 90,
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
             m_app.commands.Run(u"TabStrip1_Click"_s, 1);
         }});
}

void GuidedRun::PlanSending() {
    Add({u"Opening the time delay"_s, 10, [this] { return Find("frmMain", "piccmdAddFriends") != nullptr; },
         [this] { Choose("mnuTimeDelay"); }});
    Add({u"Setting a pause of one second"_s, 10, [this] { return Form("frmTimeDelay") != nullptr; },
         [this] {
             Type("frmTimeDelay", "txtSeconds", u"1"_s);
             Type("frmTimeDelay", "txtSeconds2", u"1"_s);
             Press("frmTimeDelay", "cmdOK");
         }});
    Add({u"Sending friend requests"_s, 10, [this] { return !Form("frmTimeDelay"); },
         [this] { Press("frmMain", "piccmdAddFriends"); }});
    Add({u"Ten requests are out; pressing Stop"_s, 180,
         [this] {
             const int sent = m_app.state.lngSessionFR;
             if (!m_pictureOfSending && sent >= RequestsToSend / 2) {
                 m_pictureOfSending = true;
                 KeepPicture("frmMain", u"sending.png"_s);
             }
             return sent >= RequestsToSend && m_app.state.blnInDelay;
         },
         [this] { Press("frmMain", "piccmdAddFriendsStop"); }});
    Add({u"The run has stopped; comparing the site's journal with the program's log"_s, 10,
         [this] { return m_app.state.CurrentAction.isEmpty(); }, [this] { End(Summarise()); }});
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

// Empty when the journal and the log agree, else what is wrong.
QString GuidedRun::Summarise() {
    QStringList asked;
    int askedAgain = 0;
    for (const QString& line : m_site.Journal()) {
        const QStringList words = line.split(u' ');
        if (words.value(0) == u"asked"_s)
            asked.append(words.value(2));
        askedAgain += words.value(0) == u"asked-again"_s ? 1 : 0;
    }
    QStringList logged = LogLines();
    m_summary.append(u"Sent "_s + QString::number(m_app.state.lngSessionFR) + u" friend requests; "_s +
                     m_app.controls.Text("lblFrFailedCount"_L1) + u", "_s +
                     m_app.controls.Text("lblFrSkippedCount"_L1));
    m_summary.append(u"The site's journal: "_s + QString::number(asked.size()) + u" people asked, "_s +
                     QString::number(askedAgain) + u" of them twice"_s);
    m_summary.append(u"The program's log: "_s + QString::number(logged.size()) + u" people: "_s +
                     logged.join(u", "_s));
    if (logged.size() != RequestsToSend)
        return u"The log holds "_s + QString::number(logged.size()) + u" people instead of 10."_s;
    asked.sort();
    logged.sort();
    if (asked != logged)
        return u"The journal says that these were asked: "_s + asked.join(u", "_s);
    return askedAgain ? u"Somebody was asked twice."_s : QString();
}

void GuidedRun::OnEnd(const QString& problem) {
    m_summary.append(problem.isEmpty() ? u"The journal and the log agree."_s : u"FAILED: "_s + problem);
    for (const QString& line : m_summary)
        Say(line);
    QFile file(QDir(m_outFolder).filePath(u"summary.txt"_s));
    if (!file.open(QIODevice::WriteOnly) || file.write(m_summary.join(u'\n').toUtf8() + '\n') < 0)
        Say(u"The summary could not be kept: "_s + file.errorString());
}

} // namespace qlm
