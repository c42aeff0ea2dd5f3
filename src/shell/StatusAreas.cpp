// SPDX-License-Identifier: MIT
#include "shell/StatusAreas.h"

#include "core/App.h"
#include "shell/ElidedLabel.h"
#include "shell/FormParts.h"

#include <QBoxLayout>
#include <QProgressBar>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

QProgressBar* NewProgressBar() {
    auto* bar = Named(new QProgressBar, "prgProgress"_L1);
    bar->setAccessibleName(u"Progress through the list"_s);
    bar->setTextVisible(false);
    bar->setFixedWidth(140);
    bar->setMaximumHeight(8);
    bar->hide();
    return bar;
}

} // namespace

ActivityStrip::ActivityStrip(App& app) : m_app(app), m_bar(NewProgressBar()) {
    setObjectName(u"fraActivity"_s);
    setAttribute(Qt::WA_StyledBackground);
    ElidedLabel* action = NewElidedLabel("myfraCurrentAction"_L1, u"activity"_s);
    action->setAccessibleDescription(u"What is being done now"_s);
    action->SetPlaceholder(u"Ready"_s);
    ElidedLabel* waiting = NewElidedLabel("lblWaitingFor"_L1, u"waiting"_s);
    waiting->setProperty("hideWhenEmpty", true);

    ElidedLabel* chain = NewElidedLabel("lblChain"_L1, u"quiet"_s);
    chain->setProperty("hideWhenEmpty", true);
    chain->setAccessibleDescription(u"The accounts that come next"_s);

    ElidedLabel* errors = NewElidedLabel("lblLaterErrors"_L1, u"problem"_s);
    errors->setProperty("hideWhenEmpty", true);

    auto* words = new QVBoxLayout;
    words->setSpacing(1);
    words->addWidget(action);
    words->addWidget(waiting);
    words->addWidget(chain);
    words->addWidget(errors);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(12, 7, 12, 7);
    row->setSpacing(12);
    row->addLayout(words, 1);
    row->addWidget(NewLabel("lblProgress"_L1, u"quiet"_s));
    row->addWidget(m_bar);

    m_listener = m_app.controls.AddListener([this](const Control& control, Controls::Change change, int) {
        if (control.name == "lblProgress"_L1 && change == Controls::Change::Text)
            ShowProgress();
    });
    ShowProgress();
}

ActivityStrip::~ActivityStrip() {
    m_app.controls.RemoveListener(m_listener);
}

void ActivityStrip::ShowProgress() {
    const Progress& progress = m_app.controls.Progress();
    m_bar->setVisible(progress.total > 0);
    if (progress.total > 0) {
        m_bar->setRange(0, static_cast<int>(progress.total));
        m_bar->setValue(static_cast<int>(progress.number));
    }
}

FootLine::FootLine() {
    setObjectName(u"fraFoot"_s);
    setAttribute(Qt::WA_StyledBackground);
    ElidedLabel* status = NewElidedLabel("lblStatus"_L1, u"quiet"_s);
    status->setAccessibleDescription(u"The browser's status"_s);
    QLabel* account = NewLabel("lblLoggedInAs"_L1);
    account->setAccessibleDescription(u"The account that is logged in"_s);
    account->setProperty("hideWhenEmpty", true);
    QLabel* practice = NewLabel("lblPracticeSite"_L1, u"badge"_s);
    practice->setProperty("hideWhenEmpty", true);

    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(12, 3, 12, 3);
    row->setSpacing(16);
    row->addWidget(status, 1);
    QLabel* start = NewLabel("lblAutoStart"_L1);
    start->setProperty("hideWhenEmpty", true);
    row->addWidget(start);
    row->addWidget(NewLabel("lblTimeDelay"_L1));
    row->addWidget(account);
    row->addWidget(practice);
}

} // namespace qlm
