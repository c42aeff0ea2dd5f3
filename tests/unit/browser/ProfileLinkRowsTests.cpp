// SPDX-License-Identifier: MIT
#include "SimulatedProgram.h"
#include "browser/ProfileLinkRules.h"
#include "browser/ProfileLinks.h"

using namespace Qt::Literals::StringLiterals;

namespace qlm {
namespace {

const QString Ann = u"<a href='http://www.example.com/ann'>Ann</a>"_s;

QString Link(const QString& inside, const QString& attributes = {}) {
    return u"<a "_s + attributes + u" href='http://www.example.com/ann'>"_s + inside + u"</a>"_s;
}

QString Profile(const QString& id) {
    return u"<a href='http://profile.example.com/index.cfm?fuseaction=user.viewprofile&friendID="_s + id +
           u"'>Ann</a>"_s;
}

// A page and what becomes of its first link; "remembered" is asked only where a row has a say in it.
struct Row {
    QString name;
    QString address;
    QString body;
    bool wanted;
    bool newLayout = true;
    bool remembered = true;
};

void PrintTo(const Row& row, std::ostream* stream) {
    *stream << row.name.toStdString();
}

class ProfileLinkRow : public SimulatedProgram, public testing::WithParamInterface<Row> {
protected:
    ProfileLinkRow() {
        StartOn(world.deploymentText +
                u"SiteDomain=example.com\nProfileHost=profile.example.com\n"
                "VideoHost=vids.example.com\nSearchServiceHost=search.example.com\n"
                "MessagingHost=mail.example.com\nLinkRedirectHost=links.example.com\n"_s);
    }
};

TEST_P(ProfileLinkRow, Decides) {
    const Row& row = GetParam();
    app->state.blnNewLayout = row.newLayout;
    const QString url =
        row.address.startsWith(u"http"_s) ? row.address : u"http://www.example.com"_s + row.address;
    world.web.SetPage(url, u"<html><body>"_s + row.body + u"</body></html>"_s);
    app->WebBrowser1().Navigate(url);
    platform->Pump().RunFor(1000);
    JudgedLink link(*app, app->WebBrowser1().Document().Links().front());
    EXPECT_EQ(app->Get<ProfileLinks>().IsProfileLink(link, false), row.wanted);
    EXPECT_EQ(link.remember, row.remembered);
}

// Who waits for an answer, with a link to write to her.
const QString Pending = u"<div>Currently awaiting approval from<p><a href='http://y.example.com/q'>Ann</a>"
                        "<a href='http://mail.example.com/index.cfm?fuseaction=mail.message&friendID=5'>m</a>"
                        "</p></div>"_s;
const QString Chart = u"/music/charts/artists"_s;

// Pages that two rows of the first stage would take: the upper one decides.
INSTANTIATE_TEST_SUITE_P(
    PageRules, ProfileLinkRow,
    testing::Values(
        Row{u"friends before browse"_s, u"/browse/friends"_s,
            u"<div><p class='vcard containerlarge'>"_s + Ann, false},
        Row{u"browse before charts"_s, u"/browse?x=.example.com/music/charts"_s,
            u"<div class=miniProfile><p>"_s + Ann, true},
        Row{u"charts before search"_s, u"/music/charts/search/x"_s,
            u"<div class='media section'><div><p>"_s + Ann, false},
        Row{u"a friend of that name"_s, u"/7/friends"_s, u"<div class=miniProfile><p>"_s + Link(u"Im"_s),
            true},
        Row{u"search before forums"_s, u"/forums/t/search/x"_s,
            u"<div><div><p>"_s + Link(u"Ann"_s, u"class=ForumPostUserName"_s), false},
        Row{u"comments as friends"_s, u"/7/comments"_s, u"<div class=miniProfile><p>"_s + Ann, true},
        Row{u"comments without a mark"_s, u"/7/comments"_s, u"<div><div><p>"_s + Ann, false},
        Row{u"notifications as friends"_s, u"/my/Notifications"_s,
            u"<div><p>"_s + Ann + u" Send Message</p>"_s, true},
        Row{u"a chart's picture without a nickname"_s, Chart,
            u"<div><p>"_s + Link(u"Ann"_s, u"class=artistImgFrame"_s), false},
        Row{u"a chart's nickname without a picture"_s, Chart, u"<div class=nickname><p>"_s + Ann, false},
        Row{u"top friends too far down"_s, u"/7/friends"_s,
            u"<div class=topFriendsList><div title='"_s + QString(390, u'x') + u"topFriendsList'><ul><li>"_s +
                Ann,
            false},
        Row{u"top friends"_s, u"/7/friends"_s,
            u"<div><div title='"_s + QString(300, u'x') + u"topFriendsList'><ul><li>"_s + Ann, false, true,
            false}));

// Each is a profile by its own row alone.
INSTANTIATE_TEST_SUITE_P(
    Recognition, ProfileLinkRow,
    testing::Values(
        Row{u"old address"_s, u"/any"_s, Profile(u"1"_s), true},
        Row{u"old address elsewhere"_s, u"/any"_s,
            u"<a href='http://other.example.com/index.cfm?fuseaction=user.viewprofile&friendID=1'>Ann</a>"_s,
            false},
        Row{u"channel"_s, u"/any"_s, u"<a href='http://vids.example.com/x?ChannelID=1'>Ann</a>"_s, true},
        Row{u"pictures in a search"_s, u"http://search.example.com/x"_s,
            u"<a href='http://y.example.com/viewMorePics?x'>Ann</a>"_s, true},
        Row{u"pictures elsewhere"_s, u"/any"_s, u"<a href='http://y.example.com/viewMorePics?x'>Ann</a>"_s,
            false},
        Row{u"marked"_s, u"/any"_s,
            u"<div><p friendid=3><i class=msProfileLink><a href='http://y.example.com/q'>Ann</a></i></p></div>"_s,
            false},
        Row{u"marked around"_s, u"/any"_s,
            u"<div><p><b friendid=3></b><i><u class=msProfileLink></u>"
            "<a href='http://y.example.com/q'>Ann</a></i></p></div>"_s,
            true},
        Row{u"pending request"_s,
            u"http://mail.example.com/index.cfm?fuseaction=mail.pendingfriendrequests"_s, Pending, true},
        Row{u"pending request elsewhere"_s, u"/any"_s, Pending, false},
        Row{u"vanity"_s, u"/any"_s, Ann, true},
        Row{u"redirected"_s, u"/any"_s,
            u"<a href='http://links.example.com/?http://www.example.com/ann'>Ann</a>"_s, false},
        Row{u"no address at all"_s, u"/any"_s, u"<a name=x>x</a><a href=''>y</a>"_s, true}));

const QString Old = u"/index.cfm?fuseaction=user.viewfriends"_s;

// Each is a vanity link, or an old address, that its own row alone refuses.
INSTANTIATE_TEST_SUITE_P(
    Exclusions, ProfileLinkRow,
    testing::Values(
        Row{u"small"_s, u"/any"_s, Link(u"<small>Ann</small>"_s), false},
        Row{u"real name"_s, Old, Link(u"<i class=pilRealName>Ann</i>"_s), false},
        Row{u"real name elsewhere"_s, u"/any"_s, Link(u"<i class=pilRealName>Ann</i>"_s), true},
        Row{u"back to profile"_s, u"/any"_s, Link(u"Now Back to Profile"_s), false},
        Row{u"instant message"_s, u"/any"_s, Link(u"im"_s), false},
        Row{u"the founder"_s, u"/any"_s, Profile(u"6221"_s), false},
        Row{u"people you may know"_s, u"/any"_s, Link(u"Ann"_s, u"class=Pymk"_s), false},
        Row{u"thin link"_s, u"/any"_s, Link(u"Ann"_s, u"class=thinlink"_s), false},
        Row{u"back to"_s, u"/any"_s, Link(u"Back to Ann"_s), false},
        Row{u"go to"_s, u"/any"_s, Link(u"Go to Ann"_s), false},
        Row{u"not at the beginning"_s, u"/any"_s, Link(u"Come, go to Ann"_s), true},
        Row{u"denied"_s, u"/any"_s, u"<p>You have denied a friend request from "_s + Ann, false},
        Row{u"song without its button"_s, u"/music/charts/songs"_s, u"<div><p>"_s + Ann, false, false},
        Row{u"song"_s, u"/music/charts/songs"_s, u"<div><b>Add song to playlist</b><p>"_s + Ann, true, false},
        Row{u"album without its mark"_s, u"/music/charts/albums"_s, u"<div><p>"_s + Ann, false, false},
        Row{u"album"_s, u"/music/charts/albums"_s, u"<div class=chartAlbum-1><p>"_s + Ann, true, false},
        Row{u"third chart without a duration"_s, u"/music/charts/3"_s, u"<div><p>"_s + Ann, false, false},
        Row{u"third chart"_s, u"/music/charts/3"_s, u"<div><p>Duration: 3:00 "_s + Ann, true, false},
        Row{u"chart furniture"_s, Chart, u"<div><p>"_s + Ann, false, false, false},
        Row{u"chart furniture behind another"_s, Chart, u"<div><p>"_s + Link(u"im"_s), false, false, false},
        Row{u"chart artist"_s, Chart, u"<div class=artistImg><p>"_s + Ann, true, false},
        Row{u"chart artist one level further up"_s, Chart, u"<div class=artistImg><div><p>"_s + Ann, false,
            false, false},
        Row{u"added by friends"_s, Chart, u"<div>Added by your friends<div><div><div><div><div><p>"_s + Ann,
            true, false},
        Row{u"more"_s, u"/any"_s, u"<div>More friends<p>"_s + Ann, false},
        Row{u"more in small letters"_s, u"/any"_s, u"<div>more friends<p>"_s + Ann, true},
        Row{u"listening in small letters"_s, u"/x?a&type=Music&b"_s,
            u"<div>your friends are listening to<div><div><p>"_s + Ann, true},
        Row{u"listening"_s, u"/x?a&type=Music&b"_s,
            u"<div>Your Friends are Listening to<div><div><p>"_s + Ann, false},
        Row{u"listening elsewhere"_s, u"/any"_s, u"<div>Your Friends are Listening to<div><div><p>"_s + Ann,
            true},
        Row{u"tracked"_s, u"/any"_s, Link(u"Ann"_s, u"class=MySpace.CMS.track"_s), false},
        Row{u"tracked but long"_s, u"/any"_s, Link(QString(200, u'x'), u"class=MySpace.CMS.track"_s), true},
        Row{u"foot"_s, u"/any"_s, u"<div class=footertools><div><div><p>"_s + Ann, false},
        Row{u"foot in capitals"_s, u"/any"_s, u"<div class=FooterTools><div><div><p>"_s + Ann, true},
        Row{u"menu"_s, u"/any"_s, u"<div><p class=gblsubMenu>"_s + Ann, false},
        Row{u"new window on friends"_s, u"/7/friends"_s, u"<div><p>"_s + Link(u"Ann"_s, u"target=_blank"_s),
            false, false},
        Row{u"new window on a friends page"_s, u"/7/friends/2"_s,
            u"<div><p>"_s + Link(u"Ann"_s, u"target=_blank"_s), false, false},
        Row{u"new window elsewhere"_s, u"/any"_s, u"<div><p>"_s + Link(u"Ann"_s, u"target=_blank"_s), true,
            false},
        Row{u"list item"_s, u"/any"_s, u"<ul><li>"_s + Ann, false},
        Row{u"in a list item"_s, u"/any"_s, u"<ul><li><p>"_s + Ann, false},
        Row{u"list item of old"_s, u"/any"_s, u"<ul><li>"_s + Ann, true, false},
        Row{u"media block"_s, u"/any"_s, u"<div class=mediablock><div><p>"_s + Ann, false, true, false},
        Row{u"media block behind another"_s, u"/any"_s, u"<div class=mediablock><div><p>"_s + Link(u"im"_s),
            false, true, false},
        Row{u"recommended"_s, u"/any"_s, u"<div data-category=RECommended><div><div><div><p>"_s + Ann, false},
        Row{u"recommended nearer"_s, u"/any"_s, u"<div data-category=rec><p>"_s + Ann, false},
        Row{u"recommended too near"_s, u"/any"_s, u"<div><p data-category=rec>"_s + Ann, true},
        Row{u"fe"_s, u"/any"_s, u"<div data-category=FE><div><p>"_s + Ann, false},
        Row{u"feed"_s, u"/any"_s, u"<div data-category=feed><div><p>"_s + Ann, true}));

} // namespace
} // namespace qlm
