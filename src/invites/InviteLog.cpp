// SPDX-License-Identifier: MIT
#include "invites/InviteLog.h"

#include "campaigns/OpenNotes.h"
#include "campaigns/SentLog.h"
#include "core/App.h"
#include "core/Text.h"
#include "invites/InviteKind.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

InviteLog::InviteLog(App& app, const InviteKind& kind, const QString& name)
    : m_app(app),
      m_name(FileSystem::Join(QString::fromLatin1(kind.logFolder), CleanupFileName(name) + u".txt"_s)) {
    m_app.files.EnsureFile(Path());
}

QString InviteLog::Path() const {
    return m_app.ProgramFile(m_name);
}

bool InviteLog::Holds(const QString& id) const {
    return SentLog(m_app, Path()).LogEntryExists(id, true, true);
}

// The note comes first, so that no line of the log stands without one.
void InviteLog::Write(const QString& id) {
    OpenNotes(m_app.files, Path()).Note(id);
    m_app.files.AppendLine(Path(), id);
}

void InviteLog::Confirm(const QStringList& ids) {
    OpenNotes(m_app.files, Path()).StrikeOut(ids);
}

} // namespace qlm
