// SPDX-License-Identifier: MIT
#include "Trial.h"
#include "accounts/AccountFile.h"
#include "program/MainForm.h"
#include "program/StartUp.h"
#include "steps/Steps.h"
#include "tests/support/SimulatedSite.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>

namespace qlm::fire {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int SiteStopsOfADay = 5;
constexpr qint64 LookEveryMs = 1000;
constexpr qint64 SilentWaitMs = 130'000;
// Of a form: two loads without a body, which end by themselves, go before the wait that is told.
constexpr qint64 SilentFormMs = 2 * 33'000 + SilentWaitMs;
// Of a profile that is judged: after 31 ticks in vain its step is entered, whose own wait begins anew.
constexpr qint64 SilentFilterMs = 31 * 3000 + SilentWaitMs;
constexpr qint64 LongestStandMs = 20 * 60 * 1000;
constexpr qint64 LongestTrialMs = 23LL * 60 * 60 * 1000;
constexpr qint64 MostTurnsBetweenLooks = 1'000'000;
constexpr int MostRuns = 1200;
const QString Account = u"a@example.com"_s;
constexpr qint64 AccountID = 900001;
const QString Fields = u"Field Entries"_s;

// Memory instead of a disk where there is one: half a million synced lines are written.
QString FolderTemplate() {
    const QString memory = u"/dev/shm"_s;
    return (QDir(memory).exists() ? memory : QDir::tempPath()) + u"/quillmere-fire-"_s + QString(6, u'X');
}

QString DeploymentText() {
    QFile file(QStringLiteral(QUILLMERE_DEPLOYMENT));
    if (!file.open(QIODevice::ReadOnly))
        throw std::runtime_error("cannot read deployment.ini");
    return QString::fromUtf8(file.readAll());
}

void WriteFile(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        throw std::runtime_error("cannot write " + path.toStdString());
}

QString LogIn(const QTemporaryDir& folder, const Campaign& campaign) {
    return folder.filePath(u"program/"_s + QString::fromLatin1(campaign.logFile));
}

QString NotesIn(const QTemporaryDir& folder, const Campaign& campaign) {
    return LogIn(folder, campaign).replace(u".txt"_s, u".open.txt"_s);
}

// A page that ends a run of messages or comments.
bool IsLimitPage(const QString& html) {
    static const QRegularExpression words(
        u"daily useage|maximum limit of friend requests|while processing your friend request"_s,
        QRegularExpression::CaseInsensitiveOption);
    return html.contains(words);
}

// The target of a page of the campaigns; empty for any other address.
QString TargetOf(const QString& url) {
    static const QRegularExpression pages(
        u"(?:/my/friends/addtofriends/|invite\\.addfriend_verify&friendID=|/my/mail/new\\?t=|"
        "fuseaction=mail\\.message&friendID=|user\\.viewProfile_commentForm&friendID=|"
        "user\\.confirmComment&friendID=)(\\d+)|/(\\d+)/comments"_s,
        QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = pages.match(url);
    return match.captured(match.lastCapturedIndex());
}

} // namespace

Dialogs::Answer FormsWithoutWidgets::ShowMessage(const QString& text, const QString& title, Buttons buttons) {
    if (onMessage)
        onMessage(text);
    return RecordingDialogs::ShowMessage(text, title, buttons);
}

void FormsWithoutWidgets::ShowForm(const QString& form) {
    RecordingDialogs::ShowForm(form);
    if (form == u"frmMain"_s)
        app->Get<MainForm>().Form_Load();
}

Trial::Trial(quint64 seed, int targets, const Campaign& campaign, bool hasPosts, Telling telling)
    : m_campaign(campaign),
      m_seed(seed),
      m_telling(telling),
      m_plan(seed, targets, campaign),
      m_dice(seed * 2),
      m_folder(FolderTemplate()),
      m_site(seed, [this] { return m_world.clock.Now(); }),
      m_judge(MakeJudge(m_plan, LogIn(m_folder, campaign), NotesIn(m_folder, campaign))) {
    m_judge->trace = [this](const QString& text) { Trace(text); };
    if (hasPosts)
        AddPosts();
}

void Trial::AddPosts() {
    m_posts = std::make_unique<PostFire>(m_seed, m_plan, m_site, m_folder.filePath(u"program"_s));
    m_posts->trace = m_judge->trace;
    m_posts->press = [this](const QString& command) { Do(command); };
    m_posts->storedCount = [this](const Campaign& campaign) { return StoredCount(campaign); };
    m_posts->onLoan = [this](const QString& id, bool isGivenUp) { m_judge->OnLoan(id, isGivenUp); };
}

Trial::~Trial() {
    DropProgram();
}

void Trial::Trace(const QString& text) const {
    if (m_telling.trace)
        std::fprintf(stderr, "%10.3f  %s\n", static_cast<double>(m_world.clock.NowMs()) / 1000.0,
                     qPrintable(text));
}

void Trial::TraceState() {
    const RunState& state = m_app->state;
    const QString now =
        u"    %1 step %2, target %3, \"%4\", at %5"_s.arg(state.CurrentAction)
            .arg(state.CurrentAction == u"LOGIN"_s ? state.intLoginStep : state.*m_campaign.activity.step)
            .arg(state.strCurrentID, m_app->Status(), m_app->WebBrowser1().LocationURL());
    if (now != std::exchange(m_traced, now))
        Trace(now);
}

void Trial::SetUp() {
    m_world.clock.SetNow(QDateTime(QDate(2009, 6, 1), QTime(0, 5)));
    m_world.random.SetSeed(m_seed);
    m_world.installationFolder = m_folder.filePath(u"program"_s);
    m_world.dataFolder = m_folder.filePath(u"data"_s);
    QDir().mkpath(m_world.installationFolder);
    QDir().mkpath(m_world.dataFolder);
    m_world.deploymentText = DeploymentText();
    WriteFile(m_folder.filePath(u"program/Gathered.txt"_s), m_plan.ids.join(u"\r\n"_s).toLatin1() + "\r\n");
    WriteFile(m_folder.filePath(u"program/scalemodelight.txt"_s),
              EncodeAccountLine(Account + u";secret"_s).toLatin1() + "\r\n");
    SimSettings& settings = m_world.settings;
    if (m_telling.trail)
        settings.SaveSetting(u"General"_s, u"mnuEnableLogging"_s, u"1"_s);
    settings.SaveSetting(Fields, u"Login - chkTOS"_s, u"1"_s);
    settings.SaveSetting(Fields, u"Login - txtEmail"_s, Account);
    settings.SaveSetting(Fields, u"chkSaveScanned"_s, u"1"_s);
    settings.SaveSetting(u"General"_s, u"TimeDelayFrom"_s, QString::number(m_plan.delayFrom));
    settings.SaveSetting(u"General"_s, u"TimeDelayTo"_s, QString::number(m_plan.delayTo));
    if (m_plan.filter)
        for (const QString& key : {u"optFilterMale"_s, u"optFilterWhenSending"_s})
            settings.SaveSetting(Fields, key, u"True"_s);
    for (const QString& line : m_plan.controls)
        if (const QString wrong = m_site.Control(line); !wrong.isEmpty())
            throw std::logic_error(wrong.toStdString());
    if (m_posts)
        m_posts->SetUp();
    m_world.web.responder = [this](const SimRequest& request) { return AnswerPage(request); };
    m_world.http.responder = [this](const QString& url) {
        return ProductAnswer(url.mid(url.indexOf(u'/', 8)), m_world.clock.Now());
    };
    m_dialogs.onMessage = [this](const QString& text) {
        m_judge->OnMessage(*m_app, text);
        m_isOver = m_isOver || text.startsWith(u"Finished sending "_s);
        if (text.startsWith(u"You have reached the maximum limit"_s) && ++m_siteStops == SiteStopsOfADay)
            LiftRefusals();
    };
}

// Three profiles that always answer with a page of the daily limit stop every run before its end, until the
// site thinks better of them.
void Trial::LiftRefusals() {
    Trace(u"the site lifts its refusals"_s);
    for (const QString& line : m_plan.controls)
        if (line.section(u' ', 0, 0).endsWith(u"refuse"_s))
            m_site.Control(line.section(u' ', 0, 1) + u" off"_s);
        else if (line.endsWith(u" limit"_s))
            m_site.Control(line.section(u' ', 0, 1) + u" sent"_s);
}

SimAnswer Trial::AnswerPage(const SimRequest& request) {
    SimAnswer answer;
    if (request.url.endsWith(u"/timedelay.htm")) {
        answer.html = u"<html><body><a href='/'>a short pause</a></body></html>"_s;
        return answer;
    }
    const QString id = TargetOf(request.url);
    // The word for an image that stood before the page is no text.
    const bool isPost = request.method == u"POST" &&
                        (request.body.contains("Hello") || request.url.contains(u"user.confirmComment"_s));
    if (!id.isEmpty())
        m_judge->BeforeRequest(id, isPost);
    m_site.TakeJournal();
    answer = AnswerOf(m_site, request);
    if (!id.isEmpty())
        m_judge->AfterRequest(id, m_site.TakeJournal(), answer.html);
    if (m_posts)
        m_posts->OnRequest(*m_app, request, DiskRefuses());
    // Nor does the site refuse for ever whoever tells nobody of it.
    if (&m_campaign != &FriendRequests && IsLimitPage(answer.html) && ++m_siteStops == SiteStopsOfADay)
        LiftRefusals();
    // The site's flood is over when it has been told once.
    if (answer.html.contains(u"flooding comments"_s))
        m_site.Control(u"comment-outcome "_s + id + u" posted"_s);
    if (isPost)
        Spoil(answer, id);
    return answer;
}

void Trial::Spoil(SimAnswer& answer, const QString& id) {
    const auto reply = m_plan.replies.constFind(id);
    if (reply == m_plan.replies.constEnd())
        return;
    Trace(u"the answer is spoilt"_s);
    switch (*reply) {
    case Plan::Reply::Reset:
        answer.fault = SimFault::Reset;
        break;
    case Plan::Reply::NoBody:
        answer.fault = SimFault::NoBody;
        break;
    case Plan::Reply::Hang:
        answer.fault = SimFault::Hang;
        break;
    case Plan::Reply::Late:
        answer.latencyMs = 8'000;
        break;
    case Plan::Reply::VeryLate:
        answer.latencyMs = 150'000;
        break;
    }
    m_plan.replies.erase(reply);
}

int Trial::StoredCount(const Campaign& campaign) const {
    return m_world.settings
        .GetSetting(u"Counters\\"_s + Account, QString::fromLatin1(campaign.today.key), u"0"_s)
        .toInt();
}

void Trial::StartProgram() {
    m_platform = std::make_unique<SimPlatform>(m_world, m_dialogs);
    m_platform->Pump().onPump = [this] { Watch(); };
    m_app = std::make_unique<App>(*m_platform);
    m_dialogs.app = m_app.get();
    m_app->diagnostics.onLine = [this](const QString& line) { Trace(u"trail: "_s + line); };
    m_standing.clear();
    m_answerAtMs = -1;
    m_pressedFor = -1;
    m_judge->OnStart();
    if (m_posts)
        m_posts->OnStart(*m_app);
    Trace(u"the program starts"_s);
    m_platform->Pump().Queue().Post([this] {
        m_app->Get<StartUp>().Main();
        m_app->commands.Run(u"frmInteken.cmdContinue_Click"_s);
    });
    m_platform->Pump().Queue().PostAt(m_world.clock.NowMs() + LookEveryMs, [this] { Look(); });
}

void Trial::DropProgram() {
    m_app.reset();
    m_platform.reset();
    for (const QString& form : m_dialogs.OpenForms())
        m_dialogs.CloseForm(form);
    m_world.web.cookies.Clear();
    m_world.gate.Mend();
    m_world.gate.readOnlyFolders.clear();
    m_diskRefusesUntilMs = -1;
    m_killAtTurn = -1;
}

// Until the run is over or the process ends.
void Trial::LiveOn() {
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

QString Trial::Run() {
    try {
        SetUp();
        while (!m_isOver) {
            StartProgram();
            LiveOn();
            if (m_isOver)
                break;
            m_judge->OnKill(StoredCount());
            if (m_posts)
                m_posts->OnKill();
            DropProgram();
        }
        m_judge->Look(*m_app, StoredCount(), m_diskRefusesUntilMs >= 0);
        m_judge->OnEnd(*m_app);
        if (m_posts)
            m_posts->OnEnd(*m_app);
    } catch (const Broken& broken) {
        return broken.promise;
    }
    return {};
}

// At each turn of the message loop, also deep inside the program's waits.
void Trial::Watch() {
    if (++m_turnsSinceLook > MostTurnsBetweenLooks)
        throw Broken{u"the program turns without letting time pass"_s};
    if (m_writesSeen != m_world.gate.writes) {
        m_writesSeen = m_world.gate.writes;
        m_judge->Look(*m_app, StoredCount(), m_diskRefusesUntilMs >= 0);
    }
    if (m_posts)
        m_posts->Watch(*m_app);
    m_judge->Watch(*m_app, m_diskRefusesUntilMs >= 0);
    if (m_telling.trace)
        TraceState();
    if (m_killAtTurn >= 0 && --m_killAtTurn < 0)
        throw ProcessEnds();
}

void Trial::MaybeKill() {
    if (!m_dice.Happens(m_plan.killsInThousandLooks))
        return;
    if (m_dice.Happens(600))
        m_world.gate.CrashAtWrite(m_dice.Between(1, 12));
    else
        m_killAtTurn = m_dice.Below(300);
}

void Trial::Do(const QString& command) {
    Trace(u"user: "_s + command);
    m_app->commands.Run(command);
}

void Trial::Click(const char* button) {
    Do(QString::fromLatin1(button) + u"_Click"_s);
}

// The user before the window.
void Trial::Look() {
    m_platform->Pump().Queue().PostAt(m_world.clock.NowMs() + LookEveryMs, [this] { Look(); });
    m_turnsSinceLook = 0;
    if (m_world.clock.NowMs() > LongestTrialMs)
        throw Broken{u"the trial takes longer than a day"_s};
    MaybeKill();
    if (m_diskRefusesUntilMs >= 0 && m_world.clock.NowMs() > m_diskRefusesUntilMs) {
        m_world.gate.readOnlyFolders.clear();
        m_judge->Look(*m_app, StoredCount(), true);
        m_diskRefusesUntilMs = -1;
    } else if (m_diskRefusesUntilMs < 0 && m_dice.Happens(m_plan.refusedDisksInThousandLooks)) {
        Trace(u"the disk refuses"_s);
        m_world.gate.readOnlyFolders = {m_world.installationFolder};
        m_diskRefusesUntilMs = m_world.clock.NowMs() + m_dice.Between(1, 20) * 1000;
    }
    if (m_posts)
        m_posts->Look(*m_app, DiskRefuses());
    if (m_app->state.CurrentAction.isEmpty() || (m_posts && PostFire::Rests(*m_app)))
        LookAtIdleProgram();
    else
        LookAtRunningProgram();
}

void Trial::LookAtIdleProgram() {
    const bool isLoggedIn = !m_app->state.MyProfileID.isEmpty() && m_dialogs.IsFormOpen(u"frmMain"_s);
    if (m_isOver || !isLoggedIn)
        return;
    if (m_posts && m_posts->BeginsOne(*m_app, DiskRefuses()))
        return;
    if (++m_runs > MostRuns)
        throw Broken{u"the run doesn't come to its end"_s};
    Controls& controls = m_app->controls;
    controls.SetTicked("chkRemoveAfterSent"_L1, m_plan.removeAfterSent);
    controls.SetTicked("mnuSkipProfileCAPTCHAs"_L1, m_plan.skipCaptchas);
    controls.SetText(m_campaign.period, m_plan.limitPerDay ? u"per day"_s : u"this session"_s);
    // A limit for the day that has been reached would let one more out at each start.
    m_limitLifted =
        m_limitLifted || (m_plan.limitPerDay && StoredCount() >= m_plan.limit && m_dice.Happens(500));
    const bool limited = m_plan.limit > 0 && !m_limitLifted;
    controls.SetText(m_campaign.amount, limited ? QString::number(m_plan.limit) : QString());
    if (!m_campaign.checkLogBox.isEmpty())
        controls.SetTicked(m_campaign.checkLogBox, true);
    if (!m_campaign.content.subject.isEmpty())
        controls.SetText(m_campaign.content.subject, u"Hi &NAME&"_s);
    if (!m_campaign.content.text.isEmpty())
        controls.SetText(m_campaign.content.text,
                         m_plan.holdsMarkup ? u"<b>Hello</b> &NAME&"_s : u"Hello &NAME&,\r\nhow are you?"_s);
    m_app->state.blnNewLayout = !m_plan.oldLayout;
    m_judge->OnRun(m_app->state.*m_campaign.today.count);
    Click(m_campaign.send);
    if (m_posts)
        m_posts->OnLenderStarted(*m_app);
}

void Trial::LookAtRunningProgram() {
    const RunState& state = m_app->state;
    const QString standing = state.CurrentAction + QString::number(state.lngTargetNumber) + u' ' +
                             QString::number(state.*m_campaign.activity.step) +
                             QString::number(state.intLoginStep) + state.strLinkValue +
                             (&m_campaign == &FriendRequests ? QString() : m_app->Status()) +
                             (m_posts ? QString::number(m_posts->Loans()) : QString());
    if (standing != m_standing) {
        m_standing = standing;
        m_standingSinceMs = m_world.clock.NowMs();
    }
    const qint64 standsMs = m_world.clock.NowMs() - m_standingSinceMs;
    if (standsMs > LongestStandMs)
        throw Broken{u"the program waits without an end at "_s + m_app->Status()};
    const bool isTold = !m_app->controls.Text("lblWaitingFor"_L1).isEmpty();
    if (m_posts)
        m_posts->LookAtPost(*m_app, isTold, DiskRefuses());
    if (state.CurrentAction != m_campaign.Word() || AnswerCaptcha())
        return;
    PressOldButton();
    const qint64 silentMs = &m_campaign != &FriendRequests                ? SilentFormMs
                            : state.intFRStep == FriendStep::DecideFilter ? SilentFilterMs
                                                                          : SilentWaitMs;
    if (standsMs > silentMs && !isTold)
        throw Broken{u"a wait of two minutes isn't told: "_s + m_app->Status()};
    if (isTold || m_dice.Happens(m_plan.skipsInThousandLooks)) {
        m_judge->OnUserGivesUp(state.strCurrentID);
        if (isTold && &m_campaign != &FriendRequests)
            RepairForm(state.strCurrentID);
        Click("picSkip");
    } else if (m_dice.Happens(m_plan.stopsInThousandLooks)) {
        m_judge->OnUserGivesUp(state.strCurrentID);
        if (m_posts)
            m_posts->OnStop(DiskRefuses());
        Click(m_campaign.stop);
    }
}

// A page that leads nowhere would hold up each run anew, until one of them is not cut off in between.
void Trial::RepairForm(const QString& id) {
    const QString form = &m_campaign == &Messages ? u"compose "_s : u"comment-form "_s;
    const QString word = &m_campaign == &Messages ? u"message-"_s : u"comment-"_s;
    const QString taken = &m_campaign == &Messages ? u" sent"_s : u" posted"_s;
    m_site.Control(form + id + u" off"_s);
    m_site.Control(word + u"refuse "_s + id + u" off"_s);
    m_site.Control(word + u"outcome "_s + id + taken);
}

// True while a CAPTCHA is the user's business. They are told the word, read for a while, and err at times.
// The page after the answer may be none that the program knows; it is waited for like any other.
bool Trial::AnswerCaptcha() {
    if (!m_app->state.blnWaitingForCaptcha) {
        m_answerAtMs = -1;
        return false;
    }
    if (m_answerAtMs < 0)
        m_answerAtMs = m_world.clock.NowMs() + m_dice.Between(4, 25) * 1000;
    const Document document = m_app->WebBrowser1().Document();
    const Element field = document.IsNull() ? Element() : document.GetElementById(u"captchaText"_s);
    if (field.IsNull() && !m_app->WebBrowser1().Busy())
        return false;
    if (m_world.clock.NowMs() < m_answerAtMs || field.IsNull() || m_app->WebBrowser1().Busy())
        return true;
    m_answerAtMs = -1;
    m_standingSinceMs = m_world.clock.NowMs();
    const bool errs = m_dice.Happens(300);
    field.SetValue(errs ? u"surely-not"_s : m_site.CaptchaWord(AccountID, AskedTarget()));
    Trace(errs ? u"user: a wrong answer"_s : u"user: the right answer"_s);
    const std::vector<Element> confirming = document.GetElementsByName(u"confirmComment"_s);
    (confirming.empty() ? document.GetElementById(u"addFrdBtn"_s) : confirming.front()).Click();
    return true;
}

// Whom the image on the page is about; a gate's is about nobody.
qint64 Trial::AskedTarget() const {
    static const QRegularExpression image(u"/captcha/(\\d+)-"_s);
    for (const Element& each : m_app->WebBrowser1().Document().Images())
        if (const auto match = image.match(each.Read(ElementText::Src)); match.hasMatch())
            return match.captured(1).toLongLong();
    return 0;
}

// On the older page nothing but its button sends the request, and no step presses it.
void Trial::PressOldButton() {
    const qint32 target = m_app->state.lngTargetNumber;
    if (&m_campaign != &FriendRequests || !m_plan.oldLayout || target == m_pressedFor || !m_dice.Happens(300))
        return;
    const Document document = m_app->WebBrowser1().Document();
    const Element button = document.IsNull() ? Element() : document.GetElementById(u"addFrdBtn"_s);
    if (button.IsNull() || button.Value() != u"Add to Friends"_s)
        return;
    Trace(u"user: presses the page's button"_s);
    button.Click();
    m_pressedFor = target;
}

} // namespace qlm::fire
