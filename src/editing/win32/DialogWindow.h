#pragma once

#include "editing/Dialog.h"
#include "editing/win32/ColorControl.h"
#include "editing/win32/ListCtrlEx.h"
#include "editing/win32/NativeDialog.h"
#include "editing/win32/PositionPicker.h"

#include <map>
#include <memory>
#include <vector>

namespace millichart {

/// A dialog's window, made of the system's controls.
class DialogWindow : public DialogView, public NativeDialog {
public:
    explicit DialogWindow(Dialog& dialog) : m_dialog(dialog) {}

    /// True after OK.
    bool Show(HWND owner);

    /// Takes what is still being edited in a list's cell.
    void FinishEdits();

    std::string Text(int id) const override;
    void SetText(int id, std::string_view text) override;
    bool IsChecked(int id) const override;
    void SetChecked(int id, bool checked) override;
    void SetItems(int id, std::span<const std::string_view> items) override;
    void SetColumns(int id, std::span<const ListColumn> columns) override;
    void SetRows(int id, std::vector<ListRow> rows) override;
    std::vector<ListRow> Rows(int id) const override;
    int Selection(int id) const override;
    void Select(int id, int index) override;
    std::uint32_t ShownColor(int id) const override;
    void ShowColor(int id, std::uint32_t colorRef) override;
    void SetEnabled(int id, bool enabled) override;
    void SetStepRange(int id, int low, int high) override;
    void Focus(int id) override;
    void SelectText(int id) override;
    Answer ShowMessage(std::string_view text, MessageButtons buttons) override;
    std::optional<std::uint32_t> PickColor(std::uint32_t colorRef) override;
    std::optional<FontChoice> PickFont(const FontChoice& shown) override;
    int PixelsPerInch() const override;
    bool Run(Dialog& dialog) override;

protected:
    bool OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

    virtual void OnOK();

    /// The user changed something; at most once a frame.
    virtual void OnChanged() { m_dialog.OnChanged(*this); }

    Dialog& m_dialog;

private:
    void OnInitDialog();
    void Furnish(std::size_t index);
    void FurnishStepper(HWND stepper, std::size_t index);
    RECT PixelsOf(const Control& control) const;
    void PlaceClosedList(HWND list, const Control& control);
    void OnCommand(int id, int code);
    void OnStep(const NMUPDOWN& step);
    bool EditCell(bool (*edit)(DialogView&, std::string&), std::string& cell);
    void TellSoon();

    HWND Root() const { return GetAncestor(Handle(), GA_ROOT); }

    std::vector<std::unique_ptr<ReflectedControl>> m_reflected;
    std::map<int, ColorControl*> m_colors;
    std::map<int, CListCtrlEx*> m_lists;
    std::map<int, PositionPicker*> m_pickers;
    bool m_isSetting = false; ///< the program changes an edit, not the user
};

} // namespace millichart
