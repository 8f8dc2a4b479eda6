#include "documents/doubts/SeenText.h"

#include "penlode/Matrix.h"
#include "penlode/text/TextPlacement.h"

#include <algorithm>
#include <cmath>

namespace millichart::documents {
namespace {

using penlode::PointF;
using penlode::RectF;
using Quad = std::array<PointF, 4>;

constexpr float kFreeOfLine = 0.15F; ///< of a line's height, above the letters and below
constexpr float kUnnoticed = 0.2F;   ///< mm by which texts may cover one another
constexpr float kGap = 0.15F; ///< of a font's size, half a blank: nearer in one line texts run together

bool IsBlank(std::wstring_view line) {
    return line.find_first_not_of(L" \t\r") == std::wstring_view::npos;
}

/// What the letters of a text cover before it is turned: lines without any at its beginning and end are free.
RectF InkOf(const ChartText& text) {
    const std::vector<std::wstring_view> lines = penlode::SplitLines(text.Text);
    const auto isWritten = [](std::wstring_view line) { return !IsBlank(line); };
    const auto above = std::find_if(lines.begin(), lines.end(), isWritten) - lines.begin();
    const auto below = std::find_if(lines.rbegin(), lines.rend(), isWritten) - lines.rbegin();
    const float line = text.Size.Height / static_cast<float>(lines.size());
    const PointF middle = text.Layout.Center();
    const float top = middle.Y - text.Size.Height * 0.5F + (static_cast<float>(above) + kFreeOfLine) * line;
    const float bottom =
        middle.Y + text.Size.Height * 0.5F - (static_cast<float>(below) + kFreeOfLine) * line;
    return {middle.X - text.Size.Width * 0.5F, top, text.Size.Width, bottom - top};
}

Quad CornersOf(const ChartText& text) {
    penlode::Matrix toPage = penlode::Matrix::Rotation(-static_cast<float>(text.Angle));
    toPage.Dx = text.Origin.X;
    toPage.Dy = text.Origin.Y;
    const RectF ink = InkOf(text);
    return {toPage.Apply(ink.TopLeft()), toPage.Apply({ink.Right(), ink.Y}),
            toPage.Apply({ink.Right(), ink.Bottom()}), toPage.Apply({ink.X, ink.Bottom()})};
}

RectF BoxOf(const Quad& corners) {
    RectF box{corners[0].X, corners[0].Y, 0.0F, 0.0F};
    for (const PointF corner : corners) {
        box = penlode::Union(box, {corner.X, corner.Y, 0.0F, 0.0F});
    }
    return box;
}

/// By how much two figures cover one another along the direction from one point to another; the first edges
/// of both give the directions in which upright or turned rectangles can be told apart.
float CommonAlong(PointF from, PointF to, const Quad& a, const Quad& b) {
    const PointF edge = to - from;
    const float length = std::hypot(edge.X, edge.Y);
    const auto reach = [&](const Quad& figure) {
        std::array<float, 4> along;
        std::transform(figure.begin(), figure.end(), along.begin(),
                       [&](PointF corner) { return (corner.X * edge.X + corner.Y * edge.Y) / length; });
        const auto [least, most] = std::minmax_element(along.begin(), along.end());
        return std::pair(*least, *most);
    };
    const auto [aLeast, aMost] = reach(a);
    const auto [bLeast, bMost] = reach(b);
    return std::min(aMost, bMost) - std::max(aLeast, bLeast);
}

/// Nearer to each other, where they are read along one line, than `gap`, counts too.
bool AreOverlapping(const Quad& a, const Quad& b, float gap = -kUnnoticed) {
    for (const Quad* figure : {&a, &b}) {
        if (!(CommonAlong(figure->front(), (*figure)[1], a, b) > -gap) ||
            !(CommonAlong(figure->front(), (*figure)[3], a, b) > kUnnoticed)) {
            return false;
        }
    }
    return true;
}

std::int32_t AngleOf(const SeenText& text) {
    return text.Text.Angle;
}

std::string GroupOf(TextRole role, const std::string& kind) {
    switch (role) {
    case TextRole::SliceLabel:
        return "/PieLabelProp/PieLabelTextProperty";
    case TextRole::VerAxisLabel:
        return "/" + kind + "VerAxisProp/VerAxisLabelTextProperty";
    case TextRole::VerCaption:
        return "/" + kind + "VerAxisProp/VerCaptionTextProperty";
    case TextRole::HorAxisLabel:
        return "/" + kind + "HorAxisProp/HorLabelTextProperty";
    case TextRole::GroupName:
        return "/" + kind + "HorAxisProp/GroupNameTextProperty";
    case TextRole::HorCaption:
        return "/" + kind + "HorAxisProp/HorCaptionTextProperty";
    case TextRole::BarLabel:
        return "/" + kind + "PlotProp/ComponentInfoTextProperty";
    case TextRole::Caption:
        return "/CaptionProp/CaptionTextProperty";
    default:
        return "/" + kind + "LegendProp";
    }
}

} // namespace

PointF SeenText::At(float across, float down) const {
    const PointF along = Corners[1] - Corners[0];
    const PointF downwards = Corners[3] - Corners[0];
    return Corners[0] + PointF{along.X * across + downwards.X * down, along.Y * across + downwards.Y * down};
}

std::vector<SeenText> SeenTexts(std::vector<ChartText> texts) {
    std::vector<SeenText> seen;
    for (ChartText& text : texts) {
        if (text.Font != nullptr && text.Size.Width > 0.0F && text.Size.Height > 0.0F) {
            const Quad corners = CornersOf(text);
            seen.push_back({std::move(text), corners, BoxOf(corners)});
        }
    }
    return seen;
}

float GapOf(const SeenText& text) {
    return kGap * text.Text.Font->Size;
}

bool AreOverlapping(const SeenText& a, const SeenText& b) {
    const float gap = std::min(GapOf(a), GapOf(b));
    return AreOverlapping(a.Corners, b.Corners, AngleOf(a) == AngleOf(b) ? gap : -kUnnoticed);
}

bool IsOver(const RectF& box, const SeenText& text) {
    return AreOverlapping(
        {box.TopLeft(), {box.Right(), box.Y}, {box.Right(), box.Bottom()}, {box.X, box.Bottom()}},
        text.Corners);
}

const char* NounOf(TextRole role) {
    switch (role) {
    case TextRole::SliceLabel:
        return "slice label";
    case TextRole::VerAxisLabel:
        return "value axis label";
    case TextRole::VerCaption:
        return "value axis caption";
    case TextRole::HorAxisLabel:
        return "horizontal axis label";
    case TextRole::GroupName:
        return "group name";
    case TextRole::HorCaption:
        return "horizontal axis caption";
    case TextRole::BarLabel:
        return "bar label";
    case TextRole::Caption:
        return "caption";
    default:
        return "legend name";
    }
}

std::string PlaceOf(const PartRecords& records, const TextOwner& owner) {
    const PartRecord& record = records[std::min(owner.Part, records.size() - 1)];
    return record.Place + GroupOf(owner.Role, record.Kind);
}

} // namespace millichart::documents
