// SPDX-License-Identifier: MIT
#include "SimulatedProgram.h"
#include "gather/StandingPage.h"

using namespace Qt::Literals::StringLiterals;

namespace qlm {
namespace {

class StandingPageTest : public SimulatedProgram {
protected:
    // The first second, of the next sixty, at which the page stands; 0 when it doesn't.
    int SecondOfStanding() {
        for (int second = 1; second <= 60; ++second) {
            platform->Pump().RunFor(1000);
            if (page.Stands())
                return second;
        }
        return 0;
    }
    StandingPage page{*app};
};

// The first look, after a second, says what there is to stay the same.
TEST_F(StandingPageTest, APageStandsAfterTwentySecondsWithoutAChange) {
    Show(u"http://www.example.com/any"_s, u"x"_s);
    page.Begin();
    EXPECT_EQ(SecondOfStanding(), 21);
}

TEST_F(StandingPageTest, AChangeBeginsTheTimeAnew) {
    Show(u"http://www.example.com/any"_s, u"<p id=p>x</p>"_s);
    page.Begin();
    app->Pump().Queue().PostAt(app->Pump().NowMs() + 10'500, [this] {
        app->WebBrowser1().Document().GetElementById(u"p"_s).SetInnerHTML(u"y"_s);
    });
    EXPECT_EQ(SecondOfStanding(), 31);
}

TEST_F(StandingPageTest, ThePageThatIsLeftAndAnEmptyOneNeverStand) {
    Show(u"http://www.example.com/any"_s, u"x"_s);
    page.Leave();
    EXPECT_EQ(SecondOfStanding(), 0);
    app->WebBrowser1().Navigate(u"about:blank"_s);
    EXPECT_EQ(SecondOfStanding(), 0);
}

} // namespace
} // namespace qlm
