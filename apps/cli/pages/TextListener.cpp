#include "pages/TextListener.h"

#include "penlode/Units.h"
#include "penlode/engine/Drawings.h"
#include "penlode/engine/SurfaceState.h"
#include "penlode/text/StringUtil.h"

#include <algorithm>
#include <utility>

namespace cli {
namespace {

using penlode::PointD;
using penlode::PointF;
using penlode::RectF;

/// The upright box round a rectangle that a transform may have turned.
RectF BoxOf(const RectF& rect, const penlode::Matrix& toPage) {
    const PointD corners[] = {penlode::Mapped(toPage, rect.TopLeft()),
                              penlode::Mapped(toPage, PointF{rect.Right(), rect.Y}),
                              penlode::Mapped(toPage, PointF{rect.Right(), rect.Bottom()}),
                              penlode::Mapped(toPage, PointF{rect.X, rect.Bottom()})};
    const auto [left, right] = std::minmax({corners[0].X, corners[1].X, corners[2].X, corners[3].X});
    const auto [top, bottom] = std::minmax({corners[0].Y, corners[1].Y, corners[2].Y, corners[3].Y});
    return {static_cast<float>(left), static_cast<float>(top), static_cast<float>(right - left),
            static_cast<float>(bottom - top)};
}

} // namespace

TextListener::TextListener(Heard heard)
    : CTrackingEngine(penlode::kMillimetresPerInch, penlode::kMillimetresPerInch), m_heard(std::move(heard)) {
}

/// All chart texts stand in the middle of their rectangles.
penlode::Status TextListener::PaintText(const penlode::TextRun& text) {
    const std::wstring said(text.Text);
    const penlode::SizeF size = penlode::CStringUtil::MeasureWideString(said, text.Face);
    const penlode::PointF center = text.Box.Center();
    const RectF place{center.X - size.Width * 0.5F, center.Y - size.Height * 0.5F, size.Width, size.Height};
    m_heard(said, *text.Face, BoxOf(place, State().WorldToDevice()));
    return kOk;
}

} // namespace cli
