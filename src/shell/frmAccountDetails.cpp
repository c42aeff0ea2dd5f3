// SPDX-License-Identifier: MIT
#include "shell/frmAccountDetails.h"

#include "shell/FormParts.h"

#include <QBoxLayout>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLineEdit>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

// A line asks for its sign when its own sheet is set, not when the application's finds it by its name.
QLineEdit* NewPassword(QLatin1StringView name, const QString& accessibleName) {
    QLineEdit* line = NewLine(name, accessibleName);
    line->setEchoMode(QLineEdit::Password);
    line->setStyleSheet(u"lineedit-password-character: 42"_s); // "*"
    return line;
}

} // namespace

frmAccountDetails::frmAccountDetails(const FormContext& context)
    : Form(context, u"frmAccountDetails"_s, u"Account Details"_s) {
    auto* fields = Named(new QWidget, "fraFields"_L1);
    // The form keeps its size while it is busy and the fields are hidden.
    QSizePolicy policy = fields->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    fields->setSizePolicy(policy);
    auto* grid = new QFormLayout(fields);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->addRow(u"&E-mail address:"_s, NewLine("txtEmail"_L1, u"E-mail address"_s));
    grid->addRow(u"&Password:"_s, NewPassword("txtPassword"_L1, u"Password"_s));
    grid->addRow(u"Co&nfirm password:"_s, NewPassword("txtConfirmPassword"_L1, u"Confirm password"_s));

    auto* column = new QVBoxLayout(this);
    column->addWidget(
        NewText(u"The e-mail address and password with which you log in to the site."_s, u"quiet"_s));
    column->addWidget(fields);
    column->addStretch();
    column->addWidget(
        NewButtonRow({NewButton("cmdOK"_L1, u"&OK"_s), NewButton("cmdCancel"_L1, u"Cancel"_s)}));
    resize(400, 210);
}

} // namespace qlm
