#include "pages/ChartExtent.h"

#include "pages/TextListener.h"

namespace cli {
namespace {

using penlode::RectF;

/// What a text may reach out without anybody making room for it.
constexpr float kNegligible = 1.0F;
/// How near a text must be to belong to the chart.
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

RectF ExtentWithTexts(const millichart::LaidOutChart& chart) {
    const RectF whole = chart.Extent();
    RectF extent = whole;
    TextListener listener([&](const std::wstring& text, const penlode::Font&, const RectF& box) {
        if (!text.empty() && IsNear(box, whole) && ReachesOut(box, whole)) {
            extent = penlode::Union(extent, box);
        }
    });
    chart.Draw(listener);
    return extent;
}

} // namespace cli
