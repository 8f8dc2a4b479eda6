#include "penlode/svg/SvgWriter.h"

#include "penlode/text/Digits.h"

#include <algorithm>
#include <cmath>

namespace penlode::svg {
namespace {

/// No page is so large.
constexpr double kMaxNumber = 1e9;

constexpr std::string_view kReplacement = "\xEF\xBF\xBD";

/// What stands for the character at the head of `text`, and how many bytes it takes. Nothing when it stands
/// for itself.
struct Substitute {
    std::string_view Text;
    std::size_t Length = 1;
};

Substitute SubstituteFor(std::string_view text) {
    switch (text.front()) {
    case '&':
        return {"&amp;"};
    case '<':
        return {"&lt;"};
    case '>':
        return {"&gt;"};
    case '"':
        return {"&quot;"};
    case '\t':
        return {"&#9;"};
    case '\n':
        return {"&#10;"};
    case '\r':
        return {"&#13;"};
    default:
        break;
    }
    if (text.starts_with("\xEF\xBF\xBE") || text.starts_with("\xEF\xBF\xBF")) {
        return {kReplacement, 3};
    }
    return static_cast<unsigned char>(text.front()) < 0x20 ? Substitute{kReplacement} : Substitute{};
}

} // namespace

std::string Number(double value, int decimals) {
    return std::isnan(value) ? "0" : RoundedDigits(std::clamp(value, -kMaxNumber, kMaxNumber), decimals);
}

std::string Pair(PointD point) {
    return Number(point.X) + " " + Number(point.Y);
}

std::string MatrixText(const Matrix& m) {
    std::string text = "matrix(";
    for (const double factor : {m.M11, m.M12, m.M21, m.M22}) {
        text += Number(factor, 6) + " ";
    }
    return text + Pair({m.Dx, m.Dy}) + ")";
}

std::string Escaped(std::string_view utf8) {
    std::string escaped;
    escaped.reserve(utf8.size());
    std::size_t position = 0;
    while (position < utf8.size()) {
        const auto [text, length] = SubstituteFor(utf8.substr(position));
        escaped += text.empty() ? utf8.substr(position, length) : text;
        position += length;
    }
    return escaped;
}

std::string Reference(std::string_view id) {
    return "url(#" + std::string(id) + ")";
}

SvgElement& SvgElement::Set(std::string_view name, std::string_view value) {
    m_text.append(" ").append(name).append("=\"").append(Escaped(value)).append("\"");
    return *this;
}

SvgElement& SvgElement::Set(std::string_view name, double value) {
    return Set(name, Number(value));
}

std::string SvgElement::Around(std::string_view content) const {
    return Open().append(content).append("</").append(m_name).append(">");
}

} // namespace penlode::svg
