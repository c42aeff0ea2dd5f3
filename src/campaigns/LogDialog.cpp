// SPDX-License-Identifier: MIT
#include "campaigns/LogDialog.h"

#include "campaigns/OpenNotes.h"
#include "campaigns/SentLog.h"
#include "core/App.h"

#include <QFileInfo>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {
const QString TextFiles = u"Text files (txt)|*.txt;|All files (*.*)|*.*"_s;
constexpr int LocalApplicationData = 28;
} // namespace

LogDialog::LogDialog(App& app) : m_app(app) {
    Commands& commands = app.commands;
    commands.Add(u"frmLog.cmdClearLog_Click"_s, "cmdClearLog_Click", [this] { cmdClearLog_Click(); });
    commands.Add(u"frmLog.cmdEditLog_Click"_s, "cmdEditLog_Click", [this] { cmdEditLog_Click(); });
    commands.Add(u"frmLog.cmdExportLog_Click"_s, "cmdExportLog_Click", [this] { cmdExportLog_Click(); });
    commands.Add(u"frmLog.cmdImportLog_Click"_s, "cmdImportLog_Click", [this] { cmdImportLog_Click(); });
    commands.Add(u"frmLog.cmdClose_Click"_s, [this] { m_app.platform.Dialogs().CloseForm(u"frmLog"_s); });
}

void LogDialog::Show(const SentLog& log, const QString& whatItRecords) {
    m_path = log.Path();
    m_app.files.CreateFolder(QFileInfo(m_path).absolutePath());
    m_app.controls.SetText("frmLog.lblHeading"_L1, u"The log file keeps a record of everyone you have "_s +
                                                       whatItRecords +
                                                       u", and prevents duplicates from being sent."_s);
    m_app.platform.Dialogs().ShowModal(u"frmLog"_s);
}

void LogDialog::cmdClearLog_Click() {
    if (!m_app.AskYesNo(u"Are you sure you want to clear this file?"_s))
        return;
    m_app.files.DeleteFile(m_path);
    OpenNotes(m_app.files, m_path).Clear();
    m_app.ShowMessage(u"Log cleared"_s);
}

// A system that redirects the writes of old programs keeps the file in a copy of the installation folder.
QString LogDialog::ShownPath() const {
    const QString redirected = FileSystem::Join(m_app.platform.SpecialFolderPath(LocalApplicationData),
                                                u"VirtualStore\\Program Files\\Quillmere"_s);
    const QString folder = m_app.platform.InstallationFolder();
    if (!m_app.files.FolderExists(redirected) || !m_path.startsWith(folder))
        return m_path;
    return FileSystem::Join(redirected, m_path.mid(folder.size()));
}

void LogDialog::cmdEditLog_Click() {
    m_app.files.EnsureFile(m_path);
    m_app.platform.Shell().OpenFile(ShownPath());
}

void LogDialog::cmdExportLog_Click() {
    const QString chosen = m_app.platform.Dialogs().ChooseFileToSave(u"Export Log"_s, {}, TextFiles);
    if (chosen.isEmpty())
        return;
    m_app.files.EnsureFile(m_path);
    m_app.files.CopyFile(m_path, chosen);
}

void LogDialog::cmdImportLog_Click() {
    const QString chosen = m_app.platform.Dialogs().ChooseFileToOpen(u"Import Log"_s, TextFiles);
    if (chosen.isEmpty())
        return;
    if (m_app.files.IsIllegible(chosen)) {
        m_app.ShowMessage(u"This file is written in UTF-16 (\"Unicode\"): nobody in it would be recognised. "
                          "Please save it as plain text (ANSI or UTF-8) first."_s);
        return;
    }
    m_app.files.CopyFile(chosen, m_path);
    OpenNotes(m_app.files, m_path).Clear();
}

} // namespace qlm
