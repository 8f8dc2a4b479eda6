#include "commands/CallsToJson.h"

#include "penlode/Owned.h"
#include "penlode/streams/TextForms.h"
#include "penlode/text/StringUtil.h"

#include <array>
#include <map>
#include <string>
#include <utility>

namespace cli {
namespace {

using namespace penlode;
using Named = std::pair<const char*, Json>;

constexpr std::array kAlignments{"near", "center", "far"};
constexpr std::array kModes{"replace", "intersect", "union", "xor", "exclude", "complement"};
constexpr std::array kUnits{"world", "display", "pixel", "point", "inch", "document", "millimeter"};
constexpr std::array kSmoothing{"default", "high-speed", "high-quality", "none", "antialias"};

template <class E, std::size_t N> Json NameOf(const std::array<const char*, N>& names, E value) {
    const auto index = static_cast<std::size_t>(value);
    return index < N ? Json(names[index]) : Json(static_cast<std::int64_t>(value));
}

template <class T> std::string Form(T value) {
    std::string text;
    ser_evaluate(value, text, true);
    return CStringUtil::AnsiToUtf8(text);
}

/// Joined lists of numbers.
Json Joined(Json list, const Json& more) {
    list.insert(list.end(), more.begin(), more.end());
    return list;
}

/// An argument under the name of what it is.
struct NamedArgument {
    Named operator()(std::monostate) const { return {"missing", nullptr}; }

    Named operator()(std::int32_t value) const { return {"number", value}; }

    Named operator()(std::uint32_t value) const { return {"number", value}; }

    Named operator()(float value) const { return {"number", ToJson(static_cast<double>(value))}; }

    Named operator()(const PointF& point) const { return {"point", ToJson(point)}; }

    Named operator()(const RectF& rect) const { return {"rect", ToJson(rect)}; }

    Named operator()(const std::vector<PointF>& points) const { return {"points", ListToJson(points)}; }

    Named operator()(const std::wstring& text) const { return {"text", CStringUtil::WideToUtf8(text)}; }

    Named operator()(const Pen& pen) const { return {"pen", Form(Owned<Pen>(pen))}; }

    Named operator()(const SolidBrush& brush) const { return {"brush", Form(brush.FillColor)}; }

    Named operator()(const Font& font) const { return {"font", Form(Owned<Font>(font))}; }

    Named operator()(const StringFormat& format) const {
        return {"align", {NameOf(kAlignments, format.Alignment), NameOf(kAlignments, format.LineAlignment)}};
    }

    Named operator()(const GraphicsPath& path) const {
        Json figures = Json::array();
        for (const GraphicsPath::Figure& figure : path.Figures()) {
            Json pieces = Json::array();
            for (const GraphicsPath::Piece& piece : figure.Pieces) {
                pieces.push_back(std::visit([](const auto& held) { return Piece(held); }, piece));
            }
            figures.push_back({{"closed", figure.Closed}, {"pieces", pieces}});
        }
        return {"path", figures};
    }

    Named operator()(const Region& region) const {
        Json steps = Json::array();
        for (const Region::Step& step : region.Steps()) {
            const auto [name, shape] = std::visit(*this, step.Operand);
            steps.push_back({{"mode", NameOf(kModes, step.Mode)}, {name, shape}});
        }
        return {"region", steps};
    }

    Named operator()(const Region::Everything&) const { return {"region", "everything"}; }

    Named operator()(const Region::Nothing&) const { return {"region", "nothing"}; }

    Named operator()(const Region::Nested& nested) const { return (*this)(*nested.Area); }

    Named operator()(const Matrix& m) const {
        Json numbers = Json::array();
        for (const auto part : {m.M11, m.M12, m.M21, m.M22, m.Dx, m.Dy}) {
            numbers.push_back(ToJson(static_cast<double>(part)));
        }
        return {"matrix", numbers};
    }

    Named operator()(const Image& image) const {
        return {"image", {{"width", image.Width}, {"height", image.Height}}};
    }

    Named operator()(const std::vector<Color>& colors) const {
        Json texts = Json::array();
        for (const Color color : colors) {
            texts.push_back(Form(color));
        }
        return {"colors", texts};
    }

    Named operator()(const std::vector<std::uint32_t>& numbers) const { return {"mesh", Json(numbers)}; }

    Named operator()(const ImageAttributes& attributes) const {
        Json rows = Json::array();
        for (const auto& row : attributes.ColorMatrix) {
            Json numbers = Json::array();
            for (const float number : row) {
                numbers.push_back(ToJson(static_cast<double>(number)));
            }
            rows.push_back(numbers);
        }
        return {"colorMatrix", rows};
    }

    Named operator()(CombineMode mode) const { return {"mode", NameOf(kModes, mode)}; }

    Named operator()(MatrixOrder order) const {
        return {"order", order == MatrixOrder::Prepend ? "prepend" : "append"};
    }

    Named operator()(Unit unit) const { return {"unit", NameOf(kUnits, unit)}; }

    Named operator()(SmoothingMode mode) const { return {"smoothing", NameOf(kSmoothing, mode)}; }

private:
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

/// Names that say more than what the argument is, in the order of an operation's arguments of one name.
const std::map<std::pair<std::string, std::string>, std::vector<const char*>> kBetterNames{
    {{"DrawLine", "point"}, {"from", "to"}},      {{"DrawArc", "number"}, {"start", "sweep"}},
    {{"DrawPie", "number"}, {"start", "sweep"}},  {{"FillPie", "number"}, {"start", "sweep"}},
    {{"DrawImage", "rect"}, {"rect", "source"}},  {{"TranslateTransform", "number"}, {"dx", "dy"}},
    {{"ScaleTransform", "number"}, {"sx", "sy"}}, {{"RotateTransform", "number"}, {"degrees"}},
    {{"SetPageScale", "number"}, {"scale"}},      {{"BeginContainer", "number"}, {"container"}},
    {{"EndContainer", "number"}, {"container"}},  {{"GradientFill", "number"}, {"meshes", "mode"}}};

std::string BetterName(const std::string& operation, const std::string& name, std::size_t index) {
    const auto found = kBetterNames.find({operation, name});
    if (found != kBetterNames.end() && index < found->second.size()) {
        return found->second[index];
    }
    return index == 0 ? name : name + std::to_string(index + 1);
}

Json CallToJson(const RecordedCall& call) {
    Json object{{"call", call.Operation}};
    std::map<std::string, std::size_t> counts;
    for (const RecordedCall::Value& argument : call.Arguments) {
        auto [name, value] = std::visit(NamedArgument(), argument);
        object[BetterName(call.Operation, name, counts[name]++)] = std::move(value);
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
