// SPDX-License-Identifier: MIT
// Long lists on the real engine: thirty pages, the filters, and Stop at any point.
#include "FilterChoices.h"
#include "GatheringProgram.h"
#include "PrintText.h"
#include "Waiting.h"

#include <gtest/gtest.h>

namespace qlm {
namespace {

constexpr qint64 Owner = 100001;

// A list of so many pages is divided so finely that its length is that of a short one.
class Gathering : public testing::Test {
protected:
    void HaveFriends(int pages, int perPage, qint64 owner = Owner) {
        program.site.Tell(u"friends %1 %2"_s.arg(owner).arg(pages * perPage));
        program.site.Tell(u"list friends %1 %2"_s.arg(pages * perPage).arg(perPage));
        program.TakeShown();
        program.Open(u"http://www.myspace.example.com/%1/friends"_s.arg(owner));
    }
    void FilterFor(const FilterChoice& filter) {
        FillFilterFields([this](QLatin1StringView field, const QString& text) { program.Fill(field, text); });
        for (const QLatin1StringView off : {"optFilterOff"_L1, "optFilterGenderOff"_L1, "optFilterAgeOff"_L1,
                                            "optFilterLocationOff"_L1, "optFilterLastLoginOff"_L1})
            program.Tick(off);
        program.Tick("optFilterWhenGathering"_L1);
        for (const QLatin1StringView option : filter.options)
            program.Tick(option);
    }
    QStringList Those(const QStringList& ids, const FilterChoice& filter) {
        const QDate today = program.Program().Pump().Now().date();
        QStringList those;
        for (const QString& id : ids)
            if (PassesFilter(filter, twin, id.toLongLong(), today))
                those.append(id);
        return those;
    }
    // Somebody who has among so many friends for each filter one who fits and one who doesn't.
    qint64 OwnerOfAMixedList(int count) {
        for (const practice::Person& owner : twin.people.Crowd()) {
            QStringList ids;
            twin.friends.SetCount(owner.id, count);
            for (const practice::Person* person : twin.friends.Slice(twin.people, owner.id, 1, count - 1))
                if (person->vanity.isEmpty())
                    ids.append(QString::number(person->id));
            const auto divides = [&](const FilterChoice& filter) {
                const qsizetype fitting = Those(ids, filter).size();
                return fitting > 0 && fitting < ids.size();
            };
            if (std::all_of(FilterChoices().begin(), FilterChoices().end(), divides))
                return owner.id;
        }
        throw std::runtime_error("nobody has such friends");
    }

    GatheringProgram program;
    practice::World twin{1, [] { return QDateTime::currentDateTime(); }};
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

// Over thirty pages each is tried on the simulated engine, and here when it is asked for.
TEST_F(Gathering, EachFilterLeavesThoseWhoFit) {
    const bool isLong = !qEnvironmentVariableIsEmpty("QUILLMERE_LONG_TESTS");
    const int pages = isLong ? 30 : 2;
    const int perPage = isLong ? 2 : 5;
    const qint64 owner = OwnerOfAMixedList(pages * perPage);
    for (const FilterChoice& filter : FilterChoices()) {
        SCOPED_TRACE(filter.name);
        FilterFor(filter);
        HaveFriends(pages, perPage, owner);
        ASSERT_TRUE(program.Gather("optQuickGather", 300 * 1000)) << program.Program().Status().toStdString();
        const QStringList shown = program.TakeShown().Quick();
        const QStringList those = Those(shown, filter);
        EXPECT_GT(those.size(), 0);
        EXPECT_LT(those.size(), shown.size());
        EXPECT_EQ(program.List(), those);
    }
}

// The first pages of a Full Gather with a filter: scans, fetches in the background, visits of profiles, the
// way back to the list and the turning of pages all lie within the sampled stretch.
TEST_F(Gathering, StopAnswersWithinASecondFromAnyPoint) {
    constexpr int points = 14;
    FilterFor(FilterChoices().front());
    int stopped = 0;
    for (int point = 0; point < points; ++point) {
        SCOPED_TRACE(point);
        HaveFriends(6, 5);
        const qint64 answeredMs = program.GatherAndStop("optFullGather", 1 + point, 37 * point % 200);
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
