// SPDX-License-Identifier: MIT
#pragma once

#include "core/Controls.h"

#include <QAbstractListModel>
#include <functional>

namespace qlm {

// The rows of one list control as a Qt model, without a copy: lists of tens of thousands of rows are read in
// place. The binder tells it of each change after it has happened.
class ListRowsModel : public QAbstractListModel {
public:
    ListRowsModel(const Controls& controls, QLatin1StringView name, QObject* parent);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    Qt::DropActions supportedDropActions() const override { return Qt::MoveAction; }
    bool moveRows(const QModelIndex& sourceParent, int sourceRow, int count, const QModelIndex& parent,
                  int destination) override;

    void Apply(Controls::Change change, int row);

    // What the user does: a row's box, and a row that is dragged to the place of another. Unset: rows stay.
    std::function<void(int row, bool ticked)> onTick;
    std::function<void(int place)> onMove;

private:
    bool HasBox(int row) const;

    const Controls& m_controls;
    QLatin1StringView m_name;
    int m_rows;
};

} // namespace qlm
