#pragma once

#include "penlode/Export.h"
#include "penlode/LogicalFont.h"

#include <memory>

struct tagLOGFONTW;

namespace Gdiplus {
class GpGraphics;
}

namespace penlode {

/// A graphics object of GDI+ on the screen, for conversions between logical fonts and fonts. It is given back
/// when this goes.
class PENLODE_API CGraphicsUtil {
public:
    CGraphicsUtil();
    ~CGraphicsUtil();

    CGraphicsUtil(const CGraphicsUtil&) = delete;
    CGraphicsUtil& operator=(const CGraphicsUtil&) = delete;

    /// Null where GDI+ does not start.
    Gdiplus::GpGraphics* GetGraphics() const;

    /// The screen's vertical resolution.
    static std::int32_t PixelsPerInch();

    /// What charts know of a font of the system's dialog. From semi-bold on it is bold.
    static LogicalFont Read(const tagLOGFONTW& logicalFont);
    /// Its height becomes negative, as character heights are.
    static void Write(const LogicalFont& font, tagLOGFONTW& logicalFont);

    /// A font that the user picked in the system's dialog: its height (in pixels, either sign) by the
    /// screen's vertical resolution, points / 2.8368 to the millimetre.
    static Font FontOf(const tagLOGFONTW& logicalFont);
    /// The same way back, the height rounded to whole pixels.
    static void ToLogicalFont(const Font& font, tagLOGFONTW& logicalFont);

private:
    struct Screen;
    std::unique_ptr<Screen> m_screen;
};

} // namespace penlode
