// SPDX-License-Identifier: MIT
#include "core/App.h"
#include "shell/CampaignFrames.h"
#include "shell/FormParts.h"
#include "shell/PanelBands.h"
#include "shell/Panels.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QRadioButton>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int LinesOfAText = 2;
constexpr int LinesOfTheAlternative = 2;
constexpr int SignsOfAPage = 6;

QGroupBox* FollowUpFrame(const Commands& commands) {
    auto* frame = new QGroupBox(u"With each request"_s);
    auto* column = new QVBoxLayout(frame);
    column->addWidget(Named(new QRadioButton, "optAcceptDontSend"_L1));
    column->addLayout(NewChoiceRow(commands, "optAcceptSendMsg"_L1, {"picAccMsgPreview"_L1}));
    QLineEdit* subject = NewLine("txtAcceptSubject"_L1);
    auto* line = new QHBoxLayout;
    line->addWidget(NewCaptionOf(*subject));
    line->addWidget(subject, 1);
    column->addLayout(line);
    column->addLayout(NewReadText("txtAcceptMessage"_L1, LinesOfAText, "lblAccMsgReads"_L1), 1);
    column->addLayout(NewChoiceRow(commands, "optAcceptSendCom"_L1, {"picAccComPreview"_L1}));
    column->addLayout(NewReadText("txtAcceptComment"_L1, LinesOfAText, "lblAccComReads"_L1), 1);
    column->addWidget(NewNameNote());
    return frame;
}

QGroupBox* BlockedFrame(const Commands& commands) {
    auto* frame = new QGroupBox(u"Profiles that block HTML"_s);
    auto* column = new QVBoxLayout(frame);
    column->addLayout(NewRow({Named(new QRadioButton, "optACCcomHTMLBLocked(0)"_L1),
                              Named(new QRadioButton, "optACCcomHTMLBLocked(2)"_L1)}));
    column->addLayout(NewChoiceRow(commands, "optACCcomHTMLBLocked(1)"_L1, {"picAccComNonHTMLPreview"_L1}));
    column->addLayout(
        NewReadText("txtAcceptCommentNonHTML"_L1, LinesOfTheAlternative, "lblAccComNonHTMLReads"_L1));
    column->addWidget(Named(new QCheckBox, "chkAcceptCommentNonHTML"_L1));
    return frame;
}

QGroupBox* ListFrame() {
    QLineEdit* pages = NewNumber("txtAcceptToPage"_L1, SignsOfAPage);
    QGroupBox* frame =
        NewFrame(u"Which first"_s, {NewRow({Named(new QCheckBox, "chkAcceptFromOldest"_L1)}),
                                    NewRow({NewCaptionOf(*pages), pages, NewText(u"pages"_s)})});
    frame->layout()->addWidget(Named(new QCheckBox, "chkAcceptAddToUpdates"_L1));
    return frame;
}

QLayout* Options(const App& app) {
    auto* column = new QVBoxLayout;
    column->setSpacing(2);
    column->addWidget(NewText(u"Accepts every friend request that has come in."_s, u"quiet"_s));
    column->addWidget(FollowUpFrame(app.commands), 1);
    column->addWidget(BlockedFrame(app.commands));
    column->addWidget(ListFrame());
    return column;
}

} // namespace

QWidget* BuildAcceptFriends(App& app, ControlBinder&) {
    return NewPanel("picAcceptFriends"_L1,
                    {.options = Options(app),
                     .run = NewRunRow(app.commands, "picCmdAutoApprove"_L1, "piccmdAccStop"_L1),
                     .tools = NewToolRow(app.commands, {"piccmdAccReport"_L1})});
}

} // namespace qlm
