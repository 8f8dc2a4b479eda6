#include "penlode/engine/DeviceView.h"

#include "penlode/PenDrawing.h"
#include "penlode/Units.h"

namespace penlode {

double DeviceView::ThinnestLine() const {
    return m_setting->HasPixels ? 1.0 : kMinPageLine * m_setting->Dpi / kMillimetresPerInch;
}

std::optional<BoxD> DeviceView::DeviceBox(const RectF& rect) const {
    if (!KeepsAxesNearly(m_toDevice)) {
        return std::nullopt;
    }
    const BoxD box = BoxBetween(Map(rect.TopLeft()), Map(PointF{rect.Right(), rect.Bottom()}));
    return m_snaps ? PixelGrid::Box(box) : box;
}

bool IsSound(const Matrix& m, double strongest) {
    constexpr double kFlattest = 1e-6;
    const double largest = std::max({std::abs(m.M11), std::abs(m.M12), std::abs(m.M21), std::abs(m.M22)});
    return m.IsInvertible() && largest <= strongest && largest >= 1.0 / strongest &&
           std::abs(m.Determinant()) >= kFlattest * largest * largest;
}

} // namespace penlode
