// SPDX-License-Identifier: MIT
#include "shell/Form.h"
#include "shell/FormParts.h"
#include "shell/Forms.h"

#include <QBoxLayout>
#include <QDialogButtonBox>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr const char16_t* Advice[] = {
    u"1) It could just be slower than usual, wait a while for login to complete",
    u"2) Please double check your Login name and Password.",
    u"3) Try again later, it could be a temporary issue on MySpace's end",
    u"4) Try logging in by hand",
    u"5) Make sure you are using the \"United States (English)\" version of MySpace.",
    u"6) You may have an Internet Explorer addon installed that is causing this problem. Reset IE by "
    u"launching Internet Explorer, then go to Tools -> Internet Options -> Advanced tab -> RESET button",
    u"7) In your Internet Explorer Options, go to the \"Security\" tab, click the \"Custom Level\" button "
    u"and make sure \"submit nonencrypted form data\" is set to Enabled.",
    u"8) Check your \"Firewall settings\" and make sure that Quillmere is approved. ",
};

} // namespace

void BuildLoginProblem(Form& form) {
    auto* column = new QVBoxLayout(&form);
    column->addWidget(NewText(u"There was a problem logging into your MySpace account"_s, u"heading"_s));
    column->addWidget(NewText(u"Troubleshooting Guide:"_s, u"subheading"_s));
    for (const char16_t* line : Advice)
        column->addWidget(NewText(QString::fromUtf16(line)));
    column->addStretch();
    column->addWidget(NewButtonRow({"cmdClose"_L1}));
    form.resize(540, 400);
}

} // namespace qlm
