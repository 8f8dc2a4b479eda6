#include "penlode/gdiplus/GraphicsUtil.h"

#include "penlode/gdiplus/GdiPlus.h"

#include <algorithm>
#include <cstdlib>

namespace penlode {

struct CGraphicsUtil::Screen {
    Screen() : Context(GetDC(nullptr)) {
        if (StartGdiplus()) {
            Graphics = Created<GdipGraphics>(flat::GdipCreateFromHDC, Context);
        }
    }

    ~Screen() {
        Graphics.reset();
        ReleaseDC(nullptr, Context);
    }

    Screen(const Screen&) = delete;
    Screen& operator=(const Screen&) = delete;

    HDC Context;
    GdipGraphics Graphics;
};

CGraphicsUtil::CGraphicsUtil() : m_screen(std::make_unique<Screen>()) {}

CGraphicsUtil::~CGraphicsUtil() = default;

Gdiplus::GpGraphics* CGraphicsUtil::GetGraphics() const {
    return m_screen->Graphics.get();
}

LogicalFont CGraphicsUtil::Read(const LOGFONTW& logicalFont) {
    const wchar_t* name = logicalFont.lfFaceName;
    LogicalFont font{name[0] == L'@' ? name + 1 : name, // the same face for vertical lines
                     std::abs(logicalFont.lfHeight), FontStyle::Regular};
    font.Style |= logicalFont.lfWeight >= FW_SEMIBOLD ? FontStyle::Bold : 0;
    font.Style |= logicalFont.lfItalic != 0 ? FontStyle::Italic : 0;
    font.Style |= logicalFont.lfUnderline != 0 ? FontStyle::Underline : 0;
    font.Style |= logicalFont.lfStrikeOut != 0 ? FontStyle::Strikeout : 0;
    return font;
}

void CGraphicsUtil::Write(const LogicalFont& font, LOGFONTW& logicalFont) {
    const auto has = [&font](std::int32_t style) { return (font.Style & style) != 0; };
    logicalFont = {};
    logicalFont.lfHeight = -font.Height;
    logicalFont.lfWeight = has(FontStyle::Bold) ? FW_BOLD : FW_NORMAL;
    logicalFont.lfItalic = has(FontStyle::Italic) ? 1 : 0;
    logicalFont.lfUnderline = has(FontStyle::Underline) ? 1 : 0;
    logicalFont.lfStrikeOut = has(FontStyle::Strikeout) ? 1 : 0;
    logicalFont.lfCharSet = DEFAULT_CHARSET;
    const std::size_t length = std::min<std::size_t>(font.Family.size(), LF_FACESIZE - 1);
    font.Family.copy(logicalFont.lfFaceName, length);
}

std::int32_t CGraphicsUtil::PixelsPerInch() {
    const HDC screen = GetDC(nullptr);
    const int pixels = GetDeviceCaps(screen, LOGPIXELSY);
    ReleaseDC(nullptr, screen);
    return pixels;
}

Font CGraphicsUtil::FontOf(const LOGFONTW& logicalFont) {
    return FromLogicalFont(Read(logicalFont), PixelsPerInch());
}

void CGraphicsUtil::ToLogicalFont(const Font& font, LOGFONTW& logicalFont) {
    Write(penlode::ToLogicalFont(font, PixelsPerInch()), logicalFont);
}

} // namespace penlode
