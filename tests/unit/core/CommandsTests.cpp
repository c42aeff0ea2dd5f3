// SPDX-License-Identifier: MIT
#include "SimulatedProgram.h"

using namespace Qt::Literals::StringLiterals;

namespace qlm {
namespace {

using CommandsTest = SimulatedProgram;

TEST_F(CommandsTest, AnErrorIsReportedUnderTheCommandOrItsProcedure) {
    auto fail = [] { throw std::runtime_error("it fails"); };
    app->commands.Add(u"cmdPlain_Click"_s, fail);
    app->commands.Add(u"frmSome.cmdOK_Click"_s, "cmdOK_Click - frmSome", fail);
    EXPECT_TRUE(app->commands.Run(u"cmdPlain_Click"_s));
    EXPECT_TRUE(app->commands.Run(u"frmSome.cmdOK_Click"_s));
    EXPECT_EQ(app->files.ReadLines(app->state.ErrorLogPath).filter(u"Proc: "_s),
              (QStringList{u"Proc: cmdPlain_Click"_s, u"Proc: cmdOK_Click - frmSome"_s}));
}

TEST_F(CommandsTest, AHandlerMayTakeTheArgument) {
    int taken = 0;
    app->commands.Add(u"lstSome_KeyDown"_s, [&taken](int keyCode) { taken = keyCode; });
    EXPECT_TRUE(app->commands.Run(u"lstSome_KeyDown"_s, 46));
    EXPECT_EQ(taken, 46);
    EXPECT_FALSE(app->commands.Run(u"cmdNone_Click"_s));
}

} // namespace
} // namespace qlm
