// SPDX-License-Identifier: MIT
#include "AcceptTrial.h"

#include "accounts/AccountFile.h"
#include "program/StartUp.h"
#include "tests/support/SimulatedSite.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>

namespace qlm::fire {

using namespace Qt::Literals::StringLiterals;

namespace {

const QString Account = u"a@example.com"_s;
const QString Fields = u"Field Entries"_s;

QString FolderTemplate() {
    const QString memory = u"/dev/shm"_s;
    return (QDir(memory).exists() ? memory : QDir::tempPath()) + u"/quillmere-fire-"_s + QString(6, u'X');
}

void WriteFile(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        throw std::runtime_error("cannot write " + path.toStdString());
}

QString DeploymentText() {
    QFile file(QStringLiteral(QUILLMERE_DEPLOYMENT));
    if (!file.open(QIODevice::ReadOnly))
        throw std::runtime_error("cannot read deployment.ini");
    return QString::fromUtf8(file.readAll());
}

QString LogIn(const QTemporaryDir& folder, const AcceptPlan& plan) {
    return folder.filePath(u"program/"_s +
                           QString::fromLatin1(plan.followUp ? plan.followUp->logFile : Messages.logFile));
}

// Whom a page of the follow-up is for; empty for any other address.
QString TargetOf(const QString& url) {
    static const QRegularExpression pages(
        u"(?:/my/mail/new\\?t=|fuseaction=mail\\.message&friendID=|"
        "user\\.viewProfile_commentForm&friendID=|user\\.confirmComment&friendID=)(\\d+)|/(\\d+)/comments"_s,
        QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = pages.match(url);
    return match.captured(match.lastCapturedIndex());
}

} // namespace

AcceptTrial::AcceptTrial(quint64 seed, int targets, Telling telling)
    : m_seed(seed),
      m_telling(telling),
      m_plan(seed, targets),
      m_dice(seed * 2),
      m_folder(FolderTemplate()),
      m_site(seed, [this] { return m_world.clock.Now(); }),
      m_judge(m_plan, LogIn(m_folder, m_plan)) {
    m_judge.trace = [this](const QString& text) { Trace(text); };
}

AcceptTrial::~AcceptTrial() {
    DropProgram();
}

QString AcceptTrial::Describe() const {
    return u"%1; %2 accepted, %3 followed up, %4 cut off, %5 kills, %6 runs, %7 virtual minutes"_s
        .arg(m_plan.Describe())
        .arg(m_judge.Accepted())
        .arg(m_judge.FollowedUp())
        .arg(m_judge.CutOff())
        .arg(m_kills)
        .arg(m_runs)
        .arg(m_world.clock.NowMs() / 60'000);
}

void AcceptTrial::Trace(const QString& text) const {
    if (m_telling.trace)
        std::fprintf(stderr, "%10.3f  %s\n", static_cast<double>(m_world.clock.NowMs()) / 1000.0,
                     qPrintable(text));
}

void AcceptTrial::SetUp() {
    m_world.clock.SetNow(QDateTime(QDate(2009, 6, 1), QTime(0, 5)));
    m_world.random.SetSeed(m_seed);
    m_world.installationFolder = m_folder.filePath(u"program"_s);
    m_world.dataFolder = m_folder.filePath(u"data"_s);
    QDir().mkpath(m_world.installationFolder);
    QDir().mkpath(m_world.dataFolder);
    m_world.deploymentText = DeploymentText();
    WriteFile(m_folder.filePath(u"program/scalemodelight.txt"_s),
              EncodeAccountLine(Account + u";secret"_s).toLatin1() + "\r\n");
    if (m_telling.trail)
        m_world.settings.SaveSetting(u"General"_s, u"mnuEnableLogging"_s, u"1"_s);
    m_world.settings.SaveSetting(Fields, u"Login - chkTOS"_s, u"1"_s);
    m_world.settings.SaveSetting(Fields, u"Login - txtEmail"_s, Account);
    for (const QString& line : m_plan.controls)
        if (const QString wrong = m_site.Control(line); !wrong.isEmpty())
            throw std::logic_error(wrong.toStdString());
    m_site.TakeJournal();
    m_world.web.responder = [this](const SimRequest& request) { return AnswerPage(request); };
    m_world.http.responder = [this](const QString& url) {
        return ProductAnswer(url.mid(url.indexOf(u'/', 8)), m_world.clock.Now());
    };
    m_dialogs.onMessage = [this](const QString& text) { OnMessage(text); };
}

void AcceptTrial::OnMessage(const QString& text) {
    Trace(u"message: "_s + text);
    if (text == u"Finished accepting friend requests"_s) {
        m_judge.OnFinished(m_isStopped);
        m_isOver = m_judge.IsDone();
    } else if (text.startsWith(u"These requests stay"_s) ||
               text.contains(u"could not be found on the page"_s) ||
               text.contains(u"could be found on the page"_s)) {
        m_isHeld = true;
    } else if (text.startsWith(u"Quillmere can't note"_s)) {
        m_judge.OnCutOff(u"the disk refused the note"_s);
    }
}

SimAnswer AcceptTrial::AnswerPage(const SimRequest& request) {
    SimAnswer answer;
    if (request.url.endsWith(u"/timedelay.htm")) {
        answer.html = u"<html><body><a href='/'>a short pause</a></body></html>"_s;
        return answer;
    }
    const QString id = TargetOf(request.url);
    const bool isPost = request.method == u"POST" &&
                        (request.body.contains("Hello") || request.url.contains(u"user.confirmComment"_s));
    if (!id.isEmpty())
        m_judge.OnFollowUp(id, isPost);
    answer = AnswerOf(m_site, request);
    m_judge.OnJournal(m_site.TakeJournal());
    if (request.method == u"POST" && m_dice.Happens(m_plan.lostAnswersInThousand)) {
        Trace(u"the answer is lost"_s);
        answer.fault = m_dice.Happens(500) ? SimFault::Reset : SimFault::NoBody;
    }
    return answer;
}

void AcceptTrial::StartProgram() {
    m_platform = std::make_unique<SimPlatform>(m_world, m_dialogs);
    m_platform->Pump().onPump = [this] { Watch(); };
    m_app = std::make_unique<App>(*m_platform);
    m_dialogs.app = m_app.get();
    m_app->diagnostics.onLine = [this](const QString& line) { Trace(u"trail: "_s + line); };
    m_standing.clear();
    Trace(u"the program starts"_s);
    m_platform->Pump().Queue().Post([this] {
        m_app->Get<StartUp>().Main();
        m_app->commands.Run(u"frmInteken.cmdContinue_Click"_s);
    });
    m_platform->Pump().Queue().PostAt(m_world.clock.NowMs() + LookEveryMs, [this] { Look(); });
}

void AcceptTrial::DropProgram() {
    m_app.reset();
    m_platform.reset();
    for (const QString& form : m_dialogs.OpenForms())
        m_dialogs.CloseForm(form);
    m_world.web.cookies.Clear();
    m_world.gate.Mend();
    m_world.gate.readOnlyFolders.clear();
    m_diskRefusesUntilMs = -1;
    m_killAtTurn = -1;
    m_isHeld = false;
}

void AcceptTrial::LiveOn() {
    try {
        m_platform->Pump().RunUntil([this] { return m_isOver; }, LongestTrialMs);
        if (!m_isOver)
            throw Broken{u"the program has come to rest without an end"_s};
    } catch (const ProcessEnds&) {
        ++m_kills;
        Trace(u"the program is killed"_s);
    } catch (const SimPowerCut&) {
        ++m_kills;
        Trace(u"the program is killed in the middle of a write"_s);
    }
}

QString AcceptTrial::Run() {
    try {
        SetUp();
        while (!m_isOver) {
            StartProgram();
            LiveOn();
            if (m_isOver)
                break;
            m_judge.OnCutOff(u"the program was killed"_s);
            DropProgram();
        }
        m_judge.OnEnd(*m_app);
    } catch (const Broken& broken) {
        return broken.promise;
    }
    return {};
}

} // namespace qlm::fire
