// SPDX-License-Identifier: MIT
#include "campaigns/Campaigns.h"

namespace qlm {

const std::vector<const Campaign*>& Campaigns() {
    static const std::vector<const Campaign*> campaigns{
        &FriendRequests, &Messages, &Comments, &Bulletins, &StatusUpdates,
    };
    return campaigns;
}

const Campaign* FindCampaign(const QString& word) {
    for (const Campaign* campaign : Campaigns())
        if (word == campaign->Word())
            return campaign;
    return nullptr;
}

const Campaign* FindTargetCampaign(const QString& word) {
    const Campaign* campaign = FindCampaign(word);
    return campaign && campaign->HasTargets() ? campaign : nullptr;
}

} // namespace qlm
