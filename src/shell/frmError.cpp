// SPDX-License-Identifier: MIT
#include "core/App.h"
#include "shell/Form.h"
#include "shell/FormParts.h"
#include "shell/Forms.h"

#include <QBoxLayout>
#include <QDialogButtonBox>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

void BuildError(Form& form) {
    const QString support = form.TheApp().deployment.Value(u"SupportAddress"_s);
    QLabel* path = NewWrappedLabel("lblErrorLogPath"_L1, u"path"_s);
    path->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);

    auto* column = new QVBoxLayout(&form);
    column->addWidget(NewText(u"An error has occurred."_s, u"heading"_s));
    column->addWidget(NewText(u"Please e-mail this log file to "_s + support + u':'));
    column->addWidget(path);
    column->addWidget(NewLink("lblHowToClick"_L1));
    column->addWidget(NewWrappedLabel("lblHowTo"_L1, u"hint"_s, true));
    column->addStretch();
    column->addWidget(NewButtonRow({"cmdOK"_L1, "cmdOpenFolder"_L1}));
    // Else Return would follow the link, which stands first.
    form.findChild<QPushButton*>(u"cmdOK"_s)->setFocus();
    form.resize(480, 260);
}

} // namespace qlm
