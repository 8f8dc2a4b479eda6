#pragma once

#include "editing/win32/ReflectedControl.h"

namespace millichart {

/// A small picture of a legend's twelve places, of which one is picked by a click or the arrow keys, in place
/// of a static control that its owner draws (SS_OWNERDRAW | SS_NOTIFY). The parent is told of a pick as of a
/// click (STN_CLICKED). The control's text is not drawn: it is its name for screen readers.
class PositionPicker final : public ReflectedControl {
public:
    explicit PositionPicker(HWND control);

    /// −1 if none is.
    int Selection() const { return m_selection; }

    void Select(int place);

private:
    std::optional<LRESULT> OnReflected(UINT message, WPARAM wParam, LPARAM lParam) override;
    std::optional<LRESULT> OnMessage(UINT message, WPARAM wParam, LPARAM lParam);
    bool OnKey(WPARAM key);
    void Pick(int place);
    void Draw(const DRAWITEMSTRUCT& item) const;

    MessageFilter m_own;
    int m_selection = -1;
};

} // namespace millichart
