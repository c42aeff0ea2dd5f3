// SPDX-License-Identifier: MIT
#include "shell/Form.h"
#include "shell/FormParts.h"
#include "shell/Forms.h"

#include <QBoxLayout>
#include <QLineEdit>
#include <QListView>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

void BuildBlacklist(Form& form) {
    QLineEdit* id = NewLine("txtID"_L1);
    QPushButton* add = NewButton("cmdAdd"_L1);
    add->setDefault(true);
    auto* entry = new QHBoxLayout;
    entry->addWidget(NewCaptionOf(*id));
    entry->addWidget(id, 1);
    entry->addWidget(add);

    auto* upkeep = new QVBoxLayout;
    for (const auto name : {"cmdDelete"_L1, "cmdAddFromFile"_L1, "cmdClearList"_L1})
        upkeep->addWidget(NewButton(name));
    upkeep->addStretch();
    auto* ids = new QHBoxLayout;
    ids->addWidget(Named(new QListView, "lstFriendIDs"_L1), 1);
    ids->addLayout(upkeep);

    auto* foot = new QHBoxLayout;
    foot->addStretch();
    foot->addWidget(NewButton("cmdClose"_L1));

    auto* column = new QVBoxLayout(&form);
    column->setSpacing(10);
    column->addWidget(NewText(u"Gathering never adds these ID's to the list."_s, u"quiet"_s));
    column->addLayout(entry);
    column->addLayout(ids, 1);
    column->addLayout(foot);
    form.resize(460, 420);
}

} // namespace qlm
