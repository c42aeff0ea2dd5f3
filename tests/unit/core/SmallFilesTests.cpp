// SPDX-License-Identifier: MIT
#include "SimulatedProgram.h"
#include "core/BrowserSounds.h"
#include "core/IniFile.h"
#include "core/ProductServer.h"
#include "core/SupportFiles.h"
#include "program/MainForm.h"

#include <QFile>

using namespace Qt::Literals::StringLiterals;

namespace qlm {
namespace {

class SmallFilesTest : public SimulatedProgram {
protected:
    QByteArray Bytes(const QString& path) { return app->files.ReadBytes(path); }
    QString Write(const QByteArray& bytes) {
        const QString path = folder.filePath(u"some.ini"_s);
        app->files.WriteBytes(path, bytes);
        return path;
    }
};

using IniFileTest = SmallFilesTest;

TEST_F(IniFileTest, AValueIsFoundByItsSectionAndKeyInAnyCase) {
    const clsINI ini(*app,
                     Write("Tab=outside\r\n[Other]\nTab=other\n[alert]\n; Tab=comment\nTAB = \"News\" \n"
                           "Text='it''s'\nEmpty=\n[Alert]\nTab=second\nLate=1\n"));
    EXPECT_EQ(ini.ReadIni(u"Alert"_s, u"tab"_s), u"News"_s);
    EXPECT_EQ(ini.ReadIni(u"other"_s, u"Tab"_s), u"other"_s);
    EXPECT_EQ(ini.ReadIni(u"Alert"_s, u"Text"_s), u"it''s"_s);
    EXPECT_EQ(ini.ReadIni(u"Alert"_s, u"Empty"_s), QString());
    EXPECT_EQ(ini.ReadIni(u"Alert"_s, u"Late"_s), QString());
    EXPECT_EQ(ini.ReadIni(u"None"_s, u"Tab"_s), QString());
    EXPECT_EQ(clsINI(*app, folder.filePath(u"missing.ini"_s)).ReadIni(u"a"_s, u"b"_s), QString());
}

TEST_F(IniFileTest, WritingReplacesALineOrAddsItWhereItBelongs) {
    const clsINI ini(*app, Write("[one]\r\na=1\r\n\r\n[two]\r\nb=2\r\n"));
    ini.WriteIni(u"ONE"_s, u"A"_s, u"new"_s);
    ini.WriteIni(u"one"_s, u"c"_s, u"3"_s);
    ini.WriteIni(u"three"_s, u"d"_s, u"4"_s);
    EXPECT_EQ(Bytes(ini.INIFile), "[one]\r\nA=new\r\nc=3\r\n\r\n[two]\r\nb=2\r\n[three]\r\nd=4\r\n");
    const clsINI fresh(*app, folder.filePath(u"fresh.ini"_s));
    fresh.WriteIni(u"s"_s, u"k"_s, u"v"_s);
    EXPECT_EQ(fresh.ReadIni(u"s"_s, u"k"_s), u"v"_s);
}

class ServerAnswerTest : public SmallFilesTest {
protected:
    void Answer(const QString& text) {
        world.http.Set(u"http://product.example.com/dateandtime.php"_s, text);
        world.clock.SetNow(QDateTime(QDate(2009, 6, 2), QTime(10, 0)));
    }
};

TEST_F(ServerAnswerTest, AnAlertIsReadFromItsFile) {
    world.http.Set(u"http://product.example.com/issuealert.ini"_s,
                   u"[ALERT]\nTab=Friend Requester\nDescription=one/ntwo\n"_s);
    app->Get<ProductServer>().CheckIssueAlert();
    EXPECT_EQ(app->state.IssueAlertTab, u"Friend Requester"_s);
    EXPECT_EQ(app->state.IssueAlertText, u"one\ntwo"_s);
    EXPECT_TRUE(QFile::exists(app->DataFile(u"issuealert.ini"_s)));
}

TEST_F(ServerAnswerTest, WithoutAnAlertTheNextOneWillShow) {
    world.settings.SaveSetting(u"General"_s, u"AlertDontShowAgain"_s, u"1"_s);
    app->files.WriteLines(app->DataFile(u"issuealert.ini"_s), {u"[alert]"_s, u"Tab=old"_s});
    world.http.Set(u"http://product.example.com/issuealert.ini"_s, u"nothing"_s);
    app->Get<ProductServer>().CheckIssueAlert();
    EXPECT_EQ(world.settings.GetSetting(u"General"_s, u"AlertDontShowAgain"_s, {}), u"0"_s);
    EXPECT_FALSE(QFile::exists(app->DataFile(u"issuealert.ini"_s)));
    EXPECT_EQ(app->state.IssueAlertTab, QString());
}

TEST_F(ServerAnswerTest, TheHoursBetweenTheClocksAreWhole) {
    app->state.blnLoggingEnabled = true;
    const std::pair<QString, int> rows[] = {{u"2009-06-02 13:00:00"_s, 3}, {u"2009-06-02 13:20"_s, 3},
                                            {u"2009-06-02 13:40:00"_s, 4}, {u"2009-06-01 22:00:00"_s, -12},
                                            {u"6/2/2009 1:00:00 PM"_s, 3}, {u"6/2/2009 12:00:00 AM"_s, -10},
                                            {u"6/2/2009 12:00 pm"_s, 2}};
    for (const auto& [answer, hours] : rows) {
        Answer(answer);
        EXPECT_EQ(app->Get<ProductServer>().TimeDiff(), hours) << answer.toStdString();
    }
    EXPECT_EQ(app->files.ReadLines(app->DataFile(u"debuginitial.txt"_s)).constFirst(), u"TimeDiff - 3"_s);
}

TEST_F(ServerAnswerTest, AnAnswerWithoutATimeIsNoted) {
    app->state.blnLoggingEnabled = true;
    for (const QString& answer : {u"2009-06-02"_s, u"soon"_s, u"2009-06-02 25:00:00"_s, u"at 10:00:00"_s}) {
        Answer(answer);
        EXPECT_EQ(app->Get<ProductServer>().TimeDiff(), 0);
    }
    EXPECT_EQ(app->files.ReadLines(app->DataFile(u"debuginitial.txt"_s)).count(u"TimeDiff - err"_s), 4);
}

class SupportFilesTest : public SmallFilesTest {
protected:
    void SaveBoth() { app->commands.Run(u"mnuSaveScreenshot_Click"_s); }
    const QString Picture = folder.filePath(u"shot.bmp"_s);
    const QString Source = folder.filePath(u"page.txt"_s);
};

TEST_F(SupportFilesTest, APictureAndTheSourceOfThePageAreSaved) {
    world.web.SetPage(u"http://www.example.com/"_s, u"<body><p id=x>Ö</p></body>"_s);
    app->WebBrowser1().Navigate(u"http://www.example.com/"_s);
    platform->Pump().RunFor(500);
    dialogs.files = {Picture, Source};
    SaveBoth();
    EXPECT_EQ(Bytes(Picture), platform->Desktop().picture);
    EXPECT_EQ(Bytes(Source), "<p id=\"x\">\xD6</p>");
    ASSERT_EQ(dialogs.messages.size(), 2);
    EXPECT_EQ(dialogs.fileDialogs,
              (QStringList{u"Save Screenshot\nScreenshot.bmp\nBitmap (bmp)|*.bmp;|All files (*.*)|*.*"_s,
                           u"Save Page Source\nPagesource.txt\n"
                           "Text Documents (txt)|*.bmp;|All files (*.*)|*.*"_s}));
    EXPECT_TRUE(dialogs.Texts()[0].startsWith(u"A screenshot of the current window has been saved."_s));
    EXPECT_TRUE(dialogs.Texts()[1].startsWith(u"The source code of the current web page has been saved."_s));
}

TEST_F(SupportFilesTest, WhatIsNotWantedIsNotSaved) {
    app->WebBrowser1().Navigate(u"about:blank"_s);
    dialogs.files = {QString(), Source};
    SaveBoth();
    EXPECT_EQ(dialogs.messages.size(), 1);
    EXPECT_TRUE(QFile::exists(Source));
}

TEST_F(SupportFilesTest, APictureThatCannotBeTakenIsTold) {
    app->WebBrowser1().Navigate(u"about:blank"_s);
    platform->Desktop().picture.clear();
    dialogs.files = {Source};
    SaveBoth();
    EXPECT_EQ(dialogs.Texts().first(), u"An error has occurred while trying to take the screenshot. This "
                                       u"could possibly have occurred if you "
                                       "have a third-party application installed for taking screenshots."_s);
    EXPECT_TRUE(QFile::exists(Source));
}

TEST_F(SupportFilesTest, DataGoesToTheTempFolderWhereItsFileCannotBeWritten) {
    const QString path = app->ProgramFile(u"list.txt"_s);
    EXPECT_EQ(app->Get<SupportFiles>().LoadDataIntoFile(u"one"_s, path), path);
    EXPECT_EQ(Bytes(path), "one");
    world.gate.readOnlyFolders = {world.installationFolder};
    const QString instead = app->Get<SupportFiles>().LoadDataIntoFile(u"two"_s, path);
    EXPECT_EQ(instead, app->DataFile(u"temp/list.txt"_s));
    EXPECT_EQ(Bytes(instead), "two");
    EXPECT_EQ(Bytes(path), "one");
    world.gate.readOnlyFolders += world.dataFolder;
    EXPECT_THROW(app->Get<SupportFiles>().LoadDataIntoFile(u"three"_s, path), FileError);
}

class BrowserSoundsTest : public SmallFilesTest {
protected:
    void SetSound(const QString& sound) { world.settings.SaveSetting(Section, u".Current"_s, sound); }
    QString Sound() { return world.settings.GetSetting(Section, u".Current"_s, u"none"_s); }
    void Click() { app->commands.Run(u"mnuDisableBrowserSounds_Click"_s); }
    const QString Section = u"AppEvents\\Schemes\\Apps\\Explorer\\Navigating"_s;
};

TEST_F(BrowserSoundsTest, TheSoundIsKeptAndComesBack) {
    SetSound(u"click.wav"_s);
    Click();
    EXPECT_TRUE(app->controls.Ticked("mnuDisableBrowserSounds"_L1));
    EXPECT_EQ(Sound(), QString());
    EXPECT_EQ(world.settings.GetSetting(u"General"_s, u"OldIESoundValue"_s, {}), u"click.wav"_s);
    // A start after a crash must not take the silence for the user's sound.
    app->Get<BrowserSounds>().Silence();
    Click();
    EXPECT_FALSE(app->controls.Ticked("mnuDisableBrowserSounds"_L1));
    EXPECT_EQ(Sound(), u"click.wav"_s);
}

// The click belongs to the whole desktop: it must not stay silent because the power went.
TEST_F(BrowserSoundsTest, SilenceAndTheRestoredSoundAreMadeDurable) {
    SetSound(u"click.wav"_s);
    const int before = world.settings.syncs;
    Click();
    const int silenced = world.settings.syncs;
    EXPECT_GT(silenced, before);
    app->Get<BrowserSounds>().Restore();
    EXPECT_GT(world.settings.syncs, silenced);
}

TEST_F(BrowserSoundsTest, TheEndPutsItBackOnlyWhenItWasTaken) {
    SetSound(u"click.wav"_s);
    Click();
    app->Get<MainForm>().Form_Unload();
    EXPECT_EQ(Sound(), u"click.wav"_s);
}

TEST_F(BrowserSoundsTest, AResetDoesNotTakeTheUsersSoundWithIt) {
    SetSound(u"click.wav"_s);
    Click();
    dialogs.answers = {Dialogs::Answer::Yes};
    app->commands.Run(u"mnuResetSettings_Click"_s);
    app->Get<MainForm>().Form_Unload();
    EXPECT_EQ(Sound(), u"click.wav"_s);
    EXPECT_FALSE(world.settings.HasSection(u"General"_s));
}

TEST_F(BrowserSoundsTest, AMachineWithoutTheSoundIsLeftAlone) {
    Click();
    app->Get<MainForm>().Form_Unload();
    EXPECT_EQ(Sound(), u"none"_s);
}

} // namespace
} // namespace qlm
