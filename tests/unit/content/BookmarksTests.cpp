// SPDX-License-Identifier: MIT
#include "content/Bookmarks.h"

#include "SimulatedProgram.h"
#include "core/SettingsFields.h"

using namespace Qt::Literals::StringLiterals;

namespace qlm {
namespace {

using Answer = Dialogs::Answer;
constexpr auto Box = "frmManageBookmarks.lstBookmarks"_L1;

class BookmarksTest : public SimulatedProgram {
protected:
    QString Path() { return app->ProgramFile(u"BookmarksList.txt"_s); }
    QStringList Lines() { return app->files.ReadLines(Path()); }
    QStringList Menu() { return app->controls.Items("mnuBookmarks"_L1); }
    void Run(const char* command, int argument = 0) {
        EXPECT_TRUE(app->commands.Run(QString::fromLatin1(command), argument));
    }
    // While the manager of these bookmarks is open.
    void Managing(const QStringList& lines, const std::function<void()>& act) {
        app->files.WriteLines(Path(), lines);
        dialogs.onModal[u"frmManageBookmarks"_s] = act;
        Run("mnuManageBookmarks_Click");
    }
    void OnBookmark(const QString& name, const QString& location) {
        dialogs.onModal[u"frmBookmark"_s] = [this, name, location] {
            seenName = app->controls.Text("frmBookmark.txtName"_L1);
            seenLocation = app->controls.Text("frmBookmark.txtLocation"_L1);
            app->controls.SetText("frmBookmark.txtName"_L1, name);
            app->controls.SetText("frmBookmark.txtLocation"_L1, location);
            Run("frmBookmark.cmdSave_Click");
            stayedOpen = dialogs.IsFormOpen(u"frmBookmark"_s);
        };
    }
    void Select(int row) { app->controls.SetSelected(Box, row); }
    QStringList Rows() { return app->controls.Items(Box); }
    QStringList TakeMessages() {
        const QStringList texts = dialogs.Texts();
        dialogs.messages.clear();
        return texts;
    }

