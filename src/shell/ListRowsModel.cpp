// SPDX-License-Identifier: MIT
#include "shell/ListRowsModel.h"

namespace qlm {

ListRowsModel::ListRowsModel(const Controls& controls, QLatin1StringView name, QObject* parent)
    : QAbstractListModel(parent),
      m_controls(controls),
      m_name(name),
      m_rows(static_cast<int>(controls.Items(name).size())) {}

int ListRowsModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : m_rows;
}

bool ListRowsModel::HasBox(int row) const {
    return row < static_cast<int>(m_controls[m_name].rowTicks.size());
}

QVariant ListRowsModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid())
        return {};
    if (role == Qt::CheckStateRole && HasBox(index.row()))
        return m_controls.RowTicked(m_name, index.row()) ? Qt::Checked : Qt::Unchecked;
    const QString text = m_controls.Items(m_name).value(index.row());
    if (role == Qt::AccessibleTextRole)
        return text.trimmed();
    return role == Qt::DisplayRole ? text : QVariant();
}

bool ListRowsModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (role != Qt::CheckStateRole || !onTick || !HasBox(index.row()))
        return false;
    onTick(index.row(), value.toInt() == Qt::Checked);
    return true;
}

// What is dropped lands between rows, on none.
Qt::ItemFlags ListRowsModel::flags(const QModelIndex& index) const {
    if (!index.isValid())
        return onMove ? Qt::ItemIsDropEnabled : Qt::NoItemFlags;
    Qt::ItemFlags flags = QAbstractListModel::flags(index);
    flags.setFlag(Qt::ItemIsUserCheckable, HasBox(index.row()));
    flags.setFlag(Qt::ItemIsDragEnabled, onMove && HasBox(index.row()));
    return flags;
}

// The destination is the row in front of which it is dropped.
bool ListRowsModel::moveRows(const QModelIndex&, int sourceRow, int count, const QModelIndex&,
                             int destination) {
    if (!onMove || count != 1)
        return false;
    onMove(destination > sourceRow ? destination - 1 : destination);
    return true;
}

void ListRowsModel::Apply(Controls::Change change, int row) {
    if (change == Controls::Change::RowAdded) {
        beginInsertRows({}, row, row);
        ++m_rows;
        endInsertRows();
    } else if (change == Controls::Change::RowRemoved) {
        beginRemoveRows({}, row, row);
        --m_rows;
        endRemoveRows();
    } else if (change == Controls::Change::Items) {
        beginResetModel();
        m_rows = static_cast<int>(m_controls.Items(m_name).size());
        endResetModel();
    } else if (change == Controls::Change::RowTicked) {
        Q_EMIT dataChanged(index(row), index(row), {Qt::CheckStateRole});
    }
}

} // namespace qlm
