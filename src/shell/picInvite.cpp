// SPDX-License-Identifier: MIT
#include "core/App.h"
#include "shell/CampaignFrames.h"
#include "shell/FormParts.h"
#include "shell/PanelBands.h"
#include "shell/Panels.h"
#include "shell/PictureButtons.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QGroupBox>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

QLayout* Explanation() {
    auto* column = new QVBoxLayout;
    for (const QString& text :
         {u"Invites your friends to a group or an event. Open its page in the browser first."_s,
          u"Friends are chosen batch by batch. For each batch you type the text from the image and press the "
          "Invite button on the page."_s})
        column->addWidget(NewText(text, u"quiet"_s));
    column->addStretch();
    return column;
}

QLayout* RunBand(const Commands& commands) {
    auto* column = new QVBoxLayout;
    column->addLayout(NewRunRow(commands, "piccmdGroupInvite"_L1, "piccmdEventInvite"_L1));
    column->addLayout(NewRunRow(commands, "piccmdInviteStop"_L1));
    column->addWidget(NewWrappedLabel("lblInviteBusy"_L1, u"notice"_s));
    column->addWidget(NewWrappedLabel("lblInviteBatch"_L1, {}, true));
    auto* counts = new QGridLayout;
    counts->addWidget(NewLabel("lblInviteCount"_L1, u"counter"_s), 0, 0, 1, 2);
    counts->addWidget(NewText(u"Groups"_s, u"quiet"_s), 1, 0);
    counts->addWidget(NewLabel("lblGroupInvitesToday"_L1), 1, 1);
    counts->addWidget(NewText(u"Events"_s, u"quiet"_s), 2, 0);
    counts->addWidget(NewLabel("lblEventInvitesToday"_L1), 2, 1);
    counts->setColumnStretch(1, 1);
    column->addLayout(counts);
    return column;
}

} // namespace

QWidget* BuildInvite(App& app, ControlBinder&) {
    return NewPanel("picInvite"_L1,
                    {.options = Explanation(),
                     .run = RunBand(app.commands),
                     .tools = NewToolRow(app.commands, {"piccmdInvClearLog"_L1, "piccmdInviteReport"_L1})});
}

} // namespace qlm
