// SPDX-License-Identifier: MIT
#include "BrowserTest.h"
#include "inbound/InboundReports.h"
#include "steps/RunReport.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace qlm {
namespace {

using PendingRequestsTest = BrowserTest;

// No tick drives the mobile run, so that nobody would ever go on with it.
TEST_F(PendingRequestsTest, AnErrorEndsTheMobileRunWithWords) {
    const int listener = app->controls.AddListener([](const Control& control, Controls::Change, int) {
        if (control.name == "myfraCurrentAction"_L1 &&
            control.text == u"Going to the sent requests page..."_s)
            throw BrowserError();
    });
    app->commands.Run(u"picDeletePendingRequests_Click"_s);
    app->controls.RemoveListener(listener);
    EXPECT_EQ(State().CurrentAction, QString());
    EXPECT_EQ(app->Status(), u"Canceling pending requests has ended with an error: Automation error"_s);
    const QList<ReportedRun> runs = app->Get<RunReport>().Runs(PendingReport);
    ASSERT_EQ(runs.size(), 1);
    EXPECT_EQ(runs[0].how, u"The run was ended"_s);
    EXPECT_EQ(dialogs.Texts(), QStringList());
}

} // namespace
} // namespace qlm
