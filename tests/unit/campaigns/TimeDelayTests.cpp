// SPDX-License-Identifier: MIT
#include "campaigns/TimeDelayDialog.h"

#include <gtest/gtest.h>
#include <stdexcept>

using namespace Qt::Literals::StringLiterals;

namespace qlm {
namespace {

TEST(TimeDelaySeconds, AreMinutesTimesSixtyAndSeconds) {
    EXPECT_EQ(SecondsInInteger(u"2"_s, u"5"_s), 125);
    EXPECT_EQ(SecondsInInteger(u"0"_s, u"0"_s), 0);
}

TEST(TimeDelaySeconds, FractionsAreRoundedHalfToEven) {
    EXPECT_EQ(SecondsInInteger(u"0"_s, u"2.5"_s), 2);
    EXPECT_EQ(SecondsInInteger(u"0"_s, u"3.5"_s), 4);
}

TEST(TimeDelaySeconds, ReachTheLastSixteenBitNumber) {
    EXPECT_EQ(SecondsInInteger(u"546"_s, u"7"_s), 32767);
    EXPECT_THROW(SecondsInInteger(u"546"_s, u"8"_s), std::overflow_error);
}

TEST(TimeDelaySeconds, SixHundredMinutesOverflow) {
    EXPECT_THROW(SecondsInInteger(u"600"_s, u"0"_s), std::overflow_error);
    EXPECT_THROW(SecondsInInteger(u"0"_s, u"40000"_s), std::overflow_error);
    EXPECT_THROW(SecondsInInteger(u"99999999999"_s, u"0"_s), std::overflow_error);
}

TEST(TimeDelaySeconds, WordsAreNoNumbers) {
    EXPECT_THROW(SecondsInInteger(u"one"_s, u"0"_s), std::invalid_argument);
    EXPECT_THROW(SecondsInInteger(u"0"_s, {}), std::invalid_argument);
}

} // namespace
} // namespace qlm
