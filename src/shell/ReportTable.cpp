// SPDX-License-Identifier: MIT
#include "shell/ReportTable.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

struct Column {
    const char16_t* caption;
    QVariant (*value)(const ReportRow&, bool forSorting);
};

constexpr Column Columns[] = {
    {u"Time", [](const ReportRow& row, bool) { return QVariant(row.time); }},
    {u"Profile ID",
     [](const ReportRow& row, bool forSorting) {
         return forSorting ? QVariant(row.id.toLongLong()) : QVariant(row.id);
     }},
    {u"Result", [](const ReportRow& row, bool) { return QVariant(ResultText(row.result)); }},
    {u"Page class",
     [](const ReportRow& row, bool forSorting) {
         return row.pageClass == 0 && !forSorting ? QVariant() : QVariant(row.pageClass);
     }},
    {u"Why", [](const ReportRow& row, bool) { return QVariant(row.why); }},
};

} // namespace

int ReportTable::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int ReportTable::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(std::size(Columns));
}

QVariant ReportTable::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || (role != Qt::DisplayRole && role != SortRole && role != Qt::ToolTipRole))
        return {};
    return Columns[index.column()].value(m_rows[index.row()], role == SortRole);
}

QVariant ReportTable::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    return QString::fromUtf16(Columns[section].caption);
}

void ReportTable::SetRows(const QList<ReportRow>& rows) {
    const bool goesOn = !m_rows.isEmpty() && rows.size() >= m_rows.size() &&
                        rows.constFirst().id == m_rows.constFirst().id &&
                        rows.constFirst().time == m_rows.constFirst().time;
    if (!goesOn) {
        beginResetModel();
        m_rows = rows;
        endResetModel();
        return;
    }
    const int before = rowCount();
    if (rows.size() > before) {
        beginInsertRows({}, before, static_cast<int>(rows.size()) - 1);
        m_rows = rows;
        endInsertRows();
    } else {
        m_rows = rows;
    }
    Q_EMIT dataChanged(index(0, 0), index(before - 1, columnCount() - 1));
}

} // namespace qlm
