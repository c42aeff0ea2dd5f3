// SPDX-License-Identifier: MIT
#include "SimulatedProgram.h"
#include "browser/ProfileLinkRules.h"
#include "gather/IdResolution.h"

#include <stdexcept>

using namespace Qt::Literals::StringLiterals;

namespace qlm {
namespace {

TEST(IdTexts, AValueEndsAtABlankOrABracketAndLosesItsQuotes) {
    EXPECT_EQ(ValueAfterKey(u"<div friendID=\"12\">x"_s, u"friendid"_s), u"=12"_s);
    EXPECT_EQ(ValueAfterKey(u"a friendid:77 b"_s, u"friendid"_s), u":77"_s);
    EXPECT_EQ(ValueAfterKey(u"a friendid"_s, u"friendid"_s), QString());
    EXPECT_EQ(ValueAfterKey(u"nothing here"_s, u"friendid"_s), QString());
}

TEST(IdTexts, TheTrailingNumberOfAnAddress) {
    EXPECT_EQ(TrailingNumber(u"http://www.example.com/123"_s), u"123"_s);
    EXPECT_EQ(TrailingNumber(u"http://www.example.com/123/"_s), u"123"_s);
    EXPECT_EQ(TrailingNumber(u"http://www.example.com/band7"_s), u"7"_s);
    EXPECT_EQ(TrailingNumber(u"http://www.example.com/ann"_s), QString());
}

TEST(IdTexts, TheFirstNumberInAText) {
    EXPECT_EQ(ExtractNumberFromString(u"showing 20 of 35"_s), 20);
    EXPECT_EQ(ExtractNumberFromString(u"none"_s), 0);
    EXPECT_THROW(ExtractNumberFromString(u"99999999999"_s), std::overflow_error);
}

TEST(IdTexts, AScriptValueEndsAtTheComma) {
    EXPECT_EQ(ScriptValue(u"{\"DisplayFriendId\":12345,\"x\":1}"_s, u"DisplayFriendId"_s), u"12345"_s);
    EXPECT_EQ(ScriptValue(u"DisplayFriendId:\"12\", y"_s, u"displayfriendid"_s), u"12"_s);
    EXPECT_EQ(ScriptValue(u"DisplayFriendId = 5,"_s, u"DisplayFriendId"_s), std::nullopt);
}

TEST(IdTexts, TheNameToShowWhileFetching) {
    EXPECT_EQ(NameToShow(u"Ann\nBonn"_s, u"ann"_s), u"Ann"_s);
    EXPECT_EQ(NameToShow(u"\nBonn"_s, u"ann"_s), u"Bonn"_s);
    EXPECT_EQ(NameToShow(u"Ann"_s, u"vanity"_s), u"Ann"_s);
    EXPECT_EQ(NameToShow(u"  "_s, u"vanity"_s), u"vanity"_s);
}

class IdResolutionTest : public SimulatedProgram {
protected:
    IdResolutionTest() { app->state.blnNewLayout = true; }
    QString Resolve() {
        return app->Get<IdResolution>().GetFriendIDFromLink(app->WebBrowser1().Document().Links().front());
    }
    bool Panel() { return app->controls["ucpanelFullGatherIDNotify"_L1].visible; }
};

TEST_F(IdResolutionTest, TheKeyIsFoundInAnyCase) {
    EXPECT_EQ(app->Get<IdResolution>().ExtractFriendID(u"http://x/index.cfm?FriendID=123&y=2"_s), u"123"_s);
}

TEST_F(IdResolutionTest, InTheNewLayoutTheMessageAddressNamesTheIDToo) {
    EXPECT_EQ(app->Get<IdResolution>().ExtractFriendID(u"http://x/my/mail/new?t=55"_s), u"55"_s);
    app->state.blnNewLayout = false;
    EXPECT_EQ(app->Get<IdResolution>().ExtractFriendID(u"http://x/my/mail/new?t=55"_s), QString());
}

TEST_F(IdResolutionTest, ANumericAddress) {
    Show(u"http://www.example.com/list"_s, u"<p><a href='http://www.example.com/4711'>Ann</a></p>"_s);
    EXPECT_EQ(Resolve(), u"4711"_s);
}

TEST_F(IdResolutionTest, ANumericAddressThatLeadsBackIsNone) {
    Show(u"http://www.example.com/list"_s,
         u"<p><a href='http://www.example.com/4711'>Back to Profile</a></p>"_s);
    EXPECT_EQ(Resolve(), QString());
}

TEST_F(IdResolutionTest, TheMarkupBesideTheLinkInTheBrowseForm) {
    Show(
        u"http://www.example.com/browse/people"_s,
        u"<div><i data='friendid:12345,n:1'></i><p><a href='http://www.example.com/ann'>Ann</a></p></div>"_s);
    EXPECT_EQ(Resolve(), u"12345"_s);
}

// The routes from a link to a number, in the order in which they are tried.
class IdRoute : public IdResolutionTest {
protected:
    IdRoute() {
        StartOn(world.deploymentText + u"SiteDomain=example.com\nMessagingHost=mail.example.com\n"
                                       "VideoHost=vids.example.com\n"_s);
        app->state.blnNewLayout = true;
    }
    QString Id(const QString& path, const QString& body) {
        Show(path.startsWith(u"http"_s) ? path : u"http://www.example.com"_s + path, body);
        return Resolve();
    }
    static QString To(const QString& href) { return u"<a href='"_s + href + u"'>Ann</a>"_s; }
    const QString Vanity = To(u"http://www.example.com/ann"_s);
};

TEST_F(IdRoute, TheAddressItself) {
    EXPECT_EQ(Id(u"/x"_s, To(u"http://y/?FriendID=12&channelID=3"_s)), u"12"_s);
    EXPECT_EQ(Id(u"/x"_s, To(u"http://vids.example.com/?friendID=12&ChannelID=3"_s)), u"3"_s);
    EXPECT_EQ(Id(u"/x"_s, To(u"http://y/my/mail/new?t=44"_s)), u"44"_s);
}

TEST_F(IdRoute, TheMarkupAroundTheLink) {
    EXPECT_EQ(Id(u"/x"_s, u"<div><i class='friendid77 b'></i><p>"_s + Vanity), u"77"_s);
    // What the address says counts for more.
    EXPECT_EQ(Id(u"/x"_s, u"<div><i class='friendid77 b'></i><p>"_s + To(u"http://y/?friendID=12"_s)),
              u"12"_s);
}

TEST_F(IdRoute, ItsFormOnBrowseAndNotificationsPages) {
    const QString body = u"<div><i data='friendid:55,n:1'></i><p>"_s + Vanity;
    EXPECT_EQ(Id(u"/my/notifications"_s, body), u"55"_s);
    EXPECT_EQ(Id(u"/browse/people"_s, body), u"55"_s);
    EXPECT_EQ(Id(u"/x"_s, body), QString());
    EXPECT_EQ(Id(u"/browse/people"_s, u"<div><i data='friendid:55'></i><p>"_s + Vanity), QString());
    EXPECT_EQ(Id(u"/browse/people"_s, u"<div><i data='friendid,55'></i><p>"_s + Vanity), QString());
}

TEST_F(IdRoute, TheNumericAddress) {
    EXPECT_EQ(Id(u"/x"_s, To(u"http://www.example.com/66/"_s)), QString());
    EXPECT_EQ(Id(u"/x"_s, To(u"http://www.example.com/66"_s)), u"66"_s);
    EXPECT_EQ(Id(u"/x"_s, To(u"http://www.example.com/a/66"_s)), QString());
    EXPECT_EQ(Id(u"/x"_s, To(u"http://other.example.com/66"_s)), QString());
    EXPECT_EQ(Id(u"/x"_s, u"<a href='http://www.example.com/66'>Back to Ann</a>"_s), QString());
}

TEST_F(IdRoute, ThePendingRequestsLinkToWriteTo) {
    const QString pending = u"http://mail.example.com/index.cfm?fuseaction=mail.pendingfriendrequests"_s;
    const QString message = u"http://mail.example.com/index.cfm?fuseaction=mail.message"_s;
    auto body = [&](const QString& words, const QString& address) {
        return u"<div>"_s + words + u"<p>"_s + Vanity + u"<i title='"_s + address +
               u"&friendid88&x'></i></p></div>"_s;
    };
    EXPECT_EQ(Id(pending, body(u"Currently awaiting approval from"_s, message)), u"88"_s);
    EXPECT_EQ(Id(u"/x"_s, body(u"Currently awaiting approval from"_s, message)), QString());
    EXPECT_EQ(Id(pending, body(u"Approved by"_s, message)), QString());
    EXPECT_EQ(Id(pending, body(u"Currently awaiting approval from"_s, u"http://y/"_s)), QString());
}

TEST_F(IdRoute, TheChartsButton) {
    auto body = [&](const QString& mark) {
        return u"<div><i class='"_s + mark + u"' title='friendid99 '></i><div><p>"_s + Vanity;
    };
    EXPECT_EQ(Id(u"/music/charts/songs"_s, body(u"chartArtistAddToFriend"_s)), u"99"_s);
    EXPECT_EQ(Id(u"/x"_s, body(u"chartArtistAddToFriend"_s)), QString());
    EXPECT_EQ(Id(u"/music/charts/songs"_s, body(u"other"_s)), QString());
}

TEST_F(IdRoute, TheProfileItself) {
    world.web.SetPage(u"http://www.example.com/ann"_s,
                      u"<html><body><script>a={\"DisplayFriendId\":99001,x}</script></body></html>"_s);
    EXPECT_EQ(Id(u"/x"_s, Vanity), QString());
    app->controls.SetTicked("optFullGather"_L1, true);
    EXPECT_EQ(Id(u"/x"_s, To(u"http://www.example.com/ann/b"_s)), QString());
    EXPECT_EQ(Id(u"/x"_s, Vanity), u"99001"_s);
    app->controls.SetTicked("optQuickGather"_L1, true);
    app->controls.SetTicked("optImportClickedProfiles"_L1, true);
    EXPECT_EQ(Id(u"/x"_s, Vanity), u"99001"_s);
    app->controls.SetTicked("optScanFollowing"_L1, true);
    app->state.CurrentAction = u"ACC"_s;
    EXPECT_EQ(Id(u"/x"_s, Vanity), u"99001"_s);
    EXPECT_EQ(app->controls.Text("ucpanelFullGatherIDNotify"_L1), u"Accepting Friend Requests"_s);
}

TEST_F(IdResolutionTest, QuickGatherLeavesAVanityLinkAloneWithoutANotice) {
    Show(u"http://www.example.com/list"_s, u"<p><a href='http://www.example.com/ann'>Ann</a></p>"_s);
    int shown = 0;
    app->controls.AddListener([&](const Control& control, Controls::Change, int) {
        shown += control.name == "ucpanelFullGatherIDNotify"_L1 && control.visible;
    });
    app->controls.SetVisible("ucpanelFullGatherIDNotify"_L1, false);
    EXPECT_EQ(Resolve(), QString());
    EXPECT_EQ(shown, 0);
}

TEST_F(IdResolutionTest, FullGatherFetchesTheProfileAndRemembersIt) {
    Show(u"http://www.example.com/list"_s, u"<p><a href='http://www.example.com/ann'>Ann</a></p>"_s);
    world.web.SetPage(u"http://www.example.com/ann"_s,
                      u"<html><body><script>a={\"DisplayFriendId\":1,x}</script>"
                      "<script>a={\"DisplayFriendId\":99001,x}</script></body></html>"_s);
    app->controls.SetTicked("optFullGather"_L1, true);
    EXPECT_EQ(Resolve(), u"99001"_s);
    EXPECT_EQ(app->state.lstAlreadyFullGatheredPageIDs, QStringList{u"http://www.example.com/ann"_s});
    EXPECT_EQ(app->controls.Text("lblFullGatherIDNotify"_L1),
              u"Gathering Ann's ID.\nPlease be patient.\n.........."_s);
    EXPECT_FALSE(Panel());
    EXPECT_EQ(app->webHide().LocationURL(), u"about:blank"_s);
}

TEST_F(IdResolutionTest, AProfileThatNeverNamesItsIDEndsAfterBothWaits) {
    Show(u"http://www.example.com/list"_s, u"<p><a href='http://www.example.com/ann'>Ann</a></p>"_s);
    world.web.SetPage(u"http://www.example.com/ann"_s, u"<html><body><p>nothing</p></body></html>"_s);
    app->controls.SetTicked("optFullGather"_L1, true);
    const qint64 startMs = platform->Pump().NowMs();
    EXPECT_EQ(Resolve(), QString());
    EXPECT_NEAR(static_cast<double>(platform->Pump().NowMs() - startMs), 45000.0, 500.0);
    EXPECT_TRUE(app->state.lstAlreadyFullGatheredPageIDs.isEmpty());
}

TEST_F(IdResolutionTest, TheProfilesOwnMessageLinkHelpsWhenItsScriptsDoNot) {
    Show(
        u"http://www.example.com/ann"_s,
        u"<p><a href='http://www.example.com/x'>x</a><a href='http://www.example.com/my/mail/new?t=321'>m</a></p>"_s);
    EXPECT_EQ(app->Get<IdResolution>().GetFriendIDFromDocument(u"WebBrowser1"_s, {}), u"321"_s);
}

TEST_F(IdResolutionTest, TheReportLinkHelpsWhenNoScriptNamesTheID) {
    Show(u"http://www.example.com/ann"_s,
         u"<p><a href='http://x.example.com/r?reportedUserId=654&amp;b=1'>x</a></p>"_s);
    EXPECT_EQ(app->Get<IdResolution>().GetDisplayFriendID(u"WebBrowser1"_s, {}), u"654"_s);
}

TEST_F(IdResolutionTest, TheReportLinkHelpsToWhenTheScriptNamesNoNumber) {
    Show(u"http://www.example.com/ann"_s,
         u"<script>a={\"DisplayFriendId\":none,x}</script>"
         "<p><a href='http://x.example.com/r?reportedUserId=654&amp;b=1'>x</a></p>"_s);
    EXPECT_EQ(app->Get<IdResolution>().GetDisplayFriendID(u"WebBrowser1"_s, {}), u"654"_s);
}

TEST_F(IdResolutionTest, AnIDOfThreeDigitsIsOne) {
    Show(u"http://www.example.com/ann"_s,
         u"<script>a={\"DisplayFriendId\":123,x}</script>"
         "<p><a href='http://www.example.com/my/mail/new?t=678'>Write</a></p>"_s);
    EXPECT_EQ(app->Get<IdResolution>().GetFriendIDFromDocument(u"WebBrowser1"_s, {}), u"123"_s);
}

TEST_F(IdResolutionTest, AnIDOfTwoDigitsIsNoneAndAnotherKeyIsAsked) {
    app->state.blnNewLayout = true;
    Show(u"http://www.example.com/ann"_s,
         u"<script>a={\"DisplayFriendId\":12,\"OwnerId\":345,\"b\":1}</script>"
         "<p><a href='http://www.example.com/my/mail/new?t=678'>Write</a></p>"_s);
    EXPECT_EQ(app->Get<IdResolution>().GetFriendIDFromDocument(u"WebBrowser1"_s, {}), u"678"_s);
    EXPECT_EQ(app->Get<IdResolution>().GetDisplayFriendID(u"WebBrowser1"_s, {}), u"12"_s);
    EXPECT_EQ(app->Get<IdResolution>().GetDisplayFriendID(u"WebBrowser1"_s, u"OwnerId"_s), u"345"_s);
}

TEST_F(IdResolutionTest, WhatIsAVanityAddress) {
    for (const QString& good : {u"http://www.example.com/ann"_s, u"http://www.example.com/123"_s,
                                u"http://www.example.com/music2"_s, u"http://www.example.com/missingann"_s})
        EXPECT_TRUE(IsVanityProfile(*app, good)) << good.toStdString();
    for (const QString& bad :
         {u"http://www.example.com/"_s, u"http://www.example.com/music"_s,
          u"http://www.example.com/Missing"_s, u"http://www.example.com/a/b"_s,
          u"http://www.example.com/a?b"_s, u"http://www.example.com/a#b"_s, u"http://other.example.com/ann"_s,
          u"http://www.example.com/sitemap2"_s, u"http://www.example.com/TrailerPark5"_s,
          u"http://www.example.com/xgetconnected"_s, u"http://www.example.com/MySpaceID"_s,
          u"http://www.example.com/myspacemobile1"_s, u"http://www.example.com/TodayOnMySpace"_s,
          u"http://www.example.com/pressroom"_s, u"https://www.example.com/ann"_s})
        EXPECT_FALSE(IsVanityProfile(*app, bad)) << bad.toStdString();
}

} // namespace
} // namespace qlm