    QString seenName;
    QString seenLocation;
    bool stayedOpen = false;
};

} // namespace

TEST(Bookmark, IsOneLineDividedAtTheFirstMarker) {
    const Bookmark read = BookmarkOf(u"a%cln%b&bookmark=http://x/?y%cln%z%nl%&Bookmark=w"_s);
    EXPECT_EQ(read.name, u"a;b"_s);
    EXPECT_EQ(read.location, u"http://x/?y;z\r\n&Bookmark=w"_s);
    EXPECT_EQ(BookmarkLine({u"a;b"_s, u"http://x/;y"_s}), u"a%cln%b&Bookmark=http://x/%cln%y"_s);
    EXPECT_TRUE(BookmarkOf(u"-"_s).IsSeparator());
    EXPECT_EQ(BookmarkOf(u"torn"_s).name, u"torn"_s);
    EXPECT_EQ(BookmarkOf(u"torn"_s).location, QString());
}

TEST_F(BookmarksTest, TheMenuShowsThemInTheirOrder) {
    app->files.WriteLines(Path(), {u"one%cln%&Bookmark=http://www.example.com/1"_s,
                                   {},
                                   u"-"_s,
                                   u"two&Bookmark=http://www.example.com/2"_s});
    app->Get<Bookmarks>().LoadBookmarksMenu();
    EXPECT_EQ(Menu(), (QStringList{u"one;"_s, u"-"_s, u"two"_s}));
}

TEST_F(BookmarksTest, AnEmptyOrMissingFileGivesAMenuWithoutThem) {
    app->Get<Bookmarks>().LoadBookmarksMenu();
    EXPECT_EQ(Menu(), QStringList());
    EXPECT_TRUE(app->files.FileExists(Path()));
}

TEST_F(BookmarksTest, AnItemGoesToItsPage) {
    world.web.SetPage(u"http://www.example.com/2"_s, u"<body>two</body>"_s);
    app->files.WriteLines(Path(), {u"one&Bookmark=http://www.example.com/1"_s, u"-"_s,
                                   u"two&Bookmark=www.example.com/2"_s, u"torn"_s});
    app->Get<Bookmarks>().LoadBookmarksMenu();
    app->webHide().ZOrder(0);
    Run("mnuBookmarksItem_Click", 2);
    platform->Pump().RunFor(1000);
    EXPECT_EQ(app->WebBrowser1().LocationURL(), u"http://www.example.com/2"_s);
    EXPECT_TRUE(app->state.blnUserNavigated);
    EXPECT_EQ(app->webHide().Position(), 1);
    for (const int none : {1, 3, 4, -1})
        Run("mnuBookmarksItem_Click", none);
    platform->Pump().RunFor(1000);
    EXPECT_EQ(app->WebBrowser1().LocationURL(), u"http://www.example.com/2"_s);
}

TEST_F(BookmarksTest, TheyAreKeptPerAccountOrOnceForAll) {
    app->files.WriteLines(Path(), {u"shared&Bookmark=x"_s});
    app->state.AccountEmail = u"a@example.com"_s;
    app->Get<SettingsFields>().RestoreAccountSpecificFields();
    EXPECT_EQ(Menu(), QStringList{u"shared"_s});
    app->Get<SettingsFields>().ChangeGlobalFlags({});
    EXPECT_EQ(Menu(), QStringList());
    app->files.WriteLines(app->ProgramFile(u"ACCOUNTS/a@example.com/BookmarksList.txt"_s),
                          {u"own&Bookmark=x"_s});
    app->Get<SettingsFields>().RestoreAccountSpecificFields();
    EXPECT_EQ(Menu(), QStringList{u"own"_s});
    app->Get<SettingsFields>().ChangeGlobalFlags({u"blnUseGlobalBookmarks"_s});
    EXPECT_EQ(Menu(), QStringList{u"shared"_s});
}

TEST_F(BookmarksTest, ThisPageIsAddedUnderAName) {
    Show(u"http://www.example.com/page"_s, u"a page"_s);
    OnBookmark(u"My; page"_s, u"http://www.example.com/page;1"_s);
    Run("mnuBookmarkThisPage_Click");
    EXPECT_EQ(seenName, u"Enter a name for this bookmark"_s);
    EXPECT_EQ(seenLocation, u"http://www.example.com/page"_s);
    EXPECT_FALSE(stayedOpen);
    EXPECT_EQ(Lines(), QStringList{u"My%cln% page&Bookmark=http://www.example.com/page%cln%1"_s});
    EXPECT_EQ(Menu(), QStringList{u"My; page"_s});
}

TEST_F(BookmarksTest, NameAndAddressAreAskedFor) {
    for (const auto& [name, location, words] :
         {std::tuple{u""_s, u"x"_s, u"Please enter a name for the Bookmark"_s},
          {u"Enter a name for this bookmark"_s, u"x"_s, u"Please enter a name for the Bookmark"_s},
          {u"name"_s, u" "_s, u"Please enter the page address (URL)"_s}}) {
        OnBookmark(name, location);
        Run("mnuBookmarkThisPage_Click");
        EXPECT_TRUE(stayedOpen);
        EXPECT_EQ(TakeMessages(), QStringList{words});
    }
    EXPECT_FALSE(app->files.FileExists(Path()));
}

TEST_F(BookmarksTest, AnEmptyManagerAnswersWithItsWords) {
    Managing({}, [&] {
        EXPECT_EQ(Rows(), QStringList{u"Add a Bookmark..."_s});
        Run("frmManageBookmarks.cmdEditBookmark_Click");
        Run("frmManageBookmarks.cmdDeleteBookmark_Click");
        EXPECT_EQ(TakeMessages(),
                  (QStringList{u"Select a Bookmark to edit"_s, u"Select a Bookmark to delete"_s}));
        EXPECT_FALSE(app->controls["frmManageBookmarks.cmdMoveUp"_L1].enabled);
        EXPECT_FALSE(app->controls["frmManageBookmarks.cmdMoveDown"_L1].enabled);
        app->controls.SetSelected(Box, -1);
        Run("frmManageBookmarks.cmdDeleteBookmark_Click");
        EXPECT_EQ(TakeMessages(), QStringList{u"Select a Bookmark to delete"_s});
    });
}

TEST_F(BookmarksTest, AnEntryIsAddedEditedMovedAndDeletedInTheManager) {
    Managing({u"a&Bookmark=1"_s, u"-"_s, u"b&Bookmark=2%cln%"_s}, [&] {
        EXPECT_EQ(Rows(), (QStringList{u"a"_s, u"-"_s, u"b"_s}));
        OnBookmark(u"c"_s, u"3"_s);
        Run("frmManageBookmarks.cmdAddBookmark_Click");
        EXPECT_EQ(seenName, u"Enter a name for this bookmark"_s);
        EXPECT_EQ(seenLocation, QString());
        EXPECT_EQ(Rows(), (QStringList{u"a"_s, u"-"_s, u"b"_s, u"c"_s}));
        Select(2);
        OnBookmark(u"B"_s, u"22"_s);
        Run("frmManageBookmarks.cmdEditBookmark_Click");
        EXPECT_EQ(seenName, u"b"_s);
        EXPECT_EQ(seenLocation, u"2;"_s);
        EXPECT_EQ(Lines(), (QStringList{u"a&Bookmark=1"_s, u"-"_s, u"B&Bookmark=22"_s, u"c&Bookmark=3"_s}));
        EXPECT_EQ(Menu(), Rows());
        Select(1);
        Run("frmManageBookmarks.cmdMoveUp_Click");
        EXPECT_EQ(Rows(), (QStringList{u"-"_s, u"a"_s, u"B"_s, u"c"_s}));
        EXPECT_EQ(app->controls.Selected(Box), 0);
        Run("frmManageBookmarks.cmdMoveDown_Click");
        Run("frmManageBookmarks.cmdMoveDown_Click");
        EXPECT_EQ(Menu(), (QStringList{u"a"_s, u"B"_s, u"-"_s, u"c"_s}));
        EXPECT_EQ(app->controls.Selected(Box), 2);
        Select(1);
        dialogs.answers = {Answer::No, Answer::Yes};
        Run("frmManageBookmarks.cmdDeleteBookmark_Click");
        EXPECT_EQ(Rows().size(), 4);
        Run("frmManageBookmarks.cmdDeleteBookmark_Click");
        EXPECT_EQ(Menu(), (QStringList{u"a"_s, u"-"_s, u"c"_s}));
        EXPECT_EQ(TakeMessages(), (QStringList{u"Are you sure?"_s, u"Are you sure?"_s}));
        EXPECT_EQ(app->files.ReadLines(app->ProgramFile(u"Temp_BookmarksList.txt"_s)), Lines());
    });
}

TEST_F(BookmarksTest, ASeparatorIsNotEditedAndAllOfANameGoTogether) {
    Managing({u"-"_s, u"a&Bookmark=1"_s, u"-"_s, u"a&Bookmark=2"_s}, [&] {
        Run("frmManageBookmarks.cmdEditBookmark_Click");
        EXPECT_EQ(TakeMessages(), QStringList{u"Select a Bookmark to edit"_s});
        dialogs.answers = {Answer::Yes, Answer::Yes};
        Run("frmManageBookmarks.cmdDeleteBookmark_Click");
        EXPECT_EQ(Rows(), (QStringList{u"a"_s, u"a"_s}));
        Run("frmManageBookmarks.cmdDeleteBookmark_Click");
        EXPECT_EQ(Rows(), QStringList{u"Add a Bookmark..."_s});
    });
}

TEST_F(BookmarksTest, LettersThatTheFileCannotHoldAreToldBeforeTheyAreLost) {
    OnBookmark(u"ж"_s, u"http://www.example.com/"_s);
    dialogs.answers = {Answer::No};
    Run("mnuBookmarkThisPage_Click");
    EXPECT_TRUE(stayedOpen);
    EXPECT_TRUE(TakeMessages().value(0).contains(u"ж"_s));
    EXPECT_FALSE(app->files.FileExists(Path()));
}

TEST_F(BookmarksTest, AChangeThatCannotBeWrittenIsReportedAndTheListStays) {
    world.web.SetPage(u"http://www.example.com/"_s, u"<body>page</body>"_s);
    Managing({u"a&Bookmark=1"_s, u"b&Bookmark=2"_s}, [&] {
        world.gate.readOnlyFolders = {world.installationFolder};
        Run("frmManageBookmarks.cmdMoveDown_Click");
        Select(1);
        Run("frmManageBookmarks.cmdMoveUp_Click");
        dialogs.answers = {Answer::Yes};
        Run("frmManageBookmarks.cmdDeleteBookmark_Click");
        OnBookmark(u"c"_s, u"http://www.example.com/"_s);
        Run("frmManageBookmarks.cmdAddBookmark_Click");
        EXPECT_TRUE(stayedOpen);
        EXPECT_EQ(Rows(), (QStringList{u"a"_s, u"b"_s}));
        world.gate.readOnlyFolders.clear();
    });
    EXPECT_EQ(Lines(), (QStringList{u"a&Bookmark=1"_s, u"b&Bookmark=2"_s}));
    const QString log = app->files.ReadLines(app->state.ErrorLogPath).join(u'\n');
    for (const QString& procedure :
         {u"MoveDown - frmManageBookmarks"_s, u"MoveUp - frmManageBookmarks"_s,
          u"cmdDeleteBookmark_Click - frmManageBookmarks"_s, u"cmdSave_Click - frmBookmark"_s})
        EXPECT_TRUE(log.contains(u"Proc: "_s + procedure)) << procedure.toStdString();
}

} // namespace qlm
