#pragma once

#include "penlode/Font.h"

#include <string>
#include <string_view>
#include <vector>

// NOLINTNEXTLINE(bugprone-reserved-identifier): Pango's name
typedef struct _PangoLayoutLine PangoLayoutLine;
struct _FcConfig; // NOLINT(bugprone-reserved-identifier): fontconfig's name

/// Texts set by Pango: shaped once per thread, face and text, at a size of their own, so that one line
/// serves every surface at every size.
namespace penlode {

/// The em size of a set line, in its own units. All its measures are in proportion.
inline constexpr double kShapingEm = 100.0;

struct ShapedLine {
    PangoLayoutLine* Line = nullptr; ///< null for an empty text or where no font is installed
    double Width = 0.0;
};

/// The line in a font's face, without underline or strikeout; the font's size does not count. Stays valid
/// until the thread's next call.
ShapedLine ShapeLine(std::wstring_view text, const Font& font);

/// The characters of a line for which no face has a glyph, in order.
std::vector<std::wstring> UnknownCharacters(std::wstring_view line, const Font& font);

/// The name of the face that is taken for a font.
std::wstring FaceOf(const Font& font);

/// The fonts of this process: the system's configuration behind the library's own table of companions. Built
/// on first use, shared by all threads, never changed; nothing of the system's is touched. Null when memory
/// runs out.
_FcConfig* FontConfiguration();

} // namespace penlode
