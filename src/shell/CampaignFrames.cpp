// SPDX-License-Identifier: MIT
#include "shell/CampaignFrames.h"

#include "shell/FormParts.h"
#include "shell/PictureButtons.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLineEdit>
#include <QListView>
#include <QPlainTextEdit>
#include <QRadioButton>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr int SignsOfALimit = 14;
constexpr int LinesOfABody = 5;
constexpr int LeastListHeight = 70;
} // namespace

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
    AddPictureButtons(*row, commands, Caption::Beside, {start, stop});
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

QGroupBox* NewContentFrame(const ContentNames& names) {
    auto* frame = new QGroupBox(u"What to send"_s);
    auto* column = new QVBoxLayout(frame);
    column->addWidget(Named(new QRadioButton, names.single));
    if (!names.subject.isEmpty()) {
        QLineEdit* subject = NewLine(names.subject);
        auto* row = new QHBoxLayout;
        row->addWidget(NewCaptionOf(*subject));
        row->addWidget(subject, 1);
        column->addLayout(row);
    }
    column->addWidget(NewLines(names.body, LinesOfABody));
    column->addWidget(Named(new QRadioButton, names.fromList));
    auto* list = Named(new QListView, names.list);
    list->setMinimumHeight(LeastListHeight);
    column->addWidget(list);
    return frame;
}

} // namespace qlm
