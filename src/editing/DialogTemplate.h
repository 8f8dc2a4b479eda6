#pragma once

#include <span>
#include <string_view>

namespace millichart {

enum class ControlKind {
    Label,
    GroupBox,
    Edit,
    ReadOnlyEdit,
    CheckBox,
    RadioButton, ///< neighbours in the table are one group
    Button,
    DefaultButton, ///< what Enter presses
    DropDownList,
    LineStyles,     ///< a CLineStyleComboBox
    ColorButton,    ///< shows a colour and lets the user pick another
    ColorPane,      ///< shows a colour
    EditableList,   ///< a CListCtrlEx
    PositionPicker, ///< a small picture of a legend's twelve places, numbered as LegendPosition
    Stepper,        ///< a pair of arrows that steps the edit before it
};

inline constexpr int kOkButton = 1;
inline constexpr int kCancelButton = 2;
inline constexpr int kNoId = -1; ///< of what nobody speaks to: labels and groups

/// One control: its place is in dialog units, a quarter of the dialog font's mean width and an eighth of its
/// height. "&" in a text (UTF-8) stands before its mnemonic; a label's is that of the control behind it, and
/// is its name for screen readers.
struct Control {
    int Id;
    ControlKind Kind;
    std::string_view Text;
    int X;
    int Y;
    int Width;
    int Height; ///< a list's is that of the closed list
};

/// What a dialog or a page shows, in the order of the Tab key. A constant table, shown by any toolkit.
struct DialogTemplate {
    int Id;
    std::string_view Title;
    int Width;
    int Height;
    std::span<const Control> Controls;
};

} // namespace millichart
