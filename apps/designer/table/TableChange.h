#pragma once

#include "model/DataTable.h"

#include <QCoreApplication>
#include <QString>
#include <functional>
#include <vector>

namespace designer {

/// So many rows, or columns, from `First`.
struct Span {
    std::size_t First = 0;
    std::size_t Count = 1;

    std::size_t End() const { return First + Count; }

    friend bool operator==(const Span&, const Span&) = default;
};

/// A change of a table under the name that it has in the undo menu.
struct TableChange {
    Q_DECLARE_TR_FUNCTIONS(designer::TableChange)

public:
    QString Name;
    std::function<void(DataTable&)> Apply;

    static TableChange TypeText(std::size_t row, std::size_t column, const QString& text);
    static TableChange TypeHeading(std::size_t column, const QString& text);
    static TableChange Clear(std::vector<CellRange> ranges);
    static TableChange Cut(std::vector<CellRange> ranges);
    /// The first row's cells to all others.
    static TableChange FillDown(const CellRange& range);
    static TableChange InsertRows(std::size_t before, std::size_t count);
    static TableChange InsertColumns(std::size_t before, std::size_t count);
    /// The spans are in ascending order and do not touch.
    static TableChange RemoveRows(std::vector<Span> rows);
    static TableChange RemoveColumns(std::vector<Span> columns);
    static TableChange MoveRows(Span rows, std::size_t before);
    static TableChange MoveColumns(Span columns, std::size_t before);
    static TableChange Sort(std::size_t column, bool isAscending);
};

/// Of a series of changes that shall be one for undo: another at each call, in all of the program.
QString NewMergeKey();

} // namespace designer
