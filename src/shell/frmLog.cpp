// SPDX-License-Identifier: MIT
#include "shell/Form.h"
#include "shell/FormParts.h"
#include "shell/Forms.h"

#include <QBoxLayout>
#include <QDialogButtonBox>
#include <QGridLayout>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

void BuildLog(Form& form) {
    auto* choices = new QGridLayout;
    choices->addWidget(NewButton("cmdEditLog"_L1), 0, 0);
    choices->addWidget(NewButton("cmdClearLog"_L1), 0, 1);
    choices->addWidget(NewButton("cmdExportLog"_L1), 1, 0);
    choices->addWidget(NewButton("cmdImportLog"_L1), 1, 1);

    auto* column = new QVBoxLayout(&form);
    column->setSpacing(12);
    column->addWidget(NewWrappedLabel("lblHeading"_L1));
    column->addWidget(NewLabel("Label1"_L1, u"subheading"_s));
    column->addLayout(choices);
    column->addStretch();
    column->addWidget(NewButtonRow({"cmdClose"_L1}));
    form.resize(400, 230);
}

} // namespace qlm
