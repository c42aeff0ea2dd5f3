// SPDX-License-Identifier: MIT
#include "campaigns/SentLog.h"

#include "campaigns/Campaigns.h"
#include "core/AnsiText.h"
#include "core/App.h"
#include "core/LineSearch.h"
#include "core/SettingsFields.h"
#include "core/StopResume.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

QString SentLog::PathFor(const QString& action) {
    const Campaign* campaign = FindTargetCampaign(action);
    if (!campaign)
        return {};
    const QString folder =
        FileSystem::Join(m_app.state.ProgramFolder, m_app.settingsFields->AccountDataPath(u"Log"_s));
    return FileSystem::Join(folder, QString::fromLatin1(campaign->logFile));
}

bool SentLog::IsInFile(const QString& path, const QString& id) {
    m_app.files.EnsureFile(path);
    return FileHoldsLine(path, ToAnsi(id.trimmed()));
}

bool SentLog::LogEntryExists(const QString& id, bool noPause, bool force) {
    if (!m_app.state.blnCheckLog && !force)
        return false;
    if (!noPause)
        m_app.stopResume->PauseLinkCheck();
    bool found = false;
    m_app.diagnostics.Trap("LogEntryExists", [&] {
        const QString path = PathFor(m_app.state.CurrentAction);
        found = !path.isEmpty() && IsInFile(path, id);
    });
    if (!noPause)
        m_app.stopResume->ResumeLinkCheck();
    return found;
}

bool SentLog::WriteLogEntry() {
    const QString error = m_app.diagnostics.Trap("WriteLogEntry", [this] {
        if (const QString path = PathFor(m_app.state.CurrentAction); !path.isEmpty())
            m_app.files.AppendLine(path, m_app.state.strCurrentID);
    });
    return error.isEmpty();
}

} // namespace qlm
