// SPDX-License-Identifier: MIT
#include "shell/frmGoogleSearch.h"

#include "core/App.h"
#include "shell/FormParts.h"

#include <QBoxLayout>
#include <QLineEdit>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr int FormWidth = 470;
}

frmGoogleSearch::frmGoogleSearch(const FormContext& context)
    : Form(context, u"frmGoogleSearch"_s, u"Google Search"_s) {
    QLineEdit* term = NewLine("txtGoogleTerm"_L1, u"Google search term"_s);
    auto* caption = new QLabel(u"Please enter a Google search &term to scan MySpace profiles:"_s);
    caption->setBuddy(term);
    QPushButton* search = NewButton("cmdOK"_L1, u"&Search"_s);
    search->setDefault(true);
    TakeDoubleClickAsOne(*search);
    auto* entry = new QHBoxLayout;
    entry->addWidget(term, 1);
    entry->addWidget(search);

    auto* column = new QVBoxLayout(this);
    column->setSpacing(10);
    column->setSizeConstraint(QLayout::SetFixedSize);
    column->addWidget(caption);
    column->addLayout(entry);
    for (const auto name : {"lblInProgress"_L1, "lblFullGatheringID"_L1}) {
        QLabel* label = NewLabel(name);
        label->setFixedWidth(FormWidth);
        label->setWordWrap(true);
        column->addWidget(label);
    }
    column->addSpacing(2);
    term->setMinimumWidth(FormWidth - search->sizeHint().width() - column->spacing() * 2);
}

void frmGoogleSearch::UserCloses() {
    m_app.commands.Run(u"frmGoogleSearch_QueryUnload"_s);
}

} // namespace qlm
