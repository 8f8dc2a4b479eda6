#pragma once

#include "editing/Dialog.h"
#include "editing/Fields.h"

namespace millichart {

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
