// SPDX-License-Identifier: MIT
// Thirty days in one program, or three without QUILLMERE_LONG_TESTS: bulletins every 60 to 90 minutes, status
// updates every 45, and friend requests begun three times a day, whose pages come slowly.
#include "PostRun.h"
#include "steps/RunReport.h"

#include <vector>

namespace qlm {
namespace {

constexpr int RunsOfADay = 3;
constexpr qint64 RunMs = 8LL * 60 * 60 * 1000;
constexpr int TargetsOfARun = 3;
constexpr qint64 MinuteMs = 60'000;

class PostWeeksTest : public PostRun {
protected:
    PostWeeksTest() : PostRun(true) {
        for (const auto box : {"chkAntiFlood"_L1, "chkStatusAntiFlood"_L1})
            app->controls.SetTicked(box, false);
        for (const auto& [field, text] : {std::pair{"txtPostAmount"_L1, u"99999"_s},
                                          {"txtBulTimerFrom"_L1, u"60"_s},
                                          {"txtBulTimerTo"_L1, u"90"_s},
                                          {"txtStatusPostAmount"_L1, u"99999"_s},
                                          {"txtStatusTimerFrom"_L1, u"45"_s},
                                          {"txtStatusTimerTo"_L1, u"45"_s}})
            app->controls.SetText(field, text);
        app->controls.SetTicked("chkRemoveAfterSent"_L1, true);
        app->controls.AddListener([this](const Control& control, Controls::Change, int) {
            if (control.name == "lblBulSentCount"_L1)
                NoteTime(m_bulletins, State().lngSessionBul);
            if (control.name == "lblStatusSentCount"_L1)
                NoteTime(m_statuses, State().lngSessionStatus);
        });
    }
    void RequestFrom(int run) {
        for (int i = 0; i < TargetsOfARun; ++i) {
            const QString id = QString::number(1001 + run * TargetsOfARun + i);
            SimAnswer answer;
            answer.html = u"<html><body><a href='/home'>Home</a>Request Sent!</body></html>"_s;
            answer.latencyMs = 20 * static_cast<int>(MinuteMs);
            world.web.SetAnswer(Site(u"my/friends/addtofriends/"_s + id), answer);
            app->Get<GatheredList>().Add(id, u"test"_s);
        }
        app->commands.Run(u"piccmdAddFriends_Click"_s);
        platform->Pump().RunFor(RunMs);
        CheckOutcomes();
    }
    void CheckOutcomes() {
        const QList<ReportedRun> runs = app->Get<RunReport>().Runs(FriendRequests.report);
        QStringList ids;
        for (const ReportRow& row : runs.constLast().rows) {
            ids += row.id;
            (row.result == ReportResult::Sent ? m_sent : m_skipped) += row.id;
        }
        EXPECT_EQ(ids.size(), TargetsOfARun);
        EXPECT_EQ(ids.removeDuplicates(), 0);
        EXPECT_FALSE(runs.constLast().ended.isEmpty());
    }
    // A minute's tick may be late by a minute that finds the browser lent, and by the post itself.
    static void ExpectGaps(const std::vector<qint64>& times, int from, int to) {
        for (size_t i = 1; i < times.size(); ++i) {
            EXPECT_GE(times[i] - times[i - 1], from * MinuteMs) << i;
            EXPECT_LE(times[i] - times[i - 1], (to + 2) * MinuteMs) << i;
        }
    }

    std::vector<qint64> m_bulletins;
    std::vector<qint64> m_statuses;
    QStringList m_sent;
    QStringList m_skipped;

private:
    void NoteTime(std::vector<qint64>& times, qint32 count) {
        if (count > static_cast<qint32>(times.size()))
            times.push_back(platform->Pump().NowMs());
    }
};

TEST_F(PostWeeksTest, DayAfterDay) {
    const int runs = RunsOfADay * (qEnvironmentVariableIsSet("QUILLMERE_LONG_TESTS") ? 30 : 3);
    const qint64 startMs = platform->Pump().NowMs();
    StartBulletins();
    platform->Pump().RunFor(10'000);
    StartStatuses();
    for (int run = 0; run < runs; ++run)
        RequestFrom(run);
    const qint64 minutes = (platform->Pump().NowMs() - startMs) / MinuteMs;
    ExpectGaps(m_bulletins, 60, 90);
    ExpectGaps(m_statuses, 45, 45);
    EXPECT_GE(static_cast<qint64>(m_bulletins.size()), minutes / 92);
    EXPECT_GE(static_cast<qint64>(m_statuses.size()), minutes / 47);
    const QStringList posted = Posted();
    EXPECT_EQ(posted.count(u"posted"_s), State().lngSessionBul);
    EXPECT_EQ(posted.count(u"shared"_s), State().lngSessionStatus);
    EXPECT_EQ(State().lngSessionBul, static_cast<qint32>(m_bulletins.size()));
    EXPECT_EQ(State().lngSessionStatus, static_cast<qint32>(m_statuses.size()));
    EXPECT_EQ(Notes(Bulletins) + Notes(StatusUpdates), QStringList());
    EXPECT_EQ(m_sent.size() + m_skipped.size(), runs * TargetsOfARun);
    EXPECT_EQ(app->files.ReadLines(app->ProgramFile(u"FriendsLog.txt"_s)), m_sent);
    EXPECT_GT(m_sent.size(), 0);
    EXPECT_GT(m_skipped.size(), 0);
}

} // namespace
} // namespace qlm
