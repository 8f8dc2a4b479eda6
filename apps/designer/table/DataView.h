#pragma once

#include "model/DataTable.h"
#include "table/SelectedCells.h"

#include <QTableView>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace designer {

class CellDelegate;
struct TableChange;
class TableHeader;
class TableModel;

/// A chart's table that behaves as a spreadsheet does. Changes nothing itself: a wanted change is told by a
/// signal, and whoever owns the table shows the next one.
///
///     connect(&view, &DataView::ChangeWanted, [&](QString name, auto change, QString merge) {
///         editor.ChangeTable(name.toStdString(), 0, change, merge.toStdString());
///         view.Show(editor.Tables()[0]);
///     });
class DataView : public QTableView {
    Q_OBJECT

public:
    explicit DataView(QWidget* parent = nullptr);

    /// Selection and what is being typed stay as far as the cells are the same. The second one takes no copy.
    void Show(const DataTable& table);
    void Show(std::shared_ptr<const DataTable> table);

    /// What the menus offer, for the selected cells; all follow the selection's rows or columns.
    void Cut();
    void Copy();
    /// Does the clipboard have a text?
    static bool CanPaste();
    void Paste();
    void Clear();
    /// One row selected: from the row above it.
    void FillDown();
    void InsertRows(bool isBelow);
    void RemoveRows();
    /// By 1 or -1; moves of a series with the same `merge` are one for undo.
    void MoveRows(int by, const QString& merge = {});
    void InsertColumns(bool isRight);
    void RemoveColumns();
    void MoveColumns(int by, const QString& merge = {});
    void Sort(int column, bool isAscending);
    void EditHeading(int column);

Q_SIGNALS:
    /// `name` is for the undo menu; `merge` as in Editor::ChangeTable: a cell being typed in is one change,
    /// told at each keystroke.
    void ChangeWanted(QString name, std::function<void(designer::DataTable&)> change, QString merge);
    /// The row and column (0: the heads) that the user is at, for the canvas to show the part. Either may be
    /// one beyond the table's end.
    void CurrentCellChanged(std::size_t row, std::size_t column);
    /// Of the selection, or of the cells in it; several changes at once are told once, a moment later.
    void SelectionSummed(designer::SelectionFacts facts);

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    bool edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;
    void scrollContentsBy(int dx, int dy) override;

private:
    void Want(const TableChange& change, const QString& merge = {});
    std::vector<CellRange> SelectedRanges() const;
    /// The selection where it is a rectangle, else its range at the current cell; that cell where nothing is
    /// selected, which may lie beyond the end.
    CellRange SelectedBounds() const;
    void SelectRange(const CellRange& range);
    void SelectRows(const Span& rows);
    void SelectColumns(const Span& columns);
    void MoveRowsTo(const Span& rows, std::size_t before, const QString& merge);
    void MoveColumnsTo(const Span& columns, std::size_t before, const QString& merge);
    void SetUpHeader(TableHeader& header);
    void OpenHeaderMenu(const TableHeader& header, int section, QPoint onScreen);
    bool AnswerCommand(const QKeyEvent& key);
    bool AnswerMove(const QKeyEvent& key);
    void Step(QPoint by, bool isEnter);
    bool CanStepOn(int columns) const;
    void GoTo(QPoint cell, bool isExtending);
    void FitColumns(int first);
    void WidenCurrentColumn();
    void SumUpSoon();

    TableModel* m_model;
    CellDelegate* m_delegate;
    TableHeader* m_columnHeader;
    TableHeader* m_rowHeader;
    std::optional<int> m_tabStart; ///< the column where going on by Tab began, to which Enter returns
    bool m_isStepping = false;
    bool m_isSumDue = false;
    bool m_wasShown = false;
    QString m_heldKey; ///< merges the moves while Alt with an arrow is held down
};

} // namespace designer
