#include "model/PageView.h"

#include "penlode/Units.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace host {
namespace {

using penlode::PointF;
using penlode::RectF;

constexpr std::array kZooms{0.25, 0.33, 0.5, 0.67, 0.75, 0.9, 1.0, 1.25, 1.5, 2.0, 3.0, 4.0, 6.0, 8.0};

/// Pixels of the desk beside a sheet that is larger than the window.
constexpr int kGap = 16;

int Nearest(double pixels) {
    return static_cast<int>(std::lround(pixels));
}

/// The least change of `scroll` that brings a range into a window, or the window into a larger range.
int Kept(int scroll, int from, int to, int window) {
    const auto [least, most] = std::minmax({from, to - window});
    return std::clamp(scroll, least, most);
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

double PageView::PixelsPerMillimetre() const {
    return m_dpi * m_zoom / penlode::kMillimetresPerInch;
}

void PageView::SetDpi(double dpi) {
    const double before = PixelsPerMillimetre();
    m_dpi = dpi;
    const double ratio = PixelsPerMillimetre() / before;
    m_scroll = {Nearest(m_scroll.X * ratio), Nearest(m_scroll.Y * ratio)};
    Centre();
}

void PageView::SetZoom(double zoom, PixelPoint anchor) {
    const PointF kept = ToPage(anchor);
    m_zoom = std::clamp(zoom, kMinZoom, kMaxZoom);
    m_scroll = {Nearest(kept.X * PixelsPerMillimetre()) - anchor.X,
                Nearest(kept.Y * PixelsPerMillimetre()) - anchor.Y};
    Centre();
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
    m_scroll = {Kept(m_scroll.X, shown.Left - kGap, shown.Right + kGap, m_width),
                Kept(m_scroll.Y, shown.Top - kGap, shown.Bottom + kGap, m_height)};
    KeepInRange();
}

PixelRect PageView::ScrollRange() const {
    const PixelRect sheet = SheetPixels();
    return {sheet.Left - kGap, sheet.Top - kGap, sheet.Right + kGap, sheet.Bottom + kGap};
}

PixelRect PageView::VisibleArea() const {
    return {m_scroll.X, m_scroll.Y, m_scroll.X + m_width, m_scroll.Y + m_height};
}

PixelRect PageView::SheetPixels() const {
    return Rounded(m_sheet);
}

PointF PageView::ToPage(PixelPoint inWindow) const {
    return {static_cast<float>((inWindow.X + m_scroll.X) / PixelsPerMillimetre()),
            static_cast<float>((inWindow.Y + m_scroll.Y) / PixelsPerMillimetre())};
}

PixelRect PageView::ToWindow(const RectF& onPage) const {
    const PixelRect page = Rounded(onPage);
    return {page.Left - m_scroll.X, page.Top - m_scroll.Y, page.Right - m_scroll.X, page.Bottom - m_scroll.Y};
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
    const PixelRect sheet = view.SheetPixels();
    const int aheadX = seen.Width() / 2;
    const int aheadY = seen.Height() / 2;
    const int left = std::clamp(seen.Left - aheadX, sheet.Left, sheet.Right);
    const int top = std::clamp(seen.Top - aheadY, sheet.Top, sheet.Bottom);
    return {left, top, std::clamp(seen.Right + aheadX, left, sheet.Right),
            std::clamp(seen.Bottom + aheadY, top, sheet.Bottom)};
}

} // namespace host
