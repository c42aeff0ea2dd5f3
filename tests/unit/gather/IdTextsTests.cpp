// SPDX-License-Identifier: MIT
#include "SimulatedProgram.h"
#include "gather/IdResolution.h"
#include "gather/ProfileLinkRules.h"

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

TEST(IdTexts, TheLastPart) {
    EXPECT_EQ(LastPart(u"http://www.example.com/music/charts/songs"_s, u"/"_s), u"songs"_s);
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
    void Show(const QString& url, const QString& body) {
        world.web.SetPage(url, u"<html><body>"_s + body + u"</body></html>"_s);
        app->WebBrowser1().Navigate(url);
        platform->Pump().RunFor(1000);
    }
    QString Resolve() {
        return app->idResolution->GetFriendIDFromLink(app->WebBrowser1().Document().Links().front());
    }
    bool Panel() { return app->controls["ucpanelFullGatherIDNotify"_L1].visible; }
};

TEST_F(IdResolutionTest, TheKeyIsFoundInAnyCase) {
    EXPECT_EQ(app->idResolution->ExtractFriendID(u"http://x/index.cfm?FriendID=123&y=2"_s), u"123"_s);
}

TEST_F(IdResolutionTest, InTheNewLayoutTheMessageAddressNamesTheIDToo) {
    EXPECT_EQ(app->idResolution->ExtractFriendID(u"http://x/my/mail/new?t=55"_s), u"55"_s);
    app->state.blnNewLayout = false;
    EXPECT_EQ(app->idResolution->ExtractFriendID(u"http://x/my/mail/new?t=55"_s), QString());
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
    EXPECT_EQ(app->idResolution->GetFriendIDFromDocument(u"WebBrowser1"_s, {}), u"321"_s);
}

TEST_F(IdResolutionTest, TheReportLinkHelpsWhenNoScriptNamesTheID) {
    Show(u"http://www.example.com/ann"_s,
         u"<p><a href='http://x.example.com/r?reportedUserId=654&amp;b=1'>x</a></p>"_s);
    EXPECT_EQ(app->idResolution->GetDisplayFriendID(u"WebBrowser1"_s, {}), u"654"_s);
}

TEST_F(IdResolutionTest, WhatIsAVanityAddress) {
    for (const QString& good : {u"http://www.example.com/ann"_s, u"http://www.example.com/123"_s})
        EXPECT_TRUE(IsVanityProfile(*app, good)) << good.toStdString();
    for (const QString& bad :
         {u"http://www.example.com/"_s, u"http://www.example.com/music"_s,
          u"http://www.example.com/Missing"_s, u"http://www.example.com/a/b"_s,
          u"http://www.example.com/a?b"_s, u"http://www.example.com/a#b"_s, u"http://other.example.com/ann"_s,
          u"http://www.example.com/sitemap2"_s, u"https://www.example.com/ann"_s})
        EXPECT_FALSE(IsVanityProfile(*app, bad)) << bad.toStdString();
}

} // namespace
} // namespace qlm
