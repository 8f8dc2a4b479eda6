#pragma once

#include "penlode/Geometry.h"

namespace designer {

/// Whole pixels of the screen, in the window or on the page.
struct PixelPoint {
    int X = 0;
    int Y = 0;

    friend bool operator==(const PixelPoint&, const PixelPoint&) = default;
};

struct PixelRect {
    int Left = 0;
    int Top = 0;
    int Right = 0;
    int Bottom = 0;

    int Width() const { return Right - Left; }

    int Height() const { return Bottom - Top; }

    bool IsEmpty() const { return Right <= Left || Bottom <= Top; }

    bool Contains(const PixelRect& other) const {
        return other.Left >= Left && other.Top >= Top && other.Right <= Right && other.Bottom <= Bottom;
    }

    friend bool operator==(const PixelRect&, const PixelRect&) = default;
};

inline constexpr double kMinZoom = 0.25;
inline constexpr double kMaxZoom = 8.0;

/// The next zoom of a person's steps (..., 75 %, 100 %, 125 %, ...) up, or with -1 down.
double NextZoom(double zoom, int direction);

/// A sheet seen through a window: how millimetres become the screen's own pixels, however many of them a unit
/// of the toolkit has.
///
///     (0,0) of the page          the window
///       +- - - - - - - - - - - - - - - - -
///       |        Scroll() +-----------------+     page pixels = mm * PixelsPerMillimetre()
///       |                 | +-------------+ |     window pixels = page pixels - Scroll()
///       |                 | | the sheet   | |
///
/// A sheet that is smaller than the window stands in its middle, unless it was changed since: what a person
/// has in sight does not move by itself.
class PageView {
public:
    /// Where a sheet can be, the window's edges stay so far off it, in pixels.
    void SetGap(int pixels);
    /// At 100 % a millimetre of the page is one on a screen of that many pixels per inch. What is in the
    /// window's middle stays there.
    void SetDpi(double dpi);

    double Dpi() const { return m_dpi; }

    double PixelsPerMillimetre() const;

    double Zoom() const { return m_zoom; }

    /// From 25 to 800 %; what is at `anchor` in the window stays there as far as can be.
    void SetZoom(double zoom, PixelPoint anchor);
    /// The largest that shows all of the sheet.
    void Fit();
    void SetWindow(int width, int height);

    PixelPoint Middle() const { return {m_width / 2, m_height / 2}; }

    /// Another document's: the view begins in its middle or at its top left corner.
    void ShowSheet(const penlode::RectF& sheet);
    /// The same document's, after a change.
    void UpdateSheet(const penlode::RectF& sheet);

    const penlode::RectF& Sheet() const { return m_sheet; }

    void ScrollBy(int dx, int dy);
    /// Scrolls as little as shows all of it.
    void Reveal(const penlode::RectF& place);

    /// The page pixel at the window's top left corner.
    PixelPoint Scroll() const { return m_scroll; }

    /// In page pixels: what can be scrolled to, with a gap round the sheet.
    PixelRect ScrollRange() const;
    /// In page pixels.
    PixelRect VisibleArea() const;
    PixelRect SheetPixels() const;

    penlode::PointF ToPage(penlode::PointD inWindow) const;

    penlode::PointF ToPage(PixelPoint inWindow) const {
        return ToPage(penlode::PointD{static_cast<double>(inWindow.X), static_cast<double>(inWindow.Y)});
    }

    /// In whole pixels, as the sheet is.
    PixelRect ToWindow(const penlode::RectF& onPage) const;
    penlode::PointD ToWindow(penlode::PointF onPage) const;

private:
    PixelRect Rounded(const penlode::RectF& onPage) const;
    void Centre();
    void KeepInRange();

    double m_dpi = 96.0;
    double m_zoom = 1.0;
    int m_gap = 16;
    int m_width = 1;
    int m_height = 1;
    penlode::RectF m_sheet;
    PixelPoint m_scroll;
};

/// In page pixels: what to draw, with a quarter of the window beyond each of its edges, so that most
/// scrolling shows what is drawn already; no more than the sheet.
PixelRect AreaToDraw(const PageView& view);

/// In page pixels: what of the sheet can be seen.
PixelRect AreaInSight(const PageView& view);

} // namespace designer
