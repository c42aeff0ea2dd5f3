// SPDX-License-Identifier: MIT
#include "shell/frmRunReport.h"

#include "campaigns/ReportDialog.h"
#include "campaigns/SendRuns.h"
#include "core/App.h"
#include "shell/FormParts.h"
#include "shell/ReportTable.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QScreen>
#include <QSortFilterProxyModel>
#include <QTableView>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr QSize StartingSize(760, 460);
}

frmRunReport::frmRunReport(const FormContext& context, const QString& name, const QString& title)
    : Form(context, name, title), m_rows(new ReportTable(this)) {
    ReportDialog& report = m_app.Get<SendRuns>().ReportWindow();
    report.onRows = [this, &report] { m_rows->SetRows(report.Rows()); };
    report.onRows();
}

void frmRunReport::Build(Form& form) {
    auto* runs = Named(new QComboBox, "cboRuns"_L1);
    runs->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    auto* choice = new QHBoxLayout;
    choice->addWidget(NewCaptionOf(*runs));
    choice->addWidget(runs, 1);

    auto* column = new QVBoxLayout(&form);
    column->setSpacing(10);
    column->addLayout(choice);
    column->addWidget(NewWrappedLabel("lblSummary"_L1));
    column->addWidget(NewWrappedLabel("lblProblem"_L1, u"notice"_s, true));
    column->addWidget(static_cast<frmRunReport&>(form).NewTable(), 1);
    column->addWidget(NewButtonRow({"cmdClose"_L1, "cmdSaveCSV"_L1, "cmdTakeOffLog"_L1}));
    form.resize(StartingSize.boundedTo(form.screen()->availableSize()));
}

frmRunReport::~frmRunReport() {
    m_app.Get<SendRuns>().ReportWindow().onRows = {};
}

QWidget* frmRunReport::NewTable() {
    auto* sorted = new QSortFilterProxyModel(this);
    sorted->setSortRole(ReportTable::SortRole);
    sorted->setSourceModel(m_rows);
    auto* table = Named(new QTableView, "grdTargets"_L1);
    table->setModel(sorted);
    table->setSortingEnabled(true);
    // As they were worked on, until the user clicks a heading.
    table->horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
    table->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    table->horizontalHeader()->setResizeContentsPrecision(100);
    table->horizontalHeader()->setStretchLastSection(true);
    table->horizontalHeader()->setHighlightSections(false);
    table->verticalHeader()->hide();
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setAlternatingRowColors(true);
    table->setShowGrid(false);
    table->setWordWrap(false);
    // Tab leaves the table; the arrow keys move in it.
    table->setTabKeyNavigation(false);
    return table;
}

} // namespace qlm
