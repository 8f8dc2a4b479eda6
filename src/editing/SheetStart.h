#pragma once

#include "editing/DialogTemplate.h"
#include "editing/DialogView.h"

#include <cstddef>

namespace millichart {

/// Where a sheet opens: a page, on it the control that has the focus, and of a list a row.
struct SheetStart {
    std::size_t Page = 0;
    int Control = kNoId; ///< none: the page's first
    int Row = -1;        ///< none: the list as it is

    friend bool operator==(const SheetStart&, const SheetStart&) = default;
};

/// On the start's page, which a toolkit has brought to the front.
inline void GoTo(DialogView& page, const SheetStart& start) {
    if (start.Control == kNoId) {
        return;
    }
    page.Focus(start.Control);
    page.SelectText(start.Control);
    if (start.Row >= 0) {
        page.Select(start.Control, start.Row);
    }
}

} // namespace millichart
