// SPDX-License-Identifier: MIT
// Pages that are hard to gather from: more links than anybody reads, profiles that say nothing, pages that
// lead nowhere.
#include "GatheringProgram.h"
#include "PrintText.h"
#include "practice/Designs.h"

#include <gtest/gtest.h>

namespace qlm {
namespace {

QString AddressOf(const QString& design) {
    return practice::PageAddress(*practice::DesignNamed(design), 100001);
}

} // namespace

TEST(HardPages, StopWorksAmongTwentyThousandLinksAndAllAreGoneThrough) {
    GatheringProgram program(100);
    program.Open(AddressOf(u"hard-links"_s));
    const qint64 answeredMs =
        program.GatherAndStop("optQuickGather", [&] { return program.List().size() >= 5; });
    EXPECT_GE(answeredMs, 0);
    EXPECT_LT(answeredMs, 1000);

    program.TakeShown();
    program.Open(AddressOf(u"hard-links"_s));
    ASSERT_TRUE(program.Gather("optQuickGather", 900 * 1000));
    EXPECT_EQ(program.List(), program.TakeShown().Quick());
}

TEST(HardPages, ProfilesThatNeverTellTheirNumberAreSkipped) {
    GatheringProgram program(30);
    program.Open(AddressOf(u"hard-silent"_s));
    ASSERT_TRUE(program.Gather("optFullGather", 60 * 1000));
    EXPECT_EQ(program.List(), QStringList());
    EXPECT_FALSE(program.Program().controls["ucpanelFullGatherIDNotify"_L1].visible);
}

TEST(HardPages, ANextPageThatIsTheSameAgainAddsNobodyTwiceAndCanBeStopped) {
    GatheringProgram program;
    program.TakeShown();
    program.Open(AddressOf(u"hard-circle"_s));
    const QStringList shown = program.TakeShown().Quick();
    const qint64 answeredMs = program.GatherAndStop("optQuickGather", 2, 3000);
    EXPECT_GE(answeredMs, 0);
    EXPECT_LT(answeredMs, 1000);
    EXPECT_EQ(program.List(), shown);
}

} // namespace qlm
