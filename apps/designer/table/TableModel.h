#pragma once

#include "model/DataTable.h"

#include <QAbstractTableModel>
#include <memory>

namespace designer {

/// A table for Qt's views: its cells with an empty row and an empty column beyond the end, where typing makes
/// new ones. Cannot be written to.
class TableModel : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Role : int {
        OddRole = Qt::UserRole, ///< is a text shown where a number or a time should stand?
        UnusedRole,             ///< does this kind of chart not show its column?
        HeadRole                ///< is it in the column of the heads?
    };

    explicit TableModel(QObject* parent = nullptr);

    /// Never a reset: rows and columns come or go at the end, and whatever points into the table stays.
    void Show(std::shared_ptr<const DataTable> table);

    const DataTable& Table() const { return *m_table; }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    /// For editing, a heading as it is; else one without a text has something in its place.
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

private:
    void SetRows(int count);
    void SetColumns(int count);
    void TellHeadings(const DataTable& before);
    bool IsUnused(std::size_t column) const;
    QString WhatIsOdd(const QModelIndex& index) const;
    QVariant ColumnHeader(int column, int role) const;
    QVariant RowHeader(int row, int role) const;

    std::shared_ptr<const DataTable> m_table = std::make_shared<DataTable>();
    int m_rows = 1;
    int m_columns = 2;
};

} // namespace designer
