#pragma once

#include "penlode/GraphicsPath.h"
#include "penlode/Matrix.h"

#include <string>
#include <string_view>

/// The parts of an SVG document as text: numbers, points, escaped texts, elements.
namespace penlode::svg {

/// Rounded to so many decimals, without needless zeros, the same in every locale. What is not a number reads
/// 0.
std::string Number(double value, int decimals = 3);

/// Two numbers with a blank between them.
std::string Pair(PointD point);

/// "matrix(a b c d e f)", the factors to six decimals: they multiply whole texts and pictures.
std::string MatrixText(const Matrix& matrix);

/// UTF-8 text for content or an attribute. Characters that XML forbids become U+FFFD.
std::string Escaped(std::string_view utf8);

/// "url(#id)"
std::string Reference(std::string_view id);

/// Builds one element:
///
///     SvgElement("rect").Set("width", 3.5).Raw(paint).Empty()   ->   <rect width="3.5" fill="#336699"/>
class SvgElement {
public:
    explicit SvgElement(std::string_view name) : m_name(name), m_text("<" + m_name) {}

    SvgElement& Set(std::string_view name, std::string_view value);
    SvgElement& Set(std::string_view name, double value);

    /// Attributes that are written already, each after a blank.
    SvgElement& Raw(std::string_view attributes) {
        m_text += attributes;
        return *this;
    }

    std::string Empty() const { return m_text + "/>"; }

    /// The start tag alone.
    std::string Open() const { return m_text + ">"; }

    /// `content` is escaped, or elements.
    std::string Around(std::string_view content) const;

private:
    std::string m_name;
    std::string m_text;
};

} // namespace penlode::svg
