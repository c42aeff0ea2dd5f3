// SPDX-License-Identifier: MIT
#include "SiteClient.h"

namespace qlm::practice {
namespace {

class FaultAtAPage : public testing::Test {
protected:
    void SetUp() override {
        client.Control(u"share sent 100"_s);
        client.SignIn();
        client.site.TakeJournal();
    }
    Response With(const QString& fault) {
        client.Control(u"fault http://www.myspace.example.com/100003 %1"_s.arg(fault));
        return client.Get(page);
    }

    SiteClient client;
    const QString page = SiteClient::root + u"/100003"_s;
};

TEST_F(FaultAtAPage, ConnectionFaultsAreHandedToTheCarrier) {
    EXPECT_EQ(With(u"hang"_s).fault, Response::Fault::Hang);
    EXPECT_EQ(With(u"reset"_s).fault, Response::Fault::Reset);
    const Response empty = With(u"nobody"_s);
    EXPECT_EQ(empty.fault, Response::Fault::NoBody);
    EXPECT_EQ(empty.body, QByteArray());
    const Response slow = With(u"slow 1500"_s);
    EXPECT_EQ(slow.fault, Response::Fault::Slow);
    EXPECT_EQ(slow.delayMs, 1500);
    EXPECT_TRUE(slow.body.contains("DisplayFriendId"));
}

TEST_F(FaultAtAPage, OtherPagesTakeItsPlace) {
    EXPECT_TRUE(Holds(QString::fromUtf8(With(u"error"_s).body), u"server error in"_s));
    EXPECT_TRUE(Holds(QString::fromUtf8(With(u"limit"_s).body), u"you have exceeded your daily useage"_s));
    const QString wrong = QString::fromUtf8(With(u"wrong"_s).body);
    EXPECT_TRUE(Holds(wrong, u"Spotlight"_s));
    EXPECT_FALSE(wrong.contains(u"DisplayFriendId"_s));
}

TEST_F(FaultAtAPage, ScriptsAreAddedToThePage) {
    for (const auto& [fault, script] :
         {std::pair{u"alert"_s, u"alert("_s}, std::pair{u"unload"_s, u"onbeforeunload"_s},
          std::pair{u"endless"_s, u"for (;;)"_s}}) {
        const QString text = QString::fromUtf8(With(fault).body);
        EXPECT_TRUE(Holds(text, script));
        EXPECT_TRUE(Holds(text, u"DisplayFriendId"_s));
    }
    client.Control(u"clear-faults"_s);
    EXPECT_FALSE(client.Text(page).contains(u"alert("_s));
}

TEST_F(FaultAtAPage, TheSessionCanBeLostThere) {
    const Response answer = With(u"loggedout"_s);
    EXPECT_EQ(SiteClient::Header(answer, u"Location"_s), SiteClient::root + u"/"_s);
    EXPECT_TRUE(Holds(client.Text(SiteClient::root + u"/"_s), u"forgot your password?"_s));
}

TEST_F(FaultAtAPage, ACaptchaStandsInFrontOfAnyPage) {
    const QString gate = QString::fromUtf8(With(u"captcha"_s).body);
    EXPECT_TRUE(Holds(gate, u"Please enter the text from the image"_s));
    EXPECT_TRUE(Holds(QString::fromUtf8(client.Post(page, "ctl00%24captcha_text=no").body),
                      u"Security code does not match"_s));
    const QString word = client.site.CaptchaWord(900001, 0);
    EXPECT_TRUE(Holds(QString::fromUtf8(client.Post(page, "ctl00%24captcha_text=" + word.toUtf8()).body),
                      u"\"DisplayFriendId\":100003"_s));
}

TEST_F(FaultAtAPage, ACaptchaAtARequestPageHoldsTheRequestBack) {
    client.Control(u"fault %1 captcha times 1"_s.arg(SiteClient::requestPage));
    EXPECT_TRUE(Holds(client.Ask(100003), u"Please enter the text from the image"_s));
    EXPECT_EQ(client.site.TakeJournal(), QStringList{u"request 900001 100003 captcha"_s});
    const QString word = client.site.CaptchaWord(900001, 100003);
    client.Post(SiteClient::requestPage + u"100003"_s, "ctl00%24captcha_text=" + word.toUtf8());
    EXPECT_EQ(client.site.TakeJournal().last(), u"asked 900001 100003"_s);
}

TEST_F(FaultAtAPage, AFaultAtARequestPageAsksNobody) {
    for (const QString& fault : {u"hang"_s, u"reset"_s, u"nobody"_s, u"error"_s, u"limit"_s, u"wrong"_s}) {
        client.Control(u"fault %1 %2"_s.arg(SiteClient::requestPage, fault));
        client.Ask(100003);
    }
    EXPECT_EQ(client.site.TakeJournal(), QStringList());
    client.Control(u"fault %1 off"_s.arg(SiteClient::requestPage));
    EXPECT_TRUE(Holds(client.Ask(100003), u"Request Sent!"_s));
}

TEST_F(FaultAtAPage, ALostOrBlankAnswerHidesARequestThatHasGoneOut) {
    for (const auto& [fault, target] : {std::pair{u"lost"_s, 100003}, std::pair{u"blank"_s, 100004}}) {
        client.Control(u"fault %1 %2 times 1"_s.arg(SiteClient::requestPage, fault));
        const Response answer = client.Get(SiteClient::requestPage + QString::number(target));
        EXPECT_EQ(answer.body, QByteArray());
        EXPECT_NE(answer.fault, Response::Fault::None);
        EXPECT_EQ(client.site.TakeJournal().last(), u"asked 900001 %1"_s.arg(target));
    }
}

TEST_F(FaultAtAPage, TimesCountsTheRequestsItMeets) {
    client.Control(u"fault www.myspace.example.com/100003 error times 2"_s);
    EXPECT_EQ(client.Get(page).status, 500);
    EXPECT_EQ(client.Get(page).status, 500);
    EXPECT_EQ(client.Get(page).status, 200);
}

TEST_F(FaultAtAPage, AFaultMayMeetOneAccountAlone) {
    client.Control(u"fault www.myspace.example.com/100003 error for b@example.com"_s);
    EXPECT_EQ(client.Get(page).status, 200);
    client.SignIn("b@example.com");
    EXPECT_EQ(client.Get(page).status, 500);
    client.Control(u"fault www.myspace.example.com/100003 wrong"_s); // for everybody, besides it
    client.Control(u"fault www.myspace.example.com/100003 error times 0 for b@example.com"_s);
    EXPECT_TRUE(Holds(client.Text(page), u"Spotlight"_s));
    EXPECT_NE(client.site.Control(u"fault www.myspace.example.com/ error for x@example.com"_s), QString());
}

TEST_F(FaultAtAPage, TheFaultSetLastWinsAndADollarMeansExactlyThisAddress) {
    client.Control(u"fault www.myspace.example.com/ error"_s);
    client.Control(u"fault www.myspace.example.com/100003$ wrong"_s);
    EXPECT_TRUE(Holds(client.Text(page), u"Spotlight"_s));
    EXPECT_TRUE(Holds(client.Text(page + u"/classic"_s), u"server error in"_s));
}

TEST_F(FaultAtAPage, TheControlHostIsNeverFaulted) {
    client.steers = true;
    client.Control(u"fault control.myspace.example.com error"_s);
    EXPECT_EQ(client.Get(u"control.myspace.example.com/journal"_s).status, 200);
}

} // namespace
} // namespace qlm::practice
