// SPDX-License-Identifier: MIT
#include "SiteClient.h"

namespace qlm::practice {
namespace {

const QString controlUrl = u"http://control.myspace.example.com"_s;

TEST(Control, LinesThatMakeNoSenseAreRefusedAndChangeNothing) {
    SiteClient client;
    for (const QString& line :
         {u"dance"_s, u"seed"_s, u"seed x"_s, u"seed 2 3"_s, u"account a@example.com"_s,
          u"limit messages 3"_s, u"share sent 50"_s, u"share already 101"_s, u"share nonsense 5"_s,
          u"outcome 100003 maybe"_s, u"friends 900001 -1"_s, u"friends 900001 99999"_s, u"fault x"_s,
          u"fault x burn"_s, u"fault x slow"_s, u"fault x error times"_s, u"fault x error 3"_s,
          u"journal visits maybe"_s, u"reset now"_s})
        EXPECT_NE(client.site.Control(line), QString()) << line.toStdString();
    SiteClient fresh;
    EXPECT_EQ(client.Text(SiteClient::root + u"/100001"_s), fresh.Text(SiteClient::root + u"/100001"_s));
}

TEST(Control, BlankLinesDoNothing) {
    SiteClient client;
    EXPECT_EQ(client.site.Control(u"  "_s), QString());
}

TEST(Control, AddsAccountsAndReplacesThem) {
    SiteClient client;
    client.Control(u"account Z@example.com other 910000"_s);
    client.SignIn("z@example.com", "other");
    EXPECT_TRUE(Holds(client.Text(SiteClient::root + u"/"_s), u"\"UserId\":910000,"_s));
    EXPECT_EQ(client.Get(SiteClient::root + u"/910000"_s).status, 200);
    client.Control(u"account z@example.com third 910000"_s);
    EXPECT_EQ(client.SignIn("z@example.com", "other").status, 200);
}

TEST(Control, TenAccountsAreThereFromTheStart) {
    SiteClient client;
    for (char letter = 'a'; letter <= 'j'; ++letter)
        EXPECT_EQ(client.SignIn(QByteArray(1, letter) + "@example.com").status, 302);
    EXPECT_EQ(client.site.Journal().last(), u"signed-in j@example.com 900010"_s);
}

TEST(Control, LogsEverybodyOut) {
    SiteClient client;
    client.SignIn();
    client.Control(u"logout-all"_s);
    EXPECT_EQ(client.Get(SiteClient::requestPage + u"100003"_s).status, 302);
}

TEST(Control, ASeedBringsNewPeopleAndForgetsWhoWasAsked) {
    SiteClient client;
    client.SignIn();
    client.Control(u"share sent 100"_s);
    client.Ask(100003);
    client.Control(u"seed 9"_s);
    client.Control(u"share sent 100"_s);
    SiteClient ninth(9);
    EXPECT_EQ(client.Get(SiteClient::root + u"/pictures/100003.svg"_s).body,
              ninth.Get(SiteClient::root + u"/pictures/100003.svg"_s).body);
    EXPECT_TRUE(Holds(client.Ask(100003), u"Request Sent!"_s));
}

TEST(Control, ResetGoesBackToTheStart) {
    SiteClient client;
    client.Control(u"seed 9"_s);
    client.Control(u"friends 900001 3"_s);
    client.Control(u"fault www.myspace.example.com error"_s);
    client.Control(u"account z@example.com secret 910000"_s);
    client.SignIn();
    client.Control(u"reset"_s);
    SiteClient fresh;
    const QString url = SiteClient::root + u"/900001/friends"_s;
    EXPECT_EQ(client.Text(url), fresh.Text(url));
    EXPECT_EQ(client.site.Journal(), QStringList());
    EXPECT_EQ(client.SignIn("z@example.com").status, 200);
}

TEST(Control, VisitsAreWrittenOnlyWhileTheyAreOn) {
    SiteClient client;
    client.Get(SiteClient::root + u"/100001"_s);
    client.Control(u"journal visits on"_s);
    client.Get(SiteClient::root + u"/browse/people?page=2"_s);
    client.Get(SiteClient::root + u"/pictures/100001.svg"_s);
    client.Control(u"journal visits off"_s);
    client.Get(SiteClient::root + u"/100002"_s);
    EXPECT_EQ(client.site.Journal(), QStringList{u"visit www.myspace.example.com/browse/people?page=2"_s});
}

TEST(Control, TakingTheJournalGivesEachLineOnce) {
    SiteClient client;
    client.SignIn();
    EXPECT_EQ(client.site.TakeJournal().size(), 1);
    EXPECT_EQ(client.site.TakeJournal().size(), 0);
    EXPECT_EQ(client.site.Journal().size(), 1);
}

TEST(Control, APageIsRefused) {
    SiteClient client;
    client.SignIn();
    for (const QString& path : {u"/control"_s, u"/journal"_s, u"/journal/take"_s, u"/nothing"_s}) {
        EXPECT_EQ(client.Get(controlUrl + path).status, 403) << path.toStdString();
        EXPECT_EQ(client.Post(controlUrl + path, "logout-all").status, 403) << path.toStdString();
        EXPECT_EQ(client.Send(u"HEAD"_s, controlUrl + path).status, 403) << path.toStdString();
    }
    EXPECT_EQ(client.site.Journal().size(), 1);
    EXPECT_TRUE(Holds(client.Text(SiteClient::root + u"/home"_s), u"Sign Out"_s));
}

TEST(Control, WorksOverItsHost) {
    SiteClient client;
    client.steers = true;
    EXPECT_EQ(client.Post(controlUrl + u"/control"_s, "share sent 100\nfriends 900001 3\n").status, 200);
    EXPECT_TRUE(Holds(client.Text(SiteClient::root + u"/900001/friends"_s), u"of 3"_s));
    const Response wrong = client.Post(controlUrl + u"/control"_s, "dance");
    EXPECT_EQ(wrong.status, 400);
    EXPECT_EQ(wrong.body, "unknown control: dance\n");
    client.SignIn();
    EXPECT_EQ(client.Text(controlUrl + u"/journal"_s), u"signed-in a@example.com 900001\n"_s);
    EXPECT_EQ(client.Post(controlUrl + u"/journal/take"_s, {}).body, "signed-in a@example.com 900001\n");
    EXPECT_EQ(client.Post(controlUrl + u"/journal/take"_s, {}).body, "");
    EXPECT_EQ(client.Get(controlUrl + u"/control"_s).status, 405);
}

} // namespace
} // namespace qlm::practice
