#pragma once

#include "penlode/Export.h"
#include "penlode/Font.h"

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

    /// A font that the user picked in the system's dialog: its height (in pixels, either sign) by the
    /// screen's vertical resolution, points / 2.8368 to the millimetre. From semi-bold on it is bold.
    static Font FontOf(const tagLOGFONTW& logicalFont);
    /// The same way back, the height rounded to whole pixels and negative, as character heights are.
    static void ToLogicalFont(const Font& font, tagLOGFONTW& logicalFont);

private:
    struct Screen;
    std::unique_ptr<Screen> m_screen;
};

} // namespace penlode
