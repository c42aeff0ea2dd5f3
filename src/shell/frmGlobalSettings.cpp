// SPDX-License-Identifier: MIT
#include "core/SettingsFields.h"
#include "shell/Form.h"
#include "shell/FormParts.h"
#include "shell/Forms.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QDialogButtonBox>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

void BuildGlobalSettings(Form& form) {
    auto* column = new QVBoxLayout(&form);
    for (const GlobalFlag& flag : SettingsFields::GlobalFlags())
        column->addWidget(Named(new QCheckBox, QLatin1StringView(flag.checkBox)));
    column->addWidget(NewWrappedLabel("lblNote"_L1, u"quiet"_s));
    column->addStretch();
    column->addWidget(NewButtonRow({"cmdClose"_L1, "cmdResetAll"_L1}));
    form.resize(460, 480);
}

} // namespace qlm
