// SPDX-License-Identifier: MIT
#include "shell/frmGlobalSettings.h"

#include "core/SettingsFields.h"
#include "shell/FormParts.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QDialogButtonBox>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

frmGlobalSettings::frmGlobalSettings(const FormContext& context)
    : Form(context, u"frmGlobalSettings"_s, u"Global Settings"_s) {
    auto* column = new QVBoxLayout(this);
    for (const GlobalFlag& flag : SettingsFields::GlobalFlags())
        column->addWidget(Named(new QCheckBox, QLatin1StringView(flag.checkBox)));
    auto* note = NewLabel("lblNote"_L1, u"quiet"_s);
    note->setWordWrap(true);
    column->addWidget(note);
    column->addStretch();
    column->addWidget(NewButtonRow(
        {NewButton("cmdClose"_L1, u"&Close"_s), NewButton("cmdResetAll"_L1, u"&Reset All..."_s)}));
    resize(460, 480);
}

void frmGlobalSettings::reject() {
    UserCloses();
}

} // namespace qlm
