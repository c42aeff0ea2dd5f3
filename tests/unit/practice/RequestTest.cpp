// SPDX-License-Identifier: MIT
#include "SiteClient.h"
#include "practice/Refusals.h"

#include <QMap>

namespace qlm::practice {
namespace {

class FriendRequest : public testing::Test {
protected:
    void SetUp() override {
        client.Control(u"share sent 100"_s);
        client.SignIn();
        client.site.TakeJournal();
    }
    QString Old(qint64 target) {
        return u"http://friends.myspace.example.com/index.cfm?fuseaction=invite.addfriend_verify&friendID=%1"_s
            .arg(target);
    }

    SiteClient client;
};

TEST_F(FriendRequest, AVisitOfTheNewerPageIsTheRequest) {
    const QString page = client.Ask(100003);
    EXPECT_TRUE(Holds(page, u"Request Sent!"_s));
    EXPECT_EQ(client.site.TakeJournal(),
              (QStringList{u"request 900001 100003 sent"_s, u"asked 900001 100003"_s}));
}

TEST_F(FriendRequest, ASecondVisitIsPendingAndAsksNobodyTwice) {
    client.Ask(100003);
    client.site.TakeJournal();
    const QString page = client.Ask(100003);
    EXPECT_TRUE(Holds(page, u"you already have a pending friend request for this person"_s));
    EXPECT_EQ(client.site.TakeJournal(),
              (QStringList{u"asked-again 900001 100003"_s, u"request 900001 100003 pending"_s}));
    EXPECT_EQ(client.site.Journal().filter(u"asked 900001"_s).size(), 1);
}

TEST_F(FriendRequest, AnotherAccountMayAskTheSamePerson) {
    client.Ask(100003);
    client.cookie.clear();
    client.SignIn("b@example.com");
    EXPECT_TRUE(Holds(client.Ask(100003), u"Request Sent!"_s));
    EXPECT_EQ(client.site.Journal().last(), u"asked 900002 100003"_s);
}

TEST_F(FriendRequest, WhoIsSignedOutIsSentToTheRootAndAsksNobody) {
    client.cookie.clear();
    for (const QString& url : {SiteClient::requestPage + u"100003"_s, Old(100003)}) {
        const Response answer = client.Get(url);
        EXPECT_EQ(answer.status, 302);
        EXPECT_EQ(SiteClient::Header(answer, u"Location"_s), SiteClient::root + u"/"_s);
    }
    EXPECT_EQ(client.site.TakeJournal(), QStringList());
}

struct RefusalRow {
    const char* outcome;
    qint64 target; // odd and even targets see different wordings
    const char* text;
    int status;
};

class Refusal : public FriendRequest, public testing::WithParamInterface<RefusalRow> {};

TEST_P(Refusal, SaysWhyAndAsksNobody) {
    const auto& [outcome, target, text, status] = GetParam();
    const QString word = QString::fromUtf8(outcome);
    client.Control(u"outcome %1 %2"_s.arg(target).arg(word));
    const Response answer = client.Get(SiteClient::requestPage + QString::number(target));
    const QString page = QString::fromUtf8(answer.body).replace(u"&#39;"_s, u"'"_s);
    EXPECT_EQ(answer.status, status);
    EXPECT_TRUE(Holds(page, QString::fromUtf8(text)));
    EXPECT_FALSE(page.contains(u"Request Sent!"_s));
    EXPECT_EQ(client.site.TakeJournal(), QStringList{u"request 900001 %1 %2"_s.arg(target).arg(word)});
}

INSTANTIATE_TEST_SUITE_P(
    All, Refusal,
    testing::Values(
        RefusalRow{"already", 100003, "This person is already your friend", 200},
        RefusalRow{"already", 100004, "is already your friend", 200},
        RefusalRow{"pending", 100003, "you already have a pending friend request for this person", 200},
        RefusalRow{"pending", 100004, "You already have a pending friend request for ", 200},
        RefusalRow{"private", 100003, "only accepts add requests from people", 200},
        RefusalRow{"band", 100003, "doesn't accept friend requests from bands", 200},
        RefusalRow{"disabled", 100003, "this user's profile has been temporarily disabled", 200},
        RefusalRow{"limit", 100003, "you have reached the maximum limit of friend requests for the day", 200},
        RefusalRow{"server-error", 100003, "server error in", 500},
        RefusalRow{"server-error", 100004, "an application error occurred on the server", 200}));

TEST_F(FriendRequest, OneselfAndNobodyCannotBeAsked) {
    EXPECT_TRUE(Holds(client.Ask(900001), u"you cannot add yourself as a friend"_s));
    EXPECT_TRUE(Holds(client.Ask(77), u"invalid friend id"_s));
    EXPECT_EQ(client.site.TakeJournal(),
              (QStringList{u"request 900001 900001 self"_s, u"request 900001 77 invalid"_s}));
}

TEST_F(FriendRequest, TheErrorRedirectHidesARequestThatHasGoneOut) {
    client.Control(u"outcome 100003 error-redirect"_s);
    const Response answer = client.Get(SiteClient::requestPage + u"100003"_s);
    const QString target = SiteClient::Header(answer, u"Location"_s);
    EXPECT_EQ(target, SiteClient::root + u"/error.aspx"_s);
    EXPECT_EQ(client.Get(target).status, 200);
    EXPECT_EQ(client.site.TakeJournal(),
              (QStringList{u"request 900001 100003 error-redirect"_s, u"asked 900001 100003"_s}));
}

TEST_F(FriendRequest, TheDailyLimitCountsRequestsOfOneAccountAndEndsAtMidnight) {
    client.Control(u"limit friend-requests 2"_s);
    EXPECT_TRUE(Holds(client.Ask(100003), u"Request Sent!"_s));
    EXPECT_TRUE(Holds(client.Ask(100004), u"Request Sent!"_s));
    EXPECT_TRUE(Holds(client.Ask(100005), u"maximum limit of friend requests for the day"_s));
    EXPECT_EQ(client.site.Journal().last(), u"request 900001 100005 limit"_s);
    client.now = client.now.addDays(1);
    EXPECT_TRUE(Holds(client.Ask(100005), u"Request Sent!"_s));
}

TEST_F(FriendRequest, AnAccountMayHaveALimitOfItsOwn) {
    client.Control(u"limit friend-requests 0"_s);
    client.Control(u"limit friend-requests 1 for a@example.com"_s);
    EXPECT_TRUE(Holds(client.Ask(100003), u"Request Sent!"_s));
    EXPECT_TRUE(Holds(client.Ask(100004), u"maximum limit of friend requests for the day"_s));
    client.SignIn("b@example.com");
    EXPECT_TRUE(Holds(client.Ask(100005), u"maximum limit of friend requests for the day"_s));
    client.Control(u"limit friend-requests off for b@example.com"_s);
    EXPECT_TRUE(Holds(client.Ask(100005), u"Request Sent!"_s));
}

TEST_F(FriendRequest, EveryNumberedRefusalSaysItsWordsAndAsksNobody) {
    qint64 target = 100003;
    for (const ::qlm::practice::Refusal& refusal : Refusals()) {
        client.Control(u"refuse %1 %2"_s.arg(++target).arg(refusal.number));
        const QString page = client.Ask(target).replace(u"&#39;"_s, u"'"_s);
        const QString words = QString::fromUtf16(refusal.text).section(u"%1"_s, -1, -1);
        EXPECT_TRUE(Holds(page, words)) << refusal.number;
        EXPECT_EQ(client.site.TakeJournal(),
                  QStringList{u"request 900001 %1 refused-%2"_s.arg(target).arg(refusal.number)});
        client.Control(u"refuse %1 off"_s.arg(target));
        EXPECT_TRUE(Holds(client.Ask(target), u"Request Sent!"_s));
        client.site.TakeJournal();
    }
    EXPECT_EQ(client.site.Control(u"refuse 100003 12"_s), u"refuse: no refusal has the number 12"_s);
}

TEST_F(FriendRequest, AVisitMayEndAtHomeOrInTheInboxAndThenAsksNobody) {
    for (const auto& [word, part] :
         {std::pair{u"home"_s, u"fuseaction=home"_s}, std::pair{u"inbox"_s, u"fuseaction=mail.inbox"_s}}) {
        client.Control(u"outcome 100003 "_s + word);
        const Response answer = client.Get(SiteClient::requestPage + u"100003"_s);
        const QString target = SiteClient::Header(answer, u"Location"_s);
        EXPECT_TRUE(Holds(target, part));
        EXPECT_EQ(client.Get(target).status, 200);
        EXPECT_EQ(client.site.TakeJournal(), QStringList{u"request 900001 100003 "_s + word});
    }
}

TEST_F(FriendRequest, TheJournalSaysWhenIfItIsToldTo) {
    client.Control(u"journal times on"_s);
    client.Ask(100003);
    client.Control(u"journal times off"_s);
    client.Ask(100003);
    EXPECT_EQ(client.site.TakeJournal(),
              (QStringList{u"request 900001 100003 sent 2009-06-01T10:00:00"_s,
                           u"asked 900001 100003 2009-06-01T10:00:00"_s, u"asked-again 900001 100003"_s,
                           u"request 900001 100003 pending"_s}));
}

class Captcha : public FriendRequest {
protected:
    void SetUp() override {
        FriendRequest::SetUp();
        client.Control(u"outcome 100003 captcha"_s);
    }
    QString Reply(const QString& word) {
        return QString::fromUtf8(
            client.Post(SiteClient::requestPage + u"100003"_s, "ctl00%24captcha_text=" + word.toUtf8()).body);
    }
};

TEST_F(Captcha, ShowsAnImageWhoseWordIsNotInThePage) {
    const QString page = client.Ask(100003);
    const QString word = client.site.CaptchaWord(900001, 100003);
    EXPECT_TRUE(Holds(page, u"Please enter the text from the image"_s));
    EXPECT_TRUE(Holds(page, u"name=\"ctl00$captcha_text\""_s));
    EXPECT_TRUE(Holds(page, u"addFrdBtn"_s));
    EXPECT_FALSE(page.contains(word, Qt::CaseInsensitive));
    EXPECT_FALSE(page.contains(u"Request Sent!"_s));
    const Response image = client.Get(FirstBetween(page, u"class=\"captcha\" src=\""_s, u"\""_s));
    EXPECT_EQ(image.contentType, u"image/svg+xml"_s);
    EXPECT_EQ(Between(QString::fromUtf8(image.body), u"\">"_s, u"</text>"_s)
                  .filter(QRegularExpression(u"^.$"_s))
                  .join(QString()),
              word);
    EXPECT_EQ(client.site.TakeJournal(), QStringList{u"request 900001 100003 captcha"_s});
}

TEST_F(Captcha, TheRightWordSendsTheRequestOnce) {
    client.Ask(100003);
    EXPECT_TRUE(Holds(Reply(client.site.CaptchaWord(900001, 100003).toUpper()), u"Request Sent!"_s));
    EXPECT_EQ(client.site.TakeJournal(),
              (QStringList{u"request 900001 100003 captcha"_s, u"request 900001 100003 sent"_s,
                           u"asked 900001 100003"_s}));
}

TEST_F(Captcha, AWrongWordBringsANewImage) {
    const QString before = client.Ask(100003);
    const QString after = Reply(u"surely-not"_s);
    EXPECT_TRUE(Holds(after, u"Security code does not match"_s));
    EXPECT_TRUE(Holds(after, u"Please enter the text from the image"_s));
    const QString mark = u"class=\"captcha\" src=\""_s;
    EXPECT_NE(FirstBetween(before, mark, u"\""_s), FirstBetween(after, mark, u"\""_s));
    EXPECT_EQ(client.site.TakeJournal().last(), u"request 900001 100003 captcha-wrong"_s);
    EXPECT_TRUE(Holds(Reply(client.site.CaptchaWord(900001, 100003)), u"Request Sent!"_s));
}

TEST_F(Captcha, AWordSetByHandHoldsForEverybody) {
    client.Control(u"captcha-word RIVER"_s);
    client.Ask(100003);
    EXPECT_TRUE(Holds(Reply(u"river"_s), u"Request Sent!"_s));
}

TEST_F(Captcha, EachKindAsksInItsOwnWordsAndTakesItsAnswer) {
    for (const auto& [kind, words] :
         {std::pair{u"image"_s, u"Please enter the text from the image"_s},
          std::pair{u"image-text"_s, u"Please enter the image text"_s},
          std::pair{u"words"_s, u"Type the two words:"_s},
          std::pair{u"settings"_s, u"Settings require that you solve a CAPTCHA"_s}}) {
        client.Control(u"seed 1"_s);
        client.Control(u"outcome 100003 captcha"_s);
        client.Control(u"captcha-kind "_s + kind);
        EXPECT_TRUE(Holds(client.Ask(100003), words));
        EXPECT_TRUE(Holds(Reply(u"surely-not"_s), u"Security code does not match"_s));
        const QString word = client.site.CaptchaWord(900001, 100003);
        EXPECT_EQ(word.contains(u' '), kind == u"words"_s);
        EXPECT_TRUE(Holds(Reply(word), u"Request Sent!"_s));
    }
    EXPECT_EQ(client.site.Control(u"captcha-kind odd"_s), u"captcha-kind: unknown kind of CAPTCHA: odd"_s);
}

TEST_F(FriendRequest, TheOlderPageAsksOnlyWhenItsButtonIsPressed) {
    const QString form = client.Text(Old(100003));
    EXPECT_TRUE(Holds(form, u"value=\"Add to Friends\""_s));
    EXPECT_EQ(client.site.TakeJournal(), QStringList());
    const QString page = QString::fromUtf8(client.Post(Old(100003), "addFrdBtn=Add+to+Friends").body);
    EXPECT_TRUE(Holds(page, u"has been sent"_s));
    EXPECT_EQ(client.site.TakeJournal(),
              (QStringList{u"request 900001 100003 sent"_s, u"asked 900001 100003"_s}));
}

TEST_F(FriendRequest, TheOlderPageRefusesBeforeTheButton) {
    client.Control(u"outcome 100003 already"_s);
    EXPECT_TRUE(Holds(client.Text(Old(100003)), u"This person is already your friend"_s));
}

TEST(RequestShares, AreMetOverTheWholeCrowd) {
    SiteClient client;
    client.SignIn();
    client.Control(u"share already 20"_s);
    client.site.TakeJournal();
    for (qint64 target = 100001; target <= 105000; ++target)
        client.Ask(target);
    QMap<QString, int> counts;
    for (const QString& line : client.site.TakeJournal())
        ++counts[line.startsWith(u"request"_s) ? line.section(u' ', 3) : line.section(u' ', 0, 0)];
    EXPECT_NEAR(counts[u"already"_s], 1000, 120);
    EXPECT_NEAR(counts[u"captcha"_s], 100, 40);
    EXPECT_NEAR(counts[u"error-redirect"_s], 100, 40);
    EXPECT_EQ(counts[u"limit"_s], 0);
    EXPECT_EQ(counts[u"asked"_s], counts[u"sent"_s] + counts[u"error-redirect"_s]);
    EXPECT_EQ(counts[u"asked-again"_s], 0);
}

} // namespace
} // namespace qlm::practice
