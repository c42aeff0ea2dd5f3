// SPDX-License-Identifier: MIT
// Long lists on the real engine: thirty pages, the filters, and Stop at any point.
#include "GatheringProgram.h"
#include "PrintText.h"
#include "Waiting.h"
#include "practice/World.h"

#include <gtest/gtest.h>

namespace qlm {
namespace {

using practice::Person;

const QString Owner = u"100001"_s;
const QString FriendsPage = u"http://www.myspace.example.com/100001/friends"_s;

// A list of so many pages is divided so finely that its length is that of a short one.
class Gathering : public testing::Test {
protected:
    void HaveFriends(int pages, int perPage) {
        program.site.Tell(u"friends %1 %2"_s.arg(Owner).arg(pages * perPage));
        program.site.Tell(u"list friends %1 %2"_s.arg(pages * perPage).arg(perPage));
        program.TakeShown();
        program.Open(FriendsPage);
    }
    void FilterFor(QLatin1StringView option) {
        program.Fill("cboFilterAge1"_L1, u"25"_s);
        program.Fill("cboFilterAge2"_L1, u"40"_s);
        program.Tick("optFilterWhenGathering"_L1);
        program.Tick(option);
    }
    template <typename Fits> QStringList Those(const QStringList& ids, Fits fits) const {
        QStringList those;
        for (const QString& id : ids)
            if (const Person& person = *people.Find(id.toLongLong()); fits(person))
                those.append(id);
        return those;
    }

    GatheringProgram program;
    const practice::People people{1};
};

QStringList Sorted(QStringList ids) {
    ids.sort();
    return ids;
}

} // namespace

TEST_F(Gathering, ThirtyPagesAreTheListQuickAndFull) {
    constexpr int pages = 30;
    constexpr int perPage = 3;
    HaveFriends(pages, perPage);
    ASSERT_TRUE(program.Gather("optQuickGather", 150 * 1000)) << program.Program().Status().toStdString();
    ShownPeople shown = program.TakeShown();
    EXPECT_EQ(shown.Full().size(), pages * perPage - 1);
    EXPECT_LT(shown.Quick().size(), shown.Full().size());
    EXPECT_EQ(program.List(), shown.Quick());

    HaveFriends(pages, perPage);
    ASSERT_TRUE(program.Gather("optFullGather", 150 * 1000)) << program.Program().Status().toStdString();
    shown = program.TakeShown();
    EXPECT_EQ(shown.Full().size(), pages * perPage - 1);
    EXPECT_EQ(Sorted(program.List()), Sorted(shown.Full()));
}

// Each filter by itself is tried over thirty pages on the simulated engine; here is one of each kind: by the
// profile's marks, by its script and by the list itself.
TEST_F(Gathering, FiltersLeaveThoseWhoFit) {
    HaveFriends(3, 8);
    FilterFor("optFilterBands"_L1);
    ASSERT_TRUE(program.Gather()) << program.Program().Status().toStdString();
    const auto isBand = [](const Person& p) { return p.kind == Person::Kind::Band && !p.advertiser; };
    EXPECT_EQ(program.List(), Those(program.TakeShown().Quick(), isBand));

    program.Tick("optFilterOff"_L1);
    FilterFor("optFilterAgeOn"_L1);
    HaveFriends(3, 8);
    ASSERT_TRUE(program.Gather()) << program.Program().Status().toStdString();
    const auto isOfAge = [](const Person& p) { return p.age >= 25 && p.age <= 40 && !p.advertiser; };
    EXPECT_EQ(program.List(), Those(program.TakeShown().Quick(), isOfAge));

    program.Tick("optFilterAgeOff"_L1);
    FilterFor("optFilterOnlineNow"_L1);
    HaveFriends(3, 30);
    ASSERT_TRUE(program.Gather()) << program.Program().Status().toStdString();
    const QStringList online = Those(program.TakeShown().Quick(), [](const Person& p) { return p.online; });
    EXPECT_FALSE(online.isEmpty());
    EXPECT_EQ(program.List(), online);
}

// The first pages of a Full Gather with a filter: scans, fetches in the background, visits of profiles, the
// way back to the list and the turning of pages all lie within the sampled stretch.
TEST_F(Gathering, StopAnswersWithinASecondFromAnyPoint) {
    constexpr int points = 14;
    FilterFor("optFilterMale"_L1);
    int stopped = 0;
    for (int point = 0; point < points; ++point) {
        SCOPED_TRACE(point);
        HaveFriends(6, 9);
        const qint64 answeredMs = program.GatherAndStop("optFullGather", 1 + 3 * point, 37 * point % 200);
        stopped += answeredMs >= 0 ? 1 : 0;
        EXPECT_LT(answeredMs, 1000);
        const QStringList list = program.List();
        LetPass(120);
        EXPECT_EQ(program.List(), list) << "something went on";
        EXPECT_EQ(QSet<QString>(list.begin(), list.end()).size(), list.size());
    }
    EXPECT_GE(stopped, points - 2);
}

} // namespace qlm
