// SPDX-License-Identifier: MIT
#include "WritingClient.h"

namespace qlm::practice {
namespace {

const QString listUrl = u"http://m.myspace.example.com/messaging/sentrequests.wap?bfd=offdeck"_s;
const QString pendingUrl =
    u"http://messaging.myspace.example.com/index.cfm?fuseaction=mail.pendingFriendRequests"_s;

class PendingPages : public WritingTest {
protected:
    // Signed in on the desktop pages; those of a telephone want a sign-in of their own.
    void SetUp() override { client.Control(u"sent-requests 900001 3"_s); }
    Response Enter(const QString& password = u"secret"_s) {
        return client.Post(u"http://m.myspace.example.com/login.wap?bfd=offdeck"_s,
                           Encoded({{u"email"_s, u"a@example.com"_s}, {u"password"_s, password}}));
    }
    QStringList Links(const QString& url = listUrl) {
        QStringList links;
        for (const QString& link : Between(client.Text(url), u"<a href=\""_s, u"\""_s))
            if (link.contains(u"friendid="_s) && link.contains(u"pvm="_s))
                links.append(QString(link).replace(u"&amp;"_s, u"&"_s));
        return links;
    }
    QStringList Ticked() { return Between(Text(pendingUrl), u"name=\"request\" value=\""_s, u"\""_s); }
    static QString IdOf(const QString& link) { return FirstBetween(link + u'&', u"friendid="_s, u"&"_s); }
};

TEST_F(PendingPages, TheMobilePagesHaveASignInOfTheirOwn) {
    const QString form = Text(listUrl);
    for (const QString& id : {u"emailTextBox"_s, u"passwordTextBox"_s, u"loginCommand"_s})
        EXPECT_TRUE(Holds(form, u"id=\"%1\""_s.arg(id)));
    EXPECT_FALSE(form.contains(u"my profile"_s, Qt::CaseInsensitive));
    const Response entered = Enter();
    EXPECT_TRUE(SiteClient::Header(entered, u"Set-Cookie"_s).startsWith(u"PRACTICEMOBILE="_s));
    EXPECT_EQ(Journal(), QStringList{u"mobile-signed-in a@example.com 900001"_s});
    EXPECT_TRUE(Holds(Text(SiteClient::Header(entered, u"Location"_s)), u"My Profile"_s));
    EXPECT_TRUE(Holds(Text(u"http://m.myspace.example.com/signout.wap?bfd=offdeck"_s), u"emailTextBox"_s));
    EXPECT_EQ(Journal(), QStringList{u"mobile-signed-out a@example.com 900001"_s});
}

TEST_F(PendingPages, AWrongWordOrAClosedDoorLetsNobodyIn) {
    EXPECT_TRUE(Holds(QString::fromUtf8(Enter(u"wrong"_s).body), u"emailTextBox"_s));
    client.Control(u"mobile closed"_s);
    EXPECT_TRUE(Holds(QString::fromUtf8(Enter().body), u"nobody can sign in"_s));
    EXPECT_EQ(Journal(),
              (QStringList{u"mobile-wrong-password a@example.com"_s, u"mobile-refused a@example.com"_s}));
    EXPECT_TRUE(Links().isEmpty());
}

TEST_F(PendingPages, ASentRequestIsTakenBackAfterAQuestion) {
    Enter();
    Journal();
    const QStringList links = Links();
    ASSERT_EQ(links.size(), 3);
    const QString page = Text(links[0]);
    const QString ask = FirstBetween(page.mid(page.indexOf(u"answered yet"_s)), u"<a href=\""_s, u"\""_s);
    EXPECT_TRUE(Holds(page, u">Cancel Request</a>"_s));
    const QString question = Text(QString(ask).replace(u"&amp;"_s, u"&"_s));
    EXPECT_TRUE(Holds(question, u"Are you sure you want to cancel"_s));
    EXPECT_TRUE(Holds(question, u">OK</button>"_s));
    EXPECT_TRUE(Journal().isEmpty());
    const Response done = client.Post(ActionOf(question), "act=cancel");
    EXPECT_EQ(SiteClient::Header(done, u"Location"_s), listUrl);
    EXPECT_EQ(Journal(), QStringList{u"cancelled 900001 "_s + IdOf(links[0])});
    EXPECT_EQ(Links(), links.sliced(1));
    EXPECT_TRUE(Holds(Text(links[0]), u"Invalid friend ID"_s));
}

TEST_F(PendingPages, WhoeverWasTakenBackCanBeAskedAgain) {
    client.Control(u"share sent 100"_s);
    const QString id = Ticked().front();
    EXPECT_TRUE(Holds(client.Ask(id.toLongLong()), u"already have a pending"_s));
    Sent(pendingUrl, {{u"request"_s, id}});
    EXPECT_TRUE(Holds(client.Ask(id.toLongLong()), u"has been sent"_s));
    EXPECT_EQ(Ticked().front(), id);
}

TEST_F(PendingPages, SeveralMobilePagesFollowEachOther) {
    client.Control(u"sent-requests 900001 25"_s);
    Enter();
    const QString page = client.Text(listUrl);
    const QString next = FirstBetween(page.mid(page.indexOf(u"</ul>"_s)), u"<a href=\""_s, u"\""_s);
    EXPECT_TRUE(Holds(next, u"p=2&amp;"_s));
    EXPECT_TRUE(Holds(page, u"pagination_next"_s));
    QString address = QString(next).replace(u"&amp;"_s, u"&"_s);
    EXPECT_EQ(Links(address).size(), 10);
    EXPECT_EQ(Links(QString(address).replace(u"p=2&"_s, u"p=3&"_s)).size(), 5);
    EXPECT_TRUE(Holds(Text(address.replace(u"p=2&"_s, u"p=4&"_s)), u"There are 0 sent requests"_s));
    client.Control(u"mobile no-next"_s);
    EXPECT_FALSE(Text(listUrl).contains(u"pagination_next"_s));
}

TEST_F(PendingPages, NobodyPendingIsSaid) {
    client.Control(u"sent-requests 900001 0"_s);
    EXPECT_TRUE(Holds(Text(pendingUrl), u"There are 0 requests in this folder"_s));
    Enter();
    EXPECT_TRUE(Holds(Text(listUrl), u"There are 0 sent requests"_s));
}

TEST_F(PendingPages, ThoseOfWhomTheSiteKnowsNothingAnyMoreStayOnTheList) {
    const QString id = Ticked().front();
    client.Control(u"vanish "_s + id);
    EXPECT_TRUE(Holds(Text(pendingUrl), u"Currently awaiting approval from somebody who is gone"_s));
    Enter();
    EXPECT_EQ(IdOf(Links().front()), id);
    EXPECT_TRUE(Holds(Text(Links().front()), u"Invalid friend ID"_s));
}

TEST_F(PendingPages, LinksMayGiveANameInPlaceOfANumber) {
    client.Control(u"mobile names"_s);
    Enter();
    for (const QString& link : Links())
        EXPECT_FALSE(IsDigits(IdOf(link)));
}

TEST_F(PendingPages, TheDesktopListTakesBackWhoeverIsTicked) {
    client.Control(u"sent-requests 900001 45"_s);
    const QString page = Text(pendingUrl);
    for (const QString& mark : {u"Currently awaiting approval from"_s, u"id=\"chktop\""_s,
                                u"id=\"spancanceltop\""_s, u"Listing 1-20 of 45"_s, u">Cancel Request<"_s})
        EXPECT_TRUE(Holds(page, mark));
    EXPECT_TRUE(page.contains(u"requestlist.GoToPage('3',"_s));
    const QStringList ids = Ticked();
    EXPECT_EQ(ids.size(), 20);
    EXPECT_TRUE(Holds(Sent(pendingUrl, {{u"request"_s, ids[1]}, {u"request"_s, ids[3]}}),
                      u"Your sent request has been cancelled"_s));
    EXPECT_EQ(Journal(), (QStringList{u"cancelled 900001 "_s + ids[1], u"cancelled 900001 "_s + ids[3]}));
    EXPECT_TRUE(Holds(Sent(pendingUrl, {}), u"Nobody has been chosen"_s));
}

TEST_F(PendingPages, WhoeverAnswersIsPendingNoMore) {
    client.Control(u"share sent 100"_s);
    client.Ask(900002);
    EXPECT_TRUE(Ticked().contains(u"900002"_s));
    client.SignIn("b@example.com");
    Sent(SiteClient::root + u"/my/requests/friendrequest?viewall=1"_s,
         {{u"request"_s, u"900001"_s}, {u"act"_s, u"deny"_s}});
    client.SignIn();
    EXPECT_FALSE(Ticked().contains(u"900002"_s));
}

TEST_F(PendingPages, WhatIsTakenBackWaitsForNobodyAnyMore) {
    client.Control(u"share sent 100"_s);
    client.Ask(900002);
    Sent(pendingUrl, {{u"request"_s, u"900002"_s}});
    client.SignIn("b@example.com");
    EXPECT_FALSE(
        Text(SiteClient::root + u"/my/requests/friendrequest?viewall=1"_s).contains(u"\"900001\""_s));
}

TEST_F(PendingPages, WhoeverHasAskedNobodySeesTheListForGathering) {
    client.SignIn("c@example.com");
    EXPECT_TRUE(Holds(Text(pendingUrl), u"gotonextpage()"_s));
    EXPECT_FALSE(Text(pendingUrl).contains(u"chktop"_s));
}

} // namespace
} // namespace qlm::practice
