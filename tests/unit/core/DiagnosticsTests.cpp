// SPDX-License-Identifier: MIT
#include "SimulatedProgram.h"

#include <QFile>

using namespace Qt::Literals::StringLiterals;

namespace qlm {
namespace {

class DiagnosticsTest : public SimulatedProgram {
protected:
    QStringList Lines(const QString& name) { return app->files.ReadLines(app->DataFile(name)); }
    bool Exists(const QString& name) { return QFile::exists(app->DataFile(name)); }
    Diagnostics& The() { return app->diagnostics; }
};

TEST_F(DiagnosticsTest, WithLoggingOffNothingIsWrittenUnlessTheCallSaysSo) {
    The().Debug(u"debugfr.txt"_s, u"FR 11 - "_s);
    EXPECT_FALSE(Exists(u"debugfr.txt"_s));
    The().AppendToFile(app->DataFile(u"debugfr.txt"_s), u"always"_s, false, false, {});
    EXPECT_EQ(Lines(u"debugfr.txt"_s), QStringList{u"always"_s});
    app->state.blnLoggingEnabled = true;
    The().Debug(u"debugfr.txt"_s, u"FR 11 - "_s);
    EXPECT_EQ(Lines(u"debugfr.txt"_s), (QStringList{u"always"_s, u"FR 11 - "_s}));
}

TEST_F(DiagnosticsTest, ALineMayBelongToOneActivity) {
    app->state.CurrentAction = u"MSG"_s;
    The().AppendToFile(app->DataFile(u"debugfr.txt"_s), u"x"_s, false, false, u"FR"_s);
    EXPECT_FALSE(Exists(u"debugfr.txt"_s));
    app->state.CurrentAction = u"FR"_s;
    The().AppendToFile(app->DataFile(u"debugfr.txt"_s), u"x"_s, false, false, u"FR"_s);
    EXPECT_TRUE(Exists(u"debugfr.txt"_s));
}

TEST_F(DiagnosticsTest, ATrailMayBeginAnew) {
    app->state.blnLoggingEnabled = true;
    The().Debug(u"debuggather.txt"_s, u"old"_s);
    The().Debug(u"debuggather.txt"_s, u"new"_s, true);
    EXPECT_EQ(Lines(u"debuggather.txt"_s), QStringList{u"new"_s});
}

TEST_F(DiagnosticsTest, LoggedLinesAndLongOnesAreCleaned) {
    const QString path = app->DataFile(u"debugfr.txt"_s);
    const QString dirty = u"a\r\nb é [x]^{y}~`|"_s;
    The().AppendToFile(path, u"é"_s, false, false, {});
    The().AppendToFile(path, QString(20000, u'é'), false, false, {});
    The().AppendToFile(path, QString(20000, u'é') + u'x', false, false, {});
    app->state.blnLoggingEnabled = true;
    The().AppendToFile(path, dirty, false, true, {});
    EXPECT_EQ(Lines(u"debugfr.txt"_s),
              (QStringList{u"é"_s, QString(20000, u'é'), u"x"_s, u"ab  [x]^{y}~`|"_s}));
}

TEST_F(DiagnosticsTest, EachActivityHasItsTrail) {
    app->state.blnLoggingEnabled = true;
    const std::pair<QString, QString> rows[] = {
        {u"LOGIN"_s, u"debuginitial.txt"_s}, {u"SCANNING"_s, u"debuggather.txt"_s},
        {u"FR"_s, u"debugfr.txt"_s},         {u"MSG"_s, u"debugmsg.txt"_s},
        {u"COM"_s, u"debugcom.txt"_s},       {u"BUL"_s, u"debugbul.txt"_s},
        {u"ACC"_s, u"debugacc.txt"_s},       {u"INV"_s, u"debugevinv.txt"_s}};
    for (const auto& [action, file] : rows) {
        app->state.CurrentAction = action;
        The().DebugForAction(u"x"_s);
        EXPECT_TRUE(Exists(file)) << action.toStdString();
    }
    const auto before = QDir(world.dataFolder).entryList(QDir::Files).size();
    for (const QString& action : {QString(), u"DEL PEN"_s, u"STATUSUPDATES"_s, u"RANDOMIZING"_s}) {
        app->state.CurrentAction = action;
        The().DebugForAction(u"x"_s);
    }
    EXPECT_EQ(QDir(world.dataFolder).entryList(QDir::Files).size(), before);
}

TEST_F(DiagnosticsTest, ATrailThatCannotBeWrittenStopsNothing) {
    app->state.blnLoggingEnabled = true;
    world.gate.readOnlyFolders = {world.dataFolder};
    The().Debug(u"debugfr.txt"_s, u"x"_s);
    EXPECT_TRUE(dialogs.messages.empty());
}

TEST_F(DiagnosticsTest, AnErrorLeavesABlockInTheLogAndShowsItsFormOnce) {
    The().Trap("IterateAddFriends", [] { throw std::runtime_error("Automation error"); });
    The().Trap("DoDelay", [] { throw std::runtime_error("Overflow"); });
    const QStringList lines = Lines(u"Error.log"_s);
    ASSERT_EQ(lines.size(), 18);
    EXPECT_EQ(lines[0], u"Product: QLM"_s);
    EXPECT_EQ(lines[1], u"Time: "_s + app->NowText());
    EXPECT_EQ(lines[2], u"Version: "_s + app->Version());
    EXPECT_TRUE(lines[3].startsWith(u"PI: "_s));
    EXPECT_EQ(lines[4], u"IEV: x"_s);
    EXPECT_EQ(lines[5], u"Error: 5  -  Automation error"_s);
    EXPECT_EQ(lines[6], u"Proc: IterateAddFriends"_s);
    EXPECT_TRUE(lines[7].startsWith(u"Line: "_s));
    EXPECT_TRUE(lines[8].startsWith(u"Data: "_s));
    EXPECT_EQ(lines[15], u"Proc: DoDelay"_s);
    EXPECT_EQ(dialogs.shownForms, QStringList{u"frmError"_s});
    EXPECT_EQ(app->controls.Text("frmError.lblErrorLogPath"_L1), app->state.ErrorLogPath);
}

TEST_F(DiagnosticsTest, LaterErrorsAreToldInALineOfTheWindow) {
    The().Trap("IterateAddFriends", [] { throw std::runtime_error("Automation error"); });
    EXPECT_EQ(app->controls.Text("lblLaterErrors"_L1), QString());
    The().Trap("DoDelay", [] { throw std::runtime_error("Overflow"); });
    EXPECT_EQ(app->controls.Text("lblLaterErrors"_L1),
              u"Another error at "_s + app->Pump().Now().toString(u"hh:mm:ss"_s) + u": Overflow"_s);
    EXPECT_TRUE(app->controls["lblLaterErrors"_L1].toolTip.endsWith(app->state.ErrorLogPath));
    The().Trap("DoDelay", [] { throw std::runtime_error("Bad file"); });
    EXPECT_TRUE(app->controls.Text("lblLaterErrors"_L1).endsWith(u"Bad file"_s));
}

TEST_F(DiagnosticsTest, TheBlockTellsPageBrowserKindOfErrorAndDataCleaned) {
    world.web.SetPage(u"http://www.example.com/"_s, u"<body>x</body>"_s);
    app->WebBrowser1().Navigate(u"http://www.example.com/"_s);
    platform->Pump().RunFor(500);
    world.settings.SaveSetting(u"Software\\Microsoft\\Internet Explorer"_s, u"Version"_s, u"7.0"_s);
    The().Trap(
        "GatherPageProfiles", [] { throw BrowserError(); }, [] { return u"Initial: é\n1"_s; });
    The().ReportError(u"DoDelay"_s, FileError("Cannot open \"é\""), u"12"_s);
    const QStringList lines = Lines(u"Error.log"_s);
    ASSERT_EQ(lines.size(), 18);
    EXPECT_EQ(lines[3], u"PI: http://www.example.com/"_s);
    EXPECT_EQ(lines[4], u"IEV: 7.0"_s);
    EXPECT_EQ(lines[5], u"Error: 440  -  Automation error"_s);
    EXPECT_EQ(lines[7], u"Line: "_s);
    EXPECT_EQ(lines[8], u"Data: Initial: 1"_s);
    EXPECT_EQ(lines[14], u"Error: 75  -  Cannot open \"\""_s);
    EXPECT_EQ(lines[16], u"Line: 12"_s);
}

TEST_F(DiagnosticsTest, AnErrorLogThatCannotBeWrittenIsTold) {
    world.gate.readOnlyFolders = {world.dataFolder};
    The().Trap("DoDelay", [] { throw std::runtime_error("Overflow"); });
    ASSERT_EQ(dialogs.messages.size(), 1);
    EXPECT_EQ(
        dialogs.Texts().first(),
        u"An error has occurred while trying to write to the log file. This usually indicates a Windows "
        "permissions issue, please ensure your Windows user account has permission to write to this "
        "folder: "_s +
            world.installationFolder + u"\nError: ln "_s);
    // The next one is told again.
    The().Trap("DoDelay", [] { throw std::runtime_error("Overflow"); });
    EXPECT_EQ(dialogs.messages.size(), 2);
}

TEST_F(DiagnosticsTest, EndingTheProgramIsNoError) {
    EXPECT_THROW(The().Trap("DoDelay", [] { throw ProgramEnding(); }), ProgramEnding);
    EXPECT_FALSE(Exists(u"Error.log"_s));
}

TEST_F(DiagnosticsTest, EveryMatchIsReplacedAndGroupsAreFilledIn) {
    EXPECT_EQ(The().RegExpReplace(u"a1b22c"_s, u"[0-9]+"_s, u"-"_s), u"a-b-c"_s);
    EXPECT_EQ(The().RegExpReplace(u"x=1;y=2"_s, u"(\\w)=(\\d)"_s, u"$2:$1\\1"_s), u"1:x\\1;2:y\\1"_s);
    EXPECT_EQ(The().RegExpReplace(u"abc"_s, u"x"_s, u"y"_s), u"abc"_s);
}

TEST_F(DiagnosticsTest, APatternThatIsNoneLeavesTheTextAndALine) {
    app->state.blnLoggingEnabled = true;
    EXPECT_EQ(The().RegExpReplace(u"text"_s, u"(open"_s, u"new"_s), u"text"_s);
    EXPECT_EQ(Lines(u"debuginitial.txt"_s), QStringList{u"ERROR IN RegExpReplace: text, (open, new"_s});
}

} // namespace
} // namespace qlm
