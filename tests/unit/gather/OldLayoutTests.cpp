// SPDX-License-Identifier: MIT
// With the old layout each page is begun only when it is full, by the marks of its design; so the lists here
// have no short last page.
#include "PracticeProgram.h"
#include "practice/Designs.h"

namespace qlm {
namespace {

using practice::ListDesign;

constexpr qint64 Owner = 100001;
// Without the new layout's rule, links in list entries count as well: the neighbours have two of these.
constexpr qint64 InEntries[] = {900009, 900010};

class OldLayout : public PracticeProgram, public testing::WithParamInterface<const char*> {
protected:
    OldLayout() { app->state.blnNewLayout = false; }
};

} // namespace

TEST_P(OldLayout, FullPagesAreGatheredToTheEnd) {
    const ListDesign& design = *practice::DesignNamed(QString::fromLatin1(GetParam()));
    Tell(u"list %1 %2"_s.arg(design.name).arg(3 * design.perPage));
    EXPECT_TRUE(Gather(practice::PageAddress(design, Owner), "optFullGather"_L1));
    std::set<qint64> expected = Shown(true);
    EXPECT_EQ(expected.size(), 3 * design.perPage);
    if (design.neighbours)
        expected.insert(std::begin(InEntries), std::end(InEntries));
    EXPECT_EQ(Gathered(), expected);
}

// Those whose pages are turned without a script, which only a real engine runs.
INSTANTIATE_TEST_SUITE_P(Each, OldLayout,
                         testing::Values("friends-all", "friends-old", "people-search-old", "image-search",
                                         "music-search-old", "band-finder", "forum-old", "forum-topic",
                                         "comments-paged", "mail-trash", "videos", "group", "event"),
                         [](const testing::TestParamInfo<const char*>& row) {
                             return QString::fromLatin1(row.param).remove(u'-').toStdString();
                         });

} // namespace qlm
