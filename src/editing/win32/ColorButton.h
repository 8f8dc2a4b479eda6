#pragma once

#include "editing/win32/ColorControl.h"

namespace marrowkit {

/// A button that shows a colour and lets the user pick another in the system's dialog, in place of one that
/// its owner draws (BS_OWNERDRAW). The parent is told of a click after a colour was picked. The control's
/// text is not drawn: it is its name for screen readers.
class CColorButton : public millichart::ColorControl {
public:
    explicit CColorButton(HWND button) : ColorControl(button) {}

private:
    std::optional<LRESULT> OnReflected(UINT message, WPARAM wParam, LPARAM lParam) override;
    bool Pick();
    void DrawItem(const DRAWITEMSTRUCT& item) const;
};

} // namespace marrowkit
