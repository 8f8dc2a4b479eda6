#include "table/TableChange.h"

#include <algorithm>
#include <atomic>
#include <utility>

namespace designer {
namespace {

void ClearAll(DataTable& table, const std::vector<CellRange>& ranges) {
    for (const CellRange& range : ranges) {
        table.Clear(range);
    }
}

} // namespace

TableChange TableChange::TypeText(std::size_t row, std::size_t column, const QString& text) {
    return {tr("输入数据"),
            [=, utf8 = text.toStdString()](DataTable& table) { table.SetText(row, column, utf8); }};
}

TableChange TableChange::TypeHeading(std::size_t column, const QString& text) {
    return {tr("输入标题"),
            [=, utf8 = text.toStdString()](DataTable& table) { table.SetHeading(column, utf8); }};
}

TableChange TableChange::Clear(std::vector<CellRange> ranges) {
    return {tr("清除"), [ranges = std::move(ranges)](DataTable& table) { ClearAll(table, ranges); }};
}

TableChange TableChange::Cut(std::vector<CellRange> ranges) {
    return {tr("剪切"), [ranges = std::move(ranges)](DataTable& table) { ClearAll(table, ranges); }};
}

TableChange TableChange::FillDown(const CellRange& range) {
    return {tr("向下填充"), [range](DataTable& table) {
                for (std::size_t column = range.Column; column < range.Column + range.Columns; ++column) {
                    const std::string text = table.Text(range.Row, column);
                    for (std::size_t row = range.Row + 1; row < range.Row + range.Rows; ++row) {
                        table.SetText(row, column, text);
                    }
                }
            }};
}

TableChange TableChange::InsertRows(std::size_t before, std::size_t count) {
    return {tr("插入行"), [=](DataTable& table) { table.InsertRows(before, count); }};
}

TableChange TableChange::InsertColumns(std::size_t before, std::size_t count) {
    return {tr("插入列"), [=](DataTable& table) { table.InsertColumns(before, count); }};
}

TableChange TableChange::RemoveRows(std::vector<Span> rows) {
    return {tr("删除行"), [rows = std::move(rows)](DataTable& table) {
                std::for_each(rows.rbegin(), rows.rend(),
                              [&](const Span& span) { table.RemoveRows(span.First, span.Count); });
            }};
}

TableChange TableChange::RemoveColumns(std::vector<Span> columns) {
    return {tr("删除列"), [columns = std::move(columns)](DataTable& table) {
                std::for_each(columns.rbegin(), columns.rend(),
                              [&](const Span& span) { table.RemoveColumns(span.First, span.Count); });
            }};
}

TableChange TableChange::MoveRows(Span rows, std::size_t before) {
    return {tr("移动行"), [=](DataTable& table) { table.MoveRows(rows.First, rows.Count, before); }};
}

TableChange TableChange::MoveColumns(Span columns, std::size_t before) {
    return {tr("移动列"), [=](DataTable& table) { table.MoveColumns(columns.First, columns.Count, before); }};
}

TableChange TableChange::Sort(std::size_t column, bool isAscending) {
    return {isAscending ? tr("升序排列") : tr("降序排列"),
            [=](DataTable& table) { table.Sort(column, isAscending); }};
}

QString NewMergeKey() {
    static std::atomic<quint64> last = 0;
    return QStringLiteral("table-%1").arg(++last);
}

} // namespace designer
