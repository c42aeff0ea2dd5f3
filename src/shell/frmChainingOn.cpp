// SPDX-License-Identifier: MIT
#include "shell/Form.h"
#include "shell/FormParts.h"
#include "shell/Forms.h"

#include <QBoxLayout>
#include <QDialogButtonBox>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

void BuildChainingOn(Form& form) {
    auto* column = new QVBoxLayout(&form);
    column->setSpacing(12);
    column->addWidget(NewWrappedLabel("lblNote"_L1));
    column->addStretch();
    column->addWidget(NewButtonRow({"cmdContinue"_L1, "cmdTurnOff"_L1}));
    form.resize(420, 120);
}

} // namespace qlm
