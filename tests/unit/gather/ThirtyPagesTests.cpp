// SPDX-License-Identifier: MIT
// A friends list of thirty pages of the practice site, gathered in each way that the user can choose; the
// list has to be what the site's journal says stood on the pages.
#include "FilterChoices.h"
#include "PracticeProgram.h"

using namespace Qt::Literals::StringLiterals;

namespace qlm {
namespace {

constexpr int Pages = 30;
constexpr int PerPage = 4;
constexpr qint64 Owner = 100001;

struct Choice {
    bool isFull;
    FilterChoice filter;
};

// Both kinds of gather without a filter, and each filter.
std::vector<Choice> Choices() {
    std::vector<Choice> choices;
    for (const bool isFull : {false, true})
        choices.push_back(
            {isFull, {isFull ? "Full" : "Quick", {}, false, [](auto&, QDate) { return true; }}});
    for (const FilterChoice& filter : FilterChoices())
        choices.push_back({filter.options.size() == 1, filter});
    return choices;
}

class ThirtyPages : public PracticeProgram, public testing::WithParamInterface<Choice> {
protected:
    ThirtyPages() {
        Tell(u"friends %1 %2"_s.arg(Owner).arg(Pages * PerPage));
        Tell(u"list friends %1 %2"_s.arg(Pages * PerPage).arg(PerPage));
    }

    void ChooseFilters(const FilterChoice& filter) {
        Controls& controls = app->controls;
        FillFilterFields(
            [&](QLatin1StringView field, const QString& text) { controls.SetText(field, text); });
        controls.SetTicked("optFilterWhenGathering"_L1, true);
        for (const QLatin1StringView option : filter.options)
            controls.SetTicked(option, true);
    }
};

} // namespace

TEST_P(ThirtyPages, BringInWhoStoodThereAndFits) {
    const Choice& choice = GetParam();
    ChooseFilters(choice.filter);
    EXPECT_TRUE(Gather(app->Expand(u"http://{SiteRootHost}/"_s) + QString::number(Owner) + u"/friends"_s,
                       choice.isFull ? "optFullGather"_L1 : "optQuickGather"_L1));

    const practice::World twin(Seed, [this] { return world.clock.Now(); });
    std::set<qint64> expected;
    for (const qint64 id : Shown(choice.isFull))
        if (PassesFilter(choice.filter, twin, id, world.clock.Now().date()))
            expected.insert(id);
    EXPECT_EQ(Shown(true).size(), Pages * PerPage - 1);
    EXPECT_FALSE(expected.empty());
    EXPECT_EQ(Gathered(), expected);
}

INSTANTIATE_TEST_SUITE_P(Each, ThirtyPages, testing::ValuesIn(Choices()),
                         [](const testing::TestParamInfo<Choice>& row) { return row.param.filter.name; });

} // namespace qlm
