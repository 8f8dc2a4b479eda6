#include "editing/win32/LineStyleComboBox.h"

#include "editing/LineStyleItem.h"
#include "editing/win32/ScaledDrawing.h"

#include <string>

namespace millichart {

/// The system asked for an item's height when it made the combo box, before this object was there.
CLineStyleComboBox::CLineStyleComboBox(HWND comboBox) : ReflectedControl(comboBox) {
    SendMessageW(comboBox, CB_SETITEMHEIGHT, 0, Scaled(comboBox, kLineStyleHeight));
}

CLineStyleComboBox::~CLineStyleComboBox() = default;

void CLineStyleComboBox::Initialize() {
    for (int style = 0; style < kLineStyleCount; ++style) {
        SendMessageW(Handle(), CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(std::to_wstring(style).c_str()));
    }
}

void CLineStyleComboBox::MeasureItem(MEASUREITEMSTRUCT& item) {
    item.itemHeight = static_cast<UINT>(Scaled(Handle(), kLineStyleHeight));
}

int CLineStyleComboBox::CompareItem(const COMPAREITEMSTRUCT&) {
    return 0;
}

void CLineStyleComboBox::DrawItem(const DRAWITEMSTRUCT& item) {
    DrawScaled(Handle(), item.hDC, item.rcItem,
               [&item](penlode::IGraphicsEngine& engine, const penlode::RectF& box) {
                   DrawLineStyleItem(engine, box, static_cast<int>(item.itemID),
                                     (item.itemState & ODS_FOCUS) != 0, (item.itemState & ODS_SELECTED) != 0);
               });
}

std::optional<LRESULT> CLineStyleComboBox::OnReflected(UINT message, WPARAM, LPARAM lParam) {
    switch (message) {
    case WM_MEASUREITEM:
        MeasureItem(*reinterpret_cast<MEASUREITEMSTRUCT*>(lParam));
        return TRUE;
    case WM_COMPAREITEM:
        return CompareItem(*reinterpret_cast<const COMPAREITEMSTRUCT*>(lParam));
    case WM_DRAWITEM:
        DrawItem(*reinterpret_cast<const DRAWITEMSTRUCT*>(lParam));
        return TRUE;
    default:
        return std::nullopt;
    }
}

} // namespace millichart
