// SPDX-License-Identifier: MIT
#include "Arguments.h"
#include "ScenarioDialogs.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace qlm::scenario {
namespace {

using Answer = Dialogs::Answer;

TEST(ScenarioDialogs, YesPressesOkWhereABoxHasOkAndCancel) {
    ScenarioDialogs dialogs([]() -> Play& { throw std::logic_error("no form comes up"); });
    const auto ask = [&dialogs](Dialogs::Buttons buttons) {
        return dialogs.ShowMessage(u"replace?"_s, u"Backup"_s, buttons);
    };
    dialogs.answers = {{u"repl"_s, Answer::Yes}, {u"repl"_s, Answer::Cancel}, {u"repl"_s, Answer::Yes}};
    EXPECT_EQ(ask(Dialogs::Buttons::OkCancel), Answer::Ok);
    EXPECT_EQ(ask(Dialogs::Buttons::OkCancel), Answer::Cancel);
    EXPECT_EQ(ask(Dialogs::Buttons::YesNo), Answer::Yes);
    EXPECT_EQ(dialogs.questions.size(), 3U);
    EXPECT_TRUE(dialogs.messages.empty());
    dialogs.answers = {{u"repl"_s, Answer::No}};
    EXPECT_THROW(ask(Dialogs::Buttons::OkCancel), ScenarioFailure);
    EXPECT_THROW(ask(Dialogs::Buttons::OkCancel), ScenarioFailure);
}

} // namespace
} // namespace qlm::scenario
