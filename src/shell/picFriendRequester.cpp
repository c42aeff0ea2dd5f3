// SPDX-License-Identifier: MIT
#include "shell/picFriendRequester.h"

#include "campaigns/StartChecks.h"
#include "core/App.h"
#include "shell/FormParts.h"
#include "shell/PictureButtons.h"
#include "shell/TickBox.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QToolButton>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

QGroupBox* LimitFrame() {
    QLineEdit* limit = NewLine("txtFriendRequestsToSend"_L1, u"Number of friend requests to send"_s);
    limit->setPlaceholderText(u"no limit"_s);
    limit->setToolTip(
        u"With 3 here four requests are sent: the run stops at the fourth, which isn't counted. "
        u"Leave blank to send an unlimited number of requests"_s);
    limit->setMaximumWidth(limit->fontMetrics().averageCharWidth() * 14);
    auto* period = Named(new QComboBox, "cboFRPerDayOrSession"_L1);
    period->setToolTip(u"If you select \"per day\" then QLM takes all your sending activity into account and "
                       "ensures you don't send too much in a 24-hour period"_s);

    auto* row = new QHBoxLayout;
    row->addWidget(NewCaptionOf(*limit, u"Stop on&e request after"_s));
    row->addWidget(limit);
    row->addWidget(NewCaptionOf(*period, u"requests"_s, u"Limit counts for"_s));
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

const QString HintOfThePage = u"This setting appears on the friend request page"_s;

template <typename Input> Input* NewPageOption(QLatin1StringView name, const QString& words) {
    auto* input = Named(new Input, name, QString(words).remove(u'&'));
    if (auto* box = qobject_cast<QCheckBox*>(input))
        box->setText(words);
    input->setToolTip(HintOfThePage);
    return input;
}

QPlainTextEdit* NewNote() {
    auto* note = NewPageOption<QPlainTextEdit>("txtFRNote"_L1, u"Text of the note"_s);
    note->setTabChangesFocus(true);
    note->setFixedHeight(note->fontMetrics().lineSpacing() * 2 + 14);
    return note;
}

QLayout* CategoryRow(const App& app) {
    auto* categories = NewPageOption<QComboBox>("cboFRCategories"_L1, {});
    // Neither a long name nor the words that stand there before one is chosen make the panel wider.
    categories->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    categories->setMinimumWidth(categories->fontMetrics().averageCharWidth() * 12);
    auto* row = new QHBoxLayout;
    row->addWidget(NewPageOption<QCheckBox>("chkFRAddToCategory"_L1, u"&Add to"_s));
    row->addWidget(NewCaptionOf(*categories, u"cate&gory"_s, u"Category"_s));
    row->addWidget(categories, 1);
    AddPictureButtons(*row, app.commands, Caption::None, {"piccmdFRRefreshCategories"_L1});
    return row;
}

TickBox* NewMessageOption(const App& app) {
    const QString caption = u"Send a &message after each request"_s;
    auto* message =
        Named(new TickBox(HasMessenger(app) ? caption : caption + u" (not yet)"_s), "chkFrSendMessage"_L1);
    message->setToolTip(u"Uses the message specified on the 'Auto Messenger' tab"_s);
    return message;
}

QGroupBox* OptionsFrame(const App& app) {
    auto* frame = new QGroupBox(u"With each request"_s);
    auto* column = new QVBoxLayout(frame);
    column->addWidget(NewMessageOption(app));
    column->addWidget(NewPageOption<QCheckBox>("chkFRNote"_L1, u"Add this &note:"_s));
    column->addWidget(NewNote());
    column->addWidget(NewPageOption<QCheckBox>("chkFRFullName"_L1, u"Show my f&ull name"_s));
    column->addWidget(NewPageOption<QCheckBox>("chkFRAddToUpdates"_L1, u"Add to my friend u&pdates"_s));
    column->addLayout(CategoryRow(app));
    column->addWidget(
        NewText(u"All but the message are kept for request pages that ask for them."_s, u"quiet"_s));
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
    column->addLayout(RunRow(app));
    column->addWidget(CountersFrame());
    column->addWidget(OptionsFrame(app));
    column->addLayout(ToolRow(app));
    column->addStretch();
}

} // namespace qlm
