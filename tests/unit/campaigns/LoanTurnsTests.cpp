// SPDX-License-Identifier: MIT
// A bulletin falls due in each wait of a lender's run, one run for each of them: everybody gets what is
// theirs once, nobody's page is opened who has got it, and the run comes to its end by itself.
#include "CommenterTest.h"
#include "core/ActivityWords.h"
#include "steps/Lending.h"
#include "steps/RunReport.h"

#include <utility>

namespace qlm {
namespace {

constexpr int PostMs = 3000;
constexpr int RunMs = 600'000;

struct Lender {
    const char* name;
    const Campaign* campaign;
    bool isNew = true;
    bool filters = false; // which the second one alone passes
    int delaySeconds = 0;
};

void PrintTo(const Lender& lender, std::ostream* stream) {
    *stream << lender.name;
}

class LoanRun : public CommentRun {
public:
    explicit LoanRun(const Lender& lender) : CommentRun(lender.isNew), m_lender(lender) {
        app->controls.SetText("txtMsgSubject"_L1, u"Hi"_s);
        app->controls.SetText("txtMsgMessage"_L1, u"Hello"_s);
        app->controls.SetTicked("chkMsgDontSendAgain"_L1, true);
        State().lngTimeDelayFrom = State().lngTimeDelayTo = lender.delaySeconds;
        if (lender.filters) {
            State().blnFilterTypeOff = false;
            State().blnFilterPeople = true;
        }
        const QString links = u"<a href='http://www.site.example.com/music/blog'>Blog</a>"_s;
        for (const QString& id : {u"1001"_s, u"1002"_s}) {
            SetPage(Site(id + u"/classic"_s), u"<p>View My: Pics</p><div class=friendSpace></div>"_s +
                                                  (id == u"1001" ? links : QString()));
            SetPage(Site(u"my/friends/addtofriends/"_s + id), u"Request Sent!"_s);
            SetPage(Site(u"my/mail/new?t="_s + id), Compose(id));
            SetPage(Site(u"sent?"_s + id), u"Your message has been sent!"_s);
        }

        SetPage(Site(u"bulletins/new"_s), u"a bulletin"_s);
    }
    void TestBody() override {}

