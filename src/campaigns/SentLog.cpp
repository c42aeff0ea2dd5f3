// SPDX-License-Identifier: MIT
#include "campaigns/SentLog.h"

#include "campaigns/Campaigns.h"
#include "campaigns/OpenNotes.h"
#include "core/AnsiText.h"
#include "core/App.h"
#include "core/LineSearch.h"
#include "core/SettingsFields.h"
#include "steps/StopResume.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

QString SentLog::PathFor(const QString& action) {
    const Campaign* campaign = FindTargetCampaign(action);
    if (!campaign)
        return {};
    const QString folder =
        FileSystem::Join(m_app.state.ProgramFolder, m_app.Get<SettingsFields>().AccountDataPath(u"Log"_s));
    return FileSystem::Join(folder, QString::fromLatin1(campaign->logFile));
}

OpenNotes SentLog::Notes() {
    return {m_app.files, PathFor(m_app.state.CurrentAction)};
}

bool SentLog::IsInFile(const QString& path, const QString& id) {
    m_app.files.EnsureFile(path);
    return FileHoldsLine(path, ToAnsi(id.trimmed()));
}

bool SentLog::LogEntryExists(const QString& id, bool noPause, bool force) {
    if (!m_app.state.blnCheckLog && !force)
        return false;
    if (!noPause)
        m_app.Get<StopResume>().PauseLinkCheck();
    bool found = false;
    m_app.diagnostics.Trap("LogEntryExists", [&] {
        const QString path = PathFor(m_app.state.CurrentAction);
        found = !path.isEmpty() && IsInFile(path, id);
    });
    // A log that can't be read says nothing; its notes may.
    if (!found)
        found = IsNoted(id);
    if (!noPause)
        m_app.Get<StopResume>().ResumeLinkCheck();
    return found;
}

bool SentLog::WriteLogEntry() {
    const QString error = m_app.diagnostics.Trap("WriteLogEntry", [this] {
        if (const QString path = PathFor(m_app.state.CurrentAction); !path.isEmpty())
            m_app.files.AppendLine(path, m_app.state.strCurrentID);
    });
    if (!error.isEmpty())
        return false;
    // A note that stays behind its line holds nobody back whom the line doesn't.
    m_app.diagnostics.Trap("StrikeOutNote", [this] {
        if (FindTargetCampaign(m_app.state.CurrentAction))
            Notes().StrikeOut({m_app.state.strCurrentID});
    });
    return true;
}

bool SentLog::NoteContact() {
    const QString error = m_app.diagnostics.Trap("NoteContact", [this] {
        if (FindTargetCampaign(m_app.state.CurrentAction))
            Notes().Note(m_app.state.strCurrentID);
    });
    return error.isEmpty();
}

bool SentLog::IsNoted(const QString& id) {
    bool noted = false;
    m_app.diagnostics.Trap(
        "IsNoted", [&] { noted = FindTargetCampaign(m_app.state.CurrentAction) && Notes().Holds(id); });
    return noted;
}

void SentLog::SettleNotes() {
    m_app.diagnostics.Trap("SettleNotes", [this] {
        const QString path = PathFor(m_app.state.CurrentAction);
        if (path.isEmpty())
            return;
        OpenNotes notes = Notes();
        QStringList logged;
        for (const QString& id : notes.All())
            if (FileHoldsLine(path, ToAnsi(id)))
                logged.append(id);
        if (!logged.isEmpty())
            notes.StrikeOut(logged);
    });
}

} // namespace qlm
