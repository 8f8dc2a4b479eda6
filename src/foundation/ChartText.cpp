#include "foundation/ChartText.h"

#include "penlode/Matrix.h"

#include <algorithm>

namespace millichart {

using penlode::PointD;
using penlode::PointF;
using penlode::RectF;

namespace {

/// What a text may reach out without anybody making room for it.
constexpr float kNegligible = 1.0F;
/// How near a bar's label must be to belong to the chart.
constexpr float kNear = 10.0F;

bool IsNear(const RectF& box, const RectF& whole) {
    return box.X < whole.Right() + kNear && box.Right() > whole.X - kNear && box.Y < whole.Bottom() + kNear &&
           box.Bottom() > whole.Y - kNear;
}

bool ReachesOut(const RectF& box, const RectF& whole) {
    return box.X < whole.X - kNegligible || box.Y < whole.Y - kNegligible ||
           box.Right() > whole.Right() + kNegligible || box.Bottom() > whole.Bottom() + kNegligible;
}

} // namespace

RectF ChartText::Box() const {
    penlode::Matrix toPage = penlode::Matrix::Rotation(-static_cast<float>(Angle));
    toPage.Dx = Origin.X;
    toPage.Dy = Origin.Y;
    const PointF middle = Layout.Center();
    const RectF level{middle.X - Size.Width * 0.5F, middle.Y - Size.Height * 0.5F, Size.Width, Size.Height};
    const PointD corners[] = {penlode::Mapped(toPage, level.TopLeft()),
                              penlode::Mapped(toPage, PointF{level.Right(), level.Y}),
                              penlode::Mapped(toPage, PointF{level.Right(), level.Bottom()}),
                              penlode::Mapped(toPage, PointF{level.X, level.Bottom()})};
    const auto [left, right] = std::minmax({corners[0].X, corners[1].X, corners[2].X, corners[3].X});
    const auto [top, bottom] = std::minmax({corners[0].Y, corners[1].Y, corners[2].Y, corners[3].Y});
    return {static_cast<float>(left), static_cast<float>(top), static_cast<float>(right - left),
            static_cast<float>(bottom - top)};
}

TextVisitor InPart(std::size_t part, const TextVisitor& visit) {
    return [part, &visit](ChartText&& text) {
        text.Owner.Part = part;
        visit(std::move(text));
    };
}

RectF WithText(const RectF& extent, const ChartText& text, const RectF& whole) {
    if (text.Text.empty() || text.Font == nullptr) {
        return extent;
    }
    const RectF box = text.Box();
    const bool belongs = text.Owner.Role != TextRole::BarLabel || IsNear(box, whole);
    return belongs && ReachesOut(box, whole) ? penlode::Union(extent, box) : extent;
}

} // namespace millichart
