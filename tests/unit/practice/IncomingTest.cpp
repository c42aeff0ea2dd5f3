// SPDX-License-Identifier: MIT
#include "WritingClient.h"
#include "practice/People.h"
#include "practice/RequestListDesigns.h"

namespace qlm::practice {
namespace {

const QString newUrl = SiteClient::root + u"/my/requests/friendrequest?viewall=1"_s;
const QString oldUrl =
    u"http://messaging.myspace.example.com/index.cfm?fuseaction=mail.friendRequestsV3&viewall=1"_s;
const QString secondUrl =
    u"http://messaging.myspace.example.com/index.cfm?fuseaction=mail.friendRequests&viewall=1"_s;

class IncomingPages : public WritingTest {
protected:
    void SetUp() override { client.Control(u"incoming 900001 3"_s); }
    QStringList Waiting(const QString& url = newUrl) {
        return Between(Text(url), u"name=\"request\" value=\""_s, u"\""_s);
    }
    QString InPlace(const QString& id, const QString& act = u"accept"_s) {
        return FirstBetween(Sent(newUrl, {{u"request"_s, id}, {u"act"_s, act}, {u"inPlace"_s, u"1"_s}}),
                            u"id=\"said\">"_s, u"<"_s);
    }
    QString NameOf(const QString& id) { return People(1).Find(id.toLongLong())->name; }
};

class EveryRequestList : public IncomingPages, public testing::WithParamInterface<const RequestListDesign*> {
protected:
    EveryRequestList() { client.Control(u"request-list all "_s + design.name.toString()); }
    const RequestListDesign& design = *GetParam();
    const QString url = !design.older ? newUrl : design.isSecond ? secondUrl : oldUrl;
};

TEST_P(EveryRequestList, HasWhatItIsKnownBy) {
    const QString page = Text(url);
    EXPECT_EQ(page.contains(u"Select all"_s), !design.older);
    EXPECT_EQ(page.contains(u"spanapprovebottom"_s), design.older && !design.isSecond);
    EXPECT_EQ(page.contains(u"check/uncheck all"_s, Qt::CaseInsensitive), design.isSecond);
    EXPECT_EQ(page.contains(u"id=\"chktop\""_s), design.older);
    EXPECT_EQ(page.contains(u"id=\"subscribe"_s), design.older);
    EXPECT_EQ(page.contains(u"approvesbutton"_s, Qt::CaseInsensitive), design.older && design.hasButtons);
    EXPECT_EQ(page.contains(u">Accept</button>"_s), !design.older && design.hasButtons);
    EXPECT_EQ(Between(page, u" mode=\"FriendRequest,"_s, u","_s),
              !design.older && design.hasNumbers ? Waiting(url) : QStringList());
    EXPECT_EQ(page.contains(u" mode=\"FriendRequest"_s), !design.older);
    EXPECT_EQ(Waiting(url).size(), 3);
}

TEST_P(EveryRequestList, AnEmptyOneSaysSoInTheWordsOfItsLayout) {
    client.Control(u"incoming 900001 0"_s);
    const QString page = Text(url);
    const bool isV3 = design.older && !design.isSecond;
    EXPECT_EQ(page.contains(u"There are 0 requests in this folder"_s), !isV3);
    EXPECT_EQ(page.contains(u"You have no requests"_s), isV3);
    EXPECT_FALSE(page.contains(u"name=\"request\""_s));
}

TEST_P(EveryRequestList, SeveralPagesLeadToTheLast) {
    client.Control(u"incoming 900001 1000"_s);
    const QString page = Text(url);
    EXPECT_TRUE(Holds(page, u"Listing 1-25 of 1000"_s));
    const bool isBack = page.contains(
        u"cpMain$messagingMain$FriendRequestsIncomingV2$pagingNavigation1$LastRecordDirectPageLinkButton"_s);
    EXPECT_EQ(isBack, design.hasLastLink && (!design.older || design.isSecond));
    EXPECT_EQ(page.contains(u"\"javascript: requestlist.GoToPage(&#39;40&#39;,"_s) ||
                  page.contains(u"\"javascript: requestlist.GoToPage('40',"_s),
              design.hasLastLink && design.older && !design.isSecond);
    const QString afterOf = page.mid(page.indexOf(u"of"_s, page.indexOf(u"pagingLink"_s)));
    EXPECT_EQ(FirstBetween(afterOf, u">"_s, u"<"_s), u"40"_s);
    const QStringList last = Waiting(url + u"&page=40"_s);
    EXPECT_EQ(last.size(), 25);
    EXPECT_TRUE(Holds(Text(url + u"&page=40"_s), u"Listing 976-1000 of 1000"_s));
    EXPECT_NE(last, Waiting(url));
}

TEST_P(EveryRequestList, WhoeverIsTickedIsAcceptedAtOnce) {
    const QStringList waiting = Waiting(url);
    const QString page = Sent(ActionOf(Text(url)), {{u"request"_s, waiting[0]},
                                                    {u"request"_s, waiting[2]},
                                                    {u"subscribe"_s, waiting[2]},
                                                    {u"act"_s, u"approve"_s}});
    EXPECT_EQ(Journal(), (QStringList{u"accepted 900001 "_s + waiting[0],
                                      u"accepted 900001 %1 updates"_s.arg(waiting[2])}));
    EXPECT_TRUE(Holds(page, u"is now your friend"_s));
    EXPECT_EQ(Waiting(url), QStringList{waiting[1]});
}

QList<const RequestListDesign*> AllRequestLists() {
    QList<const RequestListDesign*> all;
    for (const RequestListDesign& design : RequestListDesigns())
        all.append(&design);
    return all;
}

INSTANTIATE_TEST_SUITE_P(Designs, EveryRequestList, testing::ValuesIn(AllRequestLists()),
                         [](const testing::TestParamInfo<const RequestListDesign*>& row) {
                             return row.param->name.toString().remove(u'-').toStdString();
                         });

TEST_F(IncomingPages, TheSeedHasAskedEverybody) {
    for (const quint64 seed : {1, 2}) {
        const SiteClient other(seed);
        client.Control(u"seed %1"_s.arg(seed));
        const qsizetype count =
            FirstBetween(Text(u"http://home.myspace.example.com/index.cfm?fuseaction=home"_s),
                         u"Friend requests ("_s, u")"_s)
                .toInt();
        EXPECT_GE(count, 5);
        EXPECT_LT(count, 45);
        EXPECT_EQ(Waiting().size(), std::min<qsizetype>(count, 25));
    }
}

TEST_F(IncomingPages, AcceptingInPlaceSaysSoAndMakesFriends) {
    const QString id = Waiting().front();
    EXPECT_EQ(InPlace(id), Plain(NameOf(id).toHtmlEscaped()) + u" is now your friend."_s);
    EXPECT_EQ(Journal(), QStringList{u"accepted 900001 "_s + id});
    EXPECT_EQ(Waiting().size(), 2);
    EXPECT_TRUE(Holds(client.Ask(id.toLongLong()), u"already your friend"_s));
}

TEST_F(IncomingPages, NobodyIsAcceptedTwice) {
    const QString id = Waiting().front();
    InPlace(id);
    EXPECT_EQ(InPlace(id), u"There is no such request."_s);
    EXPECT_EQ(Journal(), QStringList{u"accepted 900001 "_s + id});
}

TEST_F(IncomingPages, DenyingSaysSoAndMakesNoFriends) {
    const QString id = Waiting().front();
    EXPECT_TRUE(Holds(InPlace(id, u"deny"_s), u"You have denied a friend request from "_s));
    EXPECT_EQ(Journal(), QStringList{u"denied 900001 "_s + id});
    EXPECT_EQ(Waiting().size(), 2);
    EXPECT_FALSE(client.Ask(id.toLongLong()).contains(u"already your friend"_s));
}

TEST_F(IncomingPages, ARequestMayFailAndBeLostOrStay) {
    const QStringList waiting = Waiting();
    client.Control(u"accept-outcome %1 error"_s.arg(waiting[0]));
    client.Control(u"accept-outcome %1 stays"_s.arg(waiting[1]));
    for (const QString& id : waiting.first(2))
        EXPECT_TRUE(Holds(InPlace(id), u"An error has occurred while processing"_s));
    EXPECT_EQ(Journal(), (QStringList{u"accept 900001 %1 error"_s.arg(waiting[0]),
                                      u"accept 900001 %1 stays"_s.arg(waiting[1])}));
    EXPECT_EQ(Waiting(), waiting.sliced(1));
}

TEST_F(IncomingPages, AnAnswerMayBeSlowOrNeverCome) {
    const QStringList waiting = Waiting();
    client.Control(u"accept-share slow 100"_s);
    client.Control(u"accept-outcome %1 never"_s.arg(waiting[1]));
    const auto post = [&](const QString& id) {
        return client.Post(newUrl,
                           Encoded({{u"request"_s, id}, {u"act"_s, u"accept"_s}, {u"inPlace"_s, u"1"_s}}));
    };
    EXPECT_EQ(post(waiting[0]).fault, Response::Fault::Slow);
    EXPECT_EQ(post(waiting[1]).fault, Response::Fault::Hang);
    EXPECT_EQ(Journal(),
              (QStringList{u"accepted 900001 "_s + waiting[0], u"accept 900001 %1 never"_s.arg(waiting[1])}));
    EXPECT_EQ(Waiting(), waiting.sliced(1));
}

TEST_F(IncomingPages, WhoeverHasVanishedCanOnlyBeDenied) {
    const QString id = Waiting().front();
    client.Control(u"vanish "_s + id);
    const QString page = Text(oldUrl);
    const qsizetype gone = page.indexOf(u"<span>This profile no longer exists</span>"_s);
    EXPECT_GT(gone, 0);
    EXPECT_EQ(Between(page, u"data-on-click=\"set #answerNumber value "_s, u";"_s).first(2),
              (QStringList{id, Waiting()[1]}));
    EXPECT_LT(gone, page.indexOf(u">Deny</span>"_s));
    EXPECT_TRUE(Holds(InPlace(id), u"An error has occurred while processing"_s));
    EXPECT_TRUE(Holds(client.Ask(id.toLongLong()), u"Invalid friend ID"_s));
    EXPECT_EQ(Waiting().size(), 2);
}

TEST_F(IncomingPages, AccountsAskEachOther) {
    client.Ask(900002);
    SiteClient& other = client;
    other.SignIn("b@example.com");
    Journal();
    client.Control(u"journal visits off"_s);
    EXPECT_TRUE(Waiting().contains(u"900001"_s));
    InPlace(u"900001"_s);
    EXPECT_EQ(Journal(), QStringList{u"accepted 900002 900001"_s});
    client.SignIn();
    EXPECT_TRUE(Holds(client.Ask(900002), u"already your friend"_s));
}

TEST_F(IncomingPages, TheOlderAddressLeadsOnToTheVersionBeforeIfAControlSaysSo) {
    client.Control(u"request-list 900001 older-second"_s);
    EXPECT_EQ(SiteClient::Header(client.Get(oldUrl), u"Location"_s), secondUrl);
    client.Control(u"request-list 900001 off"_s);
    EXPECT_TRUE(Holds(Text(oldUrl), u"spanapprovebottom"_s));
}

TEST_F(IncomingPages, NobodySeesThemWithoutSigningIn) {
    client.cookie.clear();
    for (const QString& url : {newUrl, oldUrl, secondUrl})
        EXPECT_EQ(SiteClient::Header(client.Get(url), u"Location"_s), SiteClient::root + u"/"_s);
}

TEST_F(IncomingPages, SensibleControlsAlone) {
    for (const QString& line :
         {u"incoming 900001 5001"_s, u"accept-outcome 100001 maybe"_s, u"vanish 900001"_s, u"vanish 5"_s,
          u"request-list all strange"_s, u"mobile strange"_s})
        EXPECT_NE(client.site.Control(line), QString()) << line.toStdString();
}

} // namespace
} // namespace qlm::practice
