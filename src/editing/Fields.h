#pragma once

#include "editing/CellTexts.h"
#include "editing/DialogTemplate.h"
#include "editing/DialogView.h"
#include "editing/NestedDialogs.h"
#include "editing/NumberInput.h"
#include "editing/Refusal.h"
#include "penlode/text/StringUtil.h"

#include <array>
#include <limits>
#include <string>
#include <variant>
#include <vector>

/// Which control shows which field of a record: a page is a table of these and what is special to it. Each
/// kind of field is shown, clicked and read; reading it may refuse, and has told the user then.
namespace millichart {

/// A check box for a flag, and the controls that are enabled while it is checked.
template <class Record> struct FlagField {
    int CheckBox;
    std::int32_t Record::*Flag;
    std::array<int, 2> Enables{kNoId, kNoId};
    bool IsSetByOneAlone = false; ///< any number but 1 counts as 0

    bool IsSet(const Record& record) const { return IsSetByOneAlone ? record.*Flag == 1 : record.*Flag != 0; }
};

/// An edit for a narrow text.
template <class Record> struct TextField {
    int Edit;
    std::string Record::*Text;
};

/// An edit for a whole number.
template <class Record> struct IntegerField {
    int Edit;
    std::int32_t Record::*Number;
    std::int32_t Least = std::numeric_limits<std::int32_t>::min();
    std::string_view Message = {}; ///< for a number below `Least`
};

/// An edit for a number.
template <class Record> struct NumberField {
    int Edit;
    float Record::*Number;
    double Least = std::numeric_limits<double>::lowest();
    double Most = std::numeric_limits<double>::max();
    std::string_view Message = {};                ///< for a number outside these two
    std::string (*TextOf)(float) = &ShortestText; ///< what the edit shows
};

/// A group of radio buttons for the values from 0 on. Another value checks none, and stays.
template <class Record> struct ChoiceField {
    std::int32_t Record::*Value;
    std::array<int, 4> Buttons{kNoId, kNoId, kNoId, kNoId};
};

/// A button that picks a colour, at once opaque, and a pane that shows it.
template <class Record> struct ColorField {
    int Button;
    int Pane;
    penlode::Color Record::*Color;
};

/// Buttons that open the dialog of what they edit.
template <class Record> struct PenField {
    int Button;
    penlode::Owned<penlode::Pen> Record::*Pen;
};

template <class Record> struct TextPropertyField {
    int Button;
    TextProperty Record::*Property;
};

/// A font whose texts have no colour of their own.
template <class Record> struct FontField {
    int Button;
    penlode::Owned<penlode::Font> Record::*Font;
};

/// A list of names and their colours, a row each, in two columns.
template <class Record> struct ComponentsField {
    int List;
    std::vector<std::string> Record::*Names;
    std::vector<penlode::Color> Record::*Colors;
};

template <class Record>
using Field = std::variant<FlagField<Record>, TextField<Record>, IntegerField<Record>, NumberField<Record>,
                           ChoiceField<Record>, ColorField<Record>, PenField<Record>,
                           TextPropertyField<Record>, FontField<Record>, ComponentsField<Record>>;

template <class Record> void Enable(DialogView& view, const FlagField<Record>& field) {
    for (const int id : field.Enables) {
        if (id != kNoId) {
            view.SetEnabled(id, view.IsChecked(field.CheckBox));
        }
    }
}

// Showing.

template <class Record> void Show(DialogView& view, const FlagField<Record>& field, const Record& record) {
    view.SetChecked(field.CheckBox, field.IsSet(record));
    Enable(view, field);
}

template <class Record> void Show(DialogView& view, const TextField<Record>& field, const Record& record) {
    view.SetText(field.Edit, penlode::CStringUtil::AnsiToUtf8(record.*field.Text));
}

template <class Record> void Show(DialogView& view, const IntegerField<Record>& field, const Record& record) {
    view.SetText(field.Edit, std::to_string(record.*field.Number));
}

template <class Record> void Show(DialogView& view, const NumberField<Record>& field, const Record& record) {
    view.SetText(field.Edit, field.TextOf(record.*field.Number));
}

template <class Record> void Show(DialogView& view, const ChoiceField<Record>& field, const Record& record) {
    for (std::size_t i = 0; i < field.Buttons.size(); ++i) {
        if (field.Buttons[i] != kNoId) {
            view.SetChecked(field.Buttons[i], static_cast<std::int64_t>(i) == record.*field.Value);
        }
    }
}

template <class Record> void Show(DialogView& view, const ColorField<Record>& field, const Record& record) {
    view.ShowColor(field.Pane, ToColorRef(record.*field.Color));
}

/// A button shows nothing.
template <class AnyField, class Record> void Show(DialogView&, const AnyField&, const Record&) {}

template <class Record>
void Show(DialogView& view, const ComponentsField<Record>& field, const Record& record) {
    ShowComponents(view, field.List, record.*field.Names, record.*field.Colors);
}

// Clicking control `id`, if it is the field's.

template <class AnyField, class Record> void Click(DialogView&, int, const AnyField&, Record&) {}

template <class Record> void Click(DialogView& view, int id, const FlagField<Record>& field, Record&) {
    if (id == field.CheckBox) {
        Enable(view, field);
    }
}

template <class Record>
void Click(DialogView& view, int id, const ColorField<Record>& field, Record& record) {
    if (id != field.Button) {
        return;
    }
    if (const auto picked = view.PickColor(ToColorRef(record.*field.Color))) {
        record.*field.Color = penlode::FromColorRef(*picked);
        view.ShowColor(field.Pane, *picked);
    }
}

template <class Record> void Click(DialogView& view, int id, const PenField<Record>& field, Record& record) {
    if (id == field.Button) {
        EditPenOn(view, record.*field.Pen);
    }
}

template <class Record>
void Click(DialogView& view, int id, const TextPropertyField<Record>& field, Record& record) {
    if (id == field.Button) {
        EditTextOn(view, record.*field.Property);
    }
}

template <class Record> void Click(DialogView& view, int id, const FontField<Record>& field, Record& record) {
    if (id == field.Button) {
        penlode::Color noColor;
        PickFontOn(view, record.*field.Font, noColor);
    }
}

// Reading.

/// A number that counts the same stays.
template <class Record> bool Read(DialogView& view, const FlagField<Record>& field, Record& record) {
    const bool isChecked = view.IsChecked(field.CheckBox);
    if (isChecked != field.IsSet(record)) {
        record.*field.Flag = isChecked ? 1 : 0;
    }
    return true;
}

template <class Record> bool Read(DialogView& view, const TextField<Record>& field, Record& record) {
    record.*field.Text = TypedText(view.Text(field.Edit), record.*field.Text);
    return true;
}

template <class Record> bool Read(DialogView& view, const IntegerField<Record>& field, Record& record) {
    record.*field.Number = ReadInteger(view.Text(field.Edit));
    return record.*field.Number >= field.Least || Refuse(view, field.Message, field.Edit);
}

template <class Record> bool Read(DialogView& view, const NumberField<Record>& field, Record& record) {
    record.*field.Number = TypedFloat(view.Text(field.Edit));
    const auto number = static_cast<double>(record.*field.Number);
    return (number >= field.Least && number <= field.Most) || Refuse(view, field.Message, field.Edit);
}

template <class Record> bool Read(DialogView& view, const ChoiceField<Record>& field, Record& record) {
    for (std::size_t i = 0; i < field.Buttons.size(); ++i) {
        if (field.Buttons[i] != kNoId && view.IsChecked(field.Buttons[i])) {
            record.*field.Value = static_cast<std::int32_t>(i);
        }
    }
    return true;
}

/// What a button opens is taken at once.
template <class AnyField, class Record> bool Read(DialogView&, const AnyField&, Record&) {
    return true;
}

template <class Record> bool Read(DialogView& view, const ComponentsField<Record>& field, Record& record) {
    ReadComponents(view, field.List, record.*field.Names, record.*field.Colors);
    return true;
}

} // namespace millichart
