// SPDX-License-Identifier: MIT
#include "shell/frmTimeDelay.h"

#include "shell/FormParts.h"

#include <QBoxLayout>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLineEdit>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

struct Bound {
    QLatin1StringView minutes;
    QLatin1StringView seconds;
    const char16_t* caption;
    const char16_t* word;
};

constexpr Bound Bounds[] = {
    {"txtMinutes"_L1, "txtSeconds"_L1, u"&From", u"From"},
    {"txtMinutes2"_L1, "txtSeconds2"_L1, u"&To", u"To"},
};

QLineEdit* NewNumber(QLatin1StringView name, const QString& accessibleName) {
    QLineEdit* line = NewLine(name, accessibleName);
    line->setAlignment(Qt::AlignRight);
    line->setMaximumWidth(line->fontMetrics().averageCharWidth() * 10);
    return line;
}

void AddBound(QGridLayout& grid, int row, const Bound& bound) {
    const QString word = QString::fromUtf16(bound.word);
    QLineEdit* minutes = NewNumber(bound.minutes, word + u", minutes"_s);
    auto* caption = new QLabel(QString::fromUtf16(bound.caption));
    caption->setBuddy(minutes);
    grid.addWidget(caption, row, 0);
    grid.addWidget(minutes, row, 1);
    grid.addWidget(new QLabel(u"minutes"_s), row, 2);
    grid.addWidget(NewNumber(bound.seconds, word + u", seconds"_s), row, 3);
    grid.addWidget(new QLabel(u"seconds"_s), row, 4);
}

} // namespace

frmTimeDelay::frmTimeDelay(const FormContext& context) : Form(context, u"frmTimeDelay"_s, u"Time Delay"_s) {
    QLabel* purpose = NewLabel("Label1"_L1);
    purpose->setWordWrap(true);
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(8);
    for (int row = 0; row < 2; ++row)
        AddBound(*grid, row, Bounds[row]);
    grid->setColumnStretch(5, 1);

    auto* column = new QVBoxLayout(this);
    column->setSpacing(12);
    column->addWidget(purpose);
    column->addLayout(grid);
    QLabel* problem = NewLabel("lblProblem"_L1, u"notice"_s);
    problem->setProperty("hideWhenEmpty", true);
    column->addWidget(problem);
    column->addWidget(
        NewText(u"Each pause has a random length between the two. Two zeros mean no pause."_s, u"quiet"_s));
    column->addStretch();
    column->addWidget(
        NewButtonRow({NewButton("cmdOK"_L1, u"&OK"_s), NewButton("cmdCancel"_L1, u"Cancel"_s)}));
    resize(420, 230);
}

void frmTimeDelay::Bound() {
    findChild<QLineEdit*>(QString(Bounds[0].minutes))->selectAll();
}

} // namespace qlm
