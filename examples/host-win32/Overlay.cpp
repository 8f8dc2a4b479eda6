#include "Overlay.h"

#include "Handles.h"

#include <cmath>
#include <cstdlib>

namespace host {
namespace {

constexpr COLORREF kAccent = RGB(0x00, 0x5F, 0xB8);
constexpr COLORREF kFaint = RGB(0x5B, 0x9B, 0xD5);

/// So many pixels beside the part at 96 dpi, so that the frame does not touch its texts.
constexpr double kDistance = 2.0;

int Pixels(double at96, const PageView& view) {
    return static_cast<int>(std::lround(at96 * view.Dpi() / 96.0));
}

void DrawFrame(HDC context, const penlode::RectF& place, const PageView& view, COLORREF color, double width) {
    const LOGBRUSH ink{BS_SOLID, color, 0};
    const KeptPen pen(ExtCreatePen(PS_GEOMETRIC | PS_ENDCAP_FLAT | PS_JOIN_MITER | PS_SOLID,
                                   static_cast<DWORD>(Pixels(width, view)), &ink, 0, nullptr));
    const Selection drawing(context, pen.get());
    const Selection empty(context, GetStockObject(HOLLOW_BRUSH));
    const PixelRect frame = view.ToWindow(place);
    const int beside = Pixels(kDistance, view);
    Rectangle(context, frame.Left - beside, frame.Top - beside, frame.Right + beside, frame.Bottom + beside);
}

/// What the part looks like, where it would come to stand: its ink darkens what is there already. A legend
/// that would be laid out otherwise there has none.
void DrawShadow(HDC context, const penlode::RectF& part, const penlode::RectF& outline,
                const PageView& view) {
    const PixelRect from = view.ToWindow(part);
    const PixelRect to = view.ToWindow(outline);
    if (std::abs(from.Width() - to.Width()) > 1 || std::abs(from.Height() - to.Height()) > 1) {
        return;
    }
    BitBlt(context, to.Left, to.Top, from.Width(), from.Height(), context, from.Left, from.Top, SRCAND);
}

} // namespace

void DrawOverlay(HDC context, const ChartModel& model, const std::optional<millichart::PlacedPart>& hovered,
                 const PageView& view) {
    const auto& selected = model.Selected();
    if (hovered && (!selected || hovered->Part != selected->Part)) {
        DrawFrame(context, hovered->Box, view, kFaint, 1.0);
    }
    if (!selected) {
        return;
    }
    if (const auto& outline = model.Outline()) {
        DrawShadow(context, model.MovingPlace(), *outline, view);
        DrawFrame(context, *outline, view, kAccent, 2.0);
    }
    DrawFrame(context, model.IsMoving() ? model.MovingPlace() : selected->Box, view, kAccent, 1.0);
}

} // namespace host
