// SPDX-License-Identifier: MIT
#include "campaigns/TimedPosts.h"

#include "campaigns/Counters.h"
#include "campaigns/OpenNotes.h"
#include "campaigns/Pacing.h"
#include "core/AnsiText.h"
#include "core/App.h"
#include "core/SettingsFields.h"
#include "core/Text.h"
#include "steps/Lending.h"
#include "steps/RunReport.h"
#include "steps/StopResume.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype LongestNumber = 8;
constexpr qsizetype LongestName = 60;
constexpr const char* FromAtStart = "60";

double NumberIn(const QString& text) {
    return text.trimmed().toDouble();
}

// What report and note call a post by.
QString NameOf(const SubjectAndBody& text) {
    const QString name = (text.subject.trimmed().isEmpty() ? text.body : text.subject).simplified();
    // As the files give it back.
    return FromAnsi(ToAnsi(name.size() > LongestName ? name.left(LongestName) + u"..."_s : name));
}

} // namespace

TimedPosts::TimedPosts(App& app, const Campaign& campaign, const char* tick, std::function<void()> post)
    : m_app(app), m_campaign(campaign), m_timing(campaign.timing), m_post(std::move(post)) {
    app.controls.SetVisible(m_timing.busyLabel, false);
    Clock().SetHandler([this, tick] { m_app.diagnostics.Trap(tick, [this] { Tick(); }); });
}

Timer& TimedPosts::Clock() const {
    return m_app.timers.get()->*m_timing.timer;
}

void TimedPosts::Repair() {
    Repair(FromAtStart, true);
}

void TimedPosts::Repair(const char* fromWithout, bool all) {
    auto read = [this](QLatin1StringView field) { return m_app.controls.Text(field).trimmed(); };
    auto write = [this](QLatin1StringView field, const QString& text) {
        if (m_app.controls.Text(field) != text)
            m_app.controls.SetText(field, text);
    };
    if (all) {
        const QString amount = read(m_campaign.amount);
        write(m_campaign.amount, IsNumeric(amount) ? amount.left(LongestNumber) : u"1"_s);
    }
    QString from = read(m_timing.from);
    QString to = read(m_timing.to);
    if (!IsNumeric(from))
        from = QString::fromLatin1(fromWithout);
    if (!IsNumeric(to) || NumberIn(to) < NumberIn(from))
        to = from;
    const bool fromIsTooLong = all && from.size() > LongestNumber;
    from = fromIsTooLong ? from.left(LongestNumber) : from;
    if (fromIsTooLong || to.size() > LongestNumber)
        to = from;
    write(m_timing.from, from);
    write(m_timing.to, to);
}

void TimedPosts::Begin() {
    m_app.state.*m_timing.elapsed = 0;
    m_text.reset();
    m_isReported = false;
    Hold();
    m_app.controls.SetVisible(m_timing.busyLabel, false);
    TellOldNotes();
}

void TimedPosts::Hold() {
    Clock().SetEnabled(false);
    m_app.state.*m_campaign.activity.waits = false;
    m_app.controls.SetText(m_timing.dueLabel, {});
}

const SubjectAndBody& TimedPosts::Text() {
    // What was chosen for another account before the switch is not this one's to say.
    if (!m_text || m_account != m_app.state.AccountEmail) {
        m_account = m_app.state.AccountEmail;
        m_text = ChooseText(m_app, m_campaign);
        m_name = NameOf(*m_text);
    }
    // The start refuses that; the fields may be those of another account since.
    if (m_text->body.trimmed().isEmpty()) {
        m_text.reset();
        throw std::runtime_error("The account has no text to post");
    }
    if (!std::exchange(m_isReported, true))
        m_app.Get<RunReport>().Open(m_name);
    return *m_text;
}

QString TimedPosts::NotePath() const {
    const QString folder =
        FileSystem::Join(m_app.state.ProgramFolder, m_app.Get<SettingsFields>().AccountDataPath(u"Log"_s));
    return FileSystem::Join(folder, QString::fromLatin1(m_timing.noteFile));
}

void TimedPosts::NoteBeforePost() {
    const QString error =
        m_app.diagnostics.Trap("NotePost", [this] { OpenNotes(m_app.files, NotePath()).Note(m_name); });
    if (!error.isEmpty())
        m_app.Get<RunReport>().Remark(u"It could not be noted before it was posted"_s);
}

// The posts of which nobody saw whether they were taken.
void TimedPosts::TellOldNotes() {
    m_app.diagnostics.Trap("TellOldNotes", [this] {
        OpenNotes notes(m_app.files, NotePath());
        const QStringList names = notes.All();
        for (const QString& name : names) {
            m_app.Get<RunReport>().Open(name);
            m_app.Get<RunReport>().Close(
                ReportResult::Unfinished,
                u"An earlier run ended while this one was being posted; it may have been posted"_s);
        }
        if (!names.isEmpty())
            notes.Clear();
    });
}

