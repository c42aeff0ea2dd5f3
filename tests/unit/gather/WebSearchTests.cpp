// SPDX-License-Identifier: MIT
#include "SimulatedProgram.h"
#include "gather/GatherDriver.h"
#include "gather/GatheredList.h"
#include "gather/WebSearch.h"

using namespace Qt::Literals::StringLiterals;

namespace qlm {
namespace {

class WebSearchTest : public SimulatedProgram {
protected:
    WebSearchTest() {
        StartOn(world.deploymentText + u"SiteDomain=example.com\nWebSearchHost=search.example.net\n"_s);
        app->state.blnLoggingEnabled = true;
        app->state.blnNewLayout = true;
        app->controls.SetTicked("optScanGoogle"_L1, true);
    }
    static QString Results(const QString& term, int start) {
        return u"http://search.example.net/search?q=site%3Aexample.com+"_s + term +
               u"&num=100&hl=en&start="_s + QString::number(start);
    }
    void Answer(const QString& address, const QString& text) { world.http.Set(address, text); }
    void Search(const QString& term) {
        dialogs.onModal[u"frmGoogleSearch"_s] = [this, term] {
            app->controls.SetText("frmGoogleSearch.txtGoogleTerm"_L1, term);
            app->commands.Run(u"frmGoogleSearch.cmdOK_Click"_s);
        };
        app->commands.Run(u"picScanStart_Click"_s);
    }
    void Classic(const QString& id, const QString& gender) {
        world.web.SetPage(u"http://www.example.com/"_s + id + u"/classic"_s,
                          u"<html><body><div class=friendSpace>x</div><b>"_s + gender +
                              u"</b><br>View My: Pictures</body></html>"_s);
    }
    void Full() { app->controls.SetTicked("optFullGather"_L1, true); }
    void Profile(const QString& name, const QString& id) {
        world.web.SetPage(u"http://www.example.com/"_s + name,
                          u"<html><body><script>a={\"DisplayFriendId\":"_s + id +
                              u",x}</script></body></html>"_s);
    }
    QStringList Ids() const { return app->state.arrFriendIDs.ToStringList(); }
    QString Trace() { return QString::fromLatin1(app->files.ReadBytes(app->DataFile(u"debuggoogle.txt"_s))); }
};

const QString Closing = u"Finished extracting Google results."_s;
const QString Hint = u"\r\n\r\nYou might get more results if you select the 'full-gather' option."_s;

TEST_F(WebSearchTest, TakesTheIDsOfThePagesUntilOneBringsNothingNew) {
    Answer(Results(u"ann"_s, 0), u"<a href='x?friendID=11&y'>a</a> FRIENDID=12 friendid=11 friendid="_s);
    Answer(Results(u"ann"_s, 100), u"friendid=12 friendid=13"_s);
    Answer(Results(u"ann"_s, 200), u"friendid=11 friendid=13"_s);
    Answer(Results(u"ann"_s, 300), u"friendid=99"_s);
    Search(u"ann"_s);
    EXPECT_EQ(Ids(), (QStringList{u"11"_s, u"12"_s, u"13"_s}));
    EXPECT_EQ(dialogs.Texts(), QStringList{Closing + Hint});
    EXPECT_TRUE(app->state.CurrentAction.isEmpty());
    EXPECT_TRUE(dialogs.OpenForms().isEmpty());
    EXPECT_EQ(app->controls.Text("lblProfilesGathered"_L1), u"Profiles Gathered: 3"_s);
    EXPECT_TRUE(Trace().contains(u"COUNT: 3 (1 duplicates)"_s)) << Trace().toStdString();
    EXPECT_TRUE(Trace().contains(u"COUNT: 2 (2 duplicates)"_s));
}

TEST_F(WebSearchTest, TheTermIsEncoded) {
    Answer(Results(u"blue+%26+red%2D7%21"_s, 0), u"friendid=11 friendid=12"_s);
    Search(u"blue & red-7!"_s);
    EXPECT_EQ(Ids(), (QStringList{u"11"_s, u"12"_s}));
}

TEST_F(WebSearchTest, AFetchThatFailsEndsTheSearchAsIfTheResultsWereOver) {
    Answer(Results(u"ann"_s, 0), u"friendid=11 friendid=12"_s);
    Search(u"ann"_s);
    EXPECT_EQ(Ids().size(), 2);
    EXPECT_EQ(dialogs.Texts(), QStringList{Closing + Hint});
}

TEST_F(WebSearchTest, OneIDIntoTheEmptyListLeavesTheUpperBoundAndEndsTheSearch) {
    Answer(Results(u"ann"_s, 0), u"friendid=11"_s);
    Answer(Results(u"ann"_s, 100), u"friendid=12"_s);
    Search(u"ann"_s);
    EXPECT_EQ(Ids(), QStringList{u"11"_s});
}

TEST_F(WebSearchTest, NeitherTheBlackListNorTheOwnIDIsAsked) {
    app->state.arrBlacklistIDs = {u"11"_s};
    app->state.MyProfileID = u"12"_s;
    Answer(Results(u"ann"_s, 0), u"friendid=11 friendid=12"_s);
    Search(u"ann"_s);
    EXPECT_EQ(Ids(), (QStringList{u"11"_s, u"12"_s}));
}

TEST_F(WebSearchTest, FullGatherFetchesEachProfileOnceAndSaysNoMoreOfIt) {
    Full();
    Profile(u"ann"_s, u"4711"_s);
    Profile(u"bob"_s, u"4712"_s);
    world.web.SetPage(u"http://www.example.com/browse"_s, u"<html><body><script></script></body></html>"_s);
    Answer(Results(u"x"_s, 0), u"HTTP://www.example.com/ann friendid=5 <a href='http://www.example.com/ann'> "
                               "http://www.example.com/bob?x http://www.example.com/browse "
                               "http://wwwxexample.com/cid http://www.example.com/ann"_s);
    QStringList labels;
    app->controls.AddListener([&](const Control& control, Controls::Change, int) {
        if (control.name == "frmGoogleSearch.lblFullGatheringID"_L1 && control.visible)
            labels.append(control.text);
    });
    Search(u"x"_s);
    EXPECT_EQ(Ids(), (QStringList{u"4711"_s, u"4712"_s}));
    EXPECT_EQ(dialogs.Texts(), QStringList{Closing});
    EXPECT_TRUE(labels.contains(u"Fetching bob's ID"_s));
    EXPECT_EQ(labels.last(), u".................................."_s);
    EXPECT_TRUE(Trace().contains(u"URL: http://www.example.com/bob"_s));
    EXPECT_TRUE(Trace().contains(u"ID: 4712"_s));
    // The second address of the same spelling stands among those that were fetched.
    EXPECT_EQ(app->state.lstAlreadyFullGatheredPageIDs.count(u"http://www.example.com/ann"_s), 1);
}

TEST_F(WebSearchTest, TheWindowShowsTheSearchRowFirstAndTheProgressThen) {
    Full();
    auto visible = [this](QLatin1StringView name) { return app->controls[name].visible; };
    app->state.blnStopGoogle = true;
    dialogs.onModal[u"frmGoogleSearch"_s] = [&] {
        EXPECT_FALSE(visible("frmGoogleSearch.lblInProgress"_L1));
        EXPECT_FALSE(visible("frmGoogleSearch.lblFullGatheringID"_L1));
        EXPECT_EQ(app->controls.Text("frmGoogleSearch.cmdOK"_L1), u"Search"_s);
        app->controls.SetText("frmGoogleSearch.txtGoogleTerm"_L1, u"x"_s);
        app->commands.Run(u"frmGoogleSearch.cmdOK_Click"_s);
    };
    bool looked = false;
    platform->Pump().onPump = [&] {
        if (looked || !dialogs.IsFormOpen(u"frmGoogleSearch"_s))
            return;
        looked = true;
        EXPECT_EQ(app->controls.Text("frmGoogleSearch.cmdOK"_L1), u"Stop"_s);
        EXPECT_TRUE(visible("frmGoogleSearch.lblInProgress"_L1));
        EXPECT_TRUE(visible("frmGoogleSearch.lblFullGatheringID"_L1));
        EXPECT_FALSE(app->state.blnStopGoogle);
        EXPECT_FALSE(app->state.blnHoldLinkCheck);
    };
    app->commands.Run(u"picScanStart_Click"_s);
    EXPECT_TRUE(looked);
}

TEST_F(WebSearchTest, QuickGatherHasNoLabelForFetches) {
    bool looked = false;
    platform->Pump().onPump = [&] {
        if (!dialogs.IsFormOpen(u"frmGoogleSearch"_s))
            return;
        looked = true;
        EXPECT_FALSE(app->controls["frmGoogleSearch.lblFullGatheringID"_L1].visible);
    };
    Search(u"x"_s);
    EXPECT_TRUE(looked);
}

TEST_F(WebSearchTest, ABlankTermIsRefusedAndTheFormStays) {
    dialogs.onModal[u"frmGoogleSearch"_s] = [this] {
        app->controls.SetText("frmGoogleSearch.txtGoogleTerm"_L1, u"  "_s);
        app->commands.Run(u"frmGoogleSearch.cmdOK_Click"_s);
        EXPECT_TRUE(dialogs.IsFormOpen(u"frmGoogleSearch"_s));
        app->commands.Run(u"frmGoogleSearch_QueryUnload"_s);
    };
    app->commands.Run(u"picScanStart_Click"_s);
    EXPECT_EQ(dialogs.Texts(), QStringList{u"Please specify a Google search term"_s});
    EXPECT_TRUE(app->state.CurrentAction.isEmpty());
}

TEST_F(WebSearchTest, TheTermIsKeptForTheNextTime) {
    Search(u"blue band"_s);
    QString shown;
    dialogs.onModal[u"frmGoogleSearch"_s] = [&] {
        shown = app->controls.Text("frmGoogleSearch.txtGoogleTerm"_L1);
    };
    app->commands.Run(u"picScanStart_Click"_s);
    EXPECT_EQ(shown, u"blue band"_s);
    EXPECT_EQ(platform->Settings().GetSetting(u"Field Entries"_s, u"txtGoogleTerm"_s, {}), u"blue band"_s);
}

TEST_F(WebSearchTest, StopDuringAFetchTakesEffectBehindIt) {
    Full();
    Profile(u"ann"_s, u"4711"_s);
    Profile(u"bob"_s, u"4712"_s);
    Answer(Results(u"x"_s, 0), u"http://www.example.com/ann http://www.example.com/bob"_s);
    platform->Pump().onPump = [this] {
        if (app->controls.Text("frmGoogleSearch.lblFullGatheringID"_L1).startsWith(u"Fetching"_s) &&
            app->controls.Text("frmGoogleSearch.cmdOK"_L1) == u"Stop"_s)
            app->commands.Run(u"frmGoogleSearch.cmdOK_Click"_s);
    };
    Search(u"x"_s);
    EXPECT_EQ(app->controls.Text("frmGoogleSearch.cmdOK"_L1), u"Finishing..."_s);
    EXPECT_EQ(Ids(), QStringList{u"4711"_s});
    EXPECT_EQ(dialogs.Texts(), QStringList{Closing});
}

TEST_F(WebSearchTest, AStopOfTheProgramEndsItWithoutAWord) {
    Answer(Results(u"x"_s, 0), u"friendid=11 friendid=12"_s);
    Answer(Results(u"x"_s, 100), u"friendid=13"_s);
    platform->Pump().onPump = [this] {
        if (Ids().size() == 2)
            app->commands.Run(u"picScanStop_Click"_s);
    };
    Search(u"x"_s);
    EXPECT_EQ(Ids(), (QStringList{u"11"_s, u"12"_s}));
    EXPECT_TRUE(dialogs.Texts().isEmpty());
    EXPECT_TRUE(dialogs.OpenForms().isEmpty());
}

TEST_F(WebSearchTest, TheFilterLooksAtWhatStoodInTheListBeforeToo) {
    app->controls.SetTicked("optFilterWhenGathering"_L1, true);
    app->controls.SetTicked("optFilterFemale"_L1, true);
    for (const QString& id : {u"5"_s, u"6"_s})
        app->Get<GatheredList>().Add(id, u"test"_s);
    Classic(u"5"_s, u"Male"_s);
    Classic(u"6"_s, u"Female"_s);
    Classic(u"11"_s, u"Female"_s);
    world.web.SetPage(u"http://www.example.com/12/classic"_s,
                      u"<html><body><p class=advertiserProfile>Buy</p></body></html>"_s);
    Answer(Results(u"x"_s, 0), u"friendid=11 friendid=12"_s);
    Search(u"x"_s);
    EXPECT_EQ(Ids(), (QStringList{u"6"_s, u"11"_s}));
}

TEST_F(WebSearchTest, TheFilterGoesOnBehindAnEntryBeyondTheView) {
    app->controls.SetTicked("optFilterWhenGathering"_L1, true);
    app->controls.SetTicked("optFilterFemale"_L1, true);
    app->Get<GatheredList>().Add(u"6"_s, u"test"_s);
    for (const QString& id : {u"5"_s, u"7"_s})
        app->state.arrFriendIDs.append(id); // not in the view, so that nothing removes them
    Classic(u"5"_s, u"Male"_s);
    Classic(u"6"_s, u"Female"_s);
    Classic(u"7"_s, u"Male"_s);
    QStringList visited;
    app->controls.AddListener([&](const Control&, Controls::Change, int) {
        if (!app->state.strCurrentID.isEmpty() && !visited.endsWith(app->state.strCurrentID))
            visited.append(app->state.strCurrentID);
    });
    platform->Pump().onPump = [this, end = platform->Pump().NowMs() + 600'000] {
        if (platform->Pump().NowMs() > end)
            app->state.blnStopGoogle = true;
    };
    Search(u"x"_s);
    EXPECT_EQ(visited, (QStringList{u"6"_s, u"5"_s, u"7"_s}));
    EXPECT_EQ(Ids(), (QStringList{u"6"_s, u"5"_s, u"7"_s}));
    EXPECT_FALSE(app->state.blnStopGoogle);
}

TEST_F(WebSearchTest, WithEveryFilterOffNobodyIsVisited) {
    app->controls.SetTicked("optFilterWhenGathering"_L1, true);
    Answer(Results(u"x"_s, 0), u"friendid=11 friendid=12"_s);
    const qint64 startMs = platform->Pump().NowMs();
    Search(u"x"_s);
    EXPECT_LT(platform->Pump().NowMs() - startMs, 5000);
    EXPECT_EQ(Ids().size(), 2);
}

TEST_F(WebSearchTest, AProfileThatDoesNotComeIsGivenFifteenSecondsAndJudgedThen) {
    app->controls.SetTicked("optFilterWhenGathering"_L1, true);
    app->controls.SetTicked("optFilterBands"_L1, true);
    world.web.SetPage(u"http://www.example.com/11/classic"_s, u"<html><body><p>nothing</p></body></html>"_s);
    Answer(Results(u"x"_s, 0), u"friendid=11"_s);
    const qint64 startMs = platform->Pump().NowMs();
    Search(u"x"_s);
    // Fifteen for the visit, and fifteen more in the filter for the marks of a classic profile.
    EXPECT_NEAR(static_cast<double>(platform->Pump().NowMs() - startMs), 30000.0, 1500.0);
    EXPECT_TRUE(app->Get<GatheredList>().IsEmpty());
}

TEST_F(WebSearchTest, AfterASearchAnotherTermCanBeTyped) {
    Answer(Results(u"ann"_s, 0), u"friendID=11"_s);
    Search(u"ann"_s);
    ASSERT_FALSE(app->controls["frmGoogleSearch.txtGoogleTerm"_L1].enabled);
    bool enabled = false;
    dialogs.onModal[u"frmGoogleSearch"_s] = [&] {
        enabled = app->controls["frmGoogleSearch.txtGoogleTerm"_L1].enabled;
    };
    app->commands.Run(u"picScanStart_Click"_s);
    EXPECT_TRUE(enabled);
}

} // namespace
} // namespace qlm
