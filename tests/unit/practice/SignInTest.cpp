// SPDX-License-Identifier: MIT
#include "SiteClient.h"

namespace qlm::practice {
namespace {

const QString home = u"http://home.myspace.example.com/index.cfm?fuseaction=home"_s;

TEST(SignIn, EveryWayInShowsTheFormToWhoIsSignedOut) {
    for (const QString& url : {SiteClient::root + u"/"_s, SiteClient::root + u"/home"_s, home,
                               u"http://login.myspace.example.com/index.cfm?fuseaction=login"_s}) {
        SiteClient client;
        const QString page = client.Text(url);
        EXPECT_TRUE(Holds(page, u"Forgot your password?"_s)) << url.toStdString();
        EXPECT_TRUE(Holds(page, u"sign up"_s));
        EXPECT_TRUE(Holds(page, u"id=\"ctl00_Main_Email_Textbox\""_s));
        EXPECT_TRUE(Holds(page, u"id=\"ctl00_Main_Password_Textbox\""_s));
        EXPECT_TRUE(Holds(page, u"<input type=\"submit\" class=\"button\" id=\"ctl00_Main_loginBtn\""_s));
        EXPECT_FALSE(page.contains(u"signout"_s));
        EXPECT_FALSE(page.contains(u"UserId"_s));
    }
}

TEST(SignIn, TheRightPasswordOpensASessionForTheWholeDomain) {
    SiteClient client;
    const Response answer = client.SignIn(" A@Example.com ");
    EXPECT_EQ(answer.status, 302);
    EXPECT_EQ(SiteClient::Header(answer, u"Location"_s), home);
    EXPECT_TRUE(Holds(SiteClient::Header(answer, u"Set-Cookie"_s), u"Domain=.myspace.example.com"_s));
    EXPECT_EQ(client.site.Journal(), QStringList{u"signed-in a@example.com 900001"_s});
}

TEST(SignIn, TheHomePageShowsTheOwnIdAndNoLoginWords) {
    SiteClient client;
    client.SignIn();
    for (const QString& url : {SiteClient::root + u"/"_s, SiteClient::root + u"/home"_s, home}) {
        const QString page = client.Text(url);
        EXPECT_TRUE(Holds(page, u"\"UserId\":900001,"_s));
        EXPECT_TRUE(Holds(page, u"/signout?"_s));
        EXPECT_TRUE(Holds(page, u"http://www.myspace.example.com/900001/friends"_s));
        EXPECT_FALSE(page.contains(u"password?"_s, Qt::CaseInsensitive));
        EXPECT_FALSE(page.contains(u"sign up"_s, Qt::CaseInsensitive));
        EXPECT_FALSE(page.contains(u"View My:"_s));
    }
}

TEST(SignIn, AWrongPasswordShowsTheFormAgain) {
    SiteClient client;
    const Response answer = client.SignIn("a@example.com", "wrong");
    EXPECT_EQ(answer.status, 200);
    EXPECT_TRUE(Holds(QString::fromUtf8(answer.body), u"forgot your password?"_s));
    EXPECT_EQ(client.cookie, QString());
    EXPECT_EQ(client.site.Journal(), QStringList{u"wrong-password a@example.com"_s});
}

TEST(SignIn, SigningOutEndsTheSessionAndOffersTheForm) {
    SiteClient client;
    client.SignIn();
    const QString session = client.cookie;
    const QString page = client.Text(SiteClient::root + u"/signout?id=900001"_s);
    EXPECT_TRUE(Holds(page, u"sign up"_s));
    EXPECT_TRUE(Holds(page, u"forgot your password?"_s));
    client.cookie = session;
    EXPECT_TRUE(Holds(client.Text(home), u"forgot your password?"_s));
    EXPECT_EQ(client.site.Journal().last(), u"signed-out a@example.com 900001"_s);
}

TEST(SignIn, TwoBrowsersHoldTheirOwnSessions) {
    SiteClient client;
    client.SignIn("a@example.com");
    const QString first = client.cookie;
    client.cookie.clear();
    client.SignIn("b@example.com");
    EXPECT_TRUE(Holds(client.Text(home), u"\"UserId\":900002,"_s));
    client.cookie = first;
    EXPECT_TRUE(Holds(client.Text(home), u"\"UserId\":900001,"_s));
}

TEST(SignIn, AMailThatIsMarkupStaysText) {
    SiteClient client;
    client.Control(u"account <b>x</b>&y@example.com secret 900050"_s);
    client.SignIn("%3Cb%3Ex%3C%2Fb%3E%26y%40example.com");
    const QString page = client.Text(home);
    EXPECT_TRUE(Holds(page, u"&lt;b&gt;x&lt;/b&gt;&amp;y@example.com"_s));
    EXPECT_FALSE(page.contains(u"<b>x"_s));
}

} // namespace
} // namespace qlm::practice