void TimedPosts::Posted(const QString& remark) {
    if (!remark.isEmpty() && !m_app.Get<RunReport>().HasRefusal())
        m_app.Get<RunReport>().Remark(remark);
    m_app.Get<Counters>().Count(m_campaign);
    m_app.Get<RunReport>().Close(ReportResult::Sent);
    m_app.diagnostics.Trap("NotePost", [this] { OpenNotes(m_app.files, NotePath()).StrikeOut({m_name}); });
    m_text.reset();
    m_isReported = false;
    if (IsLast())
        Finish();
    else
        WaitForNext();
}

void TimedPosts::Failed(const QString& why) {
    m_app.Get<RunReport>().Close(ReportResult::Failed, why);
    m_isReported = false;
    WaitForNext();
    TellMinutes("Not posted");
}

bool TimedPosts::IsLast() const {
    return m_app.state.*m_campaign.session >= ToLong(m_app.controls.Text(m_campaign.amount)).value_or(0);
}

void TimedPosts::WaitForNext() {
    RunState& state = m_app.state;
    const qint32 from = ToLong(m_app.controls.Text(m_timing.from)).value_or(0);
    const qint32 to = ToLong(m_app.controls.Text(m_timing.to)).value_or(from);
    state.*m_timing.elapsed = 0;
    state.*m_timing.drawn = RandomBetween(m_app, to - 1, from);
    state.*m_campaign.activity.waits = true;
    Clock().Restart();
    m_app.controls.SetVisible(m_timing.busyLabel, true);
    TellMinutes(m_timing.posted);
    ShowDue();
    m_app.Get<RunReport>().Rest();
}

void TimedPosts::Finish() {
    Hold();
    m_app.controls.SetVisible(m_timing.busyLabel, false);
    m_app.SetStatus(QString::fromLatin1(m_timing.finished));
    m_app.Get<RunReport>().FinishRun();
}

void TimedPosts::Return() {
    // What the post was waiting for is waited for no more.
    m_app.controls.SetText("lblWaitingFor"_L1, {});
    m_app.timers->tmrCheckLinkLoaded.SetEnabled(false);
    m_app.timers->tmrAutoResume.SetEnabled(false);
    const bool isWaiting = m_app.state.*m_campaign.activity.waits;
    if (m_app.Get<Lending>().GiveBack()) {
        if (m_timing.keepsPageOfLender)
            return;
        m_app.Get<RunReport>().Remark(u"A status update fell due while its page was awaited"_s);
        m_app.Get<StopResume>().SkipProfile();
        return;
    }
    static_cast<Expectation&>(m_app.state) = {};
    if (isWaiting)
        return;
    m_app.state.CurrentAction.clear();
    m_app.Get<StopResume>().DoFinishedExit();
}

void TimedPosts::Tick() {
    RunState& state = m_app.state;
    Repair(m_timing.fromAtTick, m_timing.tickRepairsAll);
    Timer& link = m_app.timers->tmrCheckLinkLoaded;
    const bool linkTimer = link.Enabled();
    link.SetEnabled(false);
    ++(state.*m_timing.elapsed);
    if (m_timing.tellsEachMinute)
        TellMinutes(m_timing.posted);
    ShowDue();
    link.SetEnabled(linkTimer);
    if (MinutesLeft() > 0 || !m_app.Get<Lending>().MayTake())
        return;
    state.*m_timing.elapsed = 0;
    m_app.controls.SetVisible(m_timing.busyLabel, true);
    Hold();
    m_app.Get<Lending>().Take(m_campaign.Word(),
                              m_timing.keepsPageOfLender ? Lending::Page::Kept : Lending::Page::GivenUp);
    m_app.Get<RunReport>().TakeUp(m_campaign.report);
    m_post();
}

// A post that has to wait for the browser is late, but due.
qint32 TimedPosts::MinutesLeft() const {
    return std::max(m_app.state.*m_timing.drawn - m_app.state.*m_timing.elapsed, 0);
}

void TimedPosts::TellMinutes(const char* outcome) {
    const qint32 minutes = MinutesLeft();
    m_app.SetStatus(QString::fromLatin1(outcome) + u", time delay active ("_s + QString::number(minutes) +
                    (minutes == 1 ? u" minute remaining)..."_s : u" minutes remaining)..."_s));
}

void TimedPosts::ShowDue() {
    if (MinutesLeft() > 0) {
        const QTime due = m_app.Pump().Now().addSecs(60LL * MinutesLeft()).time();
        m_app.controls.SetText(m_timing.dueLabel, u"Next post at "_s + due.toString(u"h:mm AP"_s));
        return;
    }
    m_app.controls.SetText(m_timing.dueLabel, m_app.Get<Lending>().MayTake()
                                                  ? u"Next post within a minute"_s
                                                  : u"Next post as soon as the browser is free"_s);
}

} // namespace qlm
