// SPDX-License-Identifier: MIT
#include "gather/BlackList.h"

#include "core/ActivityWords.h"
#include "core/App.h"
#include "gather/GatherDriver.h"
#include "gather/GatheredList.h"
#include "gather/ListFiles.h"
#include "steps/Steps.h"
#include "steps/StopResume.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

BlackList::BlackList(App& app) : m_app(app) {
    app.commands.Add(u"picRemoveFriends_Click"_s, [this] { picRemoveFriends_Click(); });
    RegisterForm();
}

QString BlackList::Path() const {
    return m_app.ProgramFile(u"blacklistedids.txt"_s);
}

void BlackList::FillArrayFromFile(const QString& arrayName, const QString& path) {
    if (path.isEmpty())
        return;
    m_app.diagnostics.Trap("FillArrayFromFile", [&] {
        m_app.files.EnsureFile(path);
        IdList ids;
        ForEachId(m_app, path, [&ids](const QString& id) { ids.append(id); });
        if (ids.isEmpty())
            ids.append(QString());
        if (arrayName == u"arrBlacklistIDs"_s)
            m_app.state.arrBlacklistIDs = std::move(ids);
    });
}

void BlackList::picRemoveFriends_Click() {
    m_app.diagnostics.Trap("picRemoveFriends_Click", [this] {
        RunState& state = m_app.state;
        if (m_app.Get<GatherDriver>().RefuseDuringLogin())
            return;
        m_app.diagnostics.Debug(u"debuggather.txt"_s, u"REMOVE FRIENDS START"_s, true);
        m_app.Get<StopResume>().StopAll(StopReason::RemoveFriendsBegins);
        const Waiting::Owned owned(m_app.waiting);
        m_app.SetStatus(u"Waiting for friends page to load..."_s);
        m_app.ClearPage();
        state.strGatherStartURL =
            m_app.Expand(u"http://{FriendsHost}/index.cfm?fuseaction=user.viewfriends&friendID="_s) +
            state.MyProfileID;
        m_app.WebBrowser1().Navigate(state.strGatherStartURL);
        m_app.controls.SetTicked("optScanFollowing"_L1, true);
        state.blnComparingIDs = true;
        m_app.Get<GatheredList>().SetScannedLabel();
        state.CurrentAction = ActivityWord::Gathering;
        state.blnHoldLinkCheck = false;
        state.intGatherStep = GatherStep::ScanPage;
        if (state.blnNewLayout) {
            m_app.Get<GatherDriver>().ScanPageToCome();
            return;
        }
        m_app.Get<GatherDriver>().AwaitListOfIDs();
        m_app.timers->tmrCheckLinkLoaded.Restart();
    });
}

} // namespace qlm
