// SPDX-License-Identifier: MIT
#include "maintenance/Restore.h"

#include "core/App.h"
#include "maintenance/Backup.h"
#include "maintenance/BackupSet.h"
#include "maintenance/RestoreCheck.h"
#include "maintenance/StagedFiles.h"
#include "steps/StopResume.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

// More would not fit on a screen.
constexpr qsizetype NamesShown = 10;

QString Shown(const QStringList& names) {
    QString text = names.first(std::min(names.size(), NamesShown)).join(u'\n');
    if (names.size() > NamesShown)
        text += u"\nand %1 more"_s.arg(names.size() - NamesShown);
    return text;
}

// Some tools mark folders by their kind alone.
QString NameOf(const ArchiveEntry& entry) {
    const bool isMarked = entry.name.endsWith(u'/') || entry.name.endsWith(u'\\');
    return entry.kind == ArchiveEntry::Kind::Folder && !isMarked ? entry.name + u'/' : entry.name;
}

} // namespace

Restore::Restore(App& app) : m_app(app) {
    app.commands.Add(u"mnuRestore_Click"_s, "mnuRestore_Click", [this] { mnuRestore_Click(); });
}

void Restore::FinishLast() {
    m_app.diagnostics.Trap("mnuRestore_Click",
                           [this] { StagedFiles(m_app.files, m_app.state.ProgramFolder).Finish(); });
}

void Restore::mnuRestore_Click() {
    const QString archive = ChooseArchive();
    if (archive.isEmpty())
        return;
    // A run would write into what is restored, also one that the clock starts before the program has closed.
    m_app.state.blnNoSaveOnExit = true;
    m_app.Get<StopResume>().StopAll(StopReason::Closing);
    m_app.ShowMessage(Unzip(archive), u"Restore"_s);
    CloseAfterRestore();
}

QString Restore::ChooseArchive() const {
    Dialogs& dialogs = m_app.platform.Dialogs();
    if (dialogs.ShowMessage(u"Your existing logs, settings, etc. will be replaced... continue?"_s,
                            u"Restore"_s, Dialogs::Buttons::OkCancel) != Dialogs::Answer::Ok)
        return {};
    return dialogs.ChooseFileToOpen(u"Specify the backup file to restore:"_s, BackupFilter());
}

QString Restore::Unzip(const QString& archive) {
    StagedFiles staged(m_app.files, m_app.state.ProgramFolder);
    m_restored = 0;
    m_passedOver.clear();
    QString reason;
    const QString error =
        m_app.diagnostics.Trap("mnuRestore_Click", [&] { reason = Stage(archive, staged); });
    const QString unfinished = m_app.diagnostics.Trap("mnuRestore_Click", [&] { staged.Finish(); });
    if (!reason.isEmpty() || !error.isEmpty())
        return u"Nothing was restored: "_s + reason + error;
    QString told = u"Restored files: %1"_s.arg(m_restored);
    if (!unfinished.isEmpty())
        told +=
            u"\n\nNot all could take their places yet: %1\n\nThey will when Quillmere starts again."_s.arg(
                unfinished);
    if (!m_passedOver.isEmpty())
        told += u"\n\nPassed over, since no backup holds such files:\n"_s + Shown(m_passedOver);
    return told;
}

QString Restore::Stage(const QString& archive, StagedFiles& staged) {
    const QByteArray bytes = m_app.files.ReadBytes(archive);
    const std::unique_ptr<ArchiveReader> reader = m_app.platform.Archive().Read(bytes);
    const std::vector<ArchiveEntry>& entries = reader->Entries();
    if (QString reason = WhyNotRestored(entries, bytes.size()); !reason.isEmpty())
        return reason;
    staged.Finish();
    const BackupSet set(m_app.files, m_app.state.ProgramFolder);
    for (size_t i = 0; i < entries.size(); ++i) {
        const std::optional<BackupSet::Place> place = set.PlaceOf(NameOf(entries[i]));
        if (!place)
            m_passedOver.append(entries[i].name);
        else
            staged.Add(place->name, reader->Content(i), place->readers);
        m_restored += place && !place->name.endsWith(u'/') ? 1 : 0;
    }
    if (m_restored == 0)
        return u"it holds no file of a backup."_s;
    staged.Seal();
    return {};
}

void Restore::CloseAfterRestore() {
    m_app.ShowMessage(u"Backup set successfully restored!\r\nQuillmere needs to be restarted for the new "
                      "settings to take effect. The program will now close."_s);
    m_app.Close();
}

} // namespace qlm
