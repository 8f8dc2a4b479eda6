#pragma once

#include "penlode/LogicalFont.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace millichart {

class Dialog;
class DialogView;

enum class CellKind { Text, Number, Color, Line, Choice };

/// One column of a list. A colour's cell holds a Windows RGB value in decimal digits, a line's that, its
/// width in mm and the number of its dash style, apart by blanks; the list shows both as samples.
struct ListColumn {
    std::string_view Title;
    CellKind Kind;
    int Width;                                      ///< in dialog units
    std::string (*NewCell)(int row);                ///< of a row that the user adds; may be null
    std::span<const std::string_view> Choices = {}; ///< of a choice
    /// Edits a cell in a dialog and tells whether it changed; null where it is edited in place.
    bool (*EditInDialog)(DialogView& view, std::string& cell) = nullptr;
};

/// The texts of a row's cells (UTF-8), one a column.
using ListRow = std::vector<std::string>;

enum class MessageButtons { Ok, YesNo };

/// What became of a message box.
enum class Answer { NotShown, Ok, Yes, No };

/// A font, and the colour of texts in it (a Windows RGB value), as the platform's font dialog has them.
struct FontChoice {
    penlode::LogicalFont Font;
    std::uint32_t TextColor = 0;
};

/// A dialog's window as the dialog knows it: a toolkit's real one, or a test's. Controls go by the ids of the
/// dialog's template, texts are UTF-8, colours Windows RGB values. Setting something tells the dialog
/// nothing; what the user does is told to it.
class DialogView {
public:
    virtual ~DialogView() = default;

    /// Of a list, the selected item's.
    virtual std::string Text(int id) const = 0;
    virtual void SetText(int id, std::string_view text) = 0;
    virtual bool IsChecked(int id) const = 0;
    /// Checking a radio button unchecks the others of its group.
    virtual void SetChecked(int id, bool checked) = 0;
    virtual void SetItems(int id, std::span<const std::string_view> items) = 0;
    virtual void SetColumns(int id, std::span<const ListColumn> columns) = 0;
    virtual void SetRows(int id, std::vector<ListRow> rows) = 0;
    /// As the user made them: cells edited, rows added, removed and moved.
    virtual std::vector<ListRow> Rows(int id) const = 0;
    /// The selected item of a list, −1 if there is none; of a list of rows, the current one.
    virtual int Selection(int id) const = 0;
    /// An index that the list has not selects nothing; a row is scrolled into view.
    virtual void Select(int id, int index) = 0;
    virtual std::uint32_t ShownColor(int id) const = 0;
    virtual void ShowColor(int id, std::uint32_t colorRef) = 0;
    virtual void SetEnabled(int id, bool enabled) = 0;
    /// The range of a stepper's own position, which moves by 1 a click, and faster in no time.
    virtual void SetStepRange(int id, int low, int high) = 0;
    /// Brings a hidden page to the front first.
    virtual void Focus(int id) = 0;
    /// Selects an edit's whole text and scrolls it into view.
    virtual void SelectText(int id) = 0;

    virtual Answer ShowMessage(std::string_view text, MessageButtons buttons = MessageButtons::Ok) = 0;
    /// The platform's colour dialog; nothing if it is cancelled.
    virtual std::optional<std::uint32_t> PickColor(std::uint32_t colorRef) = 0;
    /// The platform's font dialog; nothing if it is cancelled.
    virtual std::optional<FontChoice> PickFont(const FontChoice& shown) = 0;
    /// The screen's vertical resolution, by which logical fonts count.
    virtual int PixelsPerInch() const = 0;
    /// Opens another dialog on this one. True after its OK.
    virtual bool Run(Dialog& dialog) = 0;
};

} // namespace millichart
