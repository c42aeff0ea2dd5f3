// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

namespace qlm {

class App;
class StagedFiles;

// Brings a backup's files back, and ends the program, which still knows the old ones.
class Restore {
public:
    explicit Restore(App& app);

    // What a restore has left unfinished that was cut off. Before any of the files is read.
    void FinishLast();

private:
    void mnuRestore_Click();
    QString ChooseArchive() const;
    // What is told of it.
    QString Unzip(const QString& archive);
    // The reason where the archive is not to be restored; throws when not all of it can be written.
    QString Stage(const QString& archive, StagedFiles& staged);
    void CloseAfterRestore();

    App& m_app;
    int m_restored = 0;
    QStringList m_passedOver;
};

} // namespace qlm
