#include "editing/win32/DialogWindow.h"

#include "editing/AccessibleName.h"
#include "editing/win32/CentredEdit.h"
#include "editing/win32/ColorButton.h"
#include "editing/win32/ColorPane.h"
#include "editing/win32/LineStyleComboBox.h"
#include "editing/win32/SystemDialogs.h"
#include "editing/win32/TemplateBytes.h"
#include "editing/win32/WindowText.h"
#include "penlode/GraphicsEngine.h"
#include "penlode/text/StringUtil.h"

#include <algorithm>

namespace millichart {
namespace {

using penlode::CStringUtil;

constexpr UINT_PTR kChangeTimer = 1;
constexpr UINT kFrame = 16; // ms

/// Is a notice of a control the user's click, check or pick?
bool IsClick(ControlKind kind, int code) {
    switch (kind) {
    case ControlKind::CheckBox:
    case ControlKind::RadioButton:
    case ControlKind::Button:
    case ControlKind::DefaultButton:
    case ControlKind::ColorButton:
        return code == BN_CLICKED;
    case ControlKind::DropDownList:
    case ControlKind::LineStyles:
        return code == CBN_SELCHANGE;
    case ControlKind::PositionPicker:
        return code == STN_CLICKED;
    default:
        return false;
    }
}

/// In its dialog.
RECT PlaceOf(HWND control) {
    RECT place;
    GetWindowRect(control, &place);
    MapWindowPoints(nullptr, GetParent(control), reinterpret_cast<POINT*>(&place), 2);
    return place;
}

LONG WidthOf(HWND control) {
    const RECT place = PlaceOf(control);
    return place.right - place.left;
}

void Widen(HWND control, LONG shift, LONG wider) {
    const RECT place = PlaceOf(control);
    SetWindowPos(control, nullptr, place.left + shift, place.top, place.right - place.left + wider,
                 place.bottom - place.top, SWP_NOZORDER);
}

} // namespace

bool DialogWindow::Show(HWND owner) {
    const DialogTemplate& what = m_dialog.Template();
    return ShowModal(TemplateBytes(DS_MODALFRAME | DS_CENTER | WS_POPUP | WS_CAPTION | WS_SYSMENU, 0,
                                   what.Title, {what.Width, what.Height}, ItemsOf(what.Controls)),
                     owner);
}

bool DialogWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_INITDIALOG:
        OnInitDialog();
        return true; // the system gives the focus to the first control
    case WM_COMMAND:
        OnCommand(LOWORD(wParam), HIWORD(wParam));
        return true;
    case WM_NOTIFY:
        if (reinterpret_cast<const NMHDR*>(lParam)->code == UDN_DELTAPOS) {
            OnStep(*reinterpret_cast<const NMUPDOWN*>(lParam));
        }
        return false;
    case WM_TIMER:
        if (wParam == kChangeTimer) {
            KillTimer(Handle(), kChangeTimer);
            OnChanged();
        }
        return true;
    default:
        return false;
    }
}

void DialogWindow::OnInitDialog() {
    for (std::size_t i = 0; i < m_dialog.Template().Controls.size(); ++i) {
        Furnish(i);
    }
    m_dialog.OnInitDialog(*this);
    KillTimer(Handle(), kChangeTimer);
}

/// Gives a control what the template of a dialog cannot.
void DialogWindow::Furnish(std::size_t index) {
    const std::span<const Control> controls = m_dialog.Template().Controls;
    const Control& control = controls[index];
    const HWND window = Item(control.Id);
    // What shows no text of its own is named for screen readers.
    const auto keep = [&]<class Class>(std::unique_ptr<Class> made, auto& kept) {
        kept[control.Id] = made.get();
        m_reflected.push_back(std::move(made));
        SetWindowTextW(window, CStringUtil::Utf8ToWideString(AccessibleName(controls, index)).c_str());
    };
    switch (control.Kind) {
    case ControlKind::ColorButton:
        return keep(std::make_unique<marrowkit::CColorButton>(window), m_colors);
    case ControlKind::ColorPane:
        return keep(std::make_unique<CColorPane>(window), m_colors);
    case ControlKind::PositionPicker:
        return keep(std::make_unique<PositionPicker>(window), m_pickers);
    case ControlKind::EditableList: {
        auto list = std::make_unique<CListCtrlEx>(window);
        list->OnChanged = [this] { TellSoon(); };
        list->EditInDialog = [this](auto edit, std::string& cell) { return EditCell(edit, cell); };
        return keep(std::move(list), m_lists);
    }
    case ControlKind::Edit:
    case ControlKind::ReadOnlyEdit:
        return CentreText(window);
    case ControlKind::LineStyles: {
        auto styles = std::make_unique<CLineStyleComboBox>(window);
        styles->Initialize();
        m_reflected.push_back(std::move(styles));
        return PlaceClosedList(window, control);
    }
    case ControlKind::DropDownList:
        return PlaceClosedList(window, control);
    case ControlKind::Stepper:
        return FurnishStepper(window, index);
    default:
        return;
    }
}

