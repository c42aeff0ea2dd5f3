// SPDX-License-Identifier: MIT
#include "SiteClient.h"
#include "practice/Designs.h"

#include <QSet>

namespace qlm::practice {
namespace {

QStringList ShownIn(const QStringList& journal) {
    QStringList ids;
    for (const QString& line : journal)
        if (line.startsWith(u"shown"_s))
            ids += line.split(u' ').mid(2);
    return ids;
}

// Every list of the site, by its row.
class EveryDesign : public testing::TestWithParam<const ListDesign*> {
protected:
    EveryDesign() {
        client.SignIn();
        client.Control(u"journal shown on"_s);
        client.Control(u"friends 100001 90"_s);
    }

    QStringList TakeShown() { return ShownIn(client.site.TakeJournal()); }

    SiteClient client;
    const ListDesign& design = *GetParam();
};

TEST_P(EveryDesign, FillsItsFirstPageAndNotesWhoStandsThere) {
    const Response page = client.Get(PageAddress(design, People::firstId));
    ASSERT_EQ(page.status, 200);
    if (design.name == u"hard-silent")
        return;
    const QStringList shown = TakeShown();
    EXPECT_FALSE(shown.isEmpty());
    EXPECT_EQ(QSet<QString>(shown.begin(), shown.end()).size(), shown.size());
    const QString text = QString::fromUtf8(page.body);
    for (const QString& id : shown)
        EXPECT_TRUE(text.contains(id) || text.contains(People(1).Find(id.toLongLong())->vanity))
            << id.toStdString();
}

// Three pages, and nobody on two of them. A page whose number is sent by a form has one address.
TEST_P(EveryDesign, TurnsToOtherPeople) {
    if (design.handler || design.entries <= design.perPage)
        return;
    client.Control(u"list %1 7 3"_s.arg(design.name));
    QStringList seen;
    for (int page = 1; page <= 3; ++page) {
        const QString url = PageAddress(design, People::firstId, page);
        const QByteArray number = "__EVENTARGUMENT=" + QByteArray::number(page);
        const Response answer =
            design.next.how == Turning::How::Post ? client.Post(url, number) : client.Get(url);
        const QString text = QString::fromUtf8(answer.body);
        EXPECT_TRUE(Holds(text, u"Page %1 of 3"_s.arg(page)));
        EXPECT_EQ(text.contains(design.next.caption) && text.contains(u"data-page=\"%1\""_s.arg(page + 1)),
                  page < 3);
        seen += TakeShown();
    }
    EXPECT_EQ(seen.size(), 7);
    EXPECT_EQ(QSet<QString>(seen.begin(), seen.end()).size(), 7);
}

TEST_P(EveryDesign, IsLinkedFromTheStartByTheMap) {
    EXPECT_TRUE(Holds(client.Text(SiteClient::root + u"/"_s), SiteClient::root + u"/sitemap"_s));
    EXPECT_TRUE(Holds(client.Text(SiteClient::root + u"/sitemap"_s),
                      PageAddress(design, People::firstId).toHtmlEscaped()));
}

INSTANTIATE_TEST_SUITE_P(Designs, EveryDesign, testing::ValuesIn(AllDesigns()),
                         [](const testing::TestParamInfo<const ListDesign*>& row) {
                             return row.param->name.toString().remove(u'-').toStdString();
                         });

TEST(Designs, HaveNamesAndAddressesOfTheirOwn) {
    QSet<QString> names;
    QSet<QString> addresses;
    for (const ListDesign* design : AllDesigns()) {
        names.insert(design->name.toString());
        addresses.insert(PageAddress(*design, People::firstId));
    }
    EXPECT_EQ(names.size(), AllDesigns().size());
    EXPECT_EQ(addresses.size(), AllDesigns().size());
}

TEST(Designs, SharedAddressesAreToldApartByThePagesNumber) {
    SiteClient client;
    EXPECT_TRUE(Holds(client.Text(SiteClient::root + u"/100001/friends"_s), u"View All Friends"_s));
    EXPECT_TRUE(Holds(client.Text(SiteClient::root + u"/100001/friends?p=1"_s), u"a page a query"_s));
    EXPECT_TRUE(Holds(client.Text(SiteClient::root + u"/100001/friends/page/2"_s), u"View All Friends"_s));
    EXPECT_TRUE(Holds(client.Text(SiteClient::root + u"/100001/FRIENDS/ALL/PAGE/2"_s), u"an address"_s));
    EXPECT_TRUE(Holds(client.Text(SiteClient::root + u"/100001/comments?page=1"_s), u"commentCommands"_s));
}

TEST(Designs, AControlSetsHowLongAListIs) {
    SiteClient client;
    client.Control(u"list forum 9 4"_s);
    EXPECT_TRUE(Holds(client.Text(PageAddress(*DesignNamed(u"forum"_s), 1)), u"Page 1 of 3"_s));
    client.Control(u"list browse 9 4"_s);
    EXPECT_TRUE(Holds(client.Text(SiteClient::root + u"/browse/people"_s), u"Showing 1-4 of 9"_s));
    EXPECT_EQ(client.site.Control(u"list nothing 3"_s), u"list: unknown list: nothing"_s);
    client.Control(u"reset"_s);
    EXPECT_TRUE(Holds(client.Text(PageAddress(*DesignNamed(u"forum"_s), 1)), u"Page 1 of 3"_s));
    EXPECT_TRUE(Holds(client.Text(PageAddress(*DesignNamed(u"forum"_s), 1)), u"50 replies"_s));
}

TEST(Shown, NamesWhoIsKnownByNumberAndWhoByNameAlone) {
    SiteClient client;
    client.Text(SiteClient::root + u"/100001/friends"_s);
    EXPECT_TRUE(client.site.TakeJournal().isEmpty());
    client.Control(u"journal shown on"_s);
    client.Text(SiteClient::root + u"/100001/friends"_s);
    const QStringList lines = client.site.TakeJournal();
    ASSERT_EQ(lines.size(), 2);
    const QStringList byNumber = lines[0].split(u' ');
    const QStringList byName = lines[1].split(u' ');
    EXPECT_EQ(byNumber.mid(0, 2), QStringList({u"shown"_s, u"www.myspace.example.com/100001/friends"_s}));
    EXPECT_EQ(byName.mid(0, 3),
              QStringList({u"shown-by-name"_s, u"www.myspace.example.com/100001/friends"_s, u"6221"_s}));
    EXPECT_EQ(byNumber.size() + byName.size() - 4, 40);
    const People people(1);
    for (const QString& id : byNumber.mid(2))
        EXPECT_EQ(people.Find(id.toLongLong())->vanity, QString());
    for (const QString& id : byName.mid(2))
        EXPECT_NE(people.Find(id.toLongLong())->vanity, QString());
}

TEST(Shown, NobodyStandsOnAPageThatWasNotDelivered) {
    SiteClient client;
    client.Control(u"journal shown on"_s);
    client.Control(u"fault www.myspace.example.com/100001/friends error"_s);
    client.Text(SiteClient::root + u"/100001/friends"_s);
    EXPECT_TRUE(client.site.TakeJournal().isEmpty());
}

TEST(Growing, NotificationsComePartByPartToWhoeverIsSignedIn) {
    SiteClient client;
    const QString url = SiteClient::root + u"/my/notifications"_s;
    EXPECT_EQ(client.Get(url).status, 302);
    client.SignIn();
    client.Control(u"journal shown on"_s);
    EXPECT_TRUE(Holds(client.Text(url), u"15 of 40 shown"_s));
    for (const QString& from : {u"15"_s, u"30"_s})
        client.Text(url + u"?from="_s + from);
    const QStringList shown = ShownIn(client.site.TakeJournal());
    EXPECT_EQ(QSet<QString>(shown.begin(), shown.end()).size(), 40);
}

TEST(Growing, AChartShowsTwentyAndOnItsFifthPageAllPartByPart) {
    SiteClient client;
    const ListDesign& chart = *DesignNamed(u"chart"_s);
    EXPECT_TRUE(Holds(client.Text(PageAddress(chart, 1)), u"showMoreChartItems"_s));
    EXPECT_FALSE(client.Text(PageAddress(chart, 1)).contains(u"artist-21"_s));
    EXPECT_FALSE(client.Text(PageAddress(chart, 1, 5)).contains(u"showMoreChartItems"_s));
    EXPECT_TRUE(Holds(client.Text(PageAddress(chart, 1, 5) + u"?from=180"_s), u"artist-200"_s));
}

TEST(WebSearch, ShowsPeopleByOldAndNewAddressesPageByPage) {
    SiteClient client;
    const QString url =
        u"websearch.myspace.example.com/search?q=site%3Amyspace.example.com+a&num=100&hl=en"_s;
    client.Control(u"journal shown on"_s);
    const QString first = client.Text(url + u"&start=0"_s);
    EXPECT_EQ(first.count(u"<h3>"_s), 100);
    EXPECT_GT(Between(first, u"friendID="_s, u"\""_s).size(), 30);
    EXPECT_GT(Between(first, u"http://www.myspace.example.com/"_s, u"\""_s).size(), 30);
    EXPECT_NE(client.Text(url + u"&start=100"_s), first);
    EXPECT_EQ(client.Text(url + u"&start=1000"_s).count(u"<h3>"_s), 0);
    EXPECT_EQ(client.Text(u"websearch.myspace.example.com/search?q=nobodylikethat"_s).count(u"<h3>"_s), 0);
    // What stands beside the name on a list can be searched for.
    EXPECT_GT(client.Text(u"websearch.myspace.example.com/search?q=illinois"_s).count(u"<h3>"_s), 0);
}

TEST(Private, WhoeverTakesNoRequestsShowsStrangersNoProfile) {
    SiteClient client;
    client.Control(u"outcome 100003 private"_s);
    EXPECT_TRUE(Holds(client.Text(SiteClient::root + u"/100003/classic"_s), u"set to private"_s));
    EXPECT_TRUE(Holds(client.Text(SiteClient::root + u"/100003"_s), u"is only viewable by friends"_s));
    EXPECT_FALSE(client.Text(SiteClient::root + u"/100003/classic"_s).contains(u"Last Login"_s));
    EXPECT_TRUE(Holds(client.Text(SiteClient::root + u"/100003"_s), u"\"DisplayFriendId\":100003,"_s));
}

TEST(Advertisers, AreMarkedAndTellNoLogin) {
    SiteClient client;
    client.Control(u"share sent 100"_s);
    const People people(1);
    int firms = 0;
    for (const Person& person : people.Crowd()) {
        firms += person.advertiser ? 1 : 0;
        if (!person.advertiser || firms > 3)
            continue;
        for (const QString& layout : {u""_s, u"/classic"_s}) {
            const QString page = client.Text(SiteClient::root + u"/%1"_s.arg(person.id) + layout);
            EXPECT_TRUE(Holds(page, u"advertiserProfile"_s));
            EXPECT_FALSE(page.contains(u"Last Login"_s));
        }
    }
    EXPECT_GT(firms, 50);
}

} // namespace
} // namespace qlm::practice
