// SPDX-License-Identifier: MIT
#include "shell/picFriendRequester.h"

#include "core/App.h"
#include "shell/FormParts.h"
#include "shell/PictureButtons.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLineEdit>
#include <QToolButton>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

QGroupBox* LimitFrame() {
    QLineEdit* limit = NewLine("txtFriendRequestsToSend"_L1, u"Number of friend requests to send"_s);
    limit->setPlaceholderText(u"no limit"_s);
    limit->setToolTip(u"Leave blank to send an unlimited number of requests"_s);
    limit->setMaximumWidth(limit->fontMetrics().averageCharWidth() * 14);
    auto* period = Named(new QComboBox, "cboFRPerDayOrSession"_L1, u"Limit counts for"_s);
    period->addItems({u"this session"_s, u"per day"_s});
    period->setToolTip(u"If you select \"per day\" then QLM takes all your sending activity into account and "
                       "ensures you don't send too much in a 24-hour period"_s);
    auto* caption = new QLabel(u"S&end at most"_s);
    caption->setBuddy(limit);

    auto* row = new QHBoxLayout;
    row->addWidget(caption);
    row->addWidget(limit);
    row->addWidget(period);
    row->addStretch();
    auto* frame = new QGroupBox(u"How many"_s);
    auto* column = new QVBoxLayout(frame);
    column->addLayout(row);
    return frame;
}

QLayout* RunRow(const App& app) {
    auto* row = new QHBoxLayout;
    AddPictureButtons(*row, app.commands, Caption::Beside,
                      {"piccmdAddFriends"_L1, "piccmdAddFriendsStop"_L1});
    for (int i = 0; i < row->count(); ++i)
        row->itemAt(i)->widget()->setProperty("look", u"main"_s);
    row->addStretch();
    return row;
}

QGroupBox* CountersFrame() {
    auto* frame = new QGroupBox(u"So far"_s);
    auto* grid = new QGridLayout(frame);
    grid->addWidget(NewLabel("lblFrSentCount"_L1, u"counter"_s), 0, 0);
    grid->addWidget(NewLabel("lblFrTotalToday"_L1, u"counter"_s), 0, 1);
    grid->addWidget(NewLabel("lblFrFailedCount"_L1), 1, 0);
    grid->addWidget(NewLabel("lblFrSkippedCount"_L1), 1, 1);
    grid->setColumnStretch(0, 3);
    grid->setColumnStretch(1, 2);
    return frame;
}

QGroupBox* CategoryFrame(const App& app) {
    const QString hint = u"This setting appears on the friend request page"_s;
    auto* add = Named(new QCheckBox(u"Add to cate&gory"_s), "chkFRAddToCategory"_L1);
    auto* categories = Named(new QComboBox, "cboFRCategories"_L1, u"Category"_s);
    // Neither a long name nor the words that stand there before one is chosen make the panel wider.
    categories->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    categories->setMinimumWidth(categories->fontMetrics().averageCharWidth() * 12);
    add->setToolTip(hint);
    categories->setToolTip(hint);

    auto* row = new QHBoxLayout;
    row->addWidget(categories, 1);
    AddPictureButtons(*row, app.commands, Caption::None, {"piccmdFRRefreshCategories"_L1});
    auto* frame = new QGroupBox(u"Category"_s);
    auto* column = new QVBoxLayout(frame);
    column->addWidget(add);
    column->addLayout(row);
    column->addWidget(NewText(u"Kept for request pages that ask for a category."_s, u"quiet"_s));
    return frame;
}

QLayout* ToolRow(const App& app) {
    auto* row = new QHBoxLayout;
    AddPictureButtons(*row, app.commands, Caption::Beside,
                      {"piccmdFrTimeDelay"_L1, "piccmdFrClearLog"_L1, "piccmdFrReport"_L1});
    row->addStretch();
    return row;
}

} // namespace

picFriendRequester::picFriendRequester(const App& app) {
    setObjectName(u"picFriendRequester"_s);
    auto* column = new QVBoxLayout(this);
    column->setSpacing(12);
    column->addWidget(
        NewText(u"Sends a friend request to each profile in the gathered list. Whoever stands in the "
                "log is passed over."_s,
                u"quiet"_s));
    column->addWidget(NewLink("lblProfileIDHelp"_L1, u"- What is a profile ID? -"_s));
    column->addWidget(LimitFrame());
    column->addWidget(CategoryFrame(app));
    column->addLayout(RunRow(app));
    column->addWidget(CountersFrame());
    column->addLayout(ToolRow(app));
    column->addStretch();
}

} // namespace qlm
