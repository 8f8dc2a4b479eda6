#include "table/TableModel.h"

#include <QGuiApplication>
#include <QPalette>
#include <algorithm>
#include <limits>
#include <utility>

namespace designer {
namespace {

constexpr std::size_t kMaxSections = std::numeric_limits<int>::max() / 64; // their pixels are an int as well

/// With the empty one at the end.
int Sections(std::size_t count) {
    return static_cast<int>(std::min(count, kMaxSections)) + 1;
}

std::size_t At(int section) {
    return static_cast<std::size_t>(section);
}

} // namespace

TableModel::TableModel(QObject* parent) : QAbstractTableModel(parent) {}

/// What lies beyond a table's end reads as empty, so that the next one may be in place before all is told.
void TableModel::Show(std::shared_ptr<const DataTable> table) {
    const std::shared_ptr<const DataTable> before = std::exchange(m_table, std::move(table));
    SetRows(Sections(m_table->RowCount()));
    SetColumns(Sections(m_table->ColumnCount()));
    Q_EMIT dataChanged(index(0, 0), index(m_rows - 1, m_columns - 1));
    TellHeadings(*before);
}

void TableModel::SetRows(int count) {
    const int before = m_rows;
    if (count > before) {
        beginInsertRows({}, before, count - 1);
        m_rows = count;
        endInsertRows();
        Q_EMIT headerDataChanged(Qt::Vertical, before - 1, before - 1);
    } else if (count < before) {
        beginRemoveRows({}, count, before - 1);
        m_rows = count;
        endRemoveRows();
        Q_EMIT headerDataChanged(Qt::Vertical, count - 1, count - 1);
    }
}

void TableModel::SetColumns(int count) {
    if (count > m_columns) {
        beginInsertColumns({}, m_columns, count - 1);
        m_columns = count;
        endInsertColumns();
    } else if (count < m_columns) {
        beginRemoveColumns({}, count, m_columns - 1);
        m_columns = count;
        endRemoveColumns();
    }
}

void TableModel::TellHeadings(const DataTable& before) {
    bool isSame = before.ColumnCount() == m_table->ColumnCount() &&
                  before.UsedColumns() == m_table->UsedColumns() && before.Heads() == m_table->Heads();
    for (std::size_t column = 0; isSame && column < before.ColumnCount(); ++column) {
        isSame = before.Heading(column) == m_table->Heading(column);
    }
    if (!isSame) {
        Q_EMIT headerDataChanged(Qt::Horizontal, 0, m_columns - 1);
    }
}

int TableModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : m_rows;
}

int TableModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : m_columns;
}

bool TableModel::IsUnused(std::size_t column) const {
    return column > m_table->UsedColumns();
}

QString TableModel::WhatIsOdd(const QModelIndex& index) const {
    if (IsUnused(At(index.column()))) {
        return tr("这种图表不显示此列，数据会保留");
    }
    const bool isOdd = m_table->IsOdd(At(index.row()), At(index.column()));
    return !isOdd ? QString() : index.column() == 0 ? tr("不是时间") : tr("不是数");
}

QVariant TableModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    const std::size_t row = At(index.row());
    const std::size_t column = At(index.column());
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return QString::fromStdString(m_table->Text(row, column));
    case Qt::TextAlignmentRole: {
        const bool isNumber = column > 0 ? !m_table->IsOdd(row, column) : m_table->Heads() == RowHeads::Times;
        return QVariant::fromValue((isNumber ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    }
    case Qt::ToolTipRole:
    case Qt::AccessibleDescriptionRole:
        return WhatIsOdd(index);
    case OddRole:
        return !IsUnused(column) && m_table->IsOdd(row, column);
    case UnusedRole:
        return IsUnused(column);
    case HeadRole:
        return column == 0;
    default:
        return {};
    }
}

QVariant TableModel::ColumnHeader(int column, int role) const {
    const QString heading = QString::fromStdString(m_table->Heading(At(column)));
    const bool isNext = At(column) >= m_table->ColumnCount();
    switch (role) {
    case Qt::EditRole:
        return heading;
    case Qt::DisplayRole:
        return !heading.isEmpty() ? heading : isNext ? tr("＋") : tr("无标题");
    case Qt::AccessibleTextRole:
        return !heading.isEmpty() ? heading : isNext ? tr("新的一列") : tr("第 %1 列").arg(column + 1);
    case Qt::ForegroundRole:
        return heading.isEmpty() || IsUnused(At(column))
                   ? QVariant(QGuiApplication::palette().brush(QPalette::PlaceholderText))
                   : QVariant();
    case Qt::ToolTipRole:
        return IsUnused(At(column)) ? tr("这种图表不显示此列，数据会保留") : tr("双击可修改标题");
    default:
        return {};
    }
}

QVariant TableModel::RowHeader(int row, int role) const {
    const bool isNext = At(row) >= m_table->RowCount();
    switch (role) {
    case Qt::DisplayRole:
        return isNext ? tr("＋") : QString::number(row + 1);
    case Qt::AccessibleTextRole:
        return isNext ? tr("新的一行") : QString::number(row + 1);
    case Qt::ForegroundRole:
        return isNext ? QVariant(QGuiApplication::palette().brush(QPalette::PlaceholderText)) : QVariant();
    case Qt::TextAlignmentRole:
        return QVariant::fromValue(Qt::AlignCenter);
    default:
        return {};
    }
}

QVariant TableModel::headerData(int section, Qt::Orientation orientation, int role) const {
    return orientation == Qt::Horizontal ? ColumnHeader(section, role) : RowHeader(section, role);
}

Qt::ItemFlags TableModel::flags(const QModelIndex& index) const {
    return QAbstractTableModel::flags(index) | Qt::ItemIsEditable;
}

} // namespace designer
