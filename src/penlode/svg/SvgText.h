#pragma once

#include "penlode/Font.h"
#include "penlode/Matrix.h"
#include "penlode/svg/SvgGeometry.h"
#include "penlode/text/TextPlacement.h"

#include <map>
#include <string>

namespace penlode::svg {

/// The `font-family` lists of a document: the family asked for, the face that stands for it where the text
/// was measured, and a generic family in the end.
class SvgFamilies {
public:
    const std::string& For(const std::wstring& family);

private:
    std::map<std::wstring, std::string> m_lists;
};

/// A line of text as text, pinned to its measured width whatever face the reader has. Nothing for an empty
/// line.
std::string TextElement(const Matrix& toPage, const PlacedLine& line, const Font& font,
                        const std::string& families, const std::string& fill);

/// A line of text as the shapes of its glyphs, labelled with the text.
std::string OutlineElement(const PageMap& map, const PlacedLine& line, const Font& font,
                           const std::string& fill);

} // namespace penlode::svg
