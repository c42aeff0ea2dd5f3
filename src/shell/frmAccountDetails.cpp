// SPDX-License-Identifier: MIT
#include "shell/Form.h"
#include "shell/FormParts.h"
#include "shell/Forms.h"

#include <QBoxLayout>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLineEdit>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

// A line asks for its sign when its own sheet is set, not when the application's finds it by its name.
QLineEdit* NewPassword(QLatin1StringView name) {
    QLineEdit* line = NewLine(name);
    line->setEchoMode(QLineEdit::Password);
    line->setStyleSheet(u"lineedit-password-character: 42"_s); // "*"
    return line;
}

} // namespace

void BuildAccountDetails(Form& form) {
    auto* fields = Named(new QWidget, "fraFields"_L1);
    // The form keeps its size while it is busy and the fields are hidden.
    QSizePolicy policy = fields->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    fields->setSizePolicy(policy);
    auto* grid = new QFormLayout(fields);
    grid->setContentsMargins(0, 0, 0, 0);
    for (QLineEdit* line :
         {NewLine("txtEmail"_L1), NewPassword("txtPassword"_L1), NewPassword("txtConfirmPassword"_L1)})
        grid->addRow(NewCaptionOf(*line), line);

    auto* column = new QVBoxLayout(&form);
    column->addWidget(
        NewText(u"The e-mail address and password with which you log in to the site."_s, u"quiet"_s));
    column->addWidget(fields);
    column->addStretch();
    column->addWidget(NewButtonRow({"cmdOK"_L1, "cmdCancel"_L1}));
    form.resize(400, 210);
}

} // namespace qlm
