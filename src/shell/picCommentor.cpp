// SPDX-License-Identifier: MIT
#include "core/App.h"
#include "shell/CampaignFrames.h"
#include "shell/FormParts.h"
#include "shell/PanelBands.h"
#include "shell/Panels.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QGroupBox>
#include <QRadioButton>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int LeastLinesOfTheAlternative = 2;

QGroupBox* BlockedFrame(const Commands& commands) {
    auto* frame = new QGroupBox(u"Profiles that block HTML"_s);
    auto* column = new QVBoxLayout(frame);
    column->addLayout(NewRow({Named(new QRadioButton, "optCOMHTMLBLocked(0)"_L1),
                              Named(new QRadioButton, "optCOMHTMLBLocked(1)"_L1)}));
    column->addLayout(NewChoiceRow(commands, "optCOMHTMLBLocked(2)"_L1, {"picComPreviewNonHTML"_L1}));
    column->addLayout(
        NewReadText("txtCommentNonHTML"_L1, LeastLinesOfTheAlternative, "lblComNonHTMLReads"_L1));
    column->addWidget(Named(new QCheckBox, "chkCOMListSkipNonHMTL"_L1));
    return frame;
}

QLayout* Options(const App& app) {
    auto* column = new QVBoxLayout;
    column->addWidget(NewText(u"Posts a comment on each profile in the gathered list."_s, u"quiet"_s));
    column->addWidget(NewContentFrame(app.commands, {.single = "optSendSingle(1)"_L1,
                                                     .fromList = "optSendFromList(1)"_L1,
                                                     .list = "picCommentor.lstSendList"_L1,
                                                     .subject = {},
                                                     .body = "txtComment"_L1,
                                                     .bodyReads = "lblComReads"_L1,
                                                     .singleTools = {"picComPreview"_L1},
                                                     .listTools = {"picCommentor.picEditList"_L1}}),
                      3);
    column->addWidget(BlockedFrame(app.commands), 1);
    column->addWidget(NewLimitFrame("txtComStopAt"_L1, "cboCOMPerDayOrSession"_L1));
    column->addWidget(Named(new QCheckBox, "chkComDontSendAgain"_L1));
    return column;
}

} // namespace

QWidget* BuildCommenter(App& app, ControlBinder&) {
    return NewPanel("picCommentor"_L1,
                    {.options = Options(app),
                     .run = NewRunBand(app.commands, "picCmdComSend"_L1, "picCmdComStop"_L1,
                                       {"lblComSentCount"_L1, "lblComTotalToday"_L1, "lblComFailedCount"_L1,
                                        "lblComSkippedCount"_L1}),
                     .tools = NewToolRow(app.commands, {"piccmdComTimeDelay"_L1, "piccmdComClearLog"_L1,
                                                        "piccmdComReport"_L1})});
}

} // namespace qlm
