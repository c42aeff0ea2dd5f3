// SPDX-License-Identifier: MIT
#include "SiteClient.h"

namespace qlm::practice {
namespace {

TEST(Routing, StrangeHostsAreRefused) {
    SiteClient client;
    for (const QString& url :
         {u"example.org/"_s, u"myspace.example.com/"_s, u"evil.myspace.example.com/"_s}) {
        const Response answer = client.Get(url);
        EXPECT_EQ(answer.status, 403);
        EXPECT_TRUE(Holds(QString::fromUtf8(answer.body), url.chopped(1)));
    }
}

TEST(Routing, UnknownAddressesOfKnownHostsAreNotFound) {
    SiteClient client;
    for (const QString& url :
         {SiteClient::root + u"/no/such/page"_s, SiteClient::root + u"/nobodyofthatname"_s,
          SiteClient::root + u"/100"_s, u"groups.myspace.example.com/index.cfm?fuseaction=x"_s}) {
        const Response answer = client.Get(url);
        EXPECT_EQ(answer.status, 404) << url.toStdString();
        EXPECT_TRUE(Holds(QString::fromUtf8(answer.body), u"the page you wish to access cannot be found"_s));
    }
}

TEST(Routing, OtherMethodsAreRefused) {
    SiteClient client;
    EXPECT_EQ(client.Send(u"DELETE"_s, SiteClient::root + u"/"_s).status, 405);
}

TEST(Routing, EveryHostHasAnIconAndThePagesTheirStyle) {
    SiteClient client;
    EXPECT_EQ(client.Get(u"product.myspace.example.com/favicon.ico"_s).status, 200);
    const Response style = client.Get(SiteClient::root + u"/style/site.css"_s);
    EXPECT_EQ(style.contentType, u"text/css; charset=utf-8"_s);
    EXPECT_GT(style.body.size(), 2000);
}

TEST(ProductServer, BothAddressesGiveTheShortTexts) {
    SiteClient client;
    for (const QString& host : {u"product.myspace.example.com"_s, u"product2.myspace.example.com"_s}) {
        EXPECT_EQ(client.Text(host + u"/online.htm"_s), u"ok"_s);
        EXPECT_EQ(client.Text(host + u"/version.htm"_s), u"version 0.0.0"_s);
        EXPECT_EQ(client.Text(host + u"/login/showloginmessage.htm"_s), u"ok"_s);
        EXPECT_EQ(client.Text(host + u"/dateandtime.php"_s), u"2009-06-01"_s);
        EXPECT_EQ(client.Text(host + u"/dateandtime.htm"_s), u"2009-06-01"_s);
        EXPECT_FALSE(client.Text(host + u"/issuealert.ini"_s).contains(u"[alert]"_s, Qt::CaseInsensitive));
        EXPECT_TRUE(Holds(client.Text(host + u"/news.htm"_s), u"practice site"_s));
        EXPECT_TRUE(Holds(client.Text(host + u"/terms.php"_s), u"Terms"_s));
    }
}

// Words that mean a refusal or an error must not stand on pages that are neither.
TEST(Pages, OrdinaryOnesHoldNoWordsOfErrorPages) {
    SiteClient client;
    client.SignIn();
    const QStringList words{
        u"server error in"_s,          u"password?"_s,          u"is already your friend"_s,
        u"pending friend request"_s,   u"cannot be found"_s,    u"set to private"_s,
        u"Please enter the text"_s,    u"server is too busy"_s, u"skip this advertisement"_s,
        u"allow others to see when"_s, u"return to myspace"_s,  u"! you are logged in."_s};
    for (const QString& path :
         {u"/"_s, u"/100001"_s, u"/100001/classic"_s, u"/900001/friends"_s, u"/browse/people"_s, u"/tam"_s}) {
        const QString page = client.Text(SiteClient::root + path);
        for (const QString& word : words)
            EXPECT_FALSE(page.contains(word, Qt::CaseInsensitive))
                << path.toStdString() << ": " << word.toStdString();
    }
}

// A list is read by its links: what stands outside the blocks must not look like a profile.
TEST(Pages, LinksOfTheFrameStandInListEntries) {
    SiteClient client;
    client.SignIn();
    QString page = client.Text(SiteClient::root + u"/900001/friends"_s);
    const qsizetype first = page.indexOf(u"<div class=\"grid\">"_s);
    const qsizetype last = page.lastIndexOf(u"<div class=\"pager\">"_s);
    page.remove(first, last - first);
    const QRegularExpression link(u"(<li[^>]*>)?\\s*<a [^>]*href=\"([^\"]*)\""_s);
    for (auto matches = link.globalMatch(page); matches.hasNext();) {
        const auto match = matches.next();
        const bool logo = match.captured(2) == SiteClient::root + u"/"_s;
        EXPECT_TRUE(logo || !match.captured(1).isEmpty()) << match.captured(2).toStdString();
    }
}

} // namespace
} // namespace qlm::practice
