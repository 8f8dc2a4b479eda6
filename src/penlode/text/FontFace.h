#pragma once

#include "penlode/Export.h"
#include "penlode/Font.h"
#include "penlode/GraphicsPath.h"

#include <string>
#include <string_view>

/// What an engine that writes documents must know of the faces that texts are measured in. Defined, like the
/// measures of CStringUtil, by each engine library and, in simple shapes, by the tests.
namespace penlode {

/// The face that texts in `family` are set in where that family is not installed; `family` itself where it
/// is. Empty when no font is installed at all.
PENLODE_API std::wstring ResolvedFamily(const std::wstring& family);

/// Does the library know this family by name, so that the face that stands for it, where it is not installed,
/// was chosen for it?
PENLODE_API bool HasStandIns(const std::wstring& family);

/// The glyphs of one line (no "\n" in it), the left end of its baseline at (0, 0), in page units; underline
/// and strikeout are part of it. Its area is what any figure encloses, by the non-zero rule: glyphs and lines
/// may overlap. Empty for a text that shows nothing and for a size that is not finite or not above 0.
PENLODE_API GraphicsPath OutlineOfLine(std::wstring_view line, const Font& font);

/// The characters of a text that no installed face can show in this font, each once; readers would see boxes.
PENLODE_API std::wstring MissingCharacters(std::wstring_view text, const Font& font);

} // namespace penlode
