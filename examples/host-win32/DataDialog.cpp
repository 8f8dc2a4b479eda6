#include "DataDialog.h"

#include "Resource.h"
#include "Texts.h"
#include "editing/win32/ListCtrlEx.h"

#include <memory>

namespace host {
namespace {

using millichart::CellKind;
using millichart::CListCtrlEx;
using millichart::ListColumn;

/// Of the list's columns, in dialog units.
constexpr int kHeadWidth = 80;
constexpr int kWidth = 56;

/// The system's dialog with the list on it.
class DataDialog {
public:
    explicit DataDialog(std::vector<TableCells> tables) : m_tables(std::move(tables)) {}

    bool Show(HWND owner) {
        return DialogBoxParamW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(IDD_DATA), owner, Procedure,
                               reinterpret_cast<LPARAM>(this)) == IDOK;
    }

    std::vector<TableCells> Tables() && { return std::move(m_tables); }

private:
    static INT_PTR CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
        if (message == WM_INITDIALOG) {
            SetWindowLongPtrW(window, DWLP_USER, lParam);
            reinterpret_cast<DataDialog*>(lParam)->Begin(window);
            return FALSE; // the keyboard is where Begin put it
        }
        auto* const dialog = reinterpret_cast<DataDialog*>(GetWindowLongPtrW(window, DWLP_USER));
        if (dialog == nullptr || message != WM_COMMAND) {
            return FALSE;
        }
        return dialog->OnCommand(window, LOWORD(wParam), HIWORD(wParam)) ? TRUE : FALSE;
    }

    void Begin(HWND window) {
        m_list = std::make_unique<CListCtrlEx>(GetDlgItem(window, IDC_CELLS));
        const HWND choice = GetDlgItem(window, IDC_TABLES);
        for (std::size_t i = 0; i < m_tables.size(); ++i) {
            const std::wstring name = L"第 " + std::to_wstring(i + 1) + L" 张表";
            SendMessageW(choice, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(name.c_str()));
        }
        SendMessageW(choice, CB_SETCURSEL, 0, 0);
        ShowWindow(choice, m_tables.size() > 1 ? SW_SHOW : SW_HIDE);
        ShowTable(0);
        SetFocus(m_list->Handle());
    }

    bool OnCommand(HWND window, int id, int what) {
        if (id == IDC_TABLES && what == CBN_SELCHANGE) {
            TakeTable();
            ShowTable(static_cast<std::size_t>(SendDlgItemMessageW(window, IDC_TABLES, CB_GETCURSEL, 0, 0)));
            return true;
        }
        if (id == IDOK) {
            TakeTable();
        }
        if (id == IDOK || id == IDCANCEL) {
            m_list.reset();
            EndDialog(window, id);
            return true;
        }
        return false;
    }

    void ShowTable(std::size_t table) {
        m_shown = table;
        const TableCells& cells = m_tables[table];
        const std::size_t count = cells.front().size();
        std::vector<std::string> titles;
        for (std::size_t i = 0; i < count; ++i) {
            titles.push_back(i == 0 ? "名称" : std::to_string(i));
        }
        std::vector<ListColumn> columns;
        for (std::size_t i = 0; i < count; ++i) {
            columns.push_back({titles[i], CellKind::Text, i == 0 ? kHeadWidth : kWidth, nullptr});
        }
        m_list->SetRows({});
        m_list->SetColumns(columns); // lets go of those before
        m_titles = std::move(titles);
        m_columns = std::move(columns);
        m_list->SetRows(cells);
        m_list->SelectRow(0);
    }

    void TakeTable() {
        m_list->FinishEdit();
        if (!m_list->Rows().empty()) {
            m_tables[m_shown] = m_list->Rows();
        }
    }

    std::vector<TableCells> m_tables;
    std::size_t m_shown = 0;
    std::vector<std::string> m_titles;
    std::vector<ListColumn> m_columns;
    std::unique_ptr<CListCtrlEx> m_list;
};

} // namespace

bool EditCells(HWND owner, std::vector<TableCells>& tables) {
    DataDialog dialog(tables);
    const bool isAccepted = dialog.Show(owner);
    if (isAccepted) {
        tables = std::move(dialog).Tables();
    }
    return isAccepted;
}

} // namespace host
