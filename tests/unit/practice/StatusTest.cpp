// SPDX-License-Identifier: MIT
#include "WritingClient.h"
#include "practice/Refusals.h"
#include "practice/StatusDesigns.h"

namespace qlm::practice {
namespace {

const QString newUrl = u"http://home.myspace.example.com/index.cfm?fuseaction=home&f=7"_s;
const QString oldUrl = u"http://home.myspace.example.com/"_s;

class StatusPages : public WritingTest {
protected:
    // What a browser shows in the end.
    QString Shown(const QString& url, const Form& form) {
        const Response response = client.Post(url, Encoded(form));
        const QString next = SiteClient::Header(response, u"Location"_s);
        return next.isEmpty() ? Plain(QString::fromUtf8(response.body)) : Text(next);
    }
    QString Share(const QString& text = u"in the studio"_s, const QString& url = newUrl) {
        return Shown(url, {{u"spStatus"_s, text}});
    }
    QString Delete(int number) { return Shown(newUrl, {{u"deleteUpdate"_s, QString::number(number)}}); }
    static QStringList Deletable(const QString& page) { return Between(page, u"askDelete(this, "_s, u","_s); }
};

class EveryStatusBox : public StatusPages, public testing::WithParamInterface<const StatusDesign*> {
protected:
    EveryStatusBox() { client.Control(u"status-form 900001 "_s + design.name.toString()); }
    const StatusDesign& design = *GetParam();
    const QString url = design.older ? oldUrl : newUrl;
};

TEST_P(EveryStatusBox, HasWhatItIsKnownBy) {
    const QString page = Text(url);
    EXPECT_EQ(page.contains(u"<p><label class=\"whole\" for=\"spStatus\">"_s), !design.isLate);
    EXPECT_EQ(page.contains(u"Share what you"_s), !design.hint.isEmpty());
    EXPECT_EQ(page.contains(u"filterStreamByFriend"_s), design.older && design.hasFilter);
    EXPECT_EQ(page.contains(u">Just me</a>"_s), !design.older && design.hasFilter);
    EXPECT_EQ(page.contains(u"id=\"status_submitBtn\""_s) ||
                  page.contains(u"id=&quot;status_submitBtn&quot;"_s),
              design.hasShare);
    EXPECT_EQ(page.contains(u"id=\"sharePage\""_s), design.hasOthers);
    EXPECT_TRUE(Journal().isEmpty());
}

TEST_P(EveryStatusBox, NotesWhatWasPostedWordForWord) {
    const QString page = Share(u"we \"play\" <b>tonight</b>"_s, url);
    EXPECT_EQ(Journal(), (QStringList{u"status 900001 posted"_s,
                                      uR"(posted-status 900001 5001 "we \"play\" <b>tonight</b>")"_s}));
    EXPECT_EQ(page.contains(u"filterStreamByFriend"_s), design.older && design.hasFilter);
}

TEST_P(EveryStatusBox, ShowsWhatOneWroteOneselfWithAWayToDeleteIt) {
    client.Control(u"statuses 900001 2"_s);
    EXPECT_EQ(Deletable(Text(url)), QStringList());
    const QString own = Text(url + (design.older ? u"?friend=1"_s : u"&friend=1&kind=status"_s));
    EXPECT_TRUE(Holds(own, u"This was number 2."_s));
    EXPECT_EQ(Deletable(own), design.isDeletable ? (QStringList{u"5002"_s, u"5001"_s}) : QStringList());
    EXPECT_EQ(own.contains(design.older ? u">Delete This Update<"_s : u">Delete this update<"_s),
              design.isDeletable);
}

TEST_P(EveryStatusBox, IsOnTheMap) {
    const QString map = Text(SiteClient::root + u"/sitemap/forms"_s);
    EXPECT_TRUE(Holds(map, u"<td>%1</td>"_s.arg(design.name)));
    EXPECT_TRUE(Holds(map, url.toHtmlEscaped()));
}

QList<const StatusDesign*> AllStatusBoxes() {
    QList<const StatusDesign*> all;
    for (const StatusDesign& design : StatusDesigns())
        all.append(&design);
    return all;
}

INSTANTIATE_TEST_SUITE_P(Designs, EveryStatusBox, testing::ValuesIn(AllStatusBoxes()),
                         [](const testing::TestParamInfo<const StatusDesign*>& row) {
                             return row.param->name.toString().remove(u'-').toStdString();
                         });

TEST_F(StatusPages, EachLayoutHasAnAddressAndItsOwnApostrophe) {
    EXPECT_TRUE(Holds(Text(newUrl), u"Share what you\u2019re into"_s));
    EXPECT_TRUE(Holds(Text(oldUrl), u"Share what you're into"_s));
    EXPECT_TRUE(Holds(Text(SiteClient::root + u"/"_s), u"Share what you\u2019re into"_s));
    client.Control(u"status-form 900001 older-late"_s);
    EXPECT_FALSE(Text(newUrl).contains(u"id=\"late\""_s));
    EXPECT_TRUE(Text(oldUrl).contains(u"id=\"late\""_s));
}

TEST_F(StatusPages, OwnChangesComeFirstUnlessOneAsksForStatusesAlone) {
    client.Control(u"statuses 900001 1"_s);
    EXPECT_EQ(Deletable(Text(newUrl + u"&friend=1"_s)), (QStringList{u"1"_s, u"5001"_s}));
    Delete(1);
    EXPECT_EQ(Journal(), QStringList{u"deleted-update 900001 1 \"changed the headline\""_s});
    EXPECT_EQ(Deletable(Text(newUrl + u"&friend=1"_s)), QStringList{u"5001"_s});
}

TEST_F(StatusPages, TheFilterForStatusesKeepsWhoseTheyAre) {
    EXPECT_TRUE(Holds(Text(newUrl), u"href=\"%1&amp;kind=status\""_s.arg(newUrl.toHtmlEscaped())));
    EXPECT_TRUE(Holds(Text(newUrl + u"&friend=1"_s),
                      u"href=\"%1&amp;friend=1&amp;kind=status\""_s.arg(newUrl.toHtmlEscaped())));
}

TEST_F(StatusPages, ADeletedOneIsGoneAndOnlyOnesOwnCanBe) {
    client.Control(u"statuses 900001 2"_s);
    client.Control(u"statuses 900002 1"_s);
    Delete(5002);
    EXPECT_EQ(Journal(), QStringList{u"deleted-status 900001 5002 \"This was number 2.\""_s});
    EXPECT_TRUE(Holds(Delete(5003), u"There is no such update."_s));
    EXPECT_TRUE(Journal().isEmpty());
    EXPECT_EQ(Deletable(Text(newUrl + u"&friend=1&kind=status"_s)), QStringList{u"5001"_s});
}

TEST_F(StatusPages, ATextIsCutAt140Letters) {
    Share(QString(150, u'x'));
    EXPECT_EQ(Journal().value(1), u"posted-status 900001 5001 \"%1\""_s.arg(QString(140, u'x')));
}

TEST_F(StatusPages, RefusalsAreSaidBesideTheBox) {
    for (const auto& [word, says] : {std::pair{u"flooding"_s, u"updating your status too quickly"_s},
                                     std::pair{u"unable"_s, u"unable to update your status"_s}}) {
        client.Control(u"status-outcome 900001 "_s + word);
        const QString page = Share();
        EXPECT_TRUE(Holds(page, says));
        EXPECT_TRUE(Holds(page, u"id=\"spStatus\""_s));
        EXPECT_EQ(Journal(), QStringList{u"status 900001 "_s + word});
    }
    client.Control(u"status-outcome 900001 posted"_s);
    EXPECT_TRUE(Holds(Share(u"  "_s), u"Please write something first"_s));
    EXPECT_EQ(Journal(), QStringList{u"status 900001 empty"_s});
}

TEST_F(StatusPages, EveryRefusalCanStandInPlaceOfThePage) {
    for (const Refusal& refusal : Refusals()) {
        client.Control(u"status-refuse 900001 %1"_s.arg(refusal.number));
        EXPECT_FALSE(Share().contains(u"id=\"spStatus\""_s));
        EXPECT_EQ(Journal(), QStringList{u"status 900001 refused-%1"_s.arg(refusal.number)});
    }
}

TEST_F(StatusPages, TheLimitOfADayHoldsForOneAccount) {
    client.Control(u"status-limit 1"_s);
    Share();
    Journal();
    EXPECT_TRUE(Holds(Share(), u"That's all for today"_s));
    EXPECT_EQ(Journal(), QStringList{u"status 900001 limit"_s});
    client.now = client.now.addDays(1);
    Share();
    EXPECT_EQ(Journal().value(0), u"status 900001 posted"_s);
}

TEST_F(StatusPages, TheOtherButtonOfThatCaptionPostsNothing) {
    EXPECT_TRUE(Holds(Sent(newUrl, {{u"sharePage"_s, u"1"_s}, {u"spStatus"_s, u"x"_s}}), u"Tell a friend"_s));
    EXPECT_TRUE(Journal().isEmpty());
}

TEST_F(StatusPages, NobodyPostsWithoutSigningIn) {
    client.cookie.clear();
    EXPECT_FALSE(Share().contains(u"spStatus"_s));
    EXPECT_TRUE(Journal().isEmpty());
}

TEST_F(StatusPages, TheJournalSaysWhen) {
    client.Control(u"journal times on"_s);
    Share();
    Delete(5001);
    for (const QString& line : Journal().mid(1))
        EXPECT_TRUE(line.endsWith(u"\" 2009-06-01T10:00:00"_s)) << line.toStdString();
}

} // namespace
} // namespace qlm::practice
