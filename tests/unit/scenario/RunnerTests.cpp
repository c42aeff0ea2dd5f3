// SPDX-License-Identifier: MIT
// The runner itself: what it takes for a failure, and what it says then.
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace {

struct Outcome {
    int status = -1;
    QString output;
};

Outcome RunScenario(const QByteArray& script, const QStringList& options = {}) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"case.scn"_s);
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(script);
    file.close();
    QProcess runner;
    runner.start(QStringLiteral(QUILLMERE_SCENARIO), QStringList(options) << path);
    EXPECT_TRUE(runner.waitForFinished());
    QString output = QString::fromUtf8(runner.readAllStandardOutput());
    return {runner.exitCode(), output.replace(folder.path(), u"FOLDER"_s)};
}

struct Case {
    const char* name;
    const char* script;
    int line;
    const char* says;
};

// Each is a scenario that must fail, at that line, with these words.
const Case Failing[] = {
    {"UnknownCommand", "dance", 1, "there is no such command"},
    {"TooManyWords", "mark twice", 1, "too much: twice"},
    {"NotRunning", "expect status \"\"", 1, "the program is not running"},
    {"NoSuchWidget", "start\nclick cmdNothing", 2, "no open form has cmdNothing"},
    {"HiddenWidget", "logged-in a@b 12\nclick piccmdAddFriends", 2, "piccmdAddFriends is hidden"},
    {"Message", "start\nexpect message \"x\"", 2, "no message box has come up"},
    {"MessageText", "start\nclick cmdContinue\nexpect message \"x\"", 3,
     "Please add an account to log in with"},
    {"NoMessage", "start\nclick cmdContinue\nexpect no message", 3, "a message box has come up"},
    {"QuestionWithoutAnswer", "logged-in a@b 12\nmenu mnuExitWhenFinished", 2, "a question has no answer"},
    {"UnusedAnswer", "answer \"sure\" Yes\nstart", 2, "the answer to \"sure\" was never used"},
    {"NeverDue", "start\nafter 5s click cmdAdd\nwait 4s", 3,
     "\"after 5s click cmdAdd\" of line 2 never came due"},
    {"FailsWhenItComesDue", "start\nafter 5s click cmdNothing\nwait 1m\nmark", 2,
     "no open form has cmdNothing"},
    {"AfterNothing", "start\nafter 5s", 2, "command is missing"},
    {"MessageBegins", "start\nclick cmdContinue\nexpect message begins \"Thank\"", 3,
     "the beginning of the message is \"Pleas\""},
    {"NoMenu", "logged-in a@b 12\nexpect no menu \"Time Delay...\"", 2, "there is a menu item Time Delay..."},
    {"HiddenButUnknown", "logged-in a@b 12\nexpect hidden txtNothing", 2, "there is no control txtNothing"},
    {"CloseWhatIsNotOpen", "logged-in a@b 12\nclose frmTimeDelay", 2, "frmTimeDelay is not open"},
    {"CloseUnderAModalForm", "on frmTimeDelay\nclose frmMain\nend\nlogged-in a@b 12\nmenu mnuTimeDelay", 2,
     "frmMain is not open, or a modal form lies on it"},
    {"Foreground", "logged-in a@b 12\nforeground other\nexpect foreground", 3,
     "another program's window is in front"},
    {"ForegroundOfAMinimizedWindow", "logged-in a@b 12\nminimize\nexpect foreground", 3,
     "another program's window is in front"},
    {"RowWithoutABox", "account a@b c\nstart\ntick lstAccounts row 0", 3, "row 0 of lstAccounts has no box"},
    {"NoSuchRow", "start\nexpect control lstAccounts row 9 \"a\"", 2, "lstAccounts has no row 9, only "},
    {"DeleteWhatIsNotThere", "delete-file {ProgramFolder}/x", 1, "cannot delete "},
    {"NoBytes", "bytes {ProgramFolder}/x 4G", 1, "no bytes: 4G"},
    {"NoZone", "zone Europe/Atlantis", 1, "no time zone is called Europe/Atlantis"},
    {"Ran",
     "page http://x/ \"<a href='javascript:go(1)'>x</a>\"\nlogged-in a@b 12\nbrowse x\nfollow \"x\"\n"
     "expect ran \"go(2)\"",
     5, "no script that was run holds the text; the last: javascript:go(1)"},
    {"UnknownWord", "start\nexpect cover sideways", 2, "front|back, not sideways"},
    {"MissingWord", "start\nclick", 2, "control is missing"},
    {"UnknownWordInABlock", "on frmTimeDelay\nfly\nend", 2, "there is no such command"},
    {"UnknownWordPutOff", "after 5s fly", 1, "there is no such command"},
    {"AfterWhatLetsTimePass", "start\nafter 5s wait 5s", 2, "wait lets time pass itself"},
    {"UnusedBlock", "on frmFilters\nclick cmdOK\nend\nstart", 4,
     "\"on frmFilters\" of line 1 was never used"},
    {"ModalWithoutBlock", "logged-in a@b 12\nmenu mnuTimeDelay", 2, "frmTimeDelay came up"},
    {"UnderAModalForm", "on frmTimeDelay\nclick picStop\nend\nlogged-in a@b 12\nmenu mnuTimeDelay", 2,
     "no open form has picStop"},
    {"FileDialogWithoutAnswer", "logged-in a@b 12\nlist 1001\nclick picSaveToFile", 3,
     "a file dialog has no answer"},
    {"Form", "start\nexpect form frmMain", 2, "frmMain is not open; open: frmInteken"},
    {"NoForm", "start\nexpect no form frmInteken", 2, "frmInteken is open"},
    {"Status", "logged-in a@b 12\nexpect status \"busy\"", 2, "the status is \"\", expected \"busy\""},
    {"Action", "logged-in a@b 12\nexpect action FR", 2, "the activity is \"none\", expected \"FR\""},
    {"State", "logged-in a@b 12\nexpect state MyProfileID 13", 2, "MyProfileID is \"12\", expected \"13\""},
    {"UnknownState", "logged-in a@b 12\nexpect state strNothing 13", 2,
     "the run state has no field strNothing"},
    {"List", "logged-in a@b 12\nlist 1 2\nexpect list 1 3", 3,
     "the gathered list is \"1 2\", expected \"1 3\""},
    {"ListEmpty", "logged-in a@b 12\nlist 1 2\nexpect list empty", 3, "the gathered list is \"1 2\""},
    {"Rows", "logged-in a@b 12\nexpect rows lstFriendIDs 1", 2, "rows of lstFriendIDs is \"0\""},
    {"Control", "logged-in a@b 12\nexpect control lblLoggedInAs \"c@d\"", 2, "lblLoggedInAs is \"a@b\""},
    {"Ticked", "logged-in a@b 12\nexpect control chkSaveScanned ticked", 2, "chkSaveScanned is \"unticked\""},
    {"Enabled", "start\nexpect enabled cmdEdit", 2, "cmdEdit is \"disabled\""},
    {"Disabled", "start\nexpect disabled cmdAdd", 2, "cmdAdd is \"enabled\""},
    {"Visible", "logged-in a@b 12\nexpect visible piccmdAddFriends", 2, "piccmdAddFriends is hidden"},
    {"Hidden", "logged-in a@b 12\nexpect hidden picScanStart", 2, "picScanStart is visible"},
    {"Selected", "account a@b c\nstart\nexpect selected lstAccounts 1", 3,
     "the selected row of lstAccounts is \"0\""},
    {"Focus", "start\nclick cmdContinue\nexpect focus chkTOS", 3, "the focus is on cmdAdd, not on chkTOS"},
    {"Cover", "logged-in a@b 12\nexpect cover front", 2, "the cover is \"back\""},
    {"Attention", "logged-in a@b 12\nexpect attention flash", 2, "no flash; seen: none"},
    {"Opened", "logged-in a@b 12\nmenu mnuGoToQLMDataFolder\nexpect opened folder {ProgramFolder}", 3,
     "what was opened is \"folder "},
    {"OpenedNone", "logged-in a@b 12\nmenu mnuGoToQLMDataFolder\nexpect opened none", 3,
     "what was opened is \"folder "},
    {"OpenedNothing", "start\nexpect opened file x", 2, "what was opened is \"nothing\""},
    {"Setting", "setting \"General\" \"x\" \"1\"\nexpect setting \"General\" \"x\" \"2\"", 2,
     "General, x is \"1\""},
    {"NoSetting", "setting \"General\" \"x\" \"1\"\nexpect no setting \"General\" \"x\"", 2,
     "General, x is stored: 1"},
    {"File", "file {ProgramFolder}/x <<END\na\nb\nEND\nexpect file {ProgramFolder}/x <<END\na\nc\nEND", 5,
     "x, line 2, is \"b\", expected \"c\""},
    {"FileLonger", "file {ProgramFolder}/x <<END\na\nb\nEND\nexpect file {ProgramFolder}/x \"a\"", 5,
     "x has a line more, line 2: \"b\""},
    {"NoFile", "file {ProgramFolder}/x \"a\"\nexpect no file {ProgramFolder}/x", 2, "exists, 3 bytes"},
    {"Bytes", "file {ProgramFolder}/x \"a\"\nexpect bytes {ProgramFolder}/x 610A", 2, "is \"610D0A\""},
    {"Debug", "start\nexpect debug debugreg.txt \"LAUNCH9\"", 2, "no line of debugreg.txt holds that"},
    {"NoDebug", "start\nexpect no debug debugreg.txt \"LAUNCH2\"", 2, "a line of debugreg.txt holds that"},
    {"Visited", "logged-in a@b 12\nexpect visited http://x/", 2, "lacks line 1: \"http://x/\""},
    {"VisitedNone",
     "page http://x/ \"<p>x</p>\"\nlogged-in a@b 12\ntype txtAddress \"x\"\nclick picGO\nrun\nexpect visited "
     "none",
     6, "has a line more, line 1: \"http://x/\""},
    {"Posted", "logged-in a@b 12\nexpect posted http://x/ a=b", 2, "no form was sent"},
    {"PostedFields",
     "page http://x/ \"<form action=/y><input name=a value=c><input type=submit id=s></form>\"\n"
     "logged-in a@b 12\nbrowse x\nrun\npage-click #s\nexpect posted http://x/y a=b",
     6, "the form, line 2, is \"a=c\", expected \"a=b\""},
    {"NoPosted",
     "page http://x/ \"<form action=/y><input type=submit id=s></form>\"\n"
     "logged-in a@b 12\nbrowse x\nrun\npage-click #s\nexpect no posted",
     6, "a form was sent: http://x/y"},
    {"Page", "page http://x/ \"<p>cat</p>\"\nlogged-in a@b 12\nbrowse x\nrun\nexpect page \"dog\"", 5,
     "the page does not hold the text"},
    {"Value",
     "page http://x/ \"<input id=i value=c>\"\nlogged-in a@b 12\nbrowse x\nrun\nexpect value #i \"d\"", 5,
     "the value of #i is \"c\", expected \"d\""},
    {"Journal", "site practice\nexpect journal \"signed-in\"", 2, "the journal lacks line 1"},
    {"Elapsed", "mark\nwait 5s\nexpect elapsed 6s 7s", 3, "5000 ms have passed since the mark"},
    {"NoPage", "page http://x/ \"<p>cat</p>\"\nlogged-in a@b 12\nbrowse x\nexpect no page \"cat\"", 4,
     "the page holds the text"},
    {"PageFocus",
     "page http://x/ \"<input id=i><input id=k>\"\nlogged-in a@b 12\nbrowse x\npage-click #i\n"
     "expect page-focus #k",
     5, "the element with the focus is \"#i\", expected \"#k\""},
    {"RunLimit",
     "fault {SiteRootHost} hang\naccount a@b c\nstart\ntick chkTOS\nclick cmdContinue\nrun limit 1m", 6,
     "waited in vain for the program to be idle"},
    {"RunUntil", "logged-in a@b 12\nrun until status \"x\" limit 1m", 2,
     "waited in vain for the status \"x\""},
    {"MissingFollow", "page http://x/ \"<p>x</p>\"\nlogged-in a@b 12\nbrowse x\nrun\nfollow \"y\"", 5,
     "the page has no link \"y\""},
    {"StandInThatMeansNothing",
     "page http://x/ \"<a id=l data-on-click='explode'>x</a>\"\nlogged-in a@b 12\nbrowse x\nrun\npage-click "
     "#l",
     5, "explode"},
};

