// SPDX-License-Identifier: MIT
#include "core/App.h"
#include "shell/CampaignFrames.h"
#include "shell/FormParts.h"
#include "shell/PanelBands.h"
#include "shell/Panels.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QGroupBox>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

QLayout* Options(const App& app) {
    auto* column = new QVBoxLayout;
    column->addWidget(
        NewText(u"Sends a private message to each profile in the gathered list."_s, u"quiet"_s));
    column->addWidget(NewContentFrame(app.commands, {.single = "optSendSingle(0)"_L1,
                                                     .fromList = "optSendFromList(0)"_L1,
                                                     .list = "picMessanger.lstSendList"_L1,
                                                     .subject = "txtMsgSubject"_L1,
                                                     .body = "txtMsgMessage"_L1,
                                                     .subjectReads = "lblMsgSubjectReads"_L1,
                                                     .bodyReads = "lblMsgReads"_L1,
                                                     .singleTools = {"piccmdMsgLoad"_L1, "piccmdMsgSave"_L1,
                                                                     "picMsgPreview"_L1},
                                                     .listTools = {"picMessanger.picEditList"_L1}}),
                      1);
    column->addWidget(NewLimitFrame("txtMsgStopAt"_L1, "cboMSGPerDayOrSession"_L1));
    column->addWidget(Named(new QCheckBox, "chkMsgDontSendAgain"_L1));
    return column;
}

} // namespace

QWidget* BuildMessenger(App& app, ControlBinder&) {
    return NewPanel("picMessanger"_L1,
                    {.options = Options(app),
                     .run = NewRunBand(app.commands, "picCmdMsgSend"_L1, "picCmdMsgStop"_L1,
                                       {"lblMsgSentCount"_L1, "lblMsgTotalToday"_L1, "lblMsgFailedCount"_L1,
                                        "lblMsgSkippedCount"_L1}),
                     .tools = NewToolRow(app.commands, {"piccmdMsgTimeDelay"_L1, "piccmdMsgClearLog"_L1,
                                                        "piccmdMsgReport"_L1})});
}

} // namespace qlm
