#include "Overlay.h"

#include "Handles.h"

#include <cmath>

namespace host {
namespace {

constexpr COLORREF kAccent = RGB(0x00, 0x5F, 0xB8);

/// So many pixels beside the part at 96 dpi, so that the frame does not touch its texts.
constexpr double kDistance = 3.0;

int Pixels(double at96, const PageView& view) {
    return static_cast<int>(std::lround(at96 * view.Dpi() / 96.0));
}

void DrawFrame(HDC context, const penlode::RectF& place, const PageView& view, DWORD style, double width) {
    const LOGBRUSH colour{BS_SOLID, kAccent, 0};
    const KeptPen pen(ExtCreatePen(PS_GEOMETRIC | PS_ENDCAP_FLAT | PS_JOIN_MITER | style,
                                   static_cast<DWORD>(Pixels(width, view)), &colour, 0, nullptr));
    const Selection drawing(context, pen.get());
    const Selection empty(context, GetStockObject(HOLLOW_BRUSH));
    const PixelRect frame = view.ToWindow(place);
    const int beside = Pixels(kDistance, view);
    Rectangle(context, frame.Left - beside, frame.Top - beside, frame.Right + beside, frame.Bottom + beside);
}

/// What the part looks like, where it would come to stand: its ink darkens what is there already.
void DrawShadow(HDC context, const penlode::RectF& part, const penlode::RectF& outline,
                const PageView& view) {
    const PixelRect from = view.ToWindow(part);
    const PixelRect to = view.ToWindow(outline);
    BitBlt(context, to.Left, to.Top, from.Width(), from.Height(), context, from.Left, from.Top, SRCAND);
}

} // namespace

void DrawOverlay(HDC context, const ChartModel& model, const PageView& view) {
    const MovablePart* const part = model.Selected();
    if (part == nullptr) {
        return;
    }
    SetBkMode(context, TRANSPARENT);
    if (const auto outline = model.Outline()) {
        DrawShadow(context, part->Place, *outline, view);
        DrawFrame(context, *outline, view, PS_SOLID, 2.0);
    }
    DrawFrame(context, part->Place, view, PS_DOT, 1.0);
}

} // namespace host
