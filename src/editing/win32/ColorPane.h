#pragma once

#include "editing/win32/ColorControl.h"
#include "foundation/Export.h"

namespace millichart {

/// Shows a colour in a thin frame, in place of a static control that its owner draws (SS_OWNERDRAW). The
/// control's text is not drawn: it is its name for screen readers.
class MILLICHART_API CColorPane : public ColorControl {
public:
    explicit CColorPane(HWND control);
    ~CColorPane() override;

    virtual void DrawItem(const DRAWITEMSTRUCT& item);

private:
    std::optional<LRESULT> OnReflected(UINT message, WPARAM wParam, LPARAM lParam) override;
};

} // namespace millichart
