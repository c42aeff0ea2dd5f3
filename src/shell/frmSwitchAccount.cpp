// SPDX-License-Identifier: MIT
#include "shell/frmSwitchAccount.h"

#include "core/App.h"
#include "shell/FormParts.h"

#include <QBoxLayout>
#include <QDialogButtonBox>
#include <QListView>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

frmSwitchAccount::frmSwitchAccount(const FormContext& context)
    : Form(context, u"frmSwitchAccount"_s, u"Switch Account"_s) {
    m_list = Named(new QListView, "lstAccounts"_L1, u"Accounts"_s);
    m_hint =
        NewText(u"Press Add to enter an account, or Import to read a list of them from a file."_s, u"hint"_s);
    auto* upkeep = new QVBoxLayout;
    upkeep->addWidget(NewButton("cmdAdd"_L1, u"&Add"_s));
    upkeep->addWidget(NewButton("cmdEdit"_L1, u"&Edit"_s));
    upkeep->addWidget(NewButton("cmdDelete"_L1, u"&Delete"_s));
    upkeep->addWidget(NewButton("cmdClear"_L1, u"Clea&r"_s));
    upkeep->addStretch();
    upkeep->addWidget(NewButton("cmdExport"_L1, u"E&xport"_s));
    upkeep->addWidget(NewButton("cmdImport"_L1, u"&Import"_s));
    auto* accounts = new QHBoxLayout;
    accounts->addWidget(m_list, 1);
    accounts->addLayout(upkeep);

    auto* column = new QVBoxLayout(this);
    column->addWidget(NewLabel("lblHeading"_L1));
    column->addLayout(accounts, 1);
    column->addWidget(m_hint);
    column->addWidget(
        NewButtonRow({NewButton("cmdOK"_L1, u"&Login"_s), NewButton("cmdCancel"_L1, u"Cancel"_s)}));
    resize(460, 380);
}

void frmSwitchAccount::Bound() {
    HintOnRows(*m_list, *m_hint,
               [this] { return m_app.controls.Items("frmSwitchAccount.lstAccounts"_L1).isEmpty(); });
}

} // namespace qlm
