#include "penlode/RecordedCall.h"

#include "penlode/streams/TextForms.h"
#include "penlode/text/Digits.h"
#include "penlode/text/StringUtil.h"

#include <algorithm>

namespace penlode {
namespace {

template <class E, std::size_t N> std::string NameOf(const std::array<const char*, N>& names, E value) {
    const auto index = static_cast<std::size_t>(value);
    return index < N ? names[index] : std::to_string(static_cast<std::int64_t>(value));
}

/// Writes one argument after another, each after a blank.
class Printer {
public:
    explicit Printer(std::string operation, int decimals)
        : m_text(std::move(operation)), m_decimals(std::clamp(decimals, 0, 17)) {}

    void operator()(std::monostate) { Word("null"); }

    void operator()(std::int32_t value) { Word(std::to_string(value)); }

    void operator()(std::uint32_t value) { Word(std::to_string(value)); }

    void operator()(float value) { Word(Number(value)); }

    void operator()(const PointF& p) { Word(Point(p)); }

    void operator()(const RectF& r) {
        Word("(" + Number(r.X) + " " + Number(r.Y) + " " + Number(r.Width) + " " + Number(r.Height) + ")");
    }

    void operator()(Color color) { Word(Hex(color)); }

    template <class Item> void operator()(const std::vector<Item>& items) {
        Word("[" + std::to_string(items.size()) + "]");
        for (const Item& item : items) {
            (*this)(item);
        }
    }

    void operator()(const std::wstring& text) { Word("\"" + Escaped(text) + "\""); }

    void operator()(const Pen& pen) {
        const std::string dash = NameOf(kDashNames, pen.GetDashStyle());
        Word(Hex(pen.GetColor()) + "/" + Number(pen.GetWidth()) + (dash == "solid" ? "" : "/" + dash));
    }

    void operator()(const SolidBrush& brush) { Word(Hex(brush.FillColor)); }

    void operator()(const Font& font) {
        const std::string style = font.Style == FontStyle::Regular ? "" : "/" + std::to_string(font.Style);
        Word(Escaped(font.Family) + "/" + Number(font.Size) + style);
    }

    void operator()(const StringFormat& format) {
        Word(NameOf(kAlignmentNames, format.Alignment) + "-" + NameOf(kAlignmentNames, format.LineAlignment));
    }

    void operator()(const GraphicsPath& path) {
        for (const GraphicsPath::Figure& figure : path.Figures()) {
            for (const GraphicsPath::Piece& piece : figure.Pieces) {
                std::visit(*this, piece);
            }
            if (figure.Closed) {
                Word("close");
            }
        }
    }

    void operator()(const GraphicsPath::Line& line) {
        Word("line " + Point(line.From) + " " + Point(line.To));
    }

    void operator()(const GraphicsPath::Arc& arc) {
        Word("arc");
        (*this)(arc.Ellipse);
        Word(Number(arc.StartAngle) + " " + Number(arc.SweepAngle));
    }

    void operator()(const GraphicsPath::Bezier& bezier) {
        Word("bezier");
        for (const PointF& point : bezier.Points) {
            Word(Point(point));
        }
    }

    void operator()(const Region& region) {
        Word("region");
        for (const Region::Step& step : region.Steps()) {
            (*this)(step.Mode);
            std::visit(*this, step.Operand);
        }
    }

    void operator()(const Region::Everything&) { Word("everything"); }

    void operator()(const Region::Nothing&) { Word("nothing"); }

    void operator()(const Region::Nested& nested) { (*this)(*nested.Area); }

    void operator()(const Matrix& m) {
        Word("matrix " + Number(m.M11) + " " + Number(m.M12) + " " + Number(m.M21) + " " + Number(m.M22) +
             " " + Number(m.Dx) + " " + Number(m.Dy));
    }

    void operator()(const Image& image) {
        Word("image " + std::to_string(image.Width) + "x" + std::to_string(image.Height));
    }

    void operator()(const ImageAttributes& attributes) {
        Word("colors");
        for (const auto& row : attributes.ColorMatrix) {
            for (const float factor : row) {
                (*this)(factor);
            }
        }
    }

    void operator()(CombineMode mode) { Word(NameOf(kCombineModeNames, mode)); }

    void operator()(MatrixOrder order) { Word(order == MatrixOrder::Prepend ? "prepend" : "append"); }

    void operator()(Unit unit) { Word(NameOf(kUnitNames, unit)); }

    void operator()(SmoothingMode mode) { Word(NameOf(kSmoothingModeNames, mode)); }

    std::string Take() { return std::move(m_text); }

private:
    void Word(const std::string& word) { m_text += " " + word; }

    static std::string Hex(Color color) { return "#" + HexDigits(color.Argb, 8); }

    static std::string Escaped(const std::wstring& text) {
        std::string escaped;
        for (const char c : CStringUtil::WideToUtf8(text)) {
            escaped += c == '\n'               ? "\\n"
                       : c == '\r'             ? "\\r"
                       : c == '"' || c == '\\' ? std::string{'\\', c}
                                               : std::string(1, c);
        }
        return escaped;
    }

    std::string Point(const PointF& p) const { return "(" + Number(p.X) + " " + Number(p.Y) + ")"; }

    std::string Number(double value) const { return RoundedDigits(value, m_decimals); }

    std::string m_text;
    int m_decimals;
};

} // namespace

std::string ToText(const RecordedCall& call, int decimals) {
    Printer printer(call.Operation, decimals);
    for (const RecordedCall::Argument& argument : call.Arguments) {
        std::visit([&printer](const auto& held) { printer(held); }, argument.Held);
    }
    return printer.Take();
}

} // namespace penlode
