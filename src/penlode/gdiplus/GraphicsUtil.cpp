#include "penlode/gdiplus/GraphicsUtil.h"

#include "penlode/Units.h"
#include "penlode/gdiplus/GdiPlus.h"

#include <cmath>

namespace penlode {
namespace {

std::int32_t ScreenPixelsPerInch() {
    const HDC screen = GetDC(nullptr);
    const int pixels = GetDeviceCaps(screen, LOGPIXELSY);
    ReleaseDC(nullptr, screen);
    return pixels;
}

} // namespace

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

Font CGraphicsUtil::FontOf(const LOGFONTW& logicalFont) {
    const wchar_t* name = logicalFont.lfFaceName;
    Font font{name[0] == L'@' ? name + 1 : name, // the same face for vertical lines
              MillimetresFromLogicalHeight(logicalFont.lfHeight, ScreenPixelsPerInch()), FontStyle::Regular};
    font.Style |= logicalFont.lfWeight >= FW_SEMIBOLD ? FontStyle::Bold : 0;
    font.Style |= logicalFont.lfItalic != 0 ? FontStyle::Italic : 0;
    font.Style |= logicalFont.lfUnderline != 0 ? FontStyle::Underline : 0;
    font.Style |= logicalFont.lfStrikeOut != 0 ? FontStyle::Strikeout : 0;
    return font;
}

void CGraphicsUtil::ToLogicalFont(const Font& font, LOGFONTW& logicalFont) {
    const double pixels =
        static_cast<double>(font.Size) * kPointsPerMillimetre * ScreenPixelsPerInch() / kPointsPerInch;
    logicalFont = {};
    logicalFont.lfHeight = -static_cast<LONG>(std::lround(std::clamp(pixels, 0.0, 32767.0)));
    logicalFont.lfWeight = font.Has(FontStyle::Bold) ? FW_BOLD : FW_NORMAL;
    logicalFont.lfItalic = font.Has(FontStyle::Italic) ? 1 : 0;
    logicalFont.lfUnderline = font.Has(FontStyle::Underline) ? 1 : 0;
    logicalFont.lfStrikeOut = font.Has(FontStyle::Strikeout) ? 1 : 0;
    logicalFont.lfCharSet = DEFAULT_CHARSET;
    const std::size_t length = std::min<std::size_t>(font.Family.size(), LF_FACESIZE - 1);
    font.Family.copy(logicalFont.lfFaceName, length);
}

} // namespace penlode