class FailingScenario : public testing::TestWithParam<Case> {};

TEST_P(FailingScenario, FailsAtItsLineAndSaysWhatWasSeen) {
    const Case& expected = GetParam();
    const Outcome outcome = RunScenario(expected.script);
    EXPECT_EQ(outcome.status, 1);
    EXPECT_TRUE(outcome.output.contains(u"case.scn:%1: "_s.arg(expected.line)))
        << outcome.output.toStdString();
    EXPECT_TRUE(outcome.output.contains(QString::fromUtf8(expected.says))) << outcome.output.toStdString();
    EXPECT_TRUE(outcome.output.contains(u"repeat: quillmere-scenario --trace"_s));
    EXPECT_TRUE(outcome.output.endsWith(u"0 passed, 1 failed\n"_s));
}

INSTANTIATE_TEST_SUITE_P(Runner, FailingScenario, testing::ValuesIn(Failing),
                         [](const testing::TestParamInfo<Case>& each) { return each.param.name; });

TEST(Runner, PassesAndCounts) {
    const Outcome outcome = RunScenario("start\nexpect form frmInteken\n");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_TRUE(outcome.output.startsWith(u"ok "_s));
    EXPECT_TRUE(outcome.output.endsWith(u"1 passed, 0 failed\n"_s));
}

