#include "table/DataView.h"
#include "table/TableChange.h"
#include "table/TableHeader.h"
#include "table/TableModel.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <algorithm>

namespace designer {
namespace {

/// As far as the table reaches; empty spans have a count of 0.
Span Within(const Span& span, std::size_t first, std::size_t end) {
    const std::size_t begin = std::clamp(span.First, first, std::max(first, end));
    return {begin, std::max(std::min(span.End(), end), begin) - begin};
}

/// Where the span would begin after a step, told as the place before which it comes to stand.
std::optional<std::size_t> Target(const Span& span, int by, std::size_t first, std::size_t end) {
    if (span.Count == 0 || (by < 0 ? span.First <= first : span.End() >= end)) {
        return std::nullopt;
    }
    return by < 0 ? span.First - 1 : span.End() + 1;
}

Span Moved(const Span& span, std::size_t before) {
    return {before > span.First ? before - span.Count : before, span.Count};
}

} // namespace

void DataView::Want(const TableChange& change, const QString& merge) {
    Q_EMIT ChangeWanted(change.Name, change.Apply, merge);
}

std::vector<CellRange> DataView::SelectedRanges() const {
    return RangesIn(selectionModel()->selection(), m_model->Table());
}

/// Of several ranges that are no rectangle together, nothing between them is touched.
CellRange DataView::SelectedBounds() const {
    const std::vector<CellRange> ranges = SelectedRanges();
    const CellRange current{static_cast<std::size_t>(std::max(currentIndex().row(), 0)),
                            static_cast<std::size_t>(std::max(currentIndex().column(), 0)), 1, 1};
    if (ranges.empty()) {
        return current;
    }
    const CellRange bounds = BoundsOf(ranges);
    std::size_t cells = 0;
    for (const CellRange& range : ranges) {
        cells += range.Rows * range.Columns;
    }
    if (cells == bounds.Rows * bounds.Columns) {
        return bounds;
    }
    const auto found = std::find_if(ranges.begin(), ranges.end(), [&current](const CellRange& range) {
        return current.Row - range.Row < range.Rows && current.Column - range.Column < range.Columns;
    });
    return found != ranges.end() ? *found : ranges.back();
}

void DataView::SelectRange(const CellRange& range) {
    const auto at = [this](std::size_t row, std::size_t column) {
        return model()->index(static_cast<int>(row), static_cast<int>(column));
    };
    const QModelIndex first = at(range.Row, range.Column);
    const QModelIndex last = at(range.Row + range.Rows - 1, range.Column + range.Columns - 1);
    if (!first.isValid() || !last.isValid()) {
        return; // nobody made the change
    }
    selectionModel()->setCurrentIndex(first, QItemSelectionModel::NoUpdate);
    selectionModel()->select(QItemSelection(first, last), QItemSelectionModel::ClearAndSelect);
}

void DataView::SelectRows(const Span& rows) {
    SelectRange({rows.First, 0, rows.Count, static_cast<std::size_t>(model()->columnCount())});
}

void DataView::SelectColumns(const Span& columns) {
    SelectRange({0, columns.First, static_cast<std::size_t>(model()->rowCount()), columns.Count});
}

void DataView::Copy() {
    if (!SelectedRanges().empty()) {
        QGuiApplication::clipboard()->setText(
            QString::fromStdString(m_model->Table().Copy(SelectedBounds())));
    }
}

void DataView::Cut() {
    if (!SelectedRanges().empty()) {
        Copy();
        Want(TableChange::Cut({SelectedBounds()}));
    }
}

bool DataView::CanPaste() {
    const QMimeData* data = QGuiApplication::clipboard()->mimeData();
    return data != nullptr && data->hasText();
}

void DataView::Paste() {
    if (!CanPaste()) {
        return;
    }
    const auto filled = std::make_shared<std::optional<CellRange>>();
    const auto paste = [filled, at = SelectedBounds(),
                        texts = QGuiApplication::clipboard()->text().toStdString()](DataTable& table) {
        *filled = table.Paste(at, texts);
    };
    Q_EMIT ChangeWanted(tr("粘贴"), paste, {});
    if (*filled) {
        SelectRange(**filled);
    }
}

void DataView::Clear() {
    std::vector<CellRange> ranges = SelectedRanges();
    if (!ranges.empty()) {
        Want(TableChange::Clear(std::move(ranges)));
    }
}

void DataView::FillDown() {
    CellRange range = SelectedBounds();
    if (range.Rows == 1 && range.Row > 0) {
        --range.Row;
        ++range.Rows;
    }
    if (range.Rows > 1) {
        Want(TableChange::FillDown(range));
    }
}

void DataView::InsertRows(bool isBelow) {
    const CellRange range = SelectedBounds();
    const Span rows{isBelow ? range.Row + range.Rows : range.Row, range.Rows};
    Want(TableChange::InsertRows(std::min(rows.First, m_model->Table().RowCount()), rows.Count));
    SelectRows(rows);
}

void DataView::RemoveRows() {
    const std::vector<Span> rows = RowsOf(SelectedRanges());
    if (!rows.empty()) {
        Want(TableChange::RemoveRows(rows));
    }
}

void DataView::MoveRowsTo(const Span& rows, std::size_t before, const QString& merge) {
    const std::size_t end = m_model->Table().RowCount();
    const Span moved = Within(rows, 0, end);
    if (moved.Count > 0 && (before < moved.First || before > moved.End()) && before <= end) {
        Want(TableChange::MoveRows(moved, before), merge);
        SelectRows(Moved(moved, before));
    }
}

void DataView::MoveRows(int by, const QString& merge) {
    const CellRange range = SelectedBounds();
    const Span rows{range.Row, range.Rows};
    if (const auto before = Target(rows, by, 0, m_model->Table().RowCount())) {
        MoveRowsTo(rows, *before, merge);
    }
}

void DataView::InsertColumns(bool isRight) {
    const CellRange range = SelectedBounds();
    const Span columns{std::max<std::size_t>(isRight ? range.Column + range.Columns : range.Column, 1),
                       range.Columns};
    Want(TableChange::InsertColumns(std::min(columns.First, m_model->Table().ColumnCount()), columns.Count));
    SelectColumns(columns);
}

void DataView::RemoveColumns() {
    std::vector<Span> columns;
    for (const Span& span : ColumnsOf(SelectedRanges())) {
        const Span removed = Within(span, 1, m_model->Table().ColumnCount());
        if (removed.Count > 0) {
            columns.push_back(removed);
        }
    }
    if (!columns.empty()) {
        Want(TableChange::RemoveColumns(columns));
    }
}

void DataView::MoveColumnsTo(const Span& columns, std::size_t before, const QString& merge) {
    const std::size_t end = m_model->Table().ColumnCount();
    const Span moved = Within(columns, 1, end);
    if (moved.Count > 0 && (before < moved.First || before > moved.End()) && before <= end) {
        Want(TableChange::MoveColumns(moved, before), merge);
        SelectColumns(Moved(moved, before));
    }
}

void DataView::MoveColumns(int by, const QString& merge) {
    const CellRange range = SelectedBounds();
    const Span columns = Within({range.Column, range.Columns}, 1, m_model->Table().ColumnCount());
    if (const auto before = Target(columns, by, 1, m_model->Table().ColumnCount())) {
        MoveColumnsTo(columns, *before, merge);
    }
}

void DataView::Sort(int column, bool isAscending) {
    if (column >= 0 && static_cast<std::size_t>(column) < m_model->Table().ColumnCount()) {
        Want(TableChange::Sort(static_cast<std::size_t>(column), isAscending));
    }
}

} // namespace designer
