// SPDX-License-Identifier: MIT
#include "SimulatedProgram.h"
#include "browser/PageClassTable.h"
#include "browser/PageClassifier.h"
#include "campaigns/Campaigns.h"
#include "steps/RunReport.h"

#include <QFileInfo>

using namespace Qt::Literals::StringLiterals;

namespace qlm {
namespace {

QStringList Texts(const ReportedRun& run) {
    QStringList texts;
    for (const ReportRow& row : run.rows)
        texts.append(row.id + u": "_s + ResultText(row.result) + (row.why.isEmpty() ? u""_s : u", "_s) +
                     row.why);
    return texts;
}

TEST(ReportRows, ALineThatWasTornIsPassedOver) {
    const QString whole =
        ResultLine({1, u"t"_s, u"1001"_s, ReportResult::Failed, 37, u"Is already, your friend"_s});
    for (qsizetype length = 0; length < whole.size(); ++length) {
        const QList<ReportedRun> runs = RunsIn({RunLine(u"t"_s, u"a@example.com"_s), whole.left(length)});
        ASSERT_EQ(runs.size(), 1);
        EXPECT_TRUE(runs[0].rows.isEmpty()) << length;
    }
    EXPECT_EQ(RunsIn({RunLine(u"t"_s, u"a"_s), whole})[0].rows.size(), 1);
    EXPECT_EQ(RunsIn({RunLine(u"t"_s, u"a"_s).chopped(1), whole}).size(), 0);
}

TEST(ReportRows, AResultTakesThePlaceOfTheBegunLineWithItsNumber) {
    ReportRow row{2, u"10:00"_s, u"1001"_s, ReportResult::Unfinished, 0, {}};
    QStringList lines{RunLine(u"t"_s, u"a"_s), BegunLine(row)};
    EXPECT_EQ(RunsIn(lines)[0].rows[0].result, ReportResult::Unfinished);
    row.result = ReportResult::Failed;
    row.pageClass = 37;
    row.why = u"tab\tand\nline"_s;
    lines << ResultLine(row) << EndLine(u"u"_s, u"over"_s);
    const ReportedRun run = RunsIn(lines)[0];
    ASSERT_EQ(run.rows.size(), 1);
    EXPECT_EQ(run.rows[0].result, ReportResult::Failed);
    EXPECT_EQ(run.rows[0].pageClass, 37);
    EXPECT_EQ(run.rows[0].why, u"tab and line"_s);
    EXPECT_EQ(run.ended + run.how, u"uover"_s);
}

TEST(ReportRows, EveryResultIsReadAsItWasWritten) {
    const std::vector<std::pair<ReportResult, QString>> results{
        {ReportResult::Sent, u"Sent"_s},       {ReportResult::SentNotLogged, u"Sent, not logged"_s},
        {ReportResult::Skipped, u"Skipped"_s}, {ReportResult::PutOff, u"Put off"_s},
        {ReportResult::Failed, u"Failed"_s},   {ReportResult::Unfinished, u"Unfinished"_s}};
    for (const auto& [result, text] : results) {
        EXPECT_EQ(ResultText(result), text);
        const QString line = ResultLine({1, u"t"_s, u"1001"_s, result, 0, {}});
        const ReportedRun run = RunsIn({RunLine(u"t"_s, u"a"_s), line})[0];
        ASSERT_EQ(run.rows.size(), 1) << text.toStdString();
        EXPECT_EQ(run.rows[0].result, result) << text.toStdString();
    }
}

TEST(ReportRows, CsvIsQuotedAsTheStandardSays) {
    ReportedRun run;
    run.rows = {{1, u"2009-06-01 10:00:00"_s, u"1001"_s, ReportResult::SentNotLogged, 0, u"a, \"b\" é"_s},
                {2, u"2009-06-01 10:00:01"_s, u"1002"_s, ReportResult::Failed, 37, u"two\nlines"_s}};
    EXPECT_EQ(QString::fromUtf8(ReportAsCsv(run)),
              u"Time,Profile ID,Result,Page class,Why\r\n"
              "2009-06-01 10:00:00,1001,\"Sent, not logged\",,\"a, \"\"b\"\" é\"\r\n"
              "2009-06-01 10:00:01,1002,Failed,37,\"two\nlines\"\r\n"_s);
}

TEST(ReportRows, EveryClassThatEndsATargetHasWords) {
    for (const PageClassRow& row : PageClassTable()) {
        const bool isReached = row.isErrorPage && row.pageClass != 19;
        EXPECT_NE(RefusalText(row.pageClass).isEmpty(), isReached) << row.pageClass;
    }
    EXPECT_TRUE(RefusalText(0).isEmpty());
}

class RunReportTest : public SimulatedProgram {
protected:
    const ReportKind& kind = FriendRequests.report;
    RunReport report{*app};
    QStringList Lines() { return app->files.ReadLines(report.PathOf(kind)); }
};

TEST_F(RunReportTest, TellsWhatBecameOfEachTarget) {
    report.BeginRun(kind);
    report.PassOver(u"1000"_s, u"known"_s);
    report.Open(u"1001"_s);
    report.Close(ReportResult::Sent);
    report.Close(ReportResult::Failed, u"too late"_s);
    report.Open(u"1002"_s);
    report.RemarkPage(37);
    report.Close(ReportResult::Failed, u"a remark stands"_s);
    report.Open(u"1003"_s);
    report.EndRun(StopReason::RequestLimit);
    ASSERT_EQ(report.Runs(kind).size(), 1);
    EXPECT_EQ(
        Texts(report.Runs(kind)[0]),
        (QStringList{u"1000: Skipped, known"_s, u"1001: Sent"_s, u"1002: Failed, Is already your friend"_s,
                     u"1003: Sent, not logged, The request that met your limit: it is sent, but neither "
                     "counted nor logged"_s}));
    EXPECT_EQ(report.Runs(kind)[0].how, u"Your limit was reached"_s);
    // Nothing goes into the file without a run.
    const QStringList before = Lines();
    report.Open(u"1004"_s);
    report.PassOver(u"1005"_s, u"known"_s);
    report.EndRun(StopReason::RequestsDone);
    EXPECT_EQ(Lines(), before);
}

TEST_F(RunReportTest, TargetsThatAreAnsweredTogetherStayUnfinishedUntilThen) {
    report.BeginRun(kind, u"logs/Owls.txt"_s);
    report.CloseForNow(u"1001"_s, u"not yet"_s);
    report.CloseForNow(u"1002"_s, u"not yet"_s);
    report.EndRun(StopReason::WindowStop);
    EXPECT_EQ(report.Runs(kind)[0].about, u"logs/Owls.txt"_s);
    EXPECT_EQ(Texts(report.Runs(kind)[0]),
              (QStringList{u"1001: Unfinished, not yet"_s, u"1002: Unfinished, not yet"_s}));
    // The stop is taken back.
    report.Reopen(kind);
    report.Settle(ReportResult::Sent);
    report.CloseForNow(u"1003"_s, u"not yet"_s);
    report.EndRun(StopReason::GroupInvitesDone);
    ASSERT_EQ(report.Runs(kind).size(), 1);
    EXPECT_EQ(Texts(report.Runs(kind)[0]),
              (QStringList{u"1001: Sent"_s, u"1002: Sent"_s, u"1003: Unfinished, not yet"_s}));
    EXPECT_EQ(report.Runs(kind)[0].how, u"All targets were gone through"_s);
}

TEST_F(RunReportTest, TellsHowTheRunEnded) {
    struct Row {
        StopReason reason;
        QString how;
        QString target;
    };
    const QString closed = u"The program was closed"_s;
    const QString pressed = u"You pressed Stop"_s;
    const QString ended = u"The run was ended"_s;
    for (
        const Row& row : std::vector<Row>{
            {StopReason::RequestsDone, u"All targets were gone through"_s, u"Unfinished"_s},
            {StopReason::RequestLimit, u"Your limit was reached"_s,
             u"Sent, not logged, The request that met your limit: it is sent, but neither counted nor logged"_s},
            {StopReason::DailyLimit, u"The site's daily limit was reached"_s, u"Failed"_s},
            {StopReason::RequestStop, pressed, u"Unfinished, "_s + pressed},
            {StopReason::WindowStop, pressed, u"Unfinished, "_s + pressed},
            {StopReason::Closing, closed, u"Unfinished, "_s + closed},
            {StopReason::OtherSignIn, ended, u"Unfinished, "_s + ended}}) {
        report.BeginRun(kind);
        report.Open(u"1001"_s);
        report.EndRun(row.reason);
        const ReportedRun run = report.Runs(kind).constLast();
        EXPECT_EQ(run.how, row.how) << RowOf(row.reason).tag.data();
        EXPECT_EQ(Texts(run), QStringList{u"1001: "_s + row.target}) << RowOf(row.reason).tag.data();
    }
}

// Where the limit is tested between two targets, the open one has nothing to do with it.
TEST_F(RunReportTest, EachCampaignEndsForItsOwnReasons) {
    struct Row {
        StopReason reason;
        QString how;
        QString target;
    };
    for (const Row& row : std::vector<Row>{
             {StopReason::MessagesDone, u"All targets were gone through"_s, u"Unfinished"_s},
             {StopReason::MessageLimit, u"Your limit was reached"_s, u"Unfinished"_s},
             {StopReason::Flooding, u"The site says that you are flooding comments"_s,
              u"Failed, The site takes no more comments for now"_s},
             {StopReason::MessageStop, u"You pressed Stop"_s, u"Unfinished, You pressed Stop"_s},
             {StopReason::OtherSignIn, u"The run was ended"_s, u"Unfinished, The run was ended"_s}}) {
        report.BeginRun(Messages.report);
        EXPECT_TRUE(report.IsRunning(Messages.report));
        EXPECT_FALSE(report.IsRunning(kind));
        report.Open(u"1001"_s);
        report.EndRun(row.reason);
        const ReportedRun run = report.Runs(Messages.report).constLast();
        EXPECT_EQ(run.how, row.how) << RowOf(row.reason).tag.data();
        EXPECT_EQ(Texts(run), QStringList{u"1001: "_s + row.target}) << RowOf(row.reason).tag.data();
    }
    EXPECT_TRUE(report.Runs(kind).isEmpty());
}

TEST_F(RunReportTest, ATargetThatWasSentToStaysSoHoweverTheRunEnds) {
    for (const bool isLogged : {true, false}) {
        report.BeginRun(Messages.report);
        report.Open(u"1001"_s);
        report.MarkSent(isLogged);
        report.EndRun(StopReason::WindowStop);
        EXPECT_EQ(Texts(report.Runs(Messages.report).constLast()),
                  QStringList{isLogged ? u"1001: Sent"_s
                                       : u"1001: Sent, not logged, The log could not be written"_s});
    }
}

// A run that is started by hand takes the place of the one at work.
TEST_F(RunReportTest, AStartEndsTheRunAtWork) {
    report.BeginRun(kind);
    report.Open(u"1001"_s);
    report.BeginRun(Messages.report);
    EXPECT_FALSE(report.IsRunning(kind));
    EXPECT_EQ(Texts(report.Runs(kind)[0]), QStringList{u"1001: Unfinished, The run was ended"_s});
}

TEST_F(RunReportTest, WhoHasLentTheBrowserGoesOnWithItsTarget) {
    report.BeginRun(kind);
    report.Open(u"1001"_s);
    ReportStream* lender = report.SetAside();
    report.Open(u"nobody's"_s);
    report.TakeUp(Bulletins.report);
    report.Open(u"nobody's either"_s);
    report.TakeUp(lender);
    report.Close(ReportResult::Sent);
    EXPECT_EQ(Texts(report.Runs(kind)[0]), QStringList{u"1001: Sent"_s});
    EXPECT_TRUE(report.Runs(Bulletins.report).isEmpty());
}

TEST_F(RunReportTest, ARunThatRestsOutlivesAStartAndTheOwnEndOfAnother) {
    report.BeginRun(Bulletins.report);
    report.Open(u"Gig"_s);
    report.Close(ReportResult::Sent);
    report.Rest();
    report.BeginRun(kind);
    report.Open(u"1001"_s);
    report.EndRun(StopReason::RequestsDone);
    EXPECT_FALSE(report.IsRunning(kind));
    EXPECT_TRUE(report.IsRunning(Bulletins.report));
    report.TakeUp(Bulletins.report);
    report.Open(u"Gig again"_s);
    report.Close(ReportResult::Sent);
    report.FinishRun();
    const ReportedRun posts = report.Runs(Bulletins.report)[0];
    EXPECT_EQ(Texts(posts), (QStringList{u"Gig: Sent"_s, u"Gig again: Sent"_s}));
    EXPECT_EQ(posts.how, u"All were posted"_s);
}

TEST_F(RunReportTest, AnyOtherStopEndsThemAll) {
    report.BeginRun(Bulletins.report);
    report.Rest();
    report.BeginRun(kind);
    report.SetAside();
    report.BeginRun(StatusUpdates.report);
    EXPECT_FALSE(report.IsRunning(kind)); // what had lent the browser is over
    report.EndRun(StopReason::WindowStop);
    for (const ReportKind& each : {kind, Bulletins.report, StatusUpdates.report}) {
        EXPECT_FALSE(report.IsRunning(each));
        EXPECT_EQ(report.Runs(each).size(), 1);
    }
    EXPECT_EQ(report.Runs(Bulletins.report)[0].how, u"You pressed Stop"_s);
}

TEST_F(RunReportTest, AResultIsOnTheDiskWhenTheRunGoesOn) {
    report.BeginRun(kind);
    report.Open(u"1001"_s);
    EXPECT_TRUE(Lines().constLast().startsWith(u"at\t1\t"_s));
    report.Close(ReportResult::Sent);
    EXPECT_TRUE(Lines().constLast().startsWith(u"sent\t1\t"_s));
}

TEST_F(RunReportTest, PassedOverTargetsGoToTheFileByTheHundred) {
    report.BeginRun(kind);
    for (int i = 0; i < 99; ++i)
        report.PassOver(QString::number(i), u"known"_s);
    EXPECT_EQ(Lines().size(), 1);
    EXPECT_EQ(report.Runs(kind)[0].rows.size(), 99);
    report.PassOver(u"99"_s, u"known"_s);
    EXPECT_EQ(Lines().size(), 101);
}

TEST_F(RunReportTest, ADiskThatRefusesIsToldOnceARunAndNothingIsLost) {
    report.BeginRun(kind);
    world.gate.readOnlyFolders = {world.installationFolder};
    for (const QString& id : {u"1001"_s, u"1002"_s}) {
        report.Open(id);
        report.Close(ReportResult::Sent);
    }
    EXPECT_TRUE(report.Problem(kind).contains(world.installationFolder));
    const QStringList errors = app->files.ReadLines(app->state.ErrorLogPath);
    EXPECT_EQ(errors.count(u"Proc: WriteRunReport"_s), 1);
    EXPECT_EQ(Texts(report.Runs(kind)[0]), (QStringList{u"1001: Sent"_s, u"1002: Sent"_s}));
    EXPECT_EQ(Lines().size(), 1);
    world.gate.readOnlyFolders.clear();
    report.Open(u"1003"_s);
    EXPECT_TRUE(report.Problem(kind).isEmpty());
    EXPECT_EQ(Lines().size(), 6);
}

TEST_F(RunReportTest, OnlyTheLastTwentyRunsAreKept) {
    for (int run = 1; run <= 25; ++run) {
        report.BeginRun(kind);
        report.PassOver(QString::number(run), u"known"_s);
        report.EndRun(StopReason::RequestsDone);
    }
    ASSERT_EQ(report.Runs(kind).size(), 20);
    EXPECT_EQ(report.Runs(kind).constFirst().rows[0].id, u"6"_s);
    EXPECT_EQ(report.Runs(kind).constLast().rows[0].id, u"25"_s);
}

// A report of that size would be read for seconds, and held in memory, at the start of each run.
TEST_F(RunReportTest, OldRunsThatAreTooBigGoAndTheLastOneStays) {
    const QString why(900, u'x');
    for (int run = 1; run <= 4; ++run) {
        report.BeginRun(kind);
        for (int target = 1; target <= 5000; ++target)
            report.PassOver(QString::number(target), why);
        report.EndRun(StopReason::RequestsDone);
    }
    EXPECT_LT(QFileInfo(report.PathOf(kind)).size(), 15'000'000);
    report.BeginRun(kind);
    EXPECT_LT(QFileInfo(report.PathOf(kind)).size(), 10'000'000);
    const QList<ReportedRun> runs = report.Runs(kind);
    ASSERT_EQ(runs.size(), 2);
    EXPECT_EQ(runs[0].rows.size(), 5000);
    EXPECT_EQ(runs[0].how, u"All targets were gone through"_s);
    EXPECT_TRUE(runs[1].rows.isEmpty());
}

TEST_F(RunReportTest, ATornLastLineIsPassedOverAndTheNextRunStandsWhole) {
    report.BeginRun(kind);
    report.Open(u"1001"_s);
    world.gate.CrashAtWrite(1);
    EXPECT_THROW(report.Close(ReportResult::Sent), SimPowerCut);
    world.gate.Mend();
    RunReport next(*app);
    ASSERT_EQ(next.Runs(kind).size(), 1);
    EXPECT_EQ(Texts(next.Runs(kind)[0]), QStringList{u"1001: Unfinished"_s});
    next.BeginRun(kind);
    next.Open(u"1002"_s);
    next.Close(ReportResult::Sent);
    ASSERT_EQ(next.Runs(kind).size(), 2);
    EXPECT_EQ(Texts(next.Runs(kind)[0]), QStringList{u"1001: Unfinished"_s});
    EXPECT_EQ(Texts(next.Runs(kind)[1]), QStringList{u"1002: Sent"_s});
}

} // namespace
} // namespace qlm
