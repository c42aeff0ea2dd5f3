// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace qlm {

class App;
class OpenNotes;

// Who has been contacted: plain text, one ID a line, a file for each campaign, in the order sent. Nothing is
// cached, so that clearing a log takes effect at the next target. A log that can't be opened counts as empty
// and loses the entry; the error is reported and the run goes on.
class SentLog {
public:
    explicit SentLog(App& app) : m_app(app) {}

    // Path of the log of that activity; empty for one that has none.
    QString PathFor(const QString& action);
    // Looks in the log of CurrentAction and the notes beside it, when blnCheckLog or force says so. The page
    // check rests meanwhile unless noPause.
    bool LogEntryExists(const QString& id, bool noPause = false, bool force = false);
    // Appends strCurrentID to the log of CurrentAction and strikes its note out. False when the line could
    // not be written.
    bool WriteLogEntry();

    // The notes beside that log hold who was contacted without a line in it; LogEntryExists finds them too.
    // Notes strCurrentID: on the disk when it answers true.
    bool NoteContact();
    bool IsNoted(const QString& id);
    // Strikes out the notes of those who stand in the log: a process that died behind the line left them.
    void SettleNotes();

private:
    OpenNotes Notes();
    bool IsInFile(const QString& path, const QString& id);

    App& m_app;
};

} // namespace qlm