/// The system puts a stepper into its edit's right end, as wide as it likes, and takes that from the edit:
/// which gets the place of both first.
void DialogWindow::FurnishStepper(HWND stepper, std::size_t index) {
    const std::span<const Control> controls = m_dialog.Template().Controls;
    const HWND edit = Item(controls[index - 1].Id);
    const LONG width = PixelsOf(controls[index]).right;
    Widen(edit, 0, width);
    SendMessageW(stepper, UDM_SETBUDDY, reinterpret_cast<WPARAM>(edit), 0);
    const LONG wider = width - WidthOf(stepper);
    Widen(edit, 0, -wider);
    Widen(stepper, -wider, wider);
    UDACCEL byOne{1, 1};
    SendMessageW(stepper, UDM_SETACCEL, 1, reinterpret_cast<LPARAM>(&byOne));
    SetWindowTextW(stepper, CStringUtil::Utf8ToWideString(AccessibleName(controls, index)).c_str());
}

/// The size that the template has for it, from 0.
RECT DialogWindow::PixelsOf(const Control& control) const {
    RECT size{0, 0, control.Width, control.Height};
    MapDialogRect(Handle(), &size);
    return size;
}

/// The system makes a closed list as high as its font asks for. A list of pictures fills its place; one of
/// texts, which stand at its top, goes to the middle.
void DialogWindow::PlaceClosedList(HWND list, const Control& control) {
    constexpr WPARAM kClosed = static_cast<WPARAM>(-1);
    const RECT made = PlaceOf(list);
    const LONG higher = PixelsOf(control).bottom - (made.bottom - made.top);
    if (control.Kind == ControlKind::LineStyles) {
        const LRESULT height = SendMessageW(list, CB_GETITEMHEIGHT, kClosed, 0);
        SendMessageW(list, CB_SETITEMHEIGHT, kClosed, height + higher);
    } else {
        SetWindowPos(list, nullptr, made.left, made.top + higher / 2, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    }
}

void DialogWindow::OnCommand(int id, int code) {
    if (id == kOkButton) {
        return OnOK();
    }
    if (id == kCancelButton) {
        return Close(false);
    }
    const auto controls = m_dialog.Template().Controls;
    const auto control =
        std::find_if(controls.begin(), controls.end(), [id](const Control& c) { return c.Id == id; });
    if (control == controls.end()) {
        return;
    }
    if (IsClick(control->Kind, code)) {
        m_dialog.OnClicked(*this, id);
        TellSoon();
    } else if (control->Kind == ControlKind::Edit && code == EN_CHANGE && !m_isSetting) {
        TellSoon();
    }
}

/// Called by a list, which lets nothing through that throws.
bool DialogWindow::EditCell(bool (*edit)(DialogView&, std::string&), std::string& cell) {
    try {
        return edit(*this, cell);
    } catch (...) {
        Close(false);
        return false;
    }
}

void DialogWindow::FinishEdits() {
    for (const auto& [id, list] : m_lists) {
        list->FinishEdit();
    }
}

void DialogWindow::OnOK() {
    FinishEdits();
    if (m_dialog.OnOK(*this)) {
        KillTimer(Handle(), kChangeTimer);
        Close(true);
    }
}

void DialogWindow::OnStep(const NMUPDOWN& step) {
    m_dialog.OnStep(*this, static_cast<int>(step.hdr.idFrom), step.iDelta);
    TellSoon();
}

/// One timer gathers what changes within a frame.
void DialogWindow::TellSoon() {
    SetTimer(Handle(), kChangeTimer, kFrame, nullptr);
}

std::string DialogWindow::Text(int id) const {
    return CStringUtil::WideToUtf8(WindowText(Item(id)));
}

void DialogWindow::SetText(int id, std::string_view text) {
    m_isSetting = true;
    SetWindowTextW(Item(id), CStringUtil::Utf8ToWideString(text).c_str());
    m_isSetting = false;
}

bool DialogWindow::IsChecked(int id) const {
    return IsDlgButtonChecked(Handle(), id) == BST_CHECKED;
}

void DialogWindow::SetChecked(int id, bool checked) {
    const auto controls = m_dialog.Template().Controls;
    const auto at =
        std::find_if(controls.begin(), controls.end(), [id](const Control& c) { return c.Id == id; });
    if (checked && at != controls.end() && at->Kind == ControlKind::RadioButton) {
        const auto isOther = [](const Control& c) { return c.Kind != ControlKind::RadioButton; };
        const auto last = std::find_if(at, controls.end(), isOther);
        const auto first = std::find_if(std::make_reverse_iterator(at), controls.rend(), isOther).base();
        CheckRadioButton(Handle(), first->Id, (last - 1)->Id, id);
    }
    CheckDlgButton(Handle(), id, checked ? BST_CHECKED : BST_UNCHECKED);
}

void DialogWindow::SetItems(int id, std::span<const std::string_view> items) {
    SendMessageW(Item(id), CB_RESETCONTENT, 0, 0);
    for (const std::string_view item : items) {
        SendMessageW(Item(id), CB_ADDSTRING, 0,
                     reinterpret_cast<LPARAM>(CStringUtil::Utf8ToWideString(item).c_str()));
    }
}

void DialogWindow::SetColumns(int id, std::span<const ListColumn> columns) {
    m_lists.at(id)->SetColumns(columns);
}

void DialogWindow::SetRows(int id, std::vector<ListRow> rows) {
    m_lists.at(id)->SetRows(std::move(rows));
}

std::vector<ListRow> DialogWindow::Rows(int id) const {
    return m_lists.at(id)->Rows();
}

int DialogWindow::Selection(int id) const {
    if (const auto list = m_lists.find(id); list != m_lists.end()) {
        return list->second->Row();
    }
    const auto picker = m_pickers.find(id);
    return picker != m_pickers.end() ? picker->second->Selection()
                                     : static_cast<int>(SendMessageW(Item(id), CB_GETCURSEL, 0, 0));
}

void DialogWindow::Select(int id, int index) {
    if (const auto picker = m_pickers.find(id); picker != m_pickers.end()) {
        picker->second->Select(index);
    } else if (const auto list = m_lists.find(id); list != m_lists.end()) {
        list->second->SelectRow(index);
    } else {
        SendMessageW(Item(id), CB_SETCURSEL, static_cast<WPARAM>(index), 0);
    }
}

std::uint32_t DialogWindow::ShownColor(int id) const {
    return m_colors.at(id)->Color();
}

void DialogWindow::ShowColor(int id, std::uint32_t colorRef) {
    m_colors.at(id)->SetColor(colorRef);
}

void DialogWindow::SetEnabled(int id, bool enabled) {
    if (!enabled && GetFocus() == Item(id)) { // else no key would reach the dialog
        SendMessageW(Root(), WM_NEXTDLGCTL, 0, FALSE);
    }
    EnableWindow(Item(id), enabled ? TRUE : FALSE);
}

void DialogWindow::SetStepRange(int id, int low, int high) {
    SendMessageW(Item(id), UDM_SETRANGE32, static_cast<WPARAM>(low), high);
}

void DialogWindow::Focus(int id) {
    SendMessageW(Root(), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(Item(id)), TRUE);
}

void DialogWindow::SelectText(int id) {
    SendMessageW(Item(id), EM_SETSEL, 0, -1);
    SendMessageW(Item(id), EM_SCROLLCARET, 0, 0);
}

Answer DialogWindow::ShowMessage(std::string_view text, MessageButtons buttons) {
    return millichart::ShowMessage(Root(), text, buttons);
}

std::optional<std::uint32_t> DialogWindow::PickColor(std::uint32_t colorRef) {
    return millichart::PickColor(Root(), colorRef);
}

std::optional<FontChoice> DialogWindow::PickFont(const FontChoice& shown) {
    return millichart::PickFont(Root(), shown);
}

int DialogWindow::PixelsPerInch() const {
    return penlode::CGraphicsUtil::PixelsPerInch();
}

bool DialogWindow::Run(Dialog& dialog) {
    return DialogWindow(dialog).Show(Root());
}

bool RunModal(Dialog& dialog) {
    try {
        return DialogWindow(dialog).Show(GetActiveWindow());
    } catch (...) { // no memory
        return false;
    }
}

} // namespace millichart
