// SPDX-License-Identifier: MIT
#include "core/ActivityWords.h"
#include "core/App.h"
#include "gather/GatheredList.h"
#include "gather/LinkScanner.h"
#include "gather/ProfileVisit.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr int SecondsForProfile = 20;
}

// Visits the profiles that this pass has added and strikes out those that the filters refuse.
void LinkScanner::FilterNewProfiles(Pass& pass) {
    Trace(u"GPP14 - FILTER WHEN GATHERING"_s);
    const ProfileVisit visit{m_app, [] { return true; }, SecondsForProfile};
    qint32 index = pass.lngStartCount;
    while (index < m_app.controls.Items("lstFriendIDs"_L1).size() &&
           m_app.state.CurrentAction == ActivityWord::Gathering) {
        m_app.state.strCurrentID = m_app.state.arrFriendIDs.value(index);
        const bool remove = visit.Fails(m_app.state.strCurrentID);
        m_app.waiting.LeaveIfObsolete();
        if (remove)
            m_app.Get<GatheredList>().Remove(index, u"GatherPageProfiles - 2"_s);
        else
            ++index;
    }
}

} // namespace qlm
