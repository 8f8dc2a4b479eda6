#include "commands/Json.h"
#include "penlode/Owned.h"
#include "penlode/text/StringUtil.h"

#include <array>
#include <string>
#include <utility>

namespace cli {
namespace {

using namespace penlode;

template <class E, std::size_t N> Json NameOf(const std::array<const char*, N>& names, E value) {
    const auto index = static_cast<std::size_t>(value);
    return index < N ? Json(names[index]) : Json(static_cast<std::int64_t>(value));
}

/// Joined lists of numbers.
Json Joined(Json list, const Json& more) {
    list.insert(list.end(), more.begin(), more.end());
    return list;
}

struct ArgumentToJson {
    Json operator()(std::monostate) const { return nullptr; }

    Json operator()(std::int32_t value) const { return value; }

    Json operator()(std::uint32_t value) const { return value; }

    Json operator()(float value) const { return ToJson(static_cast<double>(value)); }

    Json operator()(const PointF& point) const { return ToJson(point); }

    Json operator()(const RectF& rect) const { return ToJson(rect); }

    Json operator()(const std::vector<PointF>& points) const { return ListToJson(points); }

    Json operator()(const std::wstring& text) const { return CStringUtil::WideToUtf8(text); }

    Json operator()(const Pen& pen) const { return Form(Owned<Pen>(pen)); }

    Json operator()(const SolidBrush& brush) const { return Form(brush.FillColor); }

    Json operator()(const Font& font) const { return Form(Owned<Font>(font)); }

    Json operator()(const StringFormat& format) const {
        return Json::array(
            {NameOf(kAlignmentNames, format.Alignment), NameOf(kAlignmentNames, format.LineAlignment)});
    }

    Json operator()(const GraphicsPath& path) const {
        Json figures = Json::array();
        for (const GraphicsPath::Figure& figure : path.Figures()) {
            Json pieces = Json::array();
            for (const GraphicsPath::Piece& piece : figure.Pieces) {
                pieces.push_back(std::visit([](const auto& held) { return Piece(held); }, piece));
            }
            figures.push_back({{"closed", figure.Closed}, {"pieces", pieces}});
        }
        return figures;
    }

    Json operator()(const Region& region) const {
        Json steps = Json::array();
        for (const Region::Step& step : region.Steps()) {
            steps.push_back({{"mode", NameOf(kCombineModeNames, step.Mode)},
                             {KindOf(step.Operand), std::visit(*this, step.Operand)}});
        }
        return steps;
    }

    Json operator()(const Region::Everything&) const { return "everything"; }

    Json operator()(const Region::Nothing&) const { return "nothing"; }

    Json operator()(const Region::Nested& nested) const { return (*this)(*nested.Area); }

    Json operator()(const Matrix& m) const {
        Json numbers = Json::array();
        for (const auto part : {m.M11, m.M12, m.M21, m.M22, m.Dx, m.Dy}) {
            numbers.push_back(ToJson(static_cast<double>(part)));
        }
        return numbers;
    }

    Json operator()(const Image& image) const { return {{"width", image.Width}, {"height", image.Height}}; }

    Json operator()(const std::vector<Color>& colors) const {
        Json texts = Json::array();
        for (const Color color : colors) {
            texts.push_back(Form(color));
        }
        return texts;
    }

    Json operator()(const std::vector<std::uint32_t>& numbers) const { return numbers; }

    Json operator()(const ImageAttributes& attributes) const {
        Json rows = Json::array();
        for (const auto& row : attributes.ColorMatrix) {
            Json numbers = Json::array();
            for (const float number : row) {
                numbers.push_back(ToJson(static_cast<double>(number)));
            }
            rows.push_back(numbers);
        }
        return rows;
    }

    Json operator()(CombineMode mode) const { return NameOf(kCombineModeNames, mode); }

    Json operator()(MatrixOrder order) const { return order == MatrixOrder::Prepend ? "prepend" : "append"; }

    Json operator()(Unit unit) const { return NameOf(kUnitNames, unit); }

    Json operator()(SmoothingMode mode) const { return NameOf(kSmoothingModeNames, mode); }

private:
    static const char* KindOf(const Region::Shape& shape) {
        return std::holds_alternative<RectF>(shape)          ? "rect"
               : std::holds_alternative<GraphicsPath>(shape) ? "path"
                                                             : "region";
    }

    static Json Piece(const GraphicsPath::Line& line) {
        return {{"line", Joined(ToJson(line.From), ToJson(line.To))}};
    }

    static Json Piece(const GraphicsPath::Arc& arc) {
        const Json angles{ToJson(static_cast<double>(arc.StartAngle)),
                          ToJson(static_cast<double>(arc.SweepAngle))};
        return {{"arc", Joined(ToJson(arc.Ellipse), angles)}};
    }

    static Json Piece(const GraphicsPath::Bezier& bezier) {
        Json numbers = Json::array();
        for (const PointF& point : bezier.Points) {
            numbers = Joined(std::move(numbers), ToJson(point));
        }
        return {{"bezier", numbers}};
    }
};

Json CallToJson(const RecordedCall& call) {
    Json object{{"call", call.Operation}};
    for (const RecordedCall::Argument& argument : call.Arguments) {
        object[argument.Name] = std::visit(ArgumentToJson(), argument.Held);
    }
    return object;
}

} // namespace

Json CallsToJson(const std::vector<RecordedCall>& calls) {
    Json list = Json::array();
    for (const RecordedCall& call : calls) {
        list.push_back(CallToJson(call));
    }
    return list;
}

} // namespace cli
