// SPDX-License-Identifier: MIT
#include "shell/frmInteken.h"

#include "core/App.h"
#include "shell/FormParts.h"
#include "shell/Forms.h"
#include "shell/PictureIcon.h"
#include "shell/TickBox.h"
#include "shell/WindowDialogs.h"

#include <QBoxLayout>
#include <QListView>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

QLayout* Head() {
    auto* picture = new QLabel;
    picture->setPixmap(ProgramIcon().pixmap(48));
    picture->setAccessibleName(u"Quillmere"_s);
    auto* words = new QVBoxLayout;
    words->setSpacing(2);
    words->addWidget(NewLabel("lblHeading"_L1, u"heading"_s));
    words->addWidget(NewText(u"Choose the account to log in with."_s, u"quiet"_s));
    auto* head = new QHBoxLayout;
    head->setSpacing(14);
    head->addWidget(picture);
    head->addLayout(words, 1);
    return head;
}

QLayout* AccountsRow() {
    auto* upkeep = new QVBoxLayout;
    for (const auto name : {"cmdAdd"_L1, "cmdEdit"_L1, "cmdDelete"_L1})
        upkeep->addWidget(NewButton(name));
    upkeep->addStretch();
    auto* accounts = new QHBoxLayout;
    accounts->addWidget(Named(new QListView, "lstAccounts"_L1), 1);
    accounts->addLayout(upkeep);
    return accounts;
}

QLayout* TermsRow() {
    QHBoxLayout* terms = NewRow({Named(new TickBox, "chkTOS"_L1), NewLink("lblTOS"_L1)});
    terms->setSpacing(2);
    return terms;
}

QLayout* Foot() {
    QPushButton* proceed = NewButton("cmdContinue"_L1);
    proceed->setDefault(true);
    auto* foot = new QHBoxLayout;
    foot->addWidget(NewWrappedLabel("Label5"_L1, u"quiet"_s), 1);
    foot->addWidget(proceed);
    return foot;
}

} // namespace

void BuildLogin(Form& form) {
    form.setWindowTitle(u"Quillmere v"_s + form.TheApp().Version() + u" - Login Screen -"_s);
    auto* column = new QVBoxLayout(&form);
    column->setContentsMargins(22, 20, 22, 18);
    column->setSpacing(12);
    column->addLayout(Head());
    column->addLayout(AccountsRow(), 1);
    column->addWidget(NewHintOnRows(
        form.TheApp(), "frmInteken.lstAccounts"_L1,
        u"Press Add and enter the e-mail address and password of your account."_s,
        [](const QStringList& rows) { return rows.isEmpty() || rows.first() == "No Accounts added..."_L1; }));
    column->addLayout(TermsRow());
    column->addWidget(NewWrappedLabel("lblPracticeSite"_L1, u"notice"_s, true));
    column->addLayout(Foot());
    form.resize(520, 420);
}

void frmInteken::UserCloses() {
    if (m_dialogs.IsFormOpen(u"frmMain"_s))
        Form::UserCloses();
    else
        m_app.Close();
}

} // namespace qlm
