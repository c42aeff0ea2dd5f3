// SPDX-License-Identifier: MIT
#include "campaigns/ChainedStart.h"

#include "accounts/AccountChain.h"
#include "accounts/ChainScreens.h"
#include "accounts/Chains.h"
#include "campaigns/Campaigns.h"
#include "core/ActivityWords.h"
#include "core/App.h"
#include "core/SettingsFields.h"
#include "gather/GatheredList.h"
#include "steps/StopResume.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

void BeginChain(App& app, const Chain& chain) {
    if (!ChainFile(app, chain).HasAccounts()) {
        app.Get<StopResume>().EndChain();
        app.ShowMessage(u"Please select which accounts to include in the chaining process, and try again"_s);
        app.Get<ChainScreens>().SpecifyAccounts(chain);
        return;
    }
    app.state.intCurrentIDIndex = 0;
    app.Get<SettingsFields>().SaveListsAndSettings();
    app.Get<AccountChain>().LoginFirstAccount();
}

} // namespace

ChainedStart StartInChain(App& app, const Campaign& campaign, bool goesOn, bool byClock) {
    const Chain* chain = FindChain(campaign.Word());
    if (!chain)
        return ChainedStart::Alone;
    if (IsChainOn(app, *chain) && !goesOn && !byClock && !app.Get<ChainScreens>().StaysOn(*chain))
        TurnChainOff(app, *chain);
    app.state.SwitchingAccount = false;
    if (!IsChainOn(app, *chain)) {
        app.Get<StopResume>().EndChain();
        return ChainedStart::Alone;
    }
    app.state.blnChaining = true;
    app.state.ChainedCampaign = chain->campaign;
    if (goesOn) {
        app.Get<AccountChain>().ShowOrder();
        return ChainedStart::GoesOn;
    }
    BeginChain(app, *chain);
    return ChainedStart::Begins;
}

void GoOnInChain(App& app) {
    GatheredList& list = app.Get<GatheredList>();
    if (app.controls.Ticked("chkSaveScanned"_L1)) {
        list.FillScannedList(list.ScopedPath(), true, false);
        // The list that all accounts share is still the one that was being gone through.
        if (!app.Get<SettingsFields>().UsesGlobal(u"GatheredList"_s))
            app.state.intCurrentIDIndex = 0;
    }
    // A long list takes a while, in which the user may have pressed Stop.
    app.waiting.LeaveIfObsolete();
    app.state.CurrentAction.clear();
    const Campaign* campaign = FindCampaign(app.state.ChainedCampaign);
    if (campaign && FindChain(campaign->Word()))
        app.commands.Run(QString::fromLatin1(campaign->send) + u"_Click"_s);
}

void EndRefusedChain(App& app) {
    app.Get<StopResume>().StopAll(StopReason::ChainEnded);
    app.Get<StopResume>().DoFinishedExit();
}

} // namespace qlm
