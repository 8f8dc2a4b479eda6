#pragma once

#include "editing/DialogView.h"

namespace millichart {

/// Tells the user why; false, as whoever asks refuses.
inline bool Refuse(DialogView& view, std::string_view message) {
    view.ShowMessage(message);
    return false;
}

/// The same for what stands in one edit, which is in view and selected then.
inline bool Refuse(DialogView& view, std::string_view message, int edit) {
    view.ShowMessage(message);
    view.Focus(edit);
    view.SelectText(edit);
    return false;
}

} // namespace millichart
