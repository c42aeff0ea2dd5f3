// SPDX-License-Identifier: MIT
#include "campaigns/ChainedStart.h"

#include "campaigns/Campaigns.h"
#include "core/ActivityWords.h"
#include "core/App.h"
#include "gather/GatheredList.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

void GoOnInChain(App& app) {
    if (app.controls.Ticked("chkSaveScanned"_L1))
        app.Get<GatheredList>().FillScannedList(app.Get<GatheredList>().ScopedPath(), true, false);
    // A long list takes a while, in which the user may have pressed Stop.
    app.waiting.LeaveIfObsolete();
    app.state.CurrentAction.clear();
    const Campaign* campaign = FindCampaign(app.state.ChainedCampaign);
    if (campaign && campaign->goesOnInChain)
        app.commands.Run(QString::fromLatin1(campaign->send) + u"_Click"_s);
}

} // namespace qlm
