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

QVariant ListRowsModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || role != Qt::DisplayRole)
        return {};
    return m_controls.Items(m_name).value(index.row());
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
    }
}

} // namespace qlm
