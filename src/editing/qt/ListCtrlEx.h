#pragma once

#include "editing/DialogView.h"
#include "foundation/Export.h"

#include <QTableView>
#include <functional>
#include <memory>

namespace millichart {

/// A list with cells to edit: texts and numbers in place, choices from a list, colours and lines in a dialog,
/// the latter by what
/// EditInDialog does, all by double click or F2. The user adds rows (Insert), removes (Delete), moves (Alt
/// and an arrow), copies and pastes them, by key or by the menu of the right button.
class MILLICHART_API CListCtrlEx : public QTableView {
public:
    explicit CListCtrlEx(QWidget* parent = nullptr);
    ~CListCtrlEx() override;

    /// The columns must outlive the list.
    void SetColumns(std::span<const ListColumn> columns);
    void SetRows(std::vector<ListRow> rows);
    const std::vector<ListRow>& Rows() const;

    /// Makes a row the current one, selected and in view; none for an index that is no row's.
    void SelectRow(int row);

    /// Told after each change that the user made.
    std::function<void()> OnChanged;

    /// Opens the dialog of a colour's or a line's cell: `edit` is the column's.
    std::function<bool(bool (*edit)(DialogView&, std::string&), std::string& cell)> EditInDialog;

    bool edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) override;

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    class Model;
    class Delegate;

    void AddActions();
    void AddAction(const char* text, const QKeySequence& keys, void (CListCtrlEx::*act)());
    void Add();
    void Remove();
    void MoveUp();
    void MoveDown();
    void Move(int step);
    void Copy();
    void Paste();
    void TellChanged();
    void GoTo(std::size_t row, int column);
    /// The first of the selected rows, and how many there are.
    std::pair<std::size_t, std::size_t> SelectedRows() const;

    std::unique_ptr<Model> m_model;
};

} // namespace millichart
