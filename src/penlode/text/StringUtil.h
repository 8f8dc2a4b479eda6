#pragma once

#include "penlode/Export.h"
#include "penlode/Font.h"
#include "penlode/Geometry.h"

#include <string>
#include <string_view>

namespace penlode {

/// Where a font's glyphs stand in a line, in page units.
struct FontMetrics {
    float Ascent = 0.0F;     ///< from the line's top to the baseline
    float LineHeight = 0.0F; ///< from one line's top to the next one's

    friend bool operator==(const FontMetrics&, const FontMetrics&) = default;
};

/// Texts: encodings and sizes.
///
/// A narrow string holds GBK bytes on every platform; the converters read and write its superset GB18030, so
/// that every Unicode text survives. A byte sequence that means nothing becomes U+FFFD and never stops a
/// conversion.
class PENLODE_API CStringUtil {
public:
    static std::wstring AnsiToWideString(const std::string& text);
    static std::string WideToAnsiString(std::wstring_view text);
    static std::string AnsiToUtf8(const std::string& text);
    static std::string Utf8ToAnsi(std::string_view text);
    static std::wstring Utf8ToWideString(std::string_view text);
    static std::string WideToUtf8(std::wstring_view text);

    /// Bytes of the narrow character that begins at `position`: 1, 2 or 4, never past the end; 1 for a stray
    /// byte, 0 from the end on. Second bytes may look like ASCII, so a narrow text must be walked with this,
    /// not searched bytewise.
    static std::size_t AnsiCharLength(std::string_view text, std::size_t position);

    /// Width and height of a text in a font: the widest of its lines, and the font's line height for each of
    /// them. (0, 0) for an empty text or a null font. Needs no surface and does not depend on one's
    /// resolution.
    static SizeF MeasureString(const std::string& text, const Font* font);
    static SizeF MeasureWideString(std::wstring_view text, const Font* font);

    /// Defined by each engine library and, in simple arithmetic, by the tests: the width of one line (no "\n"
    /// in it), and the font's lines.
    static float MeasureLine(std::wstring_view line, const Font& font);
    static FontMetrics MeasureFont(const Font& font);
};

} // namespace penlode
