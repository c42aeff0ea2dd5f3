// SPDX-License-Identifier: MIT
#pragma once

#include "core/Controls.h"

#include <QAbstractListModel>

namespace qlm {

// The rows of one list control as a Qt model, without a copy: lists of tens of thousands of rows are read in
// place. The binder tells it of each change after it has happened.
class ListRowsModel : public QAbstractListModel {
public:
    ListRowsModel(const Controls& controls, QLatin1StringView name, QObject* parent);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

    void Apply(Controls::Change change, int row);

private:
    const Controls& m_controls;
    QLatin1StringView m_name;
    int m_rows;
};

} // namespace qlm
