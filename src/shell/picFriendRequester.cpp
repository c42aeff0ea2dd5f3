// SPDX-License-Identifier: MIT
#include "core/App.h"
#include "shell/CampaignFrames.h"
#include "shell/FormParts.h"
#include "shell/PanelBands.h"
#include "shell/Panels.h"
#include "shell/PictureButtons.h"
#include "shell/TickBox.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QPlainTextEdit>
#include <QToolButton>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int LinesOfTheNote = 2;
constexpr int SignsOfAPage = 8;

QLayout* CategoryRow(const App& app) {
    auto* categories = Named(new QComboBox, "cboFRCategories"_L1);
    // Neither a long name nor the words that stand there before one is chosen make the panel wider.
    categories->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    categories->setMinimumWidth(categories->fontMetrics().averageCharWidth() * 10);
    auto* row = new QHBoxLayout;
    row->addWidget(Named(new QCheckBox, "chkFRAddToCategory"_L1));
    row->addWidget(NewCaptionOf(*categories));
    row->addWidget(categories, 1);
    AddPictureButtons(*row, app.commands, Caption::None, {"piccmdFRRefreshCategories"_L1});
    return row;
}

QGroupBox* OptionsFrame(const App& app) {
    auto* frame = new QGroupBox(u"With each request"_s);
    auto* column = new QVBoxLayout(frame);
    column->setContentsMargins(6, 6, 6, 6);
    column->addWidget(Named(new TickBox, "chkFrSendMessage"_L1));
    column->addWidget(Named(new QCheckBox, "chkFRNote"_L1));
    column->addWidget(NewLines("txtFRNote"_L1, LinesOfTheNote));
    column->addWidget(Named(new QCheckBox, "chkFRFullName"_L1));
    column->addWidget(Named(new QCheckBox, "chkFRAddToUpdates"_L1));
    column->addLayout(CategoryRow(app));
    column->addWidget(
        NewText(u"All but the message are kept for request pages that ask for them."_s, u"quiet"_s));
    return frame;
}

QGroupBox* PendingFrame(const App& app) {
    QLineEdit* start = NewNumber("txtDelPenFRStartPage"_L1, SignsOfAPage);
    auto* buttons = new QHBoxLayout;
    AddPictureButtons(*buttons, app.commands, Caption::Beside, {"picDeletePendingRequests"_L1});
    AddPictureButtons(*buttons, app.commands, Caption::None,
                      {"picDeletePendingRequestsStop"_L1, "piccmdDelPenReport"_L1});
    buttons->addStretch();
    return NewFrame(u"Unanswered requests"_s, {buttons, NewRow({NewCaptionOf(*start), start})});
}

QLayout* Options(const App& app) {
    auto* column = new QVBoxLayout;
    column->setSpacing(12);
    column->addWidget(
        NewText(u"Sends a friend request to each profile in the gathered list. Whoever stands in the log "
                "is passed over."_s,
                u"quiet"_s));
    column->addWidget(NewLink("lblProfileIDHelp"_L1));
    column->addWidget(NewLimitFrame("txtFriendRequestsToSend"_L1, "cboFRPerDayOrSession"_L1));
    column->addWidget(OptionsFrame(app));
    column->addWidget(PendingFrame(app));
    column->addStretch();
    return column;
}

} // namespace

QWidget* BuildFriendRequester(App& app, ControlBinder&) {
    return NewPanel("picFriendRequester"_L1,
                    {.options = Options(app),
                     .run = NewRunBand(app.commands, "piccmdAddFriends"_L1, "piccmdAddFriendsStop"_L1,
                                       {"lblFrSentCount"_L1, "lblFrTotalToday"_L1, "lblFrFailedCount"_L1,
                                        "lblFrSkippedCount"_L1}),
                     .tools = NewToolRow(app.commands, {"piccmdFrTimeDelay"_L1, "piccmdFrClearLog"_L1,
                                                        "piccmdFrReport"_L1})});
}

} // namespace qlm
