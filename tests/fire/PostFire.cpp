// SPDX-License-Identifier: MIT
#include "PostFire.h"

#include "campaigns/OpenNotes.h"
#include "core/ActivityWords.h"
#include "practice/PracticeSite.h"
#include "steps/Lending.h"

#include <QFile>

namespace qlm::fire {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr const char* Faults[] = {"slow 5000", "slow 150000", "hang", "reset", "nobody",
                                  "error",     "wrong",       "lost", "blank", "loggedout"};
const QString Own = u"900001"_s;
const QString BoardPage = u"www.myspace.example.com/bulletins/new"_s;
const QString HomePage = u"home.myspace.example.com/"_s;

} // namespace

PostFire::PostFire(quint64 seed, const Plan& plan, practice::PracticeSite& site, QString logFolder)
    : m_plan(plan),
      m_site(site),
      m_logFolder(std::move(logFolder)),
      m_dice(seed * 2 + 1'000'001),
      m_sides{{{&Bulletins, BoardPage, "Gig+on", u"Gig on Friday"_s},
               {&StatusUpdates, HomePage, "the+road", u"On the road again"_s}}} {
    m_dueInThousandLooks = m_dice.Between(5, 60);
    m_faultsInThousandLooks = m_dice.Below(60);
    m_interferesInThousandLooks = m_dice.Below(8);
}

void PostFire::Demand(bool holds, const QString& promise) {
    if (!holds)
        throw Broken{promise};
}

void PostFire::Tell(const QString& text) const {
    if (trace)
        trace(text);
}

void PostFire::SetUp() {
    const QString layout = m_plan.oldLayout ? u"older"_s : u"newer"_s;
    for (const QString& line : {u"bulletin-form "_s, u"status-form "_s})
        if (const QString wrong = m_site.Control(line + Own + u' ' + layout); !wrong.isEmpty())
            throw std::logic_error(wrong.toStdString());
}

Timer& PostFire::Clock(App& app, const Side& side) const {
    return app.timers.get()->*side.campaign->timing.timer;
}

bool PostFire::Waits(App& app, const Side& side) {
    return app.state.*side.campaign->activity.waits;
}

bool PostFire::Rests(App& app) {
    for (const Campaign* campaign : {&Bulletins, &StatusUpdates})
        if (app.state.CurrentAction == campaign->Word())
            return app.state.*campaign->activity.waits;
    return false;
}

PostFire::Side* PostFire::AtWork(App& app) {
    for (Side& side : m_sides)
        if (app.state.CurrentAction == side.campaign->Word() && !Waits(app, side))
            return &side;
    return nullptr;
}

bool PostFire::IsNoted(const Side& side) const {
    QFile file(m_logFolder + u'/' +
               QString::fromLatin1(side.campaign->timing.noteFile).replace(u".txt"_s, u".open.txt"_s));
    return file.open(QIODevice::ReadOnly) &&
           file.readAll().split('\n').contains(side.name.toLatin1() + "\t.\r");
}

// A count closes the post that arrived last.
void PostFire::TakeCounts() {
    for (Side& side : m_sides) {
        const int stored = storedCount(*side.campaign);
        if (stored == side.counted)
            continue;
        Tell(u"counted: "_s + QString::fromLatin1(side.campaign->what) + u' ' + QString::number(stored));
        Demand(stored == side.counted + 1, u"two posts were counted at once"_s);
        side.counted = stored;
        side.isOpen = false;
        Demand(
            side.counted + side.excused <= side.arrived,
            u"%1 posts were counted, %2 were sent and %3 of these were not to be counted"_s.arg(side.counted)
                .arg(side.arrived)
                .arg(side.excused));
    }
}

// Its run ends, and nobody saw whether the post was taken.
void PostFire::Close(Side& side, bool diskRefuses) {
    TakeCounts();
    if (!std::exchange(side.isOpen, false))
        return;
    ++side.excused;
    Demand(diskRefuses || m_hasDiskRefused || IsNoted(side),
           u"a post was sent, not counted and not noted when its run ended"_s);
}

void PostFire::OnStart(App& app) {
    m_clockMs = app.timers->tmrBulletinWait.Interval();
    m_wasLent = false;
    for (Side& side : m_sides) {
        side.wantsStart = m_dice.Happens(700);
        side.mustTell = false;
        side.dueIn = -1;
        side.isHurried = false;
    }
}

void PostFire::OnStop(bool diskRefuses) {
    for (Side& side : m_sides) {
        Close(side, diskRefuses);
        side.wantsStart = m_dice.Happens(700);
        side.mustTell = false;
    }
}

