// SPDX-License-Identifier: MIT
#include "shell/Form.h"
#include "shell/FormParts.h"
#include "shell/Forms.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

void BuildAutoStart(Form& form) {
    auto* hour = NewNumber("txtTimeHH"_L1, 5);
    auto* half = Named(new QComboBox, "cboAMPM"_L1);
    auto* time = NewRow({NewCaptionOf(*hour), hour, new QLabel(u":"_s), NewNumber("txtTimeMM"_L1, 5),
                         NewCaptionOf(*half), half});
    time->addStretch();
    auto* action = Named(new QComboBox, "cboAutostartAction"_L1);
    auto* what = NewRow({NewCaptionOf(*action), action});
    what->addStretch();

    auto* column = new QVBoxLayout(&form);
    column->setSpacing(12);
    column->addWidget(NewWrappedLabel("Label1"_L1));
    column->addWidget(Named(new QRadioButton, "optAutoStartOn"_L1));
    column->addLayout(time);
    column->addLayout(what);
    column->addWidget(Named(new QRadioButton, "optAutoStartOff"_L1));
    column->addWidget(NewWrappedLabel("Label2"_L1, u"quiet"_s));
    column->addStretch();
    column->addWidget(NewButtonRow({"cmdOK"_L1, "cmdCancel"_L1}));
    form.resize(420, 290);
}

} // namespace qlm
