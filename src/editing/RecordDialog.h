#pragma once

#include "editing/Dialog.h"
#include "editing/Fields.h"

namespace millichart {

/// A dialog, or a page, on a copy of a record, most of whose fields stand in a table.
template <class Record> class RecordDialog : public Dialog {
public:
    /// Both tables are constants of the program.
    RecordDialog(const Record& record, const DialogTemplate& shown, std::span<const Field<Record>> fields)
        : m_record(record), m_template(&shown), m_fields(fields) {}

    /// The working copy.
    const Record& Edited() const { return m_record; }

    const DialogTemplate& Template() const final { return *m_template; }

    void OnInitDialog(DialogView& view) override {
        for (const auto& any : m_fields) {
            std::visit([&](const auto& field) { Show(view, field, m_record); }, any);
        }
    }

    void OnClicked(DialogView& view, int id) override {
        for (const auto& any : m_fields) {
            std::visit([&](const auto& field) { Click(view, id, field, m_record); }, any);
        }
    }

    bool OnOK(DialogView& view) override {
        for (const auto& any : m_fields) {
            if (!std::visit([&](const auto& field) { return Read(view, field, m_record); }, any)) {
                return false;
            }
        }
        return true;
    }

protected:
    Record m_record;

private:
    const DialogTemplate* m_template;
    std::span<const Field<Record>> m_fields;
};

} // namespace millichart
