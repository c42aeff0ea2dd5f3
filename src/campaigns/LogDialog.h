// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace qlm {

class App;
class SentLog;

// frmLog: what can be done with the log of a campaign.
class LogDialog {
public:
    explicit LogDialog(App& app);

    // whatItRecords: "sent friend requests to".
    void Show(const SentLog& log, const QString& whatItRecords);

private:
    void cmdClearLog_Click();
    void cmdEditLog_Click();
    void cmdExportLog_Click();
    void cmdImportLog_Click();
    QString ShownPath() const;

    App& m_app;
    QString m_path;
};

} // namespace qlm
