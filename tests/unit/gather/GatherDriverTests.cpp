// SPDX-License-Identifier: MIT
#include "SimulatedProgram.h"
#include "gather/GatherDriver.h"
#include "gather/LinkScanner.h"
#include "gather/Pager.h"

using namespace Qt::Literals::StringLiterals;

namespace qlm {
namespace {

class GatherDriverTest : public SimulatedProgram {
protected:
    GatherDriverTest() {
        world.deploymentText += u"SiteDomain=example.com\n"_s;
        app.reset();
        platform.emplace(world, dialogs);
        app.emplace(*platform);
        app->state.ProgramFolder = world.installationFolder;
        app->state.DataFolder = world.dataFolder;
        app->state.ErrorLogPath = app->DataFile(u"Error.log"_s);
        app->state.blnNewLayout = true;
    }
    void Show(const QString& url, const QString& body) {
        world.web.SetPage(url, u"<html><body>"_s + body + u"</body></html>"_s);
        app->WebBrowser1().Navigate(url);
        platform->Pump().RunFor(1000);
    }
};

TEST_F(GatherDriverTest, StartWantsAScanOption) {
    app->controls.SetTicked("optScanFollowing"_L1, false);
    app->commands.Run(u"picScanStart_Click"_s);
    EXPECT_EQ(dialogs.Texts(), QStringList{u"Please select a scan option."_s});
    EXPECT_TRUE(app->state.CurrentAction.isEmpty());
}

TEST_F(GatherDriverTest, OnlyFiltersThatAskForAVisitSendTheBrowserAway) {
    RunState& state = app->state;
    state.optFilterWhenGathering = true;
    EXPECT_FALSE(app->gatherDriver->FilterPassWanted());
    state.blnFilterLastLoginOff = false;
    EXPECT_TRUE(app->gatherDriver->FilterPassWanted());
    state.optFilterOnlineNow = true;
    EXPECT_FALSE(app->gatherDriver->FilterPassWanted());
    for (bool RunState::*off : {&RunState::blnFilterTypeOff, &RunState::blnFilterGenderOff,
                                &RunState::blnFilterLocationOff, &RunState::blnFilterAgeOff}) {
        state.*off = false;
        EXPECT_TRUE(app->gatherDriver->FilterPassWanted());
        state.*off = true;
    }
    state.blnFilterAgeOff = false;
    state.blnComparingIDs = true;
    EXPECT_FALSE(app->gatherDriver->FilterPassWanted());
    state.blnComparingIDs = false;
    state.optFilterWhenGathering = false;
    EXPECT_FALSE(app->gatherDriver->FilterPassWanted());
}

// The first search for the next page, by the address; a page that is none of these has nothing of it.
TEST_F(GatherDriverTest, TheFirstSearchForTheNextPage) {
    app->state.CurrentAction = u"SCANNING"_s;
    const QString next = u"<a title=' NEXT page ' href='http://x.example.com/2'> Go on </a>"_s;
    const QString dead = u"<a class=disabled title='next page' href='http://x.example.com/1'>Dead</a>"_s;
    auto found = [&](const QString& path, const QString& body) {
        app->state.blnClickNextLink = false;
        Show(u"http://www.example.com"_s + path, body);
        return app->pager->GetNextPageHref();
    };
    EXPECT_EQ(found(u"/7/friends"_s, dead + next), u"http://x.example.com/2"_s);
    EXPECT_EQ(found(u"/7/friends"_s, dead), QString());
    EXPECT_EQ(found(u"/search/people"_s, dead + next), u"http://x.example.com/2"_s);
    EXPECT_FALSE(app->state.blnClickNextLink);
    EXPECT_EQ(found(u"/browse/people"_s, dead + next), u"Go on"_s);
    EXPECT_TRUE(app->state.blnClickNextLink);
    EXPECT_EQ(found(u"/browse/people"_s, dead), QString());
    EXPECT_FALSE(app->state.blnClickNextLink);
    EXPECT_EQ(found(u"/forums/t/3"_s, next + u"<a href='http://x.example.com/3'> Next » </a>"_s),
              u"http://x.example.com/3"_s);
    EXPECT_EQ(found(u"/forums/t/3"_s, next), QString());
    EXPECT_EQ(found(u"/music/charts/songs"_s,
                    u"<p id=showMoreChartItems><a href='http://x.example.com/charts/2'>More</a></p>"_s),
              u"http://x.example.com/charts/5"_s);
    EXPECT_EQ(found(u"/music/charts/songs"_s,
                    u"<p id=showMoreChartItems><a href='http://x.example.com/charts'>More</a></p>"_s),
              u"DONTLOOKAGAIN"_s);
    EXPECT_EQ(found(u"/music/charts/songs"_s, next), QString());
    EXPECT_EQ(found(u"/any"_s, next), QString());
    app->state.CurrentAction.clear();
    EXPECT_EQ(found(u"/7/friends"_s, next), QString());
}

// The chart's own word keeps the table of all pages from being asked.
TEST_F(GatherDriverTest, AChartWithoutAPageNumberHasNoNextPage) {
    app->state.CurrentAction = u"SCANNING"_s;
    Show(u"http://www.example.com/music/charts/songs"_s,
         u"<p id=showMoreChartItems><a href='http://x.example.com/charts'>More</a></p>"
         "<a href='http://x.example.com/charts/2'>More</a>"_s);
    app->linkScanner->GatherPageProfiles();
    EXPECT_EQ(app->state.strNextPageLink, QString());
    Show(u"http://www.example.com/music/charts/songs"_s,
         u"<a href='http://x.example.com/charts/2'>More</a>"_s);
    app->linkScanner->GatherPageProfiles();
    EXPECT_EQ(app->state.strNextPageLink, u"http://x.example.com/charts/5"_s);
}

TEST_F(GatherDriverTest, EachPromptShowsUntilItsBoxWasTicked) {
    struct Prompt {
        QString form;
        QLatin1StringView box;
        QString key;
    };
    for (const Prompt& prompt :
         {Prompt{u"frmGroupGatherPrompt"_s, "frmGroupGatherPrompt.chkDontShowAgain"_L1,
                 u"GroupGatherPrompt"_s},
          Prompt{u"frmMusicSearchGatherPrompt"_s, "frmMusicSearchGatherPrompt.chkDontShowAgain"_L1,
                 u"MusicSearchGatherPrompt"_s},
          Prompt{u"frmFullGatherReminder"_s, "frmFullGatherReminder.chkDontShowAgain"_L1,
                 u"FullGatherReminder - chkDontShowAgain"_s}}) {
        auto stored = [&] { return platform->Settings().GetSetting(u"General"_s, prompt.key, u"none"_s); };
        bool tick = false;
        dialogs.onModal[prompt.form] = [&] {
            EXPECT_FALSE(app->controls.Ticked(prompt.box));
            app->controls.SetTicked(prompt.box, tick);
            app->commands.Run(prompt.form + u".cmdOK_Click"_s);
            EXPECT_FALSE(dialogs.IsFormOpen(prompt.form));
        };
        EXPECT_TRUE(app->gatherDriver->ShowPrompt(prompt.form));
        EXPECT_EQ(stored(), u"0"_s);
        tick = true;
        EXPECT_TRUE(app->gatherDriver->ShowPrompt(prompt.form));
        EXPECT_EQ(stored(), u"1"_s);
        EXPECT_FALSE(app->gatherDriver->ShowPrompt(prompt.form));
    }
}

// The words of the prompts' conditions, one missing at a time.
TEST_F(GatherDriverTest, TheMusicPromptWantsAllOfItsWords) {
    const QStringList words{u"Artists ("_s, u"Music Videos ("_s, u"Albums ("_s, u"Songs ("_s};
    app->controls.SetTicked("optScanCurrentPage"_L1, true);
    app->controls.SetTicked("optFullGather"_L1, true);
    auto prompted = [&](const QString& body) {
        Show(u"http://www.example.com/search/music?q=x"_s, body);
        const qsizetype before = dialogs.shownForms.count(u"frmMusicSearchGatherPrompt"_s);
        app->commands.Run(u"picScanStart_Click"_s);
        return dialogs.shownForms.count(u"frmMusicSearchGatherPrompt"_s) > before;
    };
    EXPECT_TRUE(prompted(words.join(u' ')));
    for (const QString& missing : words)
        EXPECT_FALSE(prompted(QStringList(words).join(u' ').remove(missing))) << missing.toStdString();
}

} // namespace
} // namespace qlm
