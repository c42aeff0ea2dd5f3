// SPDX-License-Identifier: MIT
#include "shell/Form.h"
#include "shell/FormParts.h"
#include "shell/Forms.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QDialogButtonBox>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

void BuildInvites(Form& form) {
    auto* start = Named(new QComboBox, "cboStart"_L1);
    auto* end = Named(new QComboBox, "cboEnd"_L1);
    auto* row = new QHBoxLayout;
    row->addWidget(NewCaptionOf(*start));
    row->addWidget(start, 1);
    row->addWidget(NewCaptionOf(*end));
    row->addWidget(end, 1);
    row->addWidget(new QLabel(u"End"_s));

    auto* column = new QVBoxLayout(&form);
    column->setSpacing(12);
    column->addWidget(NewText(u"Specify start and end:"_s));
    column->addLayout(row);
    column->addStretch();
    column->addWidget(NewButtonRow({"cmdOK"_L1, "cmdCancel"_L1}));
    form.resize(420, 150);
}

} // namespace qlm
