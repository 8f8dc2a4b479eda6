#pragma once

#include "editing/ListRows.h"
#include "editing/win32/ReflectedControl.h"
#include "foundation/Export.h"

#include <functional>
#include <memory>

namespace millichart {

class CellEditor;

/// A list with cells to edit, in place of a list view that asks for its texts (LVS_REPORT | LVS_OWNERDATA):
/// texts and numbers in place, choices from a list, colours and lines in a dialog, all by double click or F2.
/// The left and right arrow keys move between the cells of the current row. The user adds rows (Insert),
/// removes (Delete), moves (Alt and an arrow), copies and pastes them, by key or by the menu of the right
/// button. Column widths count in the units of the dialog that the list is on.
class MILLICHART_API CListCtrlEx : public ReflectedControl {
public:
    explicit CListCtrlEx(HWND listView);
    ~CListCtrlEx() override;

    /// The columns must outlive the list.
    void SetColumns(std::span<const ListColumn> columns);
    void SetRows(std::vector<ListRow> rows);

    const std::vector<ListRow>& Rows() const { return m_rows.Rows(); }

    /// Makes a row the current one, selected alone and in view; none for an index that is no row's.
    void SelectRow(int row);

    /// The current row, −1 if there is none.
    int Row() const;

    /// Takes what is being edited in place, as Enter does.
    void FinishEdit();

    /// Told after each change that the user made.
    std::function<void()> OnChanged;

    /// Opens the dialog of a colour's or a line's cell: `edit` is the column's.
    std::function<bool(bool (*edit)(DialogView&, std::string&), std::string& cell)> EditInDialog;

private:
    struct Command;
    static const Command kCommands[];

    std::optional<LRESULT> OnReflected(UINT message, WPARAM wParam, LPARAM lParam) override;
    std::optional<LRESULT> OnMessage(UINT message, WPARAM wParam, LPARAM lParam);
    void Tell(LVITEMW& item) const;
    LRESULT OnDraw(NMLVCUSTOMDRAW& draw) const;
    void DrawSample(const NMLVCUSTOMDRAW& draw) const;
    bool OnKey(WPARAM key);
    void ShowMenu(POINT place);
    void OnButtonDown(POINT place);

    void Add();
    void Remove();
    void MoveUp();
    void MoveDown();
    void Move(int step);
    void Copy();
    void Paste();
    void Left();
    void Right();
    void OpenSoon();
    void Open();

    void SetCell(std::size_t row, std::size_t column, const std::string& text);
    void ShowRows();
    void GoTo(std::size_t row, std::size_t column);
    void GoToColumn(std::size_t column);
    void TellChanged();

    bool IsCurrent(const NMLVCUSTOMDRAW& draw) const;
    int PixelsOf(const ListColumn& column) const;

    ListRows m_rows;
    std::size_t m_column = 0; ///< the current row's current cell's
    std::unique_ptr<CellEditor> m_editor;
    MessageFilter m_own;
};

} // namespace millichart
