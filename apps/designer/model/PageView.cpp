#include "model/PageView.h"

#include "penlode/Units.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace designer {
namespace {

using penlode::PointD;
using penlode::PointF;
using penlode::RectF;

constexpr std::array kZooms{0.25, 0.33, 0.5, 0.67, 0.75, 0.9, 1.0, 1.25, 1.5, 2.0, 3.0, 4.0, 6.0, 8.0};

int Nearest(double pixels) {
    return static_cast<int>(std::lround(pixels));
}

/// The least change of `scroll` that brings a range into a window, or the window into a larger range.
int Kept(int scroll, int from, int to, int window) {
    const auto [least, most] = std::minmax({from, to - window});
    return std::clamp(scroll, least, most);
}

PixelRect Common(const PixelRect& a, const PixelRect& b) {
    const int left = std::clamp(a.Left, b.Left, b.Right);
    const int top = std::clamp(a.Top, b.Top, b.Bottom);
    return {left, top, std::clamp(a.Right, left, b.Right), std::clamp(a.Bottom, top, b.Bottom)};
}

} // namespace

double NextZoom(double zoom, int direction) {
    constexpr double kSame = 0.005;
    if (direction > 0) {
        const auto next =
            std::find_if(kZooms.begin(), kZooms.end(), [zoom](double step) { return step > zoom + kSame; });
        return next == kZooms.end() ? kMaxZoom : *next;
    }
    const auto next =
        std::find_if(kZooms.rbegin(), kZooms.rend(), [zoom](double step) { return step < zoom - kSame; });
    return next == kZooms.rend() ? kMinZoom : *next;
}

void PageView::SetGap(int pixels) {
    m_gap = pixels;
    Centre();
}

void PageView::SetDpi(double dpi) {
    const double ratio = dpi / m_dpi;
    const PixelPoint middle = Middle();
    m_dpi = dpi;
    m_scroll = {Nearest((m_scroll.X + middle.X) * ratio) - middle.X,
                Nearest((m_scroll.Y + middle.Y) * ratio) - middle.Y};
    Centre();
}

double PageView::PixelsPerMillimetre() const {
    return m_dpi * m_zoom / penlode::kMillimetresPerInch;
}

void PageView::SetZoom(double zoom, PixelPoint anchor) {
    const double before = PixelsPerMillimetre();
    m_zoom = std::clamp(zoom, kMinZoom, kMaxZoom);
    const double ratio = PixelsPerMillimetre() / before;
    m_scroll = {Nearest((m_scroll.X + anchor.X) * ratio) - anchor.X,
                Nearest((m_scroll.Y + anchor.Y) * ratio) - anchor.Y};
    Centre();
}

void PageView::Fit() {
    const double pixelsPerMillimetre = m_dpi / penlode::kMillimetresPerInch;
    const double wide = std::max(m_sheet.Width, 1.0F) * pixelsPerMillimetre;
    const double high = std::max(m_sheet.Height, 1.0F) * pixelsPerMillimetre;
    const double most = std::min((m_width - 2 * m_gap) / wide, (m_height - 2 * m_gap) / high);
    m_zoom = std::clamp(most, kMinZoom, kMaxZoom);
    ShowSheet(m_sheet);
}

void PageView::SetWindow(int width, int height) {
    m_width = std::max(width, 1);
    m_height = std::max(height, 1);
    Centre();
}

void PageView::ShowSheet(const RectF& sheet) {
    m_sheet = sheet;
    m_scroll = {ScrollRange().Left, ScrollRange().Top};
    Centre();
}

void PageView::UpdateSheet(const RectF& sheet) {
    m_sheet = sheet;
    KeepInRange();
}

void PageView::ScrollBy(int dx, int dy) {
    m_scroll = {m_scroll.X + dx, m_scroll.Y + dy};
    KeepInRange();
}

void PageView::Reveal(const RectF& place) {
    const PixelRect shown = Rounded(place);
    m_scroll = {Kept(m_scroll.X, shown.Left - m_gap, shown.Right + m_gap, m_width),
                Kept(m_scroll.Y, shown.Top - m_gap, shown.Bottom + m_gap, m_height)};
    KeepInRange();
}

PixelRect PageView::ScrollRange() const {
    const PixelRect sheet = SheetPixels();
    return {sheet.Left - m_gap, sheet.Top - m_gap, sheet.Right + m_gap, sheet.Bottom + m_gap};
}

PixelRect PageView::VisibleArea() const {
    return {m_scroll.X, m_scroll.Y, m_scroll.X + m_width, m_scroll.Y + m_height};
}

PixelRect PageView::SheetPixels() const {
    return Rounded(m_sheet);
}

PointF PageView::ToPage(PointD inWindow) const {
    return {static_cast<float>((inWindow.X + m_scroll.X) / PixelsPerMillimetre()),
            static_cast<float>((inWindow.Y + m_scroll.Y) / PixelsPerMillimetre())};
}

PixelRect PageView::ToWindow(const RectF& onPage) const {
    const PixelRect page = Rounded(onPage);
    return {page.Left - m_scroll.X, page.Top - m_scroll.Y, page.Right - m_scroll.X, page.Bottom - m_scroll.Y};
}

PointD PageView::ToWindow(PointF onPage) const {
    return {onPage.X * PixelsPerMillimetre() - m_scroll.X, onPage.Y * PixelsPerMillimetre() - m_scroll.Y};
}

PixelRect PageView::Rounded(const RectF& onPage) const {
    const double scale = PixelsPerMillimetre();
    return {Nearest(onPage.X * scale), Nearest(onPage.Y * scale), Nearest(onPage.Right() * scale),
            Nearest(onPage.Bottom() * scale)};
}

void PageView::Centre() {
    const PixelRect range = ScrollRange();
    if (range.Width() <= m_width) {
        m_scroll.X = range.Left - (m_width - range.Width()) / 2;
    }
    if (range.Height() <= m_height) {
        m_scroll.Y = range.Top - (m_height - range.Height()) / 2;
    }
    KeepInRange();
}

void PageView::KeepInRange() {
    const PixelRect range = ScrollRange();
    m_scroll = {Kept(m_scroll.X, range.Left, range.Right, m_width),
                Kept(m_scroll.Y, range.Top, range.Bottom, m_height)};
}

PixelRect AreaToDraw(const PageView& view) {
    const PixelRect seen = view.VisibleArea();
    const int aheadX = seen.Width() / 4;
    const int aheadY = seen.Height() / 4;
    return Common({seen.Left - aheadX, seen.Top - aheadY, seen.Right + aheadX, seen.Bottom + aheadY},
                  view.SheetPixels());
}

PixelRect AreaInSight(const PageView& view) {
    return Common(view.VisibleArea(), view.SheetPixels());
}

} // namespace designer
