// SPDX-License-Identifier: MIT
#include "campaigns/ChainedStart.h"

#include "core/App.h"
#include "gather/GatheredList.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

struct ChainedStart {
    QLatin1StringView campaign;
    QLatin1StringView command;
};

constexpr ChainedStart ChainedStarts[]{
    {"FR"_L1, "piccmdAddFriends_Click"_L1},
    {"MSG"_L1, "picCmdMsgSend_Click"_L1},
    {"BUL"_L1, "picCmdBulSend_Click"_L1},
};

} // namespace

void GoOnInChain(App& app) {
    if (app.controls.Ticked("chkSaveScanned"_L1))
        app.Get<GatheredList>().FillScannedList(app.Get<GatheredList>().ScopedPath(), true, false);
    // A long list takes a while, in which the user may have pressed Stop.
    app.waiting.LeaveIfObsolete();
    app.state.CurrentAction.clear();
    for (const ChainedStart& start : ChainedStarts)
        if (app.state.ChainedCampaign == start.campaign)
            app.commands.Run(QString(start.command));
}

} // namespace qlm
