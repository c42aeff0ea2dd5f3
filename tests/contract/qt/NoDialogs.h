// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Services.h"

namespace qlm {

// The platform only hands the dialogs on.
class NoDialogs final : public Dialogs {
public:
    Answer ShowMessage(const QString&, const QString&, Buttons) override { return Answer::Cancel; }
    QString ChooseFileToOpen(const QString&, const QString&) override { return {}; }
    QString ChooseFileToSave(const QString&, const QString&, const QString&) override { return {}; }
    void ShowModal(const QString&) override {}
    void ShowForm(const QString&) override {}
    void CloseForm(const QString&) override {}
    void SetFormVisible(const QString&, bool) override {}
    bool IsFormOpen(const QString&) const override { return false; }
    QStringList OpenForms() const override { return {}; }
    bool CloseWindowTitled(const QString&) override { return false; }
};

} // namespace qlm