void PostFire::OnKill() {
    ++m_kills;
    for (Side& side : m_sides)
        Close(side, false);
}

bool PostFire::BeginsOne(App& app, bool diskRefuses) {
    for (Side& side : m_sides)
        if (std::exchange(side.wantsStart, false)) {
            Begin(app, side, diskRefuses);
            return true;
        }
    return false;
}

void PostFire::Begin(App& app, Side& side, bool diskRefuses) {
    // A bulletin's start ends what runs; a status update's the one that is at work.
    if (side.campaign->stopsRunningOne)
        OnStop(diskRefuses);
    else if (Side* other = AtWork(app))
        Close(*other, diskRefuses);
    Close(side, diskRefuses);
    FillIn(app, side);
    side.wantsStart = false;
    side.mustTell = IsNoted(side) && !diskRefuses;
    press(QString::fromLatin1(side.campaign->send) + u"_Click"_s);
}

void PostFire::FillIn(App& app, const Side& side) {
    const bool areBulletins = side.campaign == &Bulletins;
    Controls& controls = app.controls;
    if (areBulletins)
        controls.SetText(side.campaign->content.subject, side.name);
    controls.SetText(side.campaign->content.text, areBulletins ? u"Come along"_s : side.name);
    controls.SetText(side.campaign->amount,
                     QString::number(m_dice.Happens(300) ? m_dice.Between(1, 9) : 999));
    const int from = m_dice.Between(1, 3);
    controls.SetText(side.campaign->timing.from, QString::number(from));
    controls.SetText(side.campaign->timing.to, QString::number(from + m_dice.Below(3)));
    controls.SetTicked(areBulletins ? "chkAntiFlood"_L1 : "chkStatusAntiFlood"_L1, m_dice.Happens(500));
    app.state.blnNewLayout = !m_plan.oldLayout;
}

// A start of comments ends what posts by the clock, but for runs that a chain or an acceptance begins: here
// the clocks are set going again.
void PostFire::OnLenderStarted(App& app) {
    if (m_plan.campaign != &Comments || app.state.CurrentAction != Comments.Word())
        return;
    for (Side& side : m_sides) {
        if (!m_dice.Happens(700))
            continue;
        Tell(u"the clock of "_s + QString::fromLatin1(side.campaign->what) + u" is set going"_s);
        FillIn(app, side);
        side.mustTell = false;
        app.state.*side.campaign->activity.waits = true;
        app.state.*side.campaign->timing.elapsed = 0;
        app.state.*side.campaign->timing.drawn = m_dice.Between(1, 5);
        Clock(app, side).Restart();
    }
}

void PostFire::Look(App& app, bool diskRefuses) {
    m_hasDiskRefused = m_hasDiskRefused || diskRefuses;
    for (Side& side : m_sides) {
        if (side.mustTell && AtWork(app) == &side)
            CheckTold(app, side);
        if (Waits(app, side) && side.dueIn < 0 && m_dice.Happens(m_dueInThousandLooks))
            side.dueIn = m_dice.Below(300);
    }
    // Now and then both at once.
    if (m_sides[0].dueIn >= 0 && Waits(app, m_sides[1]) && m_dice.Happens(200))
        m_sides[1].dueIn = m_sides[0].dueIn;
}

void PostFire::HurryClock(App& app, Side& side) {
    Tell(QString::fromLatin1(side.campaign->what) + u" fall due"_s);
    app.state.*side.campaign->timing.elapsed = app.state.*side.campaign->timing.drawn;
    side.elapsedThen = app.state.*side.campaign->timing.elapsed;
    side.isHurried = true;
    Clock(app, side).SetInterval(1);
}

void PostFire::Watch(App& app) {
    TakeCounts();
    for (Side& side : m_sides) {
        Timer& clock = Clock(app, side);
        const bool hasTicked =
            !clock.Enabled() || app.state.*side.campaign->timing.elapsed != side.elapsedThen;
        if (side.isHurried && hasTicked) {
            side.isHurried = false;
            clock.SetInterval(m_clockMs);
        }
        if (side.dueIn >= 0 && --side.dueIn < 0 && Waits(app, side) && clock.Enabled())
            HurryClock(app, side);
    }
    const bool isLent = app.Get<Lending>().IsLent();
    if (isLent && !m_wasLent) {
        ++m_loans;
        onLoan(app.state.strCurrentID, app.state.CurrentAction == ActivityWord::StatusUpdates);
    }
    m_wasLent = isLent;
}

