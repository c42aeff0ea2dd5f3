// SPDX-License-Identifier: MIT
#include "shell/Form.h"
#include "shell/FormParts.h"
#include "shell/Forms.h"

#include <QBoxLayout>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QRadioButton>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr int SignsOfAPage = 6;
}

void BuildGroupInviteOptions(Form& form) {
    QLineEdit* page = NewNumber("txtInviteStartPage"_L1, SignsOfAPage);
    auto* column = new QVBoxLayout(&form);
    column->setSpacing(10);
    column->addWidget(Named(new QRadioButton, "optInvIDs"_L1));
    column->addWidget(Named(new QRadioButton, "optInvLists"_L1));
    column->addLayout(NewRow({NewCaptionOf(*page), page}));
    column->addWidget(NewWrappedLabel("lblNotice"_L1, u"quiet"_s));
    column->addStretch();
    column->addWidget(NewButtonRow({"cmdSave"_L1, "cmdCancel"_L1}));
    form.resize(400, 210);
}

} // namespace qlm
