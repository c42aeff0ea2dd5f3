// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Archive.h"

#include <QStringList>

namespace qlm {

class App;

// Saves what is the user's into one ordinary archive ("debugbackup.txt").
class Backup {
public:
    explicit Backup(App& app);

private:
    void mnuBackup_Click();
    void Make(const QString& target);
    QString ChooseTarget() const;
    void ClearWorkFolder();
    bool Zip(const QString& target);
    std::vector<ArchiveFile> Collect(const QStringList& names);
    void ShowProgress(int percent);
    void Log(const QString& text) const;

    App& m_app;
    bool m_isBusy = false;
    QString m_shown; // in the status line, and what stood there
    QString m_statusBefore;
};

// The kinds of files that its dialogs show.
QString BackupFilter();

} // namespace qlm
