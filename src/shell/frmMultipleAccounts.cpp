// SPDX-License-Identifier: MIT
#include "shell/Form.h"
#include "shell/FormParts.h"
#include "shell/Forms.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QListView>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

void BuildMultipleAccounts(Form& form) {
    auto* column = new QVBoxLayout(&form);
    column->setSpacing(10);
    column->addWidget(NewWrappedLabel("lblHeader"_L1));
    column->addWidget(Named(new QListView, "lstAccounts"_L1), 1);
    column->addWidget(
        NewHintOnRows(form.TheApp(), "frmMultipleAccounts.lstAccounts"_L1,
                      u"There are no accounts yet. \"Switch Login...\" in the Options menu adds them."_s,
                      [](const QStringList& rows) { return rows.isEmpty(); }));
    column->addWidget(Named(new QCheckBox, "chkSelectAll"_L1));
    column->addWidget(Named(new QCheckBox, "chkChainingLoop"_L1));
    column->addWidget(NewButtonRow({"cmdOK"_L1, "cmdCancel"_L1}));
    form.resize(420, 400);
}

} // namespace qlm
