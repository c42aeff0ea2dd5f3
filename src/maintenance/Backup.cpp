// SPDX-License-Identifier: MIT
#include "maintenance/Backup.h"

#include "core/App.h"
#include "maintenance/BackupSet.h"

#include <QScopeGuard>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

QString BackupFilter() {
    return u"qlm (qlm)|*.qlm;|All files (*.*)|*.*"_s;
}

Backup::Backup(App& app) : m_app(app) {
    app.commands.Add(u"mnuBackup_Click"_s, "mnuBackup_Click", [this] { mnuBackup_Click(); });
}

void Backup::Log(const QString& text) const {
    m_app.diagnostics.Debug(u"debugbackup.txt"_s, text);
}

// The message loop turns on the way.
void Backup::mnuBackup_Click() {
    if (m_isBusy)
        return;
    m_isBusy = true;
    const auto done = qScopeGuard([this] { m_isBusy = false; });
    if (const QString target = ChooseTarget(); !target.isEmpty())
        Make(target);
}

QString Backup::ChooseTarget() const {
    Dialogs& dialogs = m_app.platform.Dialogs();
    const QString target = dialogs.ChooseFileToSave(u"Specify where to save the backup file to:"_s,
                                                    u"QLM-Backup.qlm"_s, BackupFilter());
    Log(u"1 - "_s + m_app.state.ProgramFolder);
    Log(u"2 - "_s + target);
    const bool isTaken = !target.isEmpty() && m_app.files.FileExists(target);
    if (isTaken && dialogs.ShowMessage(u"That file already exists, replace?"_s, u"Backup"_s,
                                       Dialogs::Buttons::OkCancel) != Dialogs::Answer::Ok)
        return {};
    return target;
}

void Backup::Make(const QString& target) {
    m_shown.clear();
    m_app.waiting.Turn();
    Diagnostics::IgnoreErrors([this] { ClearWorkFolder(); });
    const bool isWhole = Zip(target);
    if (m_app.Status() == m_shown)
        m_app.SetStatus(m_statusBefore);
    Log(u"3 SUCCESS - "_s + (isWhole ? u"True"_s : u"False"_s));
    m_app.ShowMessage(isWhole ? u"Backup successful!"_s : u"Backup failed, please contact support"_s);
}

// Earlier versions left their work there.
void Backup::ClearWorkFolder() {
    const QString folder = FileSystem::Join(m_app.platform.TemporaryFolder(), u"QLMUpdate"_s);
    m_app.files.CreateFolder(folder);
    m_app.files.DeleteFile(FileSystem::Join(folder, u"backup_temp.zip"_s));
}

// What stood at the target is replaced by a whole archive only.
bool Backup::Zip(const QString& target) {
    const QString error = m_app.diagnostics.Trap("VBZip", [&] {
        const BackupSet set(m_app.files, m_app.state.ProgramFolder);
        const QByteArray archive = m_app.platform.Archive().Write(
            Collect(set.Names()), [this](int percent) { ShowProgress(percent); });
        if (archive.size() > FileSystem::LargestWhole)
            throw ArchiveError("The backup is too big to be restored");
        m_app.files.WriteBytes(target, archive, Readers::OwnerAlone);
        if (!set.LeftOut().isEmpty())
            m_app.ShowMessage(
                u"Not in the backup, since another file's name differs in capital letters only:\n\n"_s +
                set.LeftOut().join(u'\n'));
    });
    return error.isEmpty() && m_app.files.FileExists(target);
}

std::vector<ArchiveFile> Backup::Collect(const QStringList& names) {
    std::vector<ArchiveFile> files;
    for (const QString& name : names) {
        Log(u"ZIP - adding: "_s + name);
        const bool isFolder = name.endsWith(u'/');
        files.push_back({name, isFolder ? QByteArray() : m_app.files.ReadBytes(m_app.ProgramFile(name))});
    }
    return files;
}

// Lets the window live; the program may be closed meanwhile. A run that goes on has words of its own for the
// status line, and keeps the last.
void Backup::ShowProgress(int percent) {
    auto isCalledOff = qScopeGuard([this] { Log(u"ZipServiceCB2 CANCEL!"_s); });
    Log(u"ZipServiceCB1 - "_s + QString::number(percent));
    if (m_app.Status() != m_shown || m_shown.isEmpty())
        m_statusBefore = m_app.Status();
    m_shown = u"Making the backup... %1 %"_s.arg(percent);
    m_app.SetStatus(m_shown);
    m_app.waiting.Turn();
    isCalledOff.dismiss();
}

} // namespace qlm
