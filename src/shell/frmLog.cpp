// SPDX-License-Identifier: MIT
#include "shell/frmLog.h"

#include "shell/FormParts.h"

#include <QBoxLayout>
#include <QDialogButtonBox>
#include <QGridLayout>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

frmLog::frmLog(const FormContext& context) : Form(context, u"frmLog"_s, u"Log"_s) {
    QLabel* heading = NewLabel("lblHeading"_L1);
    heading->setWordWrap(true);
    auto* choices = new QGridLayout;
    choices->addWidget(NewButton("cmdEditLog"_L1, u"&Edit Log"_s), 0, 0);
    choices->addWidget(NewButton("cmdClearLog"_L1, u"Cle&ar Log"_s), 0, 1);
    choices->addWidget(NewButton("cmdExportLog"_L1, u"E&xport Log"_s), 1, 0);
    choices->addWidget(NewButton("cmdImportLog"_L1, u"&Import Log"_s), 1, 1);

    auto* column = new QVBoxLayout(this);
    column->setSpacing(12);
    column->addWidget(heading);
    column->addWidget(NewLabel("Label1"_L1, u"subheading"_s));
    column->addLayout(choices);
    column->addStretch();
    column->addWidget(NewButtonRow({NewButton("cmdClose"_L1, u"&Close"_s)}));
    resize(400, 230);
}

} // namespace qlm