TEST(Runner, RefusesAnUnknownWordBeforeItStarts) {
    const QString output = RunScenario("start\nmark\nexpect dance", {u"--figures"_s}).output;
    EXPECT_TRUE(output.contains(u"case.scn:3: expect dance\n  there is no such command"_s))
        << output.toStdString();
    EXPECT_TRUE(output.contains(u"\n0 commands: "_s)) << output.toStdString();
}

TEST(Runner, ChecksWithoutRunning) {
    const Outcome good = RunScenario(
        "logged-in a@b 12\nexpect action FR\nclick {X}\non frmTimeDelay\nclick frmTimeDelay.cmdOK\nend\n"
        "menu \"Anything...\"\nexpect hidden optFilterFemale\nexpect state blnChaining true",
        {u"--check"_s});
    EXPECT_EQ(good.status, 0);
    EXPECT_EQ(good.output.section(u'\n', 1), u"1 passed, 0 failed\n"_s) << good.output.toStdString();
    const Outcome bad = RunScenario("click cmdNothing\nmenu mnuNothing\nexpect state blnNothing true\n"
                                    "on frmNothing\nafter 1s click cmdNeither\nend\nwait long",
                                    {u"--check"_s});
    EXPECT_EQ(bad.status, 1);
    for (const QString& line :
         {u"case.scn:1: there is no control cmdNothing\n"_s,
          u"case.scn:2: there is no menu item mnuNothing\n"_s,
          u"case.scn:3: the run state has no field blnNothing\n"_s,
          u"case.scn:4: there is no form frmNothing\n"_s, u"case.scn:5: there is no control cmdNeither\n"_s,
          u"case.scn:7: no length of time such as"_s, u"0 passed, 1 failed\n"_s})
        EXPECT_TRUE(bad.output.contains(line)) << line.toStdString() << bad.output.toStdString();
}

