#pragma once

#include "editing/Dialog.h"
#include "editing/NumberInput.h"
#include "penlode/Color.h"
#include "penlode/text/StringUtil.h"

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <utility>
#include <variant>

/// Which control shows which field of a record: a page is a table of these and what is special to it.
namespace millichart {

/// A check box for a flag, and the controls that are enabled while it is checked.
template <class Record> struct FlagField {
    int CheckBox;
    std::int32_t Record::*Flag;
    std::array<int, 2> Enables{kNoId, kNoId};
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
};

/// A button that picks a colour, at once opaque, and a pane that shows it.
template <class Record> struct ColorField {
    int Button;
    int Pane;
    penlode::Color Record::*Color;
};

template <class Record>
using Field = std::variant<FlagField<Record>, TextField<Record>, IntegerField<Record>, ColorField<Record>>;

template <class Record> void Enable(DialogView& view, const FlagField<Record>& field) {
    for (const int id : field.Enables) {
        if (id != kNoId) {
            view.SetEnabled(id, view.IsChecked(field.CheckBox));
        }
    }
}

template <class Record> void Show(DialogView& view, const FlagField<Record>& field, const Record& record) {
    view.SetChecked(field.CheckBox, record.*field.Flag != 0);
    Enable(view, field);
}

template <class Record> void Show(DialogView& view, const TextField<Record>& field, const Record& record) {
    view.SetText(field.Edit, penlode::CStringUtil::AnsiToUtf8(record.*field.Text));
}

template <class Record> void Show(DialogView& view, const IntegerField<Record>& field, const Record& record) {
    view.SetText(field.Edit, std::to_string(record.*field.Number));
}

template <class Record> void Show(DialogView& view, const ColorField<Record>& field, const Record& record) {
    view.ShowColor(field.Pane, ToColorRef(record.*field.Color));
}

/// What a click on control `id` does, if it is this field's.
template <class Record, class AnyField> void Click(DialogView&, int, const AnyField&, Record&) {}

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

/// Takes what a control shows; false if the field refuses it, which it has told the user then.
template <class Record> bool Read(DialogView& view, const FlagField<Record>& field, Record& record) {
    record.*field.Flag = view.IsChecked(field.CheckBox) ? 1 : 0;
    return true;
}

/// A text that was not touched keeps its bytes, whatever they mean.
template <class Record> bool Read(DialogView& view, const TextField<Record>& field, Record& record) {
    using penlode::CStringUtil;
    std::string& text = record.*field.Text;
    const std::string typed = view.Text(field.Edit);
    if (typed != CStringUtil::AnsiToUtf8(text)) {
        text = CStringUtil::Utf8ToAnsi(typed);
    }
    return true;
}

template <class Record> bool Read(DialogView& view, const IntegerField<Record>& field, Record& record) {
    record.*field.Number = ReadInteger(view.Text(field.Edit));
    return true;
}

/// The colour was taken when it was picked.
template <class Record> bool Read(DialogView&, const ColorField<Record>&, Record&) {
    return true;
}

/// A dialog, or a page, on a copy of a record, most of whose fields stand in a table.
template <class Record> class RecordDialog : public Dialog {
public:
    explicit RecordDialog(Record record) : m_record(std::move(record)) {}

    /// The working copy.
    const Record& Edited() const { return m_record; }

    void OnInitDialog(DialogView& view) override {
        for (const auto& any : Fields()) {
            std::visit([&](const auto& field) { Show(view, field, m_record); }, any);
        }
    }

    void OnClicked(DialogView& view, int id) override {
        for (const auto& any : Fields()) {
            std::visit([&](const auto& field) { Click(view, id, field, m_record); }, any);
        }
    }

    bool OnOK(DialogView& view) override {
        for (const auto& any : Fields()) {
            if (!std::visit([&](const auto& field) { return Read(view, field, m_record); }, any)) {
                return false;
            }
        }
        return true;
    }

protected:
    virtual std::span<const Field<Record>> Fields() const = 0;

    Record m_record;
};

} // namespace millichart
