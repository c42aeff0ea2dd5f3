// SPDX-License-Identifier: MIT
#include "core/App.h"
#include "shell/CampaignFrames.h"
#include "shell/FormParts.h"
#include "shell/PanelBands.h"
#include "shell/Panels.h"

#include <QBoxLayout>
#include <QGroupBox>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

QLayout* Options(const App& app) {
    auto* column = new QVBoxLayout;
    column->addWidget(
        NewText(u"Posts a bulletin to all your friends, by the clock. A run of another tab goes on "
                "between the posts."_s,
                u"quiet"_s));
    column->addWidget(NewContentFrame(app.commands, {.single = "optSendSingle(2)"_L1,
                                                     .fromList = "optSendFromList(2)"_L1,
                                                     .list = "picBulletin.lstSendList"_L1,
                                                     .subject = "txtBulSubject"_L1,
                                                     .body = "txtBulMessage"_L1,
                                                     .singleTools = {"picBulPreview"_L1},
                                                     .listTools = {"picBulletin.picEditList"_L1}}),
                      1);
    column->addWidget(NewTimingFrame({.amount = "txtPostAmount"_L1,
                                      .from = "txtBulTimerFrom"_L1,
                                      .to = "txtBulTimerTo"_L1,
                                      .boxes = {"chkAntiFlood"_L1, "chkBulAllowComments"_L1}}));
    return column;
}

} // namespace

QWidget* BuildBulletin(App& app, ControlBinder&) {
    return NewPanel("picBulletin"_L1, {.options = Options(app),
                                       .run = NewTimedRunBand(app.commands, {.start = "picCmdBulSend"_L1,
                                                                             .stop = "piccmdBulStop"_L1,
                                                                             .sent = "lblBulSentCount"_L1,
                                                                             .busy = "lblBulBusy"_L1,
                                                                             .due = "lblBulDue"_L1}),
                                       .tools = NewToolRow(app.commands, {"piccmdBulReport"_L1})});
}

} // namespace qlm