TEST(Runner, ListsAndFiltersByName) {
    EXPECT_TRUE(RunScenario("dance", {u"--list"_s}).output.endsWith(u"case\n"_s));
    EXPECT_EQ(RunScenario("dance", {u"--filter"_s, u"nothing"_s}).output, u"0 passed, 0 failed\n"_s);
}

TEST(Runner, TellsWhatItPlayedAndWhatThatCost) {
    const QString output = RunScenario("start\nwait 1h\nexpect form frmInteken", {u"--figures"_s}).output;
    EXPECT_TRUE(output.contains(u"\n3 commands: "_s)) << output.toStdString();
    EXPECT_TRUE(output.contains(u" turns of the message loop: "_s)) << output.toStdString();
    EXPECT_TRUE(output.contains(u"\n1.0 h of the program's time in "_s)) << output.toStdString();
}

TEST(Runner, ShowsAsMuchOfTheTrailAsIsAskedFor) {
    const QByteArray script = "start\nexpect debug debugreg.txt \"LAUNCH9\"";
    EXPECT_TRUE(RunScenario(script).output.contains(u"debugreg.txt: LAUNCH2"_s));
    const QString output = RunScenario(script, {u"--trail"_s, u"1"_s}).output;
    EXPECT_TRUE(output.contains(u"debugreg.txt: LAUNCH5"_s));
    EXPECT_FALSE(output.contains(u"debugreg.txt: LAUNCH4"_s));
}

