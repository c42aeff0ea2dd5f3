// SPDX-License-Identifier: MIT
#pragma once

#include "steps/ReportRows.h"

#include <QAbstractTableModel>

namespace qlm {

// The targets of a reported run as a Qt model. A run that goes on is shown in place, so that what the user
// has scrolled to or selected stays.
class ReportTable : public QAbstractTableModel {
public:
    using QAbstractTableModel::QAbstractTableModel;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    // The sort role gives IDs and classes as numbers.
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    void SetRows(const QList<ReportRow>& rows);

    static constexpr int SortRole = Qt::UserRole;
    static constexpr int WhyColumn = 4;

private:
    QList<ReportRow> m_rows;
};

} // namespace qlm