void PostFire::BreakPage(const Side& side) {
    QString page = side.page;
    if (side.campaign == &StatusUpdates && !m_plan.oldLayout)
        page += u"index.cfm?fuseaction=home&f=7"_s;
    else if (side.campaign == &Bulletins && m_dice.Happens(200))
        page = u"www.myspace.example.com/bulletins/"_s + Own;
    const QString kind = QString::fromLatin1(m_dice.Pick(Faults));
    Tell(u"the site breaks %1: %2"_s.arg(page, kind));
    if (const QString wrong = m_site.Control(u"fault "_s + page + u"$ "_s + kind + u" times 1"_s);
        !wrong.isEmpty())
        throw std::logic_error(wrong.toStdString());
}

// The user and the site, while a post is at work.
void PostFire::LookAtPost(App& app, bool isTold, bool diskRefuses) {
    Side* side = AtWork(app);
    if (!side)
        return;
    if (m_dice.Happens(m_faultsInThousandLooks))
        BreakPage(*side);
    if (isTold && side->campaign == &StatusUpdates && m_dice.Happens(500)) {
        Tell(u"user: loads the page again"_s);
        app.WebBrowser1().Navigate(u"http://"_s + side->page +
                                   (m_plan.oldLayout ? QString() : u"index.cfm?fuseaction=home&f=7"_s));
    } else if (isTold && (side->campaign == &StatusUpdates || m_dice.Happens(300))) {
        OnStop(diskRefuses);
        press(u"picStop_Click"_s);
    } else if (isTold || m_dice.Happens(m_interferesInThousandLooks)) {
        press(u"picSkip_Click"_s);
    } else if (m_dice.Happens(m_interferesInThousandLooks)) {
        OnStop(diskRefuses);
        press(u"picStop_Click"_s);
    } else if (m_dice.Happens(m_interferesInThousandLooks)) {
        Begin(app, *side, diskRefuses);
    }
}

void PostFire::CheckTold(App& app, Side& side) {
    const QList<ReportedRun> runs = app.Get<RunReport>().Runs(side.campaign->report);
    side.mustTell = false;
    const bool isTold =
        !runs.isEmpty() && std::ranges::any_of(runs.constLast().rows, [&side](const ReportRow& row) {
            return row.id == side.name && row.result == ReportResult::Unfinished &&
                   row.why.startsWith(u"An earlier run ended"_s);
        });
    Demand(isTold, u"a note of a post was found and not told"_s);
}

// Also when the site's fault loses it.
void PostFire::OnRequest(App& app, const SimRequest& request, bool diskRefuses) {
    if (request.method != u"POST")
        return;
    for (Side& side : m_sides) {
        if (!request.body.contains(side.sign))
            continue;
        Tell(u"posted: "_s + QString::fromLatin1(side.campaign->what));
        TakeCounts();
        Demand(!side.isOpen, QString::fromLatin1(side.campaign->what) + u": one was posted twice"_s);
        Demand(diskRefuses || IsNoted(side), u"a post was sent that is not noted"_s);
        side.isOpen = true;
        ++side.arrived;
        if (side.mustTell)
            CheckTold(app, side);
    }
}

// What was sent by the report is what was counted, but for lines that a kill or a disk has cost.
void PostFire::CheckReport(App& app, const Side& side) const {
    constexpr qsizetype keptRuns = 20;
    const QList<ReportedRun> runs = app.Get<RunReport>().Runs(side.campaign->report);
    int sent = 0;
    for (const ReportedRun& run : runs)
        for (const ReportRow& row : run.rows)
            sent += row.result == ReportResult::Sent ? 1 : 0;
    Demand(sent <= side.counted, u"the report tells of more posts than were counted"_s);
    const bool isComplete = runs.size() < keptRuns && !m_hasDiskRefused && m_plan.campaign != &Comments;
    Demand(!isComplete || sent >= side.counted - m_kills,
           u"%1 posts were counted, and the report tells of %2"_s.arg(side.counted).arg(sent));
}

// A target has one result in a run; who is put off has one more for each time.
void PostFire::CheckOutcomes(App& app) const {
    for (const ReportedRun& run : app.Get<RunReport>().Runs(m_plan.campaign->report)) {
        QHash<QString, qsizetype> results;
        for (const ReportRow& row : run.rows)
            if (row.result != ReportResult::PutOff)
                Demand(++results[row.id] <= m_plan.ids.count(row.id),
                       row.id + u" has two outcomes in a run"_s);
    }
}

void PostFire::OnEnd(App& app) {
    TakeCounts();
    for (const Side& side : m_sides) {
        Demand(!side.isOpen || m_hasDiskRefused || IsNoted(side), u"a post is open and not noted"_s);
        CheckReport(app, side);
    }
    CheckOutcomes(app);
}

} // namespace qlm::fire
