#include "editing/win32/TemplateBytes.h"

#include "penlode/text/StringUtil.h"

namespace millichart {
namespace {

using penlode::CStringUtil;

/// Room for the open list, in dialog units; the system takes no more of it than the items need.
constexpr int kListHeight = 130;

struct WindowKind {
    const wchar_t* Class;
    DWORD Style;
    DWORD ExStyle = 0;
};

WindowKind KindOf(ControlKind kind) {
    switch (kind) {
    case ControlKind::Label:
        return {WC_STATICW, SS_LEFT};
    case ControlKind::GroupBox:
        return {WC_BUTTONW, BS_GROUPBOX};
    case ControlKind::Edit:
        return {WC_EDITW, ES_AUTOHSCROLL | WS_TABSTOP, WS_EX_CLIENTEDGE};
    case ControlKind::ReadOnlyEdit:
        return {WC_EDITW, ES_AUTOHSCROLL | ES_READONLY | WS_TABSTOP, WS_EX_CLIENTEDGE};
    case ControlKind::CheckBox:
        return {WC_BUTTONW, BS_AUTOCHECKBOX | WS_TABSTOP};
    case ControlKind::RadioButton:
        return {WC_BUTTONW, BS_AUTORADIOBUTTON};
    case ControlKind::Button:
        return {WC_BUTTONW, BS_PUSHBUTTON | WS_TABSTOP};
    case ControlKind::DefaultButton:
        return {WC_BUTTONW, BS_DEFPUSHBUTTON | WS_TABSTOP};
    case ControlKind::DropDownList:
        return {WC_COMBOBOXW, CBS_DROPDOWNLIST | WS_VSCROLL | WS_TABSTOP};
    case ControlKind::LineStyles:
        return {WC_COMBOBOXW,
                CBS_DROPDOWNLIST | CBS_OWNERDRAWFIXED | CBS_HASSTRINGS | WS_VSCROLL | WS_TABSTOP};
    case ControlKind::ColorButton:
        return {WC_BUTTONW, BS_OWNERDRAW | WS_TABSTOP};
    case ControlKind::ColorPane:
        return {WC_STATICW, SS_OWNERDRAW};
    case ControlKind::EditableList:
        return {WC_LISTVIEWW, LVS_REPORT | LVS_OWNERDATA | LVS_SHOWSELALWAYS | LVS_NOSORTHEADER | WS_TABSTOP,
                WS_EX_CLIENTEDGE};
    case ControlKind::PositionPicker:
        return {WC_STATICW, SS_OWNERDRAW | SS_NOTIFY | WS_TABSTOP};
    case ControlKind::Stepper:
        return {UPDOWN_CLASSW, UDS_ALIGNRIGHT | UDS_ARROWKEYS};
    }
    return {WC_STATICW, 0};
}

bool IsList(ControlKind kind) {
    return kind == ControlKind::DropDownList || kind == ControlKind::LineStyles;
}

class Writer {
public:
    template <class... Numbers> void Words(Numbers... words) {
        (m_words.push_back(static_cast<WORD>(words)), ...);
    }

    template <class... Numbers> void DoubleWords(Numbers... numbers) {
        (Words(static_cast<DWORD>(numbers) & 0xFFFFU, static_cast<DWORD>(numbers) >> 16U), ...);
    }

    void Text(std::wstring_view text) {
        m_words.insert(m_words.end(), text.begin(), text.end());
        Words(0);
    }

    void Align() {
        if (m_words.size() % 2 != 0) {
            Words(0);
        }
    }

    std::vector<WORD> Take() { return std::move(m_words); }

private:
    std::vector<WORD> m_words;
};

void Write(Writer& writer, const WindowItem& item) {
    writer.Align();
    writer.DoubleWords(0, item.ExStyle, item.Style);
    writer.Words(item.X, item.Y, item.Width, item.Height);
    writer.DoubleWords(item.Id);
    writer.Text(item.Class);
    writer.Text(item.Text);
    writer.Words(0);
}

} // namespace

WindowItem ItemOf(const Control& control) {
    const WindowKind kind = KindOf(control.Kind);
    return {control.Id,
            kind.Class,
            kind.Style | WS_CHILD | WS_VISIBLE,
            kind.ExStyle,
            CStringUtil::Utf8ToWideString(control.Text),
            control.X,
            control.Y,
            control.Width,
            control.Height + (IsList(control.Kind) ? kListHeight : 0)};
}

/// The arrow keys stay in a group, which is a control or neighbouring radio buttons; Tab goes to its first.
std::vector<WindowItem> ItemsOf(std::span<const Control> controls) {
    std::vector<WindowItem> items;
    bool isInGroup = false;
    for (const Control& control : controls) {
        const bool isRadio = control.Kind == ControlKind::RadioButton;
        items.push_back(ItemOf(control));
        if (!isRadio || !isInGroup) {
            items.back().Style |= WS_GROUP | (isRadio ? WS_TABSTOP : 0);
        }
        isInGroup = isRadio;
    }
    return items;
}

std::vector<WORD> TemplateBytes(DWORD style, DWORD exStyle, std::string_view title, SIZE size,
                                std::span<const WindowItem> items) {
    Writer writer;
    writer.Words(1, 0xFFFF);
    writer.DoubleWords(0, exStyle, style | DS_SETFONT);
    writer.Words(items.size(), 0, 0, size.cx, size.cy, 0, 0);
    writer.Text(CStringUtil::Utf8ToWideString(title));
    writer.Words(9, FW_NORMAL, MAKEWORD(FALSE, DEFAULT_CHARSET));
    writer.Text(L"MS Shell Dlg");
    for (const WindowItem& item : items) {
        Write(writer, item);
    }
    return writer.Take();
}

} // namespace millichart
