#include "editing/win32/SystemDialogs.h"

#include "editing/win32/WindowText.h"
#include "penlode/GraphicsEngine.h"
#include "penlode/text/StringUtil.h"

#include <array>

// These need <windows.h>.
#include <commdlg.h>
#include <dlgs.h>

namespace millichart {
namespace {

using penlode::CGraphicsUtil;
using penlode::CStringUtil;

/// Whether the user picked from the font dialog's list of colours. It has sixteen: another one comes back as
/// black from an untouched list.
constexpr wchar_t kColorIsPicked[] = L"MillichartColorIsPicked";

UINT_PTR CALLBACK WatchColors(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_INITDIALOG: {
        const auto& choice = *reinterpret_cast<const CHOOSEFONTW*>(lParam);
        SetPropW(dialog, kColorIsPicked, reinterpret_cast<HANDLE>(choice.lCustData));
        return TRUE;
    }
    case WM_COMMAND:
        if (wParam == MAKEWPARAM(cmb4, CBN_SELCHANGE)) {
            *static_cast<bool*>(GetPropW(dialog, kColorIsPicked)) = true;
        }
        return FALSE;
    case WM_NCDESTROY:
        RemovePropW(dialog, kColorIsPicked);
        return FALSE;
    default:
        return FALSE;
    }
}

/// The font dialog counts in whole points, which at high resolutions are coarser than pixels: a height that
/// it would give back untouched is the one that it was given.
std::int32_t KeptHeight(std::int32_t picked, std::int32_t shown) {
    const int pixelsPerInch = CGraphicsUtil::PixelsPerInch();
    const int points = MulDiv(shown, 72, pixelsPerInch);
    return picked == MulDiv(points, pixelsPerInch, 72) ? shown : picked;
}

} // namespace

Answer ShowMessage(HWND owner, std::string_view text, MessageButtons buttons) {
    const UINT type = buttons == MessageButtons::YesNo ? MB_YESNO : MB_OK;
    switch (
        MessageBoxW(owner, CStringUtil::Utf8ToWideString(text).c_str(), WindowText(owner).c_str(), type)) {
    case IDOK:
        return Answer::Ok;
    case IDYES:
        return Answer::Yes;
    case IDNO:
        return Answer::No;
    default:
        return Answer::NotShown;
    }
}

std::optional<std::uint32_t> PickColor(HWND owner, std::uint32_t colorRef) {
    std::array<COLORREF, 16> ownColors{};
    ownColors.fill(RGB(255, 255, 255));
    CHOOSECOLORW choice{};
    choice.lStructSize = sizeof choice;
    choice.hwndOwner = owner;
    choice.rgbResult = colorRef;
    choice.lpCustColors = ownColors.data();
    choice.Flags = CC_RGBINIT | CC_FULLOPEN;
    return ChooseColorW(&choice) != FALSE ? std::optional<std::uint32_t>(choice.rgbResult) : std::nullopt;
}

std::optional<FontChoice> PickFont(HWND owner, const FontChoice& shown) {
    LOGFONTW font;
    CGraphicsUtil::Write(shown.Font, font);
    bool colorIsPicked = false;
    CHOOSEFONTW choice{};
    choice.lStructSize = sizeof choice;
    choice.hwndOwner = owner;
    choice.lpLogFont = &font;
    choice.rgbColors = shown.TextColor;
    choice.Flags = CF_SCREENFONTS | CF_EFFECTS | CF_INITTOLOGFONTSTRUCT | CF_ENABLEHOOK;
    choice.lpfnHook = WatchColors;
    choice.lCustData = reinterpret_cast<LPARAM>(&colorIsPicked);
    if (ChooseFontW(&choice) == FALSE) {
        return std::nullopt;
    }
    FontChoice picked{CGraphicsUtil::Read(font), colorIsPicked ? choice.rgbColors : shown.TextColor};
    picked.Font.Height = KeptHeight(picked.Font.Height, shown.Font.Height);
    return picked;
}

} // namespace millichart
