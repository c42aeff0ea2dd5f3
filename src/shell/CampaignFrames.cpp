// SPDX-License-Identifier: MIT
#include "shell/CampaignFrames.h"

#include "shell/ElidedLabel.h"
#include "shell/FormParts.h"
#include "shell/LowWidget.h"
#include "shell/PictureButtons.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLineEdit>
#include <QListView>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QToolButton>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr int SignsOfALimit = 14;
constexpr int SignsOfMinutes = 8;
constexpr int LeastLinesOfABody = 4;
constexpr int LeastListHeight = 62;

QWidget* NewReading(QLatin1StringView name) {
    ElidedLabel* reading = NewElidedLabel(name, u"reading"_s);
    reading->setProperty("hideWhenEmpty", true);
    return reading;
}

void AddSubject(QVBoxLayout& column, const ContentNames& names) {
    QLineEdit* subject = NewLine(names.subject);
    auto* row = new QHBoxLayout;
    row->addWidget(NewCaptionOf(*subject));
    row->addWidget(subject, 1);
    column.addLayout(row);
    if (!names.subjectReads.isEmpty())
        column.addWidget(NewReading(names.subjectReads));
}
} // namespace

QLabel* NewNameNote() {
    return NewText(u"*Note: Anywhere that you write &NAME& will be replaced by the target's name"_s,
                   u"quiet"_s);
}

QGroupBox* NewLimitFrame(QLatin1StringView limit, QLatin1StringView period) {
    QLineEdit* number = NewNumber(limit, SignsOfALimit);
    auto* choice = Named(new QComboBox, period);
    return NewFrame(u"How many"_s,
                    {NewRow({NewCaptionOf(*number), number}), NewRow({NewCaptionOf(*choice), choice})});
}

QLayout* NewCounters(const CounterNames& names) {
    auto* grid = new QGridLayout;
    grid->addWidget(NewLabel(names.sent, u"counter"_s), 0, 0);
    grid->addWidget(NewLabel(names.today, u"counter"_s), 0, 1);
    if (!names.failed.isEmpty())
        grid->addWidget(NewLabel(names.failed), 1, 0);
    if (!names.skipped.isEmpty())
        grid->addWidget(NewLabel(names.skipped), 1, 1);
    grid->setColumnStretch(0, 3);
    grid->setColumnStretch(1, 2);
    return grid;
}

QHBoxLayout* NewRunRow(const Commands& commands, QLatin1StringView start, QLatin1StringView stop) {
    auto* row = new QHBoxLayout;
    AddPictureButtons(*row, commands, Caption::Beside, {start});
    if (!stop.isEmpty())
        AddPictureButtons(*row, commands, Caption::Beside, {stop});
    for (int i = 0; i < row->count(); ++i)
        row->itemAt(i)->widget()->setProperty("look", u"main"_s);
    row->addStretch();
    return row;
}

QVBoxLayout* NewRunBand(const Commands& commands, QLatin1StringView start, QLatin1StringView stop,
                        const CounterNames& counters) {
    auto* band = new QVBoxLayout;
    band->addLayout(NewRunRow(commands, start, stop));
    band->addLayout(NewCounters(counters));
    return band;
}

QGroupBox* NewTimingFrame(const TimingNames& names) {
    QLineEdit* amount = NewNumber(names.amount, SignsOfALimit);
    QLineEdit* from = NewNumber(names.from, SignsOfMinutes);
    QLineEdit* to = NewNumber(names.to, SignsOfMinutes);
    // In a row: below each other they would not fit into the lowest window.
    QHBoxLayout* boxes = NewRow({});
    for (const QLatin1StringView box : names.boxes)
        boxes->insertWidget(boxes->count() - 1, Named(new QCheckBox, box));
    return NewFrame(u"When to post"_s,
                    {NewRow({NewCaptionOf(*amount), amount, NewText(u"times"_s)}),
                     NewRow({NewCaptionOf(*from), from, NewCaptionOf(*to), to, NewText(u"minutes"_s)}),
                     boxes});
}

QVBoxLayout* NewTimedRunBand(const Commands& commands, const TimedRunNames& names) {
    auto* band = new QVBoxLayout;
    band->addLayout(NewRunRow(commands, names.start, names.stop));
    auto* counts = new QHBoxLayout;
    counts->addWidget(NewLabel(names.sent, u"counter"_s), 1);
    counts->addWidget(NewLabel(names.busy, u"badge"_s));
    band->addLayout(counts);
    band->addWidget(NewLabel(names.due));
    return band;
}

QVBoxLayout* NewReadText(QLatin1StringView text, int leastLines, QLatin1StringView reads) {
    auto* column = new QVBoxLayout;
    column->setSpacing(2);
    column->addWidget(NewGrowingLines(text, leastLines), 1);
    if (!reads.isEmpty())
        column->addWidget(NewReading(reads));
    return column;
}

QLayout* NewChoiceRow(const Commands& commands, QLatin1StringView choice,
                      std::initializer_list<QLatin1StringView> tools) {
    auto* row = new QHBoxLayout;
    row->setSpacing(2);
    row->addWidget(Named(new QRadioButton, choice), 1);
    AddPictureButtons(*row, commands, Caption::None, tools);
    for (int i = 1; i < row->count(); ++i)
        if (auto* button = qobject_cast<QToolButton*>(row->itemAt(i)->widget())) {
            button->setProperty("look", u"small"_s);
            button->setIconSize({16, 16});
        }
    return row;
}

QGroupBox* NewContentFrame(const Commands& commands, const ContentNames& names) {
    auto* frame = new QGroupBox(u"What to send"_s);
    auto* column = new QVBoxLayout(frame);
    column->addLayout(NewChoiceRow(commands, names.single, names.singleTools));
    if (!names.subject.isEmpty())
        AddSubject(*column, names);
    column->addLayout(NewReadText(names.body, LeastLinesOfABody, names.bodyReads), 2);
    if (!names.bodyCount.isEmpty())
        column->addWidget(NewLabel(names.bodyCount, u"quiet"_s));
    if (!names.bodyReads.isEmpty())
        column->addWidget(NewNameNote());
    column->addLayout(NewChoiceRow(commands, names.fromList, names.listTools));
    auto* list = Named(new LowWidget<QListView>, names.list);
    list->setMinimumHeight(LeastListHeight);
    column->addWidget(list, 1);
    return frame;
}

} // namespace qlm