    // False when the run was over before that turn.
    bool LendAtTurn(int turn) {
        Lending& lending = app->Get<Lending>();
        int turns = 0;
        bool isLent = false;
        platform->Pump().onPump = [&] {
            NoteOpened();
            if (State().CurrentAction != m_lender.campaign->Word() || isLent || !HasMoved() ||
                turns++ != turn)
                return;
            isLent = true;
            m_stand = u"at the turn %1, %2, step %3, %4"_s.arg(turn)
                          .arg(State().strCurrentID)
                          .arg(State().*m_lender.campaign->activity.step)
                          .arg(app->Status());
            lending.Take(ActivityWord::Bulletins, Lending::Page::Kept);
            Browser().Navigate(Site(u"bulletins/new"_s));
            platform->Pump().Queue().PostAt(platform->Pump().NowMs() + PostMs,
                                            [&lending] { lending.GiveBack(); });
        };
        app->commands.Run(QString::fromLatin1(m_lender.campaign->send) + u"_Click"_s);
        platform->Pump().RunUntil([this] { return State().CurrentAction.isEmpty(); }, RunMs);
        platform->Pump().onPump = {};
        return isLent;
    }
    void ExpectEverybodyOnce() {
        SCOPED_TRACE(m_stand.toStdString());
        const Campaign& campaign = *m_lender.campaign;
        const QStringList wanted =
            m_lender.filters ? QStringList{u"1002"_s} : QStringList{u"1001"_s, u"1002"_s};
        EXPECT_EQ(State().CurrentAction, QString()) << app->Status().toStdString();
        EXPECT_EQ(app->files.ReadLines(app->ProgramFile(QString::fromLatin1(campaign.logFile))), wanted);
        EXPECT_EQ(State().*campaign.session, wanted.size());
        EXPECT_EQ(State().lngFailedCount, 0);
        EXPECT_EQ(State().lngFilteredCount, m_lender.filters ? 1 : 0);
        EXPECT_EQ(m_openedAgain, QStringList());
        EXPECT_EQ(Results().join(u", "),
                  m_lender.filters ? u"1001 Skipped, 1002 Sent"_s : u"1001 Sent, 1002 Sent"_s);
        EXPECT_EQ(m_sent, &campaign == &FriendRequests ? QStringList() : wanted);
    }

private:
    QString Site(const QString& path) { return app->Expand(u"http://{SiteRootHost}/"_s) + path; }
    static QString Compose(const QString& id) {
        return u"<div id=toBox><img alt='ANNA LEE'></div><form method=post action='/sent?%1'>"
               "<input name=Subject><textarea name=Mailbody></textarea><input type=submit value='Save Draft'>"
               "<input type=submit value=Send></form>"_s.arg(id);
    }
    // Of the turns of one wait the first counts.
    bool HasMoved() {
        const RunState& state = State();
        const QString stand =
            state.strCurrentID + u' ' + QString::number(state.*m_lender.campaign->activity.step) + u' ' +
            app->Status() + u' ' + Browser().LocationURL() + u' ' +
            QString::number(Browser().ReadyState() + 10 * state.blnLinkFound + 20 * state.blnInDelay +
                            40 * state.blnHoldLinkCheck + 80 * app->timers->Timer1.Enabled());
        return std::exchange(m_seen, stand) != stand;
    }
    // Whose page is opened although the log or a note has them.
    void NoteOpened() {
        for (const auto& form : Browser().TakePosted())
            m_sent += form.url.right(4);
        for (const QString& url : Browser().TakeVisited())
            for (const QString& id : {u"1001"_s, u"1002"_s})
                if (url.contains(id) && m_logged.contains(id))
                    m_openedAgain += url;
        const QString log = app->ProgramFile(QString::fromLatin1(m_lender.campaign->logFile));
        if (app->files.FileExists(log))
            m_logged = app->files.ReadLines(log);
        m_logged += OpenNotes(app->files, log).All();
    }
    QStringList Results() {
        QStringList results;
        const QList<ReportedRun> runs = app->Get<RunReport>().Runs(m_lender.campaign->report);
        for (const ReportRow& row : runs.constLast().rows)
            results += row.id + u' ' + ResultText(row.result);
        return results;
    }

    const Lender m_lender;
    QString m_seen;
    QString m_stand;
    QStringList m_sent;
    QStringList m_logged;
    QStringList m_openedAgain;
};

class LoanTurnsTest : public testing::TestWithParam<Lender> {};

INSTANTIATE_TEST_SUITE_P(Each, LoanTurnsTest,
                         testing::Values(Lender{"Requests", &FriendRequests},
                                         Lender{"RequestsWithADelay", &FriendRequests, true, false, 2},
                                         Lender{"RequestsWithAFilter", &FriendRequests, true, true},
                                         Lender{"Messages", &Messages},
                                         Lender{"MessagesWithADelay", &Messages, true, false, 2},
                                         Lender{"MessagesWithAFilter", &Messages, true, true},
                                         Lender{"Comments", &Comments},
                                         Lender{"CommentsWithADelay", &Comments, true, false, 2},
                                         Lender{"CommentsWithAFilter", &Comments, true, true}),
                         [](const auto& lender) { return lender.param.name; });

TEST_P(LoanTurnsTest, EverybodyHasOneOutcome) {
    bool isLent = true;
    int turn = 0;
    for (; isLent && !testing::Test::HasFailure(); ++turn) {
        LoanRun run(GetParam());
        isLent = run.LendAtTurn(turn);
        run.ExpectEverybodyOnce();
    }
    EXPECT_GT(turn, 8);
}

} // namespace
} // namespace qlm
