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

QString SentLog::Path() const {
    if (!m_campaign)
        return m_path;
    if (!m_campaign->HasTargets())
        return {};
    const QString folder =
        FileSystem::Join(m_app.state.ProgramFolder, m_app.Get<SettingsFields>().AccountDataPath(u"Log"_s));
    return FileSystem::Join(folder, QString::fromLatin1(m_campaign->logFile));
}

bool SentLog::IsInFile(const QString& id) {
    const QString path = Path();
    if (path.isEmpty())
        return false;
    m_app.files.EnsureFile(path);
    return FileHoldsLine(path, ToAnsi(id.trimmed()));
}

bool SentLog::LogEntryExists(const QString& id, bool noPause, bool force) {
    if (!m_app.state.blnCheckLog && !force)
        return false;
    if (!noPause)
        m_app.Get<StopResume>().PauseLinkCheck();
    bool found = false;
    m_app.diagnostics.Trap("LogEntryExists", [&] { found = IsInFile(id); });
    // A log that can't be read says nothing; its notes may.
    if (!found)
        found = IsNoted(id);
    if (!noPause)
        m_app.Get<StopResume>().ResumeLinkCheck();
    return found;
}

bool SentLog::WriteLogEntry() {
    const QString id = m_app.state.strCurrentID;
    const QString error = m_app.diagnostics.Trap("WriteLogEntry", [&] {
        if (const QString path = Path(); !path.isEmpty())
            m_app.files.AppendLine(path, id);
    });
    if (!error.isEmpty())
        return false;
    // A note that stays after its line holds nobody back whom the line doesn't.
    WithdrawNote();
    return true;
}

void SentLog::WithdrawNote() {
    m_app.diagnostics.Trap("StrikeOutNote", [this] {
        if (const QString path = Path(); !path.isEmpty())
            OpenNotes(m_app.files, path).StrikeOut({m_app.state.strCurrentID});
    });
}

bool SentLog::NoteContact() {
    const QString error = m_app.diagnostics.Trap("NoteContact", [this] {
        if (const QString path = Path(); !path.isEmpty())
            OpenNotes(m_app.files, path).Note(m_app.state.strCurrentID);
    });
    return error.isEmpty();
}

bool SentLog::IsNoted(const QString& id) {
    bool noted = false;
    m_app.diagnostics.Trap("IsNoted", [&] {
        const QString path = Path();
        noted = !path.isEmpty() && OpenNotes(m_app.files, path).Holds(id);
    });
    return noted;
}

// The notes go last: an end in between leaves who is out of the log noted.
void SentLog::TakeOff(const QStringList& ids) {
    const QString path = Path();
    QStringList left;
    for (const QString& line : m_app.files.ReadLines(path))
        if (!ids.contains(line.trimmed()))
            left.append(line);
    m_app.files.WriteLines(path, left);
    OpenNotes(m_app.files, path).StrikeOut(ids);
}

void SentLog::SettleNotes() {
    m_app.diagnostics.Trap("SettleNotes", [this] {
        const QString path = Path();
        if (path.isEmpty())
            return;
        OpenNotes notes(m_app.files, path);
        QStringList logged;
        for (const QString& id : notes.All())
            if (FileHoldsLine(path, ToAnsi(id)))
                logged.append(id);
        if (!logged.isEmpty())
            notes.StrikeOut(logged);
    });
}

SentLog RunningLog(App& app) {
    return {app, FindTargetCampaign(app.state.CurrentAction)};
}

} // namespace qlm
