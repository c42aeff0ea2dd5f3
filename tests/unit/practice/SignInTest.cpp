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

struct DesignMarks {
    const char16_t* design;
    const char16_t* field;
    const char16_t* button;
    bool fieldsByName;
};

void PrintTo(const DesignMarks& marks, std::ostream* out) {
    *out << QString::fromUtf16(marks.design).toStdString();
}

class SignInDesigns : public testing::TestWithParam<DesignMarks> {};

TEST_P(SignInDesigns, ShowTheirMarksAndTakeTheirFields) {
    const DesignMarks& marks = GetParam();
    SiteClient client;
    client.Control(u"sign-in "_s + QString::fromUtf16(marks.design));
    const QString page = client.Text(home);
    EXPECT_TRUE(Holds(page, u"Forgot your password?"_s));
    EXPECT_TRUE(Holds(page, u"id=\"rememberTray\""_s));
    EXPECT_TRUE(Holds(page, QString::fromUtf16(marks.field)));
    EXPECT_TRUE(Holds(page, QString::fromUtf16(marks.button)));
    const QString process = u"login.myspace.example.com/index.cfm?fuseaction=login.process"_s;
    const QByteArray fields = marks.fieldsByName ? "email=a%40example.com&password=secret"
                                                 : "ctl00%24Main%24Email_Textbox=a%40example.com"
                                                   "&ctl00%24Main%24Password_Textbox=secret";
    if (Holds(page, u"method=\"get\""_s))
        client.Get(process + u'&' + QString::fromLatin1(fields));
    else
        client.Post(process, fields);
    EXPECT_EQ(client.site.Journal(), QStringList{u"signed-in a@example.com 900001"_s});
}

constexpr auto byId = u"id=\"ctl00_Main_Password_Textbox\"";
constexpr auto byName = u"name=\"password\"";

INSTANTIATE_TEST_SUITE_P(
    All, SignInDesigns,
    testing::Values(DesignMarks{u"ids", byId,
                                u"<input type=\"submit\" class=\"button\" id=\"ctl00_Main_loginBtn\"", false},
                    DesignMarks{u"splash", byId, u"name=\"ctl00$Main$SplashDisplay$login\"", false},
                    DesignMarks{u"names", byName, u"name=\"dlb\"", true},
                    DesignMarks{u"button", byName, u"name=\"loginbutton\"", true},
                    DesignMarks{u"image", byId,
                                u"<input type=\"image\" name=\"ctl00$Main$Login_ImageButton\"", false},
                    DesignMarks{u"link", byId, u"<a class=\"button\" id=\"ctl00_Main_loginBtn\"", false},
                    DesignMarks{u"element", byName, u"<button class=\"button\" name=\"loginbtn\"", true},
                    DesignMarks{u"get", byName, u"name=\"loginbutton\"", true}));

TEST(SignIn, AResetBringsTheFirstDesignBack) {
    SiteClient client;
    client.Control(u"sign-in link"_s);
    client.Control(u"reset"_s);
    EXPECT_TRUE(
        Holds(client.Text(home), u"<input type=\"submit\" class=\"button\" id=\"ctl00_Main_loginBtn\""_s));
    EXPECT_EQ(client.site.Control(u"sign-in sideways"_s), u"sign-in: unknown design: sideways"_s);
}

TEST(SignIn, AWelcomeHasSignedIn) {
    SiteClient client;
    client.Control(u"fault login.myspace.example.com welcome times 1"_s);
    EXPECT_TRUE(Holds(QString::fromUtf8(client.SignIn().body), u"! You are logged in."_s));
    EXPECT_TRUE(Holds(client.Text(home), u"\"UserId\":900001,"_s));
}

TEST(SignIn, APageInBetweenComesOnceAndHidesTheForm) {
    const QList<std::pair<QString, QString>> detours{
        {u"advert"_s, u"Skip this Advertisement"_s},
        {u"moving"_s, u"we are moving myspace music players and video players"_s},
        {u"foreign"_s, u"Mitglieder-Login"_s},
        {u"return"_s, u"return to myspace"_s},
        {u"welcome"_s, u"! You are logged in."_s},
        {u"cached"_s, u"View My:"_s},
        {u"birthday"_s, u"allow others to see when it's my birthday"_s},
        {u"certificate"_s, u"security certificate"_s},
    };
    for (const auto& [kind, mark] : detours) {
        SiteClient client;
        client.Control(u"fault home.myspace.example.com/index.cfm?fuseaction=home "_s + kind + u" times 1"_s);
        const QString page = client.Text(home).replace(u"&#39;"_s, u"'"_s);
        EXPECT_TRUE(Holds(page, mark));
        EXPECT_FALSE(page.contains(u"password?"_s, Qt::CaseInsensitive)) << kind.toStdString();
        for (const auto& [otherKind, otherMark] : detours)
            EXPECT_TRUE(otherKind == kind || !page.contains(otherMark, Qt::CaseInsensitive));
        EXPECT_EQ(page.contains(u"/signout?"_s), kind == u"cached"_s);
        EXPECT_TRUE(Holds(client.Text(home), u"Forgot your password?"_s));
    }
}

} // namespace
} // namespace qlm::practice
