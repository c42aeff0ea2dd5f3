// SPDX-License-Identifier: MIT
#include "shell/frmError.h"

#include "core/App.h"
#include "shell/FormParts.h"

#include <QBoxLayout>
#include <QDialogButtonBox>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

frmError::frmError(const FormContext& context) : Form(context, u"frmError"_s, u"Error"_s) {
    const QString support = context.app.deployment.Value(u"SupportAddress"_s);
    QLabel* path = NewLabel("lblErrorLogPath"_L1, u"path"_s);
    path->setAccessibleName(u"The log file"_s);
    path->setWordWrap(true);
    path->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    QLabel* howTo = NewLabel("lblHowTo"_L1, u"hint"_s);
    howTo->setWordWrap(true);
    howTo->setProperty("hideWhenEmpty", true);

    auto* column = new QVBoxLayout(this);
    column->addWidget(NewText(u"An error has occurred."_s, u"heading"_s));
    column->addWidget(NewText(u"Please e-mail this log file to "_s + support + u':'));
    column->addWidget(path);
    column->addWidget(NewLink("lblHowToClick"_L1, u"- &How do I Send an Error Report? -"_s));
    column->addWidget(howTo);
    column->addStretch();
    QPushButton* ok = NewButton("cmdOK"_L1, u"&OK"_s);
    column->addWidget(NewButtonRow({ok, NewButton("cmdOpenFolder"_L1, u"Open &folder"_s)}));
    ok->setFocus(); // else Return would follow the link, which stands first
    resize(480, 260);
}

} // namespace qlm
