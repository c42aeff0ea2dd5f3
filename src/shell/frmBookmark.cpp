// SPDX-License-Identifier: MIT
#include "shell/frmBookmark.h"

#include "shell/FormParts.h"
#include "shell/Forms.h"

#include <QBoxLayout>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLineEdit>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

void BuildBookmark(Form& form) {
    auto* grid = new QFormLayout;
    for (QLineEdit* line : {NewLine("txtName"_L1), NewLine("txtLocation"_L1)})
        grid->addRow(NewCaptionOf(*line), line);
    auto* column = new QVBoxLayout(&form);
    column->addLayout(grid);
    column->addStretch();
    column->addWidget(NewButtonRow({"cmdSave"_L1, "cmdCancel"_L1}));
    form.resize(440, 140);
}

void frmBookmark::Bound() {
    findChild<QLineEdit*>(u"txtName"_s)->selectAll();
}

} // namespace qlm
