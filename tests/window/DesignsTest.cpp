// SPDX-License-Identifier: MIT
// Every design of the site's lists, gathered to its end on the real engine.
#include "practice/Designs.h"
#include "GatheringProgram.h"
#include "PrintText.h"

#include <gtest/gtest.h>

namespace qlm {
namespace {

using practice::ListDesign;

const QString Owner = u"100001"_s;
// Turned by scrolling, the chart has to be whole to be found complete.
constexpr int WholeChart = 200;
// Three pages: a first, one with neighbours on both sides, and a last that isn't full.
constexpr int Entries = 14;
constexpr int PerPage = 6;
constexpr int Friends = 46;

class Designs : public testing::TestWithParam<const ListDesign*> {
protected:
    static void SetUpTestSuite() { gathering = std::make_unique<GatheringProgram>(); }
    static void TearDownTestSuite() { gathering.reset(); }

    static std::unique_ptr<GatheringProgram> gathering;
};

std::unique_ptr<GatheringProgram> Designs::gathering;

// Handlers of their own divide their lists themselves.
bool HasPages(const ListDesign& design) {
    return design.handler || design.entries > design.perPage;
}

// How many people the whole list has.
int Length(const ListDesign& design) {
    if (design.name == u"friends")
        return Friends;
    if (design.name == u"comments")
        return Friends - 1;
    if (design.name.startsWith(u"chart"))
        return WholeChart;
    return HasPages(design) ? Entries : design.entries;
}

QStringList Sorted(QStringList ids) {
    ids.sort();
    return ids;
}

bool HasNoEnd(const ListDesign* design) {
    return design->name == u"hard-circle" || design->name == u"hard-links" || design->name == u"hard-silent";
}

std::vector<const ListDesign*> DesignsWithAnEnd() {
    std::vector<const ListDesign*> designs(practice::AllDesigns().begin(), practice::AllDesigns().end());
    std::erase_if(designs, HasNoEnd);
    return designs;
}

} // namespace

TEST_P(Designs, IsGatheredToItsEnd) {
    const ListDesign& design = *GetParam();
    GatheringProgram& program = *gathering;
    program.site.Tell(u"friends %1 %2"_s.arg(Owner).arg(Friends));
    if (HasPages(design) && !design.name.startsWith(u"chart"))
        program.site.Tell(u"list %1 %2 %3"_s.arg(design.name).arg(Entries).arg(PerPage));
    if (design.name == u"friends")
        program.site.Tell(u"list friends %1 16"_s.arg(Friends));
    // Where names hide numbers, only the long way finds everybody.
    const bool isNumbered = design.names == ListDesign::Names::Numbered;
    program.TakeShown();
    program.Open(practice::PageAddress(design, Owner.toLongLong()));
    ASSERT_TRUE(program.Gather(isNumbered ? "optQuickGather" : "optFullGather"))
        << program.Program().Status().toStdString();
    const QStringList shown = program.TakeShown().Full();
    const bool hasFounder = design.name == u"friends";
    EXPECT_EQ(shown.size(), Length(design) - (hasFounder ? 1 : 0));
    EXPECT_EQ(Sorted(program.List()), Sorted(shown));
}

INSTANTIATE_TEST_SUITE_P(Each, Designs, testing::ValuesIn(DesignsWithAnEnd()),
                         [](const testing::TestParamInfo<const ListDesign*>& row) {
                             return row.param->name.toString().remove(u'-').toStdString();
                         });

} // namespace qlm
