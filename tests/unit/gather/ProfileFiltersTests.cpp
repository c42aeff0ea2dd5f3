// SPDX-License-Identifier: MIT
#include "SimulatedProgram.h"
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
        return app->profileFilters->IsFilteredProfile();
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

TEST_F(ProfileFiltersTest, AHeldLinkCheckEndsTheWaitsWithNo) {
    Choose("optFilterPeople"_L1);
    app->state.blnHoldLinkCheck = true;
    EXPECT_FALSE(Passes(Person(u"Male"_s, u"20"_s, u"York"_s)));
}

TEST_F(ProfileFiltersTest, OnAListTheWordsBesideTheLinkSayWhoIsOnline) {
    world.web.SetPage(
        u"http://www.example.com/l"_s,
        u"<html><body><div><p><a href='/a'>A</a></p>Online Now!</div><div><p><a href='/b'>B</a></p></div>"
        "</body></html>"_s);
    app->WebBrowser1().Navigate(u"http://www.example.com/l"_s);
    platform->Pump().RunFor(1000);
    const auto links = app->WebBrowser1().Document().Links();
    EXPECT_TRUE(app->profileFilters->IsUserOnline(false, links[0]));
    EXPECT_FALSE(app->profileFilters->IsUserOnline(false, links[1]));
}

} // namespace
} // namespace qlm
