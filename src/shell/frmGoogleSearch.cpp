// SPDX-License-Identifier: MIT
#include "shell/frmGoogleSearch.h"

#include "core/App.h"
#include "shell/FormParts.h"
#include "shell/Forms.h"

#include <QBoxLayout>
#include <QLineEdit>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr int FormWidth = 470;
}

void BuildGoogleSearch(Form& form) {
    QLineEdit* term = NewLine("txtGoogleTerm"_L1);
    QPushButton* search = NewButton("cmdOK"_L1);
    search->setDefault(true);
    TakeDoubleClickAsOne(*search);
    auto* entry = new QHBoxLayout;
    entry->addWidget(term, 1);
    entry->addWidget(search);

    auto* column = new QVBoxLayout(&form);
    column->setSpacing(10);
    column->setSizeConstraint(QLayout::SetFixedSize);
    column->addWidget(NewCaptionOf(*term));
    column->addLayout(entry);
    for (const auto name : {"lblInProgress"_L1, "lblFullGatheringID"_L1}) {
        QLabel* label = NewWrappedLabel(name);
        label->setFixedWidth(FormWidth);
        column->addWidget(label);
    }
    column->addSpacing(2);
}

void frmGoogleSearch::UserCloses() {
    m_app.commands.Run(u"frmGoogleSearch_QueryUnload"_s);
}

} // namespace qlm
