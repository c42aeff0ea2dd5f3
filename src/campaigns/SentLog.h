// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace qlm {

class App;
struct Campaign;

// Who has been contacted: plain text, one ID a line, in the order sent; an object for each file. Nothing is
// cached, so that clearing a log takes effect at the next target. A log that can't be opened counts as empty
// and loses the entry; the error is reported and the run goes on. One of nothing holds nobody
// and keeps nothing.
class SentLog {
public:
    // The log of a campaign: in the scope of the account as it is at each look. Of none that has targets it
    // is the log of nothing.
    SentLog(App& app, const Campaign* campaign) : m_app(app), m_campaign(campaign) {}
    SentLog(App& app, const QString& path) : m_app(app), m_path(path) {}

    // Makes the folder of the account. Empty for the log of nothing.
    QString Path() const;
    // Looks in the log and the notes beside it, when blnCheckLog or force says so. The page check rests
    // meanwhile unless noPause.
    bool LogEntryExists(const QString& id, bool noPause = false, bool force = false);
    // Appends strCurrentID and strikes its note out. False when the line could not be written.
    bool WriteLogEntry();

    // The notes beside the log hold who was contacted without a line in it; LogEntryExists finds them too.
    // Notes strCurrentID: on the disk when it answers true.
    bool NoteContact();
    // Strikes the note of strCurrentID out: no log line is to come, and none is needed.
    void WithdrawNote();
    bool IsNoted(const QString& id);
    // Their lines go, and their notes with them. Throws FileError.
    void TakeOff(const QStringList& ids);
    // Strikes out the notes of those who stand in the log: a process that died after the line left them.
    void SettleNotes();

private:
    bool IsInFile(const QString& id);

    App& m_app;
    const Campaign* m_campaign = nullptr;
    QString m_path; // where there is no campaign
};

// Of the campaign that runs.
SentLog RunningLog(App& app);

} // namespace qlm