TEST(Runner, TheSameScenarioTwiceSaysTheSame) {
    const QByteArray script =
        "site practice\naccount a@example.com secret\nstart\ntick chkTOS\nclick cmdContinue\n"
        "run\nexpect status \"Login successful!\"\nexpect debug debuginitial.txt \"nothing\"";
    const Outcome first = RunScenario(script);
    EXPECT_EQ(first.status, 1);
    EXPECT_EQ(first.output.section(u'\n', 1), RunScenario(script).output.section(u'\n', 1));
}

TEST(Runner, StopsInTheMiddleOfAStep) {
    const Outcome outcome = RunScenario(
        "page {SiteRootHost}/my/friends/addtofriends/1001 \"<a href='/home'>Home</a>Request Sent!\"\n"
        "logged-in a@b 12\nlist 1001\ntab \"Friend Requester\"\nstop-at \"Link Found\"\nclick "
        "piccmdAddFriends\nrun\n"
        "expect action FR\nexpect step intFRStep 8\nclick piccmdAddFriendsStop\nrun\nexpect action none\n"
        "expect file {ProgramFolder}/FriendsLog.txt \"\"");
    EXPECT_EQ(outcome.status, 0) << outcome.output.toStdString();
}

TEST(Runner, ATextWithoutQuotesAroundItStaysAsWritten) {
    const Outcome outcome =
        RunScenario("let WHERE = {SiteRootHost}/one\n"
                    "let PAGE = <p title=\"a b\">He says \"yes  yes\"</p><input id=\"i\" value=\"{WHERE}\">\n"
                    "let WORDS = \"in \\\"quotes\\\"\"\n"
                    "page {WHERE} \"{PAGE}{WORDS}\"\n"
                    "logged-in a@b 12\nbrowse {WHERE}\nrun\n"
                    "expect page \"He says \\\"yes yes\\\"\"\n"
                    "expect page \"in \\\"quotes\\\"\"\n"
                    "expect value #i \"www.myspace.example.com/one\"");
    EXPECT_EQ(outcome.status, 0) << outcome.output.toStdString();
}

TEST(Runner, AModalFormLetsTheScriptGoOnInside) {
    const Outcome outcome =
        RunScenario("on frmTimeDelay\ntype txtSeconds \"5\"\nend\nlogged-in a@b 12\n"
                    "menu mnuTimeDelay\nexpect form frmTimeDelay\nwait 1m\nclick cmdCancel\n"
                    "expect no form frmTimeDelay\nexpect no setting \"General\" \"TimeDelayTo\"");
    EXPECT_EQ(outcome.status, 0) << outcome.output.toStdString();
}

} // namespace
