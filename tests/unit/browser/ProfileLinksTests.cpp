// SPDX-License-Identifier: MIT
#include "SimulatedProgram.h"
#include "browser/ProfileLinkRules.h"
#include "browser/ProfileLinks.h"

using namespace Qt::Literals::StringLiterals;

namespace qlm {
namespace {

// Which link of a page is one to a profile. The page's first link is the one in question.
class ProfileLinksTest : public SimulatedProgram {
protected:
    ProfileLinksTest() {
        StartOn(world.deploymentText +
                u"SiteDomain=example.com\nProfileHost=profile.example.com\n"
                "VideoHost=vids.example.com\nSearchServiceHost=search.example.com\n"
                "MessagingHost=mail.example.com\nLinkRedirectHost=links.example.com\n"_s);
        app->state.blnNewLayout = true;
    }
    void Show(const QString& path, const QString& body) {
        SimulatedProgram::Show(path.startsWith(u"http"_s) ? path : u"http://www.example.com"_s + path, body);
    }
    bool Judge(bool clicked = false) {
        app->state.blnRememberLink = true;
        return app->Get<ProfileLinks>().IsProfileLink(app->WebBrowser1().Document().Links().front(), clicked);
    }
    bool Judge(const QString& path, const QString& body, bool clicked = false) {
        Show(path, body);
        return Judge(clicked);
    }
    static QString Link(const QString& href, const QString& text = u"Ann"_s) {
        return u"<a href='"_s + href + u"'>"_s + text + u"</a>"_s;
    }
    const QString Ann = u"<a href='http://www.example.com/ann'>Ann</a>"_s;
};

TEST_F(ProfileLinksTest, OnAFriendsPageAMiniProfileIsWanted) {
    EXPECT_TRUE(Judge(u"/7/friends"_s, u"<div class=miniProfile><p>"_s + Ann + u"</p></div>"_s));
    EXPECT_TRUE(Judge(u"/7/friends/page/2"_s, u"<div><p>"_s + Ann + u" Send Message</p></div>"_s));
    EXPECT_FALSE(Judge(u"/7/friends"_s, u"<div><div><p>"_s + Ann + u"</p></div></div>"_s));
}

TEST_F(ProfileLinksTest, OnAFriendsPageSomeLinksOfAnEntryAreNone) {
    const QString open = u"<div class=miniProfile><p>"_s;
    EXPECT_FALSE(Judge(u"/7/friends"_s, open + Link(u"http://www.example.com/ann"_s, u"IM"_s)));
    EXPECT_FALSE(Judge(u"/7/friends"_s, open + Link(u"http://www.example.com/ann/photos"_s)));
    EXPECT_FALSE(Judge(u"/7/friends"_s, open + Link(u"http://www.example.com/ann?MySpace.CMS.track"_s)));
    EXPECT_FALSE(Judge(u"/7/friends"_s, open + Ann + QString(4100, u'x') + u"</p></div>"_s));
}

TEST_F(ProfileLinksTest, TopFriendsAreForgottenSoThatTheyCountWhereTheyStandAsFriends) {
    Show(u"/7/friends"_s, u"<div><div id=topFriendsList><ul><li>"_s + Ann + u"</li></ul></div></div>"_s);
    EXPECT_FALSE(Judge());
    EXPECT_FALSE(app->state.blnRememberLink);
    Show(u"/7/friends"_s, u"<div><div><ul><li>"_s + Ann + u"</li></ul></div></div>"_s);
    EXPECT_FALSE(Judge());
    EXPECT_TRUE(app->state.blnRememberLink);
}

TEST_F(ProfileLinksTest, ThePagesOwnRuleIsFinal) {
    // A vanity address would pass the generic recognition.
    EXPECT_FALSE(Judge(u"/browse/people"_s, u"<div><div><p>"_s + Ann + u"</p></div></div>"_s));
    EXPECT_TRUE(Judge(u"/browse/people"_s, u"<div class=miniProfile><p>"_s + Ann + u"</p></div>"_s));
    EXPECT_TRUE(
        Judge(u"/browse/people"_s, u"<div><p class='vcard containerlarge'>"_s + Ann + u"</p></div>"_s));
    // And no exclusion takes its yes back: a list item is one in the generic way.
    EXPECT_TRUE(
        Judge(u"/search/x"_s, u"<div class='media section'><ul><li>"_s + Ann + u"</li></ul></div>"_s));
    EXPECT_FALSE(Judge(u"/forums/t/1"_s, u"<div><div><p>"_s + Ann + u"</p></div></div>"_s));
    EXPECT_TRUE(
        Judge(u"/forums/t/1"_s, u"<a class=ForumPostUserName href='http://www.example.com/ann'>Ann</a>"_s));
}

TEST_F(ProfileLinksTest, AChartEntryHasANicknameAndAPicture) {
    EXPECT_TRUE(Judge(
        u"/music/charts/artists"_s,
        u"<div class=nickname><p><a class=artistImgFrame href='http://www.example.com/a'>x</a></p></div>"_s));
    EXPECT_FALSE(Judge(u"/music/charts/artists"_s, u"<div><p class=MOVERImage>"_s + Ann + u"</p></div>"_s));
    EXPECT_FALSE(app->state.blnRememberLink);
}

TEST_F(ProfileLinksTest, TheGenericRecognition) {
    const QString place = u"/any"_s;
    EXPECT_TRUE(Judge(place, Ann));
    EXPECT_TRUE(
        Judge(place, Link(u"http://profile.example.com/index.cfm?fuseaction=user.viewprofile&friendID=1"_s)));
    EXPECT_TRUE(Judge(place, Link(u"http://vids.example.com/index.cfm?ChannelID=1"_s)));
    EXPECT_FALSE(Judge(place, Link(u"http://other.example.com/index.cfm?ChannelID=1"_s)));
    EXPECT_FALSE(Judge(place, Link(u"http://links.example.com/?http://www.example.com/ann"_s)));
    EXPECT_TRUE(Judge(u"http://search.example.com/x"_s, Link(u"http://y.example.com/viewMorePics?x"_s)));
}

TEST_F(ProfileLinksTest, AProfileMarkInASmallBlockIsEnough) {
    auto block = [](const QString& mark, const QString& filler) {
        return u"<div><span><i friendID=3></i><em><i class="_s + mark + u"></i>"_s +
               Link(u"http://y.example.com/q"_s) + u"</em></span>"_s + filler + u"</div>"_s;
    };
    EXPECT_TRUE(Judge(u"/any"_s, block(u"msProfileLink"_s, {})));
    EXPECT_FALSE(Judge(u"/any"_s, block(u"otherLink"_s, {})));
    EXPECT_FALSE(Judge(u"/any"_s, block(u"msProfileLink"_s, QString(700, u'x'))));
}

TEST_F(ProfileLinksTest, TheExclusions) {
    const QString place = u"/any"_s;
    const QString href = u"http://www.example.com/ann"_s;
    EXPECT_FALSE(Judge(place, Link(href, u"<small>Ann</small>"_s)));
    EXPECT_FALSE(Judge(place, Link(href, u"im"_s)));
    EXPECT_FALSE(Judge(place, Link(href, u"Go to Ann"_s)));
    EXPECT_FALSE(Judge(place, Link(href, u"<< Back to Profile"_s)));
    EXPECT_FALSE(
        Judge(place, Link(u"http://profile.example.com/?fuseaction=user.viewprofile&friendID=6221"_s)));
    EXPECT_FALSE(Judge(place, u"<a class=thinlink href='"_s + href + u"'>Ann</a>"_s));
    EXPECT_FALSE(Judge(place, u"<p>You have denied a friend request from "_s + Ann + u"</p>"_s));
    EXPECT_FALSE(Judge(place, u"<div>More friends<p>"_s + Ann + u"</p></div>"_s));
    EXPECT_FALSE(Judge(place, u"<ul><li>"_s + Ann + u"</li></ul>"_s));
    EXPECT_FALSE(Judge(place, u"<p class=gblsubMenu>"_s + Ann + u"</p>"_s));
    EXPECT_TRUE(Judge(place, u"<p class=GBLSUBMENU>"_s + Ann + u"</p>"_s));
    EXPECT_FALSE(Judge(place, u"<div data-category=Recommended><b><i>"_s + Ann + u"</i></b></div>"_s));
    EXPECT_FALSE(Judge(place, u"<div data-category=fe><b><i>"_s + Ann + u"</i></b></div>"_s));
    EXPECT_TRUE(Judge(place, u"<div data-category=feed><b><i>"_s + Ann + u"</i></b></div>"_s));
}

// How long a piece of markup may be, to the character.
TEST_F(ProfileLinksTest, TheLengthsThatDecide) {
    auto padded = [this](const QString& path, const QString& body, int ancestor, ElementText which,
                         qsizetype length) {
        Show(path, body.arg(QString()));
        const Element link = app->WebBrowser1().Document().Links().front();
        Show(path, body.arg(QString(length - link.Ancestor(ancestor).Read(which).size(), u'x')));
        EXPECT_EQ(app->WebBrowser1().Document().Links().front().Ancestor(ancestor).Read(which).size(),
                  length);
        return Judge();
    };
    const QString friends = u"<div class=miniProfile><p>"_s + Ann + u"%1</p></div>"_s;
    EXPECT_TRUE(padded(u"/7/friends"_s, friends, 1, ElementText::OuterHTML, 4000));
    EXPECT_FALSE(padded(u"/7/friends"_s, friends, 1, ElementText::OuterHTML, 4001));
    const QString marked = u"<div><span><i friendID=3></i><em><i class=msProfileLink></i>"_s +
                           Link(u"http://y.example.com/q"_s) + u"</em></span>%1</div>"_s;
    EXPECT_TRUE(padded(u"/any"_s, marked, 3, ElementText::InnerHTML, 649));
    EXPECT_FALSE(padded(u"/any"_s, marked, 3, ElementText::InnerHTML, 650));
    const QString tracked = u"<p><a class=MySpace.CMS.track href='http://www.example.com/ann'>%1</a></p>"_s;
    EXPECT_FALSE(padded(u"/any"_s, tracked, 0, ElementText::OuterHTML, 199));
    EXPECT_TRUE(padded(u"/any"_s, tracked, 0, ElementText::OuterHTML, 200));
}

TEST_F(ProfileLinksTest, TopFriendsStandBeforePositionFourHundred) {
    auto remembered = [this](qsizetype position) {
        const QString open = u"<div title=\""_s;
        Show(u"/7/friends"_s, u"<div>"_s + open + QString(position - 1 - open.size(), u'x') +
                                  u"topFriendsList\"><ul><li>"_s + Ann + u"</li></ul></div></div>"_s);
        const Element list = app->WebBrowser1().Document().Links().front().Ancestor(3);
        EXPECT_EQ(list.OuterHTML().indexOf(u"topFriendsList"_s) + 1, position);
        EXPECT_FALSE(Judge());
        return app->state.blnRememberLink;
    };
    EXPECT_FALSE(remembered(399));
    EXPECT_TRUE(remembered(400));
}

TEST_F(ProfileLinksTest, AMediaBlockIsForgotten) {
    EXPECT_FALSE(Judge(u"/any"_s, u"<div class=mediablock><b><i>"_s + Ann + u"</i></b></div>"_s));
    EXPECT_FALSE(app->state.blnRememberLink);
    // Also when another exclusion has settled the answer before.
    EXPECT_FALSE(Judge(u"/any"_s, u"<div class=mediablock><b><i>"_s +
                                      Link(u"http://www.example.com/ann"_s, u"IM"_s) + u"</i></b></div>"_s));
    EXPECT_FALSE(app->state.blnRememberLink);
}

TEST_F(ProfileLinksTest, AClickedLinkIsNotExcluded) {
    EXPECT_TRUE(Judge(u"/any"_s, u"<ul><li>"_s + Ann + u"</li></ul>"_s, true));
    EXPECT_FALSE(Judge(u"/any"_s, Link(u"http://www.example.com/music"_s), true));
}

TEST_F(ProfileLinksTest, InTheOldLayoutOnlyTheGenericRulesCount) {
    app->state.blnNewLayout = false;
    EXPECT_TRUE(Judge(u"/7/friends"_s, u"<div><div><p>"_s + Ann + u"</p></div></div>"_s));
    EXPECT_TRUE(Judge(u"/any"_s, u"<ul><li>"_s + Ann + u"</li></ul>"_s));
}

TEST_F(ProfileLinksTest, CountsDifferentAddresses) {
    Show(u"/any"_s,
         Ann + Ann + Link(u"http://www.example.com/bob"_s) + Link(u"http://www.example.com/music"_s));
    EXPECT_EQ(app->Get<ProfileLinks>().CountProfileLinks(), 2);
}

TEST_F(ProfileLinksTest, CountsImagesAndVideosInTheirOwnWay) {
    Show(u"/any"_s, Link(u"http://y.example.com/?friendID=1"_s, u"<img src=a>"_s) +
                        Link(u"http://y.example.com/?friendID=2"_s) +
                        Link(u"http://y.example.com/?ChannelID=3"_s));
    EXPECT_EQ(app->Get<ProfileLinks>().CountProfileLinks(u"images"_s), 1);
    EXPECT_EQ(app->Get<ProfileLinks>().CountProfileLinks(u"video"_s), 1);
}

} // namespace
} // namespace qlm
