// SPDX-License-Identifier: MIT
#include "SimulatedProgram.h"
#include "browser/ProfileLinkRules.h"
#include "gather/ProfileFilters.h"

using namespace Qt::Literals::StringLiterals;

namespace qlm {
namespace {

// Does the profile in the browser pass? Pages are complete when the test is asked.
class ProfileFiltersTest : public SimulatedProgram {
protected:
    void SetUp() override {
        app->controls.SetTicked("optFilterWhenGathering"_L1, true);
        app->WebBrowser1().SetSilent(true);
    }
    void Choose(QLatin1StringView name) { app->controls.SetTicked(name, true); }
    void Type(QLatin1StringView name, const QString& text) { app->controls.SetText(name, text); }
    bool Passes(const QString& body) {
        world.web.SetPage(u"http://www.example.com/5/classic"_s,
                          u"<html><body>"_s + body + u"</body></html>"_s);
        app->WebBrowser1().Navigate(u"http://www.example.com/5/classic"_s);
        platform->Pump().RunFor(1000);
        return app->Get<ProfileFilters>().IsFilteredProfile();
    }
    static QString Person(const QString& gender, const QString& age, const QString& town) {
        return QString(300, u'x') + u"<div class=profileInfo>xxxxxxxxxx</div><b>"_s + gender +
               u"</b><br><span class=\"age\">"_s + age + u"</span> years old<br>"_s + town +
               u"<br>Last Login: 5/30/2009<br><p>View My: Pictures</p><div class=friendSpace></div>"_s;
    }
    const QString Band =
        u"<a href='http://www.example.com/music/blog'>Blog</a><div class=friendSpace></div>"_s;
};

TEST_F(ProfileFiltersTest, WithAllFiltersOffEvenAnAdvertiserPassesAtOnce) {
    EXPECT_TRUE(Passes(u"<p class=advertiserProfile>x</p>"_s));
}

TEST_F(ProfileFiltersTest, AnAdvertiserFailsWithAnyFilterOn) {
    Choose("optFilterPeople"_L1);
    EXPECT_FALSE(Passes(u"<p class=advertiserProfile>x</p>"_s));
}

TEST_F(ProfileFiltersTest, KindsOfProfile) {
    Choose("optFilterBands"_L1);
    EXPECT_TRUE(Passes(Band));
    EXPECT_FALSE(Passes(Person(u"Male"_s, u"20"_s, u"Leeds"_s)));
    Choose("optFilterPeople"_L1);
    EXPECT_FALSE(Passes(Band));
    EXPECT_TRUE(Passes(Person(u"Male"_s, u"20"_s, u"Leeds"_s)));
    Choose("optFilterFilm"_L1);
    EXPECT_TRUE(Passes(u"<div class=friendSpace><img src='/i/film_logo.gif'></div>"_s));
    EXPECT_FALSE(Passes(Band));
    Choose("optFilterComedy"_L1);
    EXPECT_TRUE(Passes(u"<div class=friendSpace><img src='/i/comedy%2fmscomedy.gif'></div>"_s));
}

const QString NewLayout = u"<div class=userBadgeSideBar></div><p>View: All</p>"_s;

TEST_F(ProfileFiltersTest, MusicPagesOfBothLayouts) {
    Choose("optFilterBands"_L1);
    EXPECT_TRUE(Passes(NewLayout + u"<p>Featured Playlists</p><p>Music News</p>"_s));
    EXPECT_FALSE(Passes(NewLayout + u"<p>Featured Playlists</p>"_s));
    EXPECT_FALSE(Passes(NewLayout + u"<p>Music News</p>"_s));
    // The one layout's marks say nothing in the other.
    EXPECT_FALSE(Passes(NewLayout + Band));
    const QString classic = u"<div class=friendSpace></div>"_s;
    const QString shows = u"<a href='http://www.example.com/music/shows'>Shows</a>"_s;
    EXPECT_TRUE(Passes(classic + shows + u"<i class=musicJV_logo></i>"_s));
    EXPECT_FALSE(Passes(classic + shows));
    EXPECT_FALSE(Passes(classic + u"<i class=musicJV_logo></i>"_s));
    EXPECT_FALSE(Passes(classic + u"<p>Featured Playlists</p><p>Music News</p>"_s));
}

TEST_F(ProfileFiltersTest, GenderAndAgeInTheNewLayout) {
    Choose("optFilterFemale"_L1);
    Choose("optFilterAgeOn"_L1);
    Type("cboFilterAge1"_L1, u"20"_s);
    Type("cboFilterAge2"_L1, u"30"_s);
    auto person = [](const QString& gender, const QString& age) {
        // In the markup the quotes of an attribute are escaped.
        return NewLayout + u"<i data='{\"gender\":\""_s + gender + u"\",\"age\":\"Age: "_s + age +
               u"\"}'></i>"_s;
    };
    const qint64 startMs = platform->Pump().NowMs();
    EXPECT_TRUE(Passes(person(u"Female"_s, u"25"_s)));
    EXPECT_LT(platform->Pump().NowMs() - startMs, 5000);
    EXPECT_FALSE(Passes(person(u"Male"_s, u"25"_s)));
    EXPECT_FALSE(Passes(person(u"Female"_s, u"31"_s)));
}

TEST_F(ProfileFiltersTest, AGenderThatDoesNotComeIsWaitedForFifteenSecondsAndAnAgeForTen) {
    Choose("optFilterMale"_L1);
    qint64 startMs = platform->Pump().NowMs();
    EXPECT_FALSE(Passes(NewLayout));
    EXPECT_NEAR(static_cast<double>(platform->Pump().NowMs() - startMs), 16000.0, 500.0);
    Choose("optFilterGenderOff"_L1);
    Choose("optFilterAgeOn"_L1);
    startMs = platform->Pump().NowMs();
    EXPECT_FALSE(Passes(u"<div class=friendSpace></div>"_s));
    EXPECT_NEAR(static_cast<double>(platform->Pump().NowMs() - startMs), 11000.0, 500.0);
}

// The list of the person's facts comes in late and as a whole.
TEST_F(ProfileFiltersTest, InTheNewLayoutThePlaceIsWaitedForByTheGenderThatStandsBesideIt) {
    Choose("optFilterLocation"_L1);
    Type("txtFilterLocation"_L1, u"Leeds"_s);
    world.web.SetPage(u"http://www.example.com/5/classic"_s,
                      u"<html><body>"_s + NewLayout + u"</body></html>"_s);
    const QString facts = u"<ul><li title='gender\":\"Male'>Leeds</li></ul>"_s;
    world.web.AddSwap(u"http://www.example.com/5/classic"_s, 8000,
                      u"<html><body>"_s + NewLayout + facts + u"</body></html>"_s);
    app->WebBrowser1().Navigate(u"http://www.example.com/5/classic"_s);
    platform->Pump().RunFor(1000);
    EXPECT_TRUE(app->Get<ProfileFilters>().IsFilteredProfile());
}

TEST_F(ProfileFiltersTest, WhatSaysAnAgeEndsTheWaitAndAMusicPageHasNoGenderToWaitFor) {
    auto seconds = [this](const QString& body, bool passes) {
        const qint64 startMs = platform->Pump().NowMs();
        EXPECT_EQ(Passes(body), passes) << body.toStdString();
        return (platform->Pump().NowMs() - startMs) / 1000;
    };
    Choose("optFilterAgeOn"_L1);
    Type("cboFilterAge1"_L1, u"30"_s);
    Type("cboFilterAge2"_L1, u"30"_s);
    const QString open = u"<div class=friendSpace>"_s;
    for (const QString& age : {u"30 years old"_s, u"<span class=\"age\">30</span>"_s,
                               u"<span class=age>30</span>"_s, u"<i title='age\":\"Age: 30\"'></i>"_s})
        EXPECT_LT(seconds(open + age + u"</div>"_s, true), 5);
    Choose("optFilterAgeOff"_L1);
    Choose("optFilterMale"_L1);
    EXPECT_LT(seconds(NewLayout + u"<p>Featured Playlists, Music News</p><b>Male</b>"_s, true), 5);
}

TEST_F(ProfileFiltersTest, AFilterThatIsOffIsNotAskedWhateverItsField) {
    Choose("optFilterPeople"_L1);
    Type("txtFilterLocation"_L1, u"Hull"_s);
    Type("txtFilterLastLoginDays"_L1, u"1"_s);
    EXPECT_TRUE(Passes(Person(u"Male"_s, u"20"_s, u"York"_s)));
}

// A music page keeps its place in another block.
TEST_F(ProfileFiltersTest, AMusicPagesPlace) {
    Choose("optFilterLocation"_L1);
    Type("txtFilterLocation"_L1, u"York"_s);
    const QString place = u"<p class=UserBasicInformation>a<br>b<br>York<br>Profile Views: 3</p>"_s;
    EXPECT_TRUE(Passes(Band + place));
    EXPECT_FALSE(Passes(u"<div class=friendSpace></div>"_s + place));
}

TEST_F(ProfileFiltersTest, AnAgeFilterThatIsOffAsksNothing) {
    Choose("optFilterPeople"_L1);
    EXPECT_TRUE(Passes(Person(u"Male"_s, u"unknown"_s, u"Leeds"_s)));
}

TEST_F(ProfileFiltersTest, ABetaPageIsNotedAndNothingElse) {
    app->state.blnLoggingEnabled = true;
    Choose("optFilterPeople"_L1);
    EXPECT_TRUE(Passes(u"<div class=friendSpace></div><i class=sitesBetaLabel></i>"_s));
    const QString noted = app->DataFile(u"debugBETAPEOPLE.txt"_s);
    EXPECT_TRUE(app->files.ReadBytes(noted).contains("http://www.example.com/5/classic"));
    app->files.DeleteFile(noted);
    EXPECT_FALSE(Passes(Band + u"<i class=sitesBetaLabel></i>"_s));
    EXPECT_FALSE(app->files.FileExists(noted));
}

TEST_F(ProfileFiltersTest, EitherReadingOfTheLastLoginIsEnough) {
    world.clock.SetNow(QDateTime(QDate(2011, 4, 5), QTime(12, 0)));
    Choose("optFilterLastLoginOn"_L1);
    Type("txtFilterLastLoginDays"_L1, u"3"_s);
    auto page = [](const QString& date) {
        return u"<div class=friendSpace></div>Last Login: "_s + date + u"<br>"_s;
    };
    EXPECT_TRUE(Passes(page(u"03/04/2011"_s)));
    EXPECT_TRUE(Passes(page(u"04/03/2011"_s)));
    EXPECT_FALSE(Passes(page(u"03/03/2011"_s)));
}

TEST_F(ProfileFiltersTest, BandsAreNotAskedForGenderAndAge) {
    Choose("optFilterBands"_L1);
    Choose("optFilterFemale"_L1);
    Choose("optFilterAgeOn"_L1);
    EXPECT_TRUE(Passes(Band));
}

TEST_F(ProfileFiltersTest, Gender) {
    Choose("optFilterFemale"_L1);
    EXPECT_TRUE(Passes(Person(u"Female"_s, u"20"_s, u"Leeds"_s)));
    EXPECT_FALSE(Passes(Person(u"Male"_s, u"20"_s, u"Leeds"_s)));
    Choose("optFilterMale"_L1);
    EXPECT_TRUE(Passes(Person(u"Male"_s, u"20"_s, u"Leeds"_s)));
    EXPECT_FALSE(Passes(Person(u"Female"_s, u"20"_s, u"Leeds"_s)));
}

TEST_F(ProfileFiltersTest, AgeBoundsAreInclusive) {
    Choose("optFilterAgeOn"_L1);
    Type("cboFilterAge1"_L1, u"20"_s);
    Type("cboFilterAge2"_L1, u" 30 "_s);
    EXPECT_FALSE(Passes(Person(u"Male"_s, u"19"_s, u"Leeds"_s)));
    EXPECT_TRUE(Passes(Person(u"Male"_s, u"20"_s, u"Leeds"_s)));
    EXPECT_TRUE(Passes(Person(u"Male"_s, u"30"_s, u"Leeds"_s)));
    EXPECT_FALSE(Passes(Person(u"Male"_s, u"31"_s, u"Leeds"_s)));
    EXPECT_FALSE(Passes(Person(u"Male"_s, u"unknown"_s, u"Leeds"_s)));
    EXPECT_FALSE(Passes(Band));
}

TEST_F(ProfileFiltersTest, TheSecondTownMatchesInOtherLetterCase) {
    Choose("optFilterLocation"_L1);
    Type("txtFilterLocation"_L1, u"Hull, leeds"_s);
    EXPECT_TRUE(Passes(Person(u"Male"_s, u"20"_s, u"LEEDS"_s)));
    EXPECT_FALSE(Passes(Person(u"Male"_s, u"20"_s, u"York"_s)));
    Type("txtFilterLocation"_L1, u"  "_s);
    EXPECT_TRUE(Passes(Person(u"Male"_s, u"20"_s, u"York"_s)));
}

TEST_F(ProfileFiltersTest, OnlineNow) {
    Choose("optFilterOnlineNow"_L1);
    EXPECT_FALSE(Passes(Person(u"Male"_s, u"20"_s, u"York"_s)));
    EXPECT_TRUE(Passes(Person(u"Male"_s, u"20"_s, u"<i class=userOnline></i>York"_s)));
    EXPECT_FALSE(Passes(u"<div class=friendSpace>x</div>"_s));
}

TEST_F(ProfileFiltersTest, LastLogin) {
    Choose("optFilterLastLoginOn"_L1);
    EXPECT_TRUE(Passes(u"<div class=friendSpace>no date at all</div>"_s)); // 0 days is no filter
    Type("txtFilterLastLoginDays"_L1, u"2"_s);
    EXPECT_TRUE(Passes(Person(u"Male"_s, u"20"_s, u"York"_s)));
    EXPECT_FALSE(Passes(u"<div class=friendSpace>no date at all</div>"_s));
    Type("txtFilterLastLoginDays"_L1, u"1"_s);
    EXPECT_FALSE(Passes(Person(u"Male"_s, u"20"_s, u"York"_s)));
}

TEST_F(ProfileFiltersTest, APageThatNeverShowsAProfileIsJudgedAsItIs) {
    Choose("optFilterMale"_L1);
    const qint64 startMs = platform->Pump().NowMs();
    EXPECT_FALSE(Passes(u"<p>something else</p>"_s));
    EXPECT_NEAR(static_cast<double>(platform->Pump().NowMs() - startMs), 16000.0, 500.0);
}

// The wait for any profile ends with an error page, that for a new one with a complete page.
TEST_F(ProfileFiltersTest, WhatEndsTheWaitForTheLayout) {
    Choose("optFilterPeople"_L1);
    const QString url = u"http://www.example.com/5/classic"_s;
    auto seconds = [&](const QString& body, SimFault fault) {
        world.web.SetPage(url, u"<html><body>"_s + body + u"</body></html>"_s);
        if (fault != SimFault::None)
            world.web.SetFault(url, fault);
        app->WebBrowser1().Navigate(url);
        platform->Pump().RunFor(1000);
        const qint64 startMs = platform->Pump().NowMs();
        EXPECT_TRUE(app->Get<ProfileFilters>().IsFilteredProfile());
        return (platform->Pump().NowMs() - startMs + 500) / 1000;
    };
    EXPECT_EQ(seconds(u"<p>The page cannot be displayed</p>"_s, SimFault::Incomplete), 15);
    EXPECT_EQ(seconds(u"<p>something else</p>"_s, SimFault::Incomplete), 45);
    const QString person = u"<div class=userBadgeSideBar title='gender\":\"Male'></div>"_s;
    EXPECT_EQ(seconds(person, SimFault::Incomplete), 60);
    EXPECT_EQ(seconds(person, SimFault::None), 0);
}

TEST_F(ProfileFiltersTest, AHeldLinkCheckEndsTheWaitsWithNo) {
    Choose("optFilterPeople"_L1);
    app->state.blnHoldLinkCheck = true;
    EXPECT_FALSE(Passes(Person(u"Male"_s, u"20"_s, u"York"_s)));
    const qint64 startMs = platform->Pump().NowMs();
    EXPECT_FALSE(Passes(u"<p>something else</p>"_s));
    EXPECT_LT(platform->Pump().NowMs() - startMs, 5000);
}

TEST_F(ProfileFiltersTest, OnAListTheWordsBesideTheLinkSayWhoIsOnline) {
    world.web.SetPage(
        u"http://www.example.com/l"_s,
        u"<html><body><div><p><a href='/a'>A</a></p>Online Now!</div><div><p><a href='/b'>B</a></p></div>"
        "</body></html>"_s);
    app->WebBrowser1().Navigate(u"http://www.example.com/l"_s);
    platform->Pump().RunFor(1000);
    const auto links = app->WebBrowser1().Document().Links();
    JudgedLink there(*app, links[0]);
    JudgedLink gone(*app, links[1]);
    EXPECT_TRUE(app->Get<ProfileFilters>().IsUserOnline(there));
    EXPECT_FALSE(app->Get<ProfileFilters>().IsUserOnline(gone));
}

} // namespace
} // namespace qlm
