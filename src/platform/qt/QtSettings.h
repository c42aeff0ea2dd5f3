// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Services.h"

#include <QSettings>
#include <QTemporaryDir>
#include <memory>

namespace qlm {

// The settings in one file of the data folder, readable by its owner alone. A file that could be read only in
// part is kept beside it as "quillmere.ini.damaged" before anything is written.
class QtSettings final : public SettingsStore {
public:
    // folder is created when it is missing.
    explicit QtSettings(const QString& folder);

    QString GetSetting(const QString& section, const QString& key, const QString& fallback) const override;
    void SaveSetting(const QString& section, const QString& key, const QString& value) override;
    bool HasSection(const QString& section) const override;
    QStringList Sections() const override;
    QStringList Keys(const QString& section) const override;
    void DeleteSetting(const QString& section) override;
    void Sync() override;
    QString TakeProblem() override { return std::exchange(m_problem, {}); }

    QString FileName() const { return m_fileName; }

private:
    bool CanBeOpened() const;
    void KeepElsewhere();
    void Protect();
    void KeepDamagedFile();

    QString m_fileName;
    QString m_problem;
    std::unique_ptr<QTemporaryDir> m_elsewhere; // where they are when the file can't be opened
    bool m_isFailureTold = false;
    std::unique_ptr<QSettings> m_file;
};

} // namespace qlm
