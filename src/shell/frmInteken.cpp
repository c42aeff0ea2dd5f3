// SPDX-License-Identifier: MIT
#include "shell/frmInteken.h"

#include "core/App.h"
#include "shell/FormParts.h"
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

} // namespace

frmInteken::frmInteken(const FormContext& context)
    : Form(context, u"frmInteken"_s, u"Quillmere v"_s + context.app.Version() + u" - Login Screen -"_s) {
    m_list = Named(new QListView, "lstAccounts"_L1, u"Accounts"_s);
    m_hint = NewText(u"Press Add and enter the e-mail address and password of your account."_s, u"hint"_s);
    auto* upkeep = new QVBoxLayout;
    upkeep->addWidget(NewButton("cmdAdd"_L1, u"&Add"_s));
    upkeep->addWidget(NewButton("cmdEdit"_L1, u"&Edit"_s));
    upkeep->addWidget(NewButton("cmdDelete"_L1, u"&Delete"_s));
    upkeep->addStretch();
    auto* accounts = new QHBoxLayout;
    accounts->addWidget(m_list, 1);
    accounts->addLayout(upkeep);

    auto* terms = new QHBoxLayout;
    terms->setSpacing(2);
    terms->addWidget(Named(new TickBox, "chkTOS"_L1, u"I agree to the Quillmere Terms of Service"_s));
    terms->addWidget(NewLink("lblTOS"_L1, u"I agree to the Quillmere &Terms of Service"_s));
    terms->addStretch();

    QLabel* practice = NewLabel("lblPracticeSite"_L1, u"notice"_s);
    practice->setWordWrap(true);
    practice->setProperty("hideWhenEmpty", true);
    QLabel* affiliation = NewLabel("Label5"_L1, u"quiet"_s);
    affiliation->setWordWrap(true);
    QPushButton* proceed = NewButton("cmdContinue"_L1, u"&Continue"_s);
    proceed->setDefault(true);
    auto* foot = new QHBoxLayout;
    foot->addWidget(affiliation, 1);
    foot->addWidget(proceed);

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(22, 20, 22, 18);
    column->setSpacing(12);
    column->addLayout(Head());
    column->addLayout(accounts, 1);
    column->addWidget(m_hint);
    column->addLayout(terms);
    column->addWidget(practice);
    column->addLayout(foot);
    resize(520, 420);
}

void frmInteken::Bound() {
    HintOnRows(*m_list, *m_hint, [this] {
        const QStringList& accounts = m_app.controls.Items("frmInteken.lstAccounts"_L1);
        return accounts.isEmpty() || accounts.first() == "No Accounts added..."_L1;
    });
}

void frmInteken::UserCloses() {
    if (m_dialogs.IsFormOpen(u"frmMain"_s))
        Form::UserCloses();
    else
        m_app.Close();
}

} // namespace qlm
