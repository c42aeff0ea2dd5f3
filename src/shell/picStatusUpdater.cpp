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
        NewText(u"Posts a status update on your home page, by the clock. A run of another tab goes on "
                "between the posts, and gives up the target that it is at."_s,
                u"quiet"_s));
    column->addWidget(NewContentFrame(app.commands, {.single = "optSendSingle(3)"_L1,
                                                     .fromList = "optSendFromList(3)"_L1,
                                                     .list = "picStatusUpdater.lstSendList"_L1,
                                                     .subject = {},
                                                     .body = "txtStatusBody"_L1,
                                                     .bodyCount = "lblStatusCharactersRemaining"_L1,
                                                     .listTools = {"picStatusUpdater.picEditList"_L1}}),
                      1);
    column->addWidget(NewTimingFrame({.amount = "txtStatusPostAmount"_L1,
                                      .from = "txtStatusTimerFrom"_L1,
                                      .to = "txtStatusTimerTo"_L1,
                                      .boxes = {"chkStatusAntiFlood"_L1}}));
    return column;
}

} // namespace

QWidget* BuildStatusUpdater(App& app, ControlBinder&) {
    return NewPanel("picStatusUpdater"_L1,
                    {.options = Options(app),
                     .run = NewTimedRunBand(app.commands, {.start = "piccmdSendStatusUpdates"_L1,
                                                           .sent = "lblStatusSentCount"_L1,
                                                           .busy = "lblStatusBusy"_L1,
                                                           .due = "lblStatusDue"_L1}),
                     .tools = NewToolRow(app.commands, {"piccmdStatusReport"_L1})});
}

} // namespace qlm
