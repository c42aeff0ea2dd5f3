// SPDX-License-Identifier: MIT
#include "shell/frmTimeDelay.h"

#include "shell/FormParts.h"
#include "shell/Forms.h"

#include <QBoxLayout>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLineEdit>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

struct DelayBound {
    QLatin1StringView minutes;
    QLatin1StringView seconds;
};

constexpr DelayBound Bounds[] = {
    {"txtMinutes"_L1, "txtSeconds"_L1},
    {"txtMinutes2"_L1, "txtSeconds2"_L1},
};

QLineEdit* NewFigure(QLatin1StringView name) {
    QLineEdit* line = NewNumber(name, 10);
    line->setAlignment(Qt::AlignRight);
    return line;
}

void AddBound(QGridLayout& grid, int row, const DelayBound& bound) {
    QLineEdit* minutes = NewFigure(bound.minutes);
    grid.addWidget(NewCaptionOf(*minutes), row, 0);
    grid.addWidget(minutes, row, 1);
    grid.addWidget(new QLabel(u"minutes"_s), row, 2);
    grid.addWidget(NewFigure(bound.seconds), row, 3);
    grid.addWidget(new QLabel(u"seconds"_s), row, 4);
}

} // namespace

void BuildTimeDelay(Form& form) {
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(8);
    for (int row = 0; row < 2; ++row)
        AddBound(*grid, row, Bounds[row]);
    grid->setColumnStretch(5, 1);

    auto* column = new QVBoxLayout(&form);
    column->setSpacing(12);
    column->addWidget(NewWrappedLabel("Label1"_L1));
    column->addLayout(grid);
    QLabel* problem = NewLabel("lblProblem"_L1, u"notice"_s);
    problem->setProperty("hideWhenEmpty", true);
    column->addWidget(problem);
    column->addWidget(
        NewText(u"Each pause has a random length between the two. Two zeros mean no pause."_s, u"quiet"_s));
    column->addStretch();
    column->addWidget(NewButtonRow({"cmdOK"_L1, "cmdCancel"_L1}));
    form.resize(420, 230);
}

void frmTimeDelay::Bound() {
    findChild<QLineEdit*>(QString(Bounds[0].minutes))->selectAll();
}

} // namespace qlm
