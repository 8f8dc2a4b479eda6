#pragma once

#include "PageBuffer.h"
#include "Window.h"

#include <functional>

namespace host {

/// The part of the host's window that shows the page: it scrolls, zooms, and moves parts of the chart by
/// mouse and keyboard.
class ChartCanvas final : public Window {
public:
    /// `onChange` is called when the chart, the selection or the zoom has changed.
    ChartCanvas(HWND parent, std::function<void()> onChange);

    /// From now on, this document's; it must outlive the canvas, or the next call.
    void Show(ChartModel& model);
    /// The document was changed by somebody else.
    void Update();

    double Zoom() const { return m_view.Zoom(); }

    /// Up, or with -1 down, by a step; about the middle.
    void ZoomBy(int direction);
    void ShowTrueSize();
    void SetDpi(double dpi);

private:
    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void OnPaint();
    void OnMouseMove(PixelPoint point);
    void OnButtonDown(PixelPoint point);
    void OnButtonUp();
    bool OnSetCursor(LPARAM lParam) const;
    void OnWheel(WPARAM wParam, LPARAM lParam, bool sideways);
    void OnScrollBar(int bar, WPARAM wParam);
    bool OnKey(WPARAM key);
    bool OnArrow(WPARAM key);
    void SetZoom(double zoom, PixelPoint anchor);
    void ScrollBy(int dx, int dy);
    void UpdateScrollBars();
    PixelPoint Middle() const;

    std::function<void()> m_onChange;
    ChartModel* m_model = nullptr;
    PageView m_view;
    PageBuffer m_page;
    MemoryBitmap m_frame; ///< what is shown next, page and frames
    PixelPoint m_pressed; ///< where the button went down
    int m_wheel = 0;      ///< turned and not yet used
};

} // namespace host
