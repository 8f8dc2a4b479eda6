#pragma once

#include "table/DataView.h"

#include <string>
#include <vector>

namespace designer::test {

/// Makes the application, without a screen, where there is none yet.
void NeedApplication();

/// Somebody at a table, which is changed and shown as the view wants it.
class TableUser {
public:
    /// `texts` as a spreadsheet copies them, with a line of headings.
    explicit TableUser(const char* texts, RowHeads heads = RowHeads::Names);

    /// In whatever has the focus.
    static void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = {});
    /// Key by key.
    static void Type(const char* latin);
    /// As an input method does: what it composes, and what it hands over.
    static void Compose(const char* preedit, const char* commit);

    void GoTo(int row, int column);
    void Select(int row, int column, int rows, int columns);

    /// With a line of headings, as they were given.
    std::string Texts() const;
    /// Of the selected cells: "row,column rows x columns".
    std::string Selected() const;

    static void PutOnClipboard(const char* text);
    static std::string Clipboard();

    struct Told {
        std::string Name;
        std::string Merge;
    };

    DataTable Table;
    DataView View;
    std::vector<Told> Changes;
};

} // namespace designer::test
