// SPDX-License-Identifier: MIT
#include "SiteClient.h"
#include "practice/People.h"

namespace qlm::practice {
namespace {

const People crowd(1); // what every client's site is populated with

template <typename Wanted> const Person& FirstWho(Wanted wanted) {
    for (const Person& person : crowd.Crowd())
        if (wanted(person))
            return person;
    throw std::logic_error("nobody like that");
}

class Profile : public testing::Test {
protected:
    QString Newer(const Person& person) { return client.Text(SiteClient::root + u"/%1"_s.arg(person.id)); }
    QString Classic(const Person& person) {
        return client.Text(SiteClient::root + u"/%1/classic"_s.arg(person.id));
    }

    SiteClient client;
};

TEST_F(Profile, TheCrowdIsLargeAndItsVanityNamesAreUniqueAndHoldNoDigit) {
    EXPECT_GE(crowd.Crowd().size(), 5000);
    QSet<QString> vanities;
    int named = 0;
    for (const Person& person : crowd.Crowd()) {
        if (person.vanity.isEmpty())
            continue;
        ++named;
        vanities.insert(person.vanity);
        EXPECT_FALSE(person.vanity.contains(QRegularExpression(u"[^a-z]"_s)));
    }
    EXPECT_GT(named, 600);
    EXPECT_EQ(vanities.size(), named);
}

TEST_F(Profile, EveryAddressOfAProfileShowsItsId) {
    const Person& person = FirstWho([](const Person& p) { return !p.vanity.isEmpty(); });
    const QString id = QString::number(person.id);
    for (const QString& url :
         {SiteClient::root + u'/' + id, SiteClient::root + u'/' + person.vanity,
          SiteClient::root + u'/' + id + u"/classic"_s,
          u"http://profile.myspace.example.com/index.cfm?fuseaction=user.viewprofile&friendID="_s + id}) {
        const QString page = client.Text(url);
        EXPECT_TRUE(Holds(page, u"\"DisplayFriendId\":%1,"_s.arg(id)));
        EXPECT_EQ(FirstBetween(page, SiteClient::root + u"/my/mail/new?t="_s, u"\""_s), id);
        EXPECT_TRUE(Holds(page, SiteClient::root + u'/' + id + u"/friends"_s));
    }
}

TEST_F(Profile, TheLayoutsAreToldApartByTheirMarks) {
    const Person& person = crowd.Crowd().first();
    EXPECT_TRUE(Holds(Newer(person), u"userBadgeSideBar"_s));
    EXPECT_TRUE(Holds(Newer(person), u"View All "_s));
    EXPECT_FALSE(Newer(person).contains(u"friendSpace"_s));
    EXPECT_TRUE(Holds(Classic(person), u"friendSpace"_s));
    EXPECT_TRUE(Holds(Classic(person), u"View My:"_s));
    EXPECT_FALSE(Classic(person).contains(u"userBadgeSideBar"_s));
}

TEST_F(Profile, GenderAndAgeStandWhereTheyAreLookedFor) {
    const Person& woman = FirstWho([](const Person& p) { return p.age > 0 && !p.male; });
    const Person& man = FirstWho([](const Person& p) { return p.age > 0 && p.male; });
    EXPECT_TRUE(Holds(Classic(woman), u">Female<"_s));
    EXPECT_FALSE(Classic(woman).contains(u">Male"_s));
    EXPECT_TRUE(Holds(Classic(man), u">Male"_s));
    EXPECT_FALSE(Classic(man).contains(u"female"_s, Qt::CaseInsensitive));
    EXPECT_TRUE(Holds(Newer(man), u"\"gender\":\"Male\""_s));
    EXPECT_EQ(FirstBetween(Classic(man), u"class=\"age\">"_s, u"<"_s), QString::number(man.age));
    EXPECT_TRUE(Holds(Classic(man), u"</span> years old"_s));
    EXPECT_EQ(FirstBetween(Newer(man), u"\"Age: "_s, u","_s), QString::number(man.age));
}

TEST_F(Profile, TheLastLoginIsADateBeforeToday) {
    const Person& person = FirstWho([](const Person& p) { return p.daysSinceLogin == 5; });
    EXPECT_EQ(FirstBetween(Classic(person), u"Last Login: "_s, u"<"_s), u"5/27/2009"_s);
    EXPECT_EQ(FirstBetween(Newer(person), u"Last Login: "_s, u"<"_s), u"5/27/2009"_s);
}

TEST_F(Profile, WhoIsOnlineHasTheMarkShortlyBeforeTheDate) {
    const Person& online = FirstWho([](const Person& p) { return p.online; });
    const Person& offline = FirstWho([](const Person& p) { return !p.online; });
    const auto before = [](const QString& page) {
        const qsizetype date = page.indexOf(u"Last Login:"_s);
        return page.mid(date - 150, 150);
    };
    EXPECT_TRUE(Holds(before(Classic(online)), u"userOnline"_s));
    EXPECT_FALSE(before(Classic(offline)).contains(u"userOnline"_s));
}

TEST_F(Profile, EachTradeHasItsMark) {
    const auto of = [](Person::Kind kind) -> const Person& {
        return FirstWho([kind](const Person& p) { return p.kind == kind; });
    };
    const QString blog = u"http://www.myspace.example.com/music/blog"_s;
    EXPECT_TRUE(Holds(Classic(of(Person::Kind::Band)), blog));
    EXPECT_TRUE(Holds(Classic(of(Person::Kind::Band)), u"UserBasicInformation"_s));
    EXPECT_TRUE(Holds(Newer(of(Person::Kind::Band)), u"Featured Playlists"_s));
    EXPECT_TRUE(Holds(Newer(of(Person::Kind::Band)), u"Music News"_s));
    EXPECT_FALSE(Classic(of(Person::Kind::Person)).contains(blog));
    EXPECT_TRUE(Holds(Classic(of(Person::Kind::Comedian)), u"/images/comedy%2fmscomedy.gif\""_s));
    EXPECT_TRUE(Holds(Classic(of(Person::Kind::Film)), u"/images/film_logo.gif\""_s));
    EXPECT_EQ(client.Get(SiteClient::root + u"/images/comedy%2fmscomedy.gif"_s).status, 200);
    EXPECT_EQ(client.Get(SiteClient::root + u"/images/film_logo.gif"_s).status, 200);
}

TEST_F(Profile, NamesWithMarkupInThemAreEscaped) {
    const Person& person = FirstWho([](const Person& p) { return p.name.contains(u'&'); });
    EXPECT_TRUE(Holds(Newer(person), person.name.toHtmlEscaped()));
    EXPECT_FALSE(Newer(person).contains(u" & "_s));
}

TEST_F(Profile, PicturesAreDrawnAndDiffer) {
    const Response one = client.Get(SiteClient::root + u"/pictures/100001.svg"_s);
    const Response two = client.Get(SiteClient::root + u"/pictures/100002.svg"_s);
    EXPECT_EQ(one.contentType, u"image/svg+xml"_s);
    EXPECT_TRUE(one.body.startsWith("<svg "));
    EXPECT_NE(one.body, two.body);
    EXPECT_EQ(client.Get(SiteClient::root + u"/pictures/900001.svg"_s).status, 200);
    EXPECT_EQ(client.Get(SiteClient::root + u"/pictures/5.svg"_s).status, 404);
}

TEST_F(Profile, TheSameSeedGivesTheSameBytesAndAnotherSeedOthers) {
    SiteClient same;
    SiteClient other(2);
    for (const QString& path : {u"/100001"_s, u"/100009/classic"_s, u"/900001/friends/page/2"_s,
                                u"/browse/people"_s, u"/pictures/100003.svg"_s}) {
        const QByteArray body = client.Get(SiteClient::root + path).body;
        EXPECT_EQ(body, same.Get(SiteClient::root + path).body);
        EXPECT_NE(body, other.Get(SiteClient::root + path).body);
    }
}

} // namespace
} // namespace qlm::practice
