// SPDX-License-Identifier: MIT
#include "shell/frmBlacklist.h"

#include "core/App.h"
#include "shell/FormParts.h"

#include <QBoxLayout>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QListView>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

frmBlacklist::frmBlacklist(const FormContext& context) : Form(context, u"frmBlacklist"_s, u"Black List"_s) {
    QLineEdit* id = NewLine("txtID"_L1, u"ID to add"_s);
    QPushButton* add = NewButton("cmdAdd"_L1, u"&Add ID"_s);
    add->setDefault(true);
    auto* caption = new QLabel(u"&ID:"_s);
    caption->setBuddy(id);
    auto* entry = new QHBoxLayout;
    entry->addWidget(caption);
    entry->addWidget(id, 1);
    entry->addWidget(add);

    auto* upkeep = new QVBoxLayout;
    upkeep->addWidget(NewButton("cmdDelete"_L1, u"&Delete Selected ID"_s));
    upkeep->addWidget(NewButton("cmdAddFromFile"_L1, u"Add ID's from &file"_s));
    upkeep->addWidget(NewButton("cmdClearList"_L1, u"Clea&r list"_s));
    upkeep->addStretch();
    auto* ids = new QHBoxLayout;
    ids->addWidget(Named(new QListView, "lstFriendIDs"_L1, u"Blacklisted ID's"_s), 1);
    ids->addLayout(upkeep);

    auto* foot = new QHBoxLayout;
    foot->addStretch();
    foot->addWidget(NewButton("cmdClose"_L1, u"&Close"_s));

    auto* column = new QVBoxLayout(this);
    column->setSpacing(10);
    column->addWidget(NewText(u"Gathering never adds these ID's to the list."_s, u"quiet"_s));
    column->addLayout(entry);
    column->addLayout(ids, 1);
    column->addLayout(foot);
    resize(460, 420);

    m_listener = m_app.controls.AddListener([this](const Control& control, Controls::Change, int) {
        if (control.name == "MousePointer"_L1)
            ShowPointer();
    });
    ShowPointer();
}

frmBlacklist::~frmBlacklist() {
    m_app.controls.RemoveListener(m_listener);
}

// A window doesn't take the pointer of the one below it.
void frmBlacklist::ShowPointer() {
    if (m_app.controls.Text("MousePointer"_L1) == u"0"_s)
        unsetCursor();
    else
        setCursor(Qt::WaitCursor);
}

} // namespace qlm
