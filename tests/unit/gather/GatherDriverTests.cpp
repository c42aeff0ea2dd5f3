// SPDX-License-Identifier: MIT
#include "SimulatedProgram.h"
#include "gather/GatherDriver.h"
#include "gather/LinkScanner.h"
#include "gather/Pager.h"
#include "steps/StopResume.h"

#include <QRegularExpression>

using namespace Qt::Literals::StringLiterals;

namespace qlm {
namespace {

class GatherDriverTest : public SimulatedProgram {
protected:
    GatherDriverTest() {
        StartOn(world.deploymentText + u"SiteDomain=example.com\nEventsHost=events.example.com\n"_s);
        app->state.blnNewLayout = true;
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
    EXPECT_FALSE(app->Get<GatherDriver>().FilterPassWanted());
    state.blnFilterLastLoginOff = false;
    EXPECT_TRUE(app->Get<GatherDriver>().FilterPassWanted());
    state.optFilterOnlineNow = true;
    EXPECT_FALSE(app->Get<GatherDriver>().FilterPassWanted());
    for (bool RunState::*off : {&RunState::blnFilterTypeOff, &RunState::blnFilterGenderOff,
                                &RunState::blnFilterLocationOff, &RunState::blnFilterAgeOff}) {
        state.*off = false;
        EXPECT_TRUE(app->Get<GatherDriver>().FilterPassWanted());
        state.*off = true;
    }
    state.blnFilterAgeOff = false;
    state.blnComparingIDs = true;
    EXPECT_FALSE(app->Get<GatherDriver>().FilterPassWanted());
    state.blnComparingIDs = false;
    state.optFilterWhenGathering = false;
    EXPECT_FALSE(app->Get<GatherDriver>().FilterPassWanted());
}

// The first search for the next page, by the address; a page that is none of these has nothing of it.
TEST_F(GatherDriverTest, TheFirstSearchForTheNextPage) {
    app->state.CurrentAction = u"SCANNING"_s;
    const QString next = u"<a title=' NEXT page ' href='http://x.example.com/2'> Go on </a>"_s;
    const QString dead = u"<a class=disabled title='next page' href='http://x.example.com/1'>Dead</a>"_s;
    auto found = [&](const QString& path, const QString& body) {
        app->state.blnClickNextLink = false;
        Show(u"http://www.example.com"_s + path, body);
        return app->Get<Pager>().GetNextPageHref();
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
    EXPECT_EQ(found(u"/any"_s, next + u"<a href='http://x.example.com/3'>Next »</a>"_s), QString());
    // An address of two kinds is one of the upper.
    EXPECT_EQ(found(u"/browse/friends"_s, next), u"http://x.example.com/2"_s);
    EXPECT_EQ(found(u"/browse?x=.example.com/search/"_s, next), u"Go on"_s);
    EXPECT_EQ(found(u"/search/?x=.example.com/music/charts"_s, next), u"http://x.example.com/2"_s);
    EXPECT_EQ(
        found(u"/music/charts?x=.example.com/forums/t/"_s, u"<a href='http://x.example.com/3'>Next »</a>"_s),
        QString());
    app->state.CurrentAction.clear();
    EXPECT_EQ(found(u"/7/friends"_s, next), QString());
}

// What each kind of page is waited for, by its address; a wait that hasn't ended is stopped before its page
// has stood so long that it would be taken as it is.
TEST_F(GatherDriverTest, TheWaitForTheNextPage) {
    app->state.blnLoggingEnabled = true;
    int turn = 0;
    auto waits = [&](const QString& path, const QString& body, int stopSeconds = 15) {
        const QString next = u"http://www.example.com"_s + path;
        Show(next + u"?start="_s + QString::number(++turn), u"<p>Start</p>"_s);
        world.web.SetPage(next, u"<html><body>"_s + body + u"</body></html>"_s);
        QStringList words;
        app->diagnostics.onLine = [&](const QString& line) {
            static const QRegularExpression word(u"(?:WAITPAGELOAD|NEXTPAGEWAIT)(\\d\\.\\d|3| - END)"_s);
            if (const auto match = word.match(line); match.hasMatch())
                words.append(match.captured(1));
        };
        const qint64 limitMs = platform->Pump().NowMs() + stopSeconds * qint64(1000);
        platform->Pump().onPump = [&] {
            if (platform->Pump().NowMs() > limitMs && !app->state.CurrentAction.isEmpty())
                app->Get<StopResume>().StopAll(StopReason::WindowStop);
        };
        app->state.CurrentAction = u"SCANNING"_s;
        app->state.intGatherStep = 4;
        app->state.strNextPageLink = next;
        app->Get<GatherDriver>().IterateGatherProfiles();
        platform->Pump().onPump = {};
        app->diagnostics.onLine = {};
        return words.join(u',');
    };
    const QString ofFriends = u"<i title='/page/3'>3</i>"_s;
    const QString ofSearch = u"<i title='?a&amp;page=3'>3</i>"_s;
    for (const QString& path : {u"/7/friends/2"_s, u"/friends/browse/2"_s}) {
        EXPECT_EQ(waits(path, ofFriends), u"1.1,1.2, - END"_s);
        EXPECT_EQ(waits(path, ofSearch), u"1.1,1.2"_s);
        EXPECT_EQ(waits(path, ofSearch, 30), u"1.1,1.2, - END"_s);
    }
    for (const QString& path : {u"/browse/people"_s, u"/browse/search/"_s})
        EXPECT_EQ(waits(path, {}), u"2.1, - END"_s);
    for (const QString& path : {u"/search/people"_s, u"/search/music/charts"_s}) {
        EXPECT_EQ(waits(path, ofSearch), u"1.1,1.2, - END"_s);
        EXPECT_EQ(waits(path, ofFriends), u"1.1,1.2"_s);
    }
    EXPECT_EQ(waits(u"/music/charts/5"_s, u"<i class=artist-12></i>"_s), QString());
    EXPECT_EQ(waits(u"/music/charts/5"_s, u"<i class=artist-12></i>"_s, 30), u" - END"_s);
    EXPECT_EQ(waits(u"/music/charts/5"_s, u"<i class=artist-200></i>"_s), u" - END"_s);
    EXPECT_EQ(waits(u"/any"_s, {}), u"3.1,3, - END"_s);
}

TEST_F(GatherDriverTest, AnotherPagesNextLinkIsClickedOrGoneTo) {
    app->state.CurrentAction = u"SCANNING"_s;
    Show(u"http://www.example.com/any"_s, u"<a href='javascript:void(0)'>Next</a>"_s);
    EXPECT_EQ(app->Get<Pager>().FindNextLink(), u"Next"_s);
    EXPECT_TRUE(app->state.blnClickNextLink);
    Show(u"http://www.example.com/any"_s, u"<a href='http://x.example.com/y?a&page=2'>Next ›</a>"_s);
    EXPECT_EQ(app->Get<Pager>().FindNextLink(), u"http://x.example.com/y?a&page=2"_s);
    EXPECT_FALSE(app->state.blnClickNextLink);
}

// Each of the two searches: the message loop turns once a link, and what happens there counts.
TEST_F(GatherDriverTest, TheSearchForTheNextPageIsStoppedAndEndsWithThePage) {
    using Search = QString (Pager::*)();
    QString links;
    for (int i = 0; i < 50; ++i)
        links += u"<a href='/x"_s + QString::number(i) + u"'>x</a>"_s;
    const QString next = u"<a title='next page' href='/friends/page/2'>Next</a>"_s;
    for (const Search search : {&Pager::GetNextPageHref, &Pager::FindNextLink}) {
        app->state.CurrentAction = u"SCANNING"_s;
        Show(u"http://www.example.com/7/friends"_s, links + next);
        const qint64 startMs = platform->Pump().NowMs();
        EXPECT_EQ((app->Get<Pager>().*search)(), u"http://www.example.com/friends/page/2"_s);
        EXPECT_NEAR(static_cast<double>(platform->Pump().NowMs() - startMs), 510.0, 5.0);

        int turns = 0;
        platform->Pump().onPump = [&] {
            if (++turns == 20)
                app->WebBrowser1().Navigate(u"about:blank"_s);
        };
        EXPECT_THROW((app->Get<Pager>().*search)(), BrowserError);
        platform->Pump().onPump = {};

        Show(u"http://www.example.com/7/friends"_s, links + next);
        turns = 0;
        platform->Pump().onPump = [&] {
            if (++turns == 20)
                app->state.CurrentAction.clear();
        };
        EXPECT_EQ((app->Get<Pager>().*search)(), QString());
        EXPECT_EQ(turns, 20);
        platform->Pump().onPump = {};
    }
}

TEST_F(GatherDriverTest, TheFirstLinkWithTheCaptionIsClicked) {
    const QString form = u"http://events.example.com/event/addedit"_s;
    const QString links =
        u"<a href='http://x.example.com/1'>Next page</a> <a href='http://x.example.com/2'>NEXT</a> "
        "<a class='a myspace-paginate' href='http://x.example.com/3'>Next</a> "
        "<a class=myspacepaginationDiv href='http://x.example.com/4'>Next</a>"_s;
    auto clicked = [&](const QString& action, const QString& newHref, const QString& body) {
        app->state.CurrentAction = action;
        Show(form, body);
        const bool found = app->Get<Pager>().ClickNextPageLink(u"next"_s, newHref);
        platform->Pump().RunFor(1000);
        EXPECT_EQ(found, app->WebBrowser1().LocationURL() != form);
        return app->WebBrowser1().LocationURL();
    };
    EXPECT_EQ(clicked(u"SCANNING"_s, {}, links), u"http://x.example.com/2"_s);
    EXPECT_EQ(clicked(u"SCANNING"_s, u"http://x.example.com/9"_s, links), u"http://x.example.com/9"_s);
    // The form of an event has more of that caption; only its pager counts, and as it stands.
    EXPECT_EQ(clicked(u"INV"_s, u"http://x.example.com/9"_s, links), u"http://x.example.com/3"_s);
    EXPECT_EQ(clicked(u"INV"_s, {}, links.section(u"<a "_s, 4).prepend(u"<a "_s)),
              u"http://x.example.com/4"_s);
    EXPECT_EQ(clicked(u"INV"_s, {}, links.section(u"<a "_s, 0, 2)), form);
    app->state.blnLoggingEnabled = true;
    QStringList trail;
    app->diagnostics.onLine = [&trail](const QString& line) { trail += line; };
    EXPECT_EQ(clicked(u"SCANNING"_s, {}, u"<a href='http://x.example.com/1'>Other</a>"_s), form);
    EXPECT_EQ(trail.filter(u"CNPL3 (NOT CLICKED) - "_s).size(), 1);
    EXPECT_TRUE(
        trail.filter(u"CNPL3 (NOT CLICKED) - "_s).value(0).contains(u"Other</a>"_s, Qt::CaseInsensitive));
}

// The chart's own word keeps the table of all pages from being asked.
TEST_F(GatherDriverTest, AChartWithoutAPageNumberHasNoNextPage) {
    app->state.CurrentAction = u"SCANNING"_s;
    Show(u"http://www.example.com/music/charts/songs"_s,
         u"<p id=showMoreChartItems><a href='http://x.example.com/charts'>More</a></p>"
         "<a href='http://x.example.com/charts/2'>More</a>"_s);
    app->Get<LinkScanner>().GatherPageProfiles();
    EXPECT_EQ(app->state.strNextPageLink, QString());
    Show(u"http://www.example.com/music/charts/songs"_s,
         u"<a href='http://x.example.com/charts/2'>More</a>"_s);
    app->Get<LinkScanner>().GatherPageProfiles();
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
        EXPECT_TRUE(app->Get<GatherDriver>().ShowPrompt(prompt.form));
        EXPECT_EQ(stored(), u"0"_s);
        tick = true;
        EXPECT_TRUE(app->Get<GatherDriver>().ShowPrompt(prompt.form));
        EXPECT_EQ(stored(), u"1"_s);
        EXPECT_FALSE(app->Get<GatherDriver>().ShowPrompt(prompt.form));
        // It comes up unticked again however it was left.
        platform->Settings().SaveSetting(u"General"_s, prompt.key, u"0"_s);
        EXPECT_TRUE(app->Get<GatherDriver>().ShowPrompt(prompt.form));
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
