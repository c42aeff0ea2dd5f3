// SPDX-License-Identifier: MIT
#include "shell/Form.h"
#include "shell/FormParts.h"
#include "shell/Forms.h"

#include <QBoxLayout>
#include <QDialogButtonBox>
#include <QListView>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

void BuildSwitchAccount(Form& form) {
    auto* upkeep = new QVBoxLayout;
    for (const auto name : {"cmdAdd"_L1, "cmdEdit"_L1, "cmdDelete"_L1, "cmdClear"_L1})
        upkeep->addWidget(NewButton(name));
    upkeep->addStretch();
    for (const auto name : {"cmdExport"_L1, "cmdImport"_L1})
        upkeep->addWidget(NewButton(name));
    auto* accounts = new QHBoxLayout;
    accounts->addWidget(Named(new QListView, "lstAccounts"_L1), 1);
    accounts->addLayout(upkeep);

    auto* column = new QVBoxLayout(&form);
    column->addWidget(NewLabel("lblHeading"_L1));
    column->addLayout(accounts, 1);
    column->addWidget(
        NewHintOnRows(form.TheApp(), "frmSwitchAccount.lstAccounts"_L1,
                      u"Press Add to enter an account, or Import to read a list of them from a file."_s,
                      [](const QStringList& rows) { return rows.isEmpty(); }));
    column->addWidget(NewButtonRow({"cmdOK"_L1, "cmdCancel"_L1}));
    form.resize(460, 380);
}

} // namespace qlm
