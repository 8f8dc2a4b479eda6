#pragma once

#include "Handles.h"
#include "PagePixels.h"
#include "model/PartLook.h"

#include <string>

namespace host {

/// Posted to the parent when the user is done: wParam tells whether he keeps the text, lParam is the editor's
/// window.
constexpr UINT kEditDone = WM_APP;

/// A text that is edited where it stands: the system's own control over it, so that input methods, the
/// clipboard and undo work as everywhere. Enter and whatever takes the keyboard away keep the text, Escape
/// does not; Shift+Enter breaks a line.
class InPlaceEdit {
public:
    /// `scale` is in pixels a millimetre; `box` that of the text, in the parent's pixels.
    InPlaceEdit(HWND parent, const std::wstring& text, const designer::PartLook& look, double scale,
                const PixelRect& box);
    ~InPlaceEdit();
    InPlaceEdit(const InPlaceEdit&) = delete;
    InPlaceEdit& operator=(const InPlaceEdit&) = delete;

    HWND Handle() const { return m_window; }

    std::wstring Text() const;

    /// After a change of the text: as large as that needs, about the middle of the old one's place.
    void Grow();

    /// What the parent answers to WM_CTLCOLOREDIT.
    HBRUSH PrepareColors(HDC context) const;

private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                                      DWORD_PTR parent);

    PixelRect m_box;
    COLORREF m_color;
    Kept<HFONT, ObjectDeleter> m_font;
    HWND m_window;
};

} // namespace host
