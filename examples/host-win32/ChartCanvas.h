#pragma once

#include "InPlaceEdit.h"
#include "PageBuffer.h"
#include "Window.h"

#include <functional>
#include <memory>
#include <optional>

namespace host {

/// The part of the host's window that shows the page: it scrolls, zooms, names what is under the mouse, and
/// selects and moves parts of the chart by mouse and keyboard. What is more than that it asks of its parent,
/// by the commands of the menu.
class ChartCanvas final : public Window {
public:
    /// `onChange` is called when the chart, the selection, what is under the mouse or the zoom has changed.
    ChartCanvas(HWND parent, std::function<void()> onChange);

    /// From now on, this document's; it must outlive the canvas, or the next call.
    void Show(ChartModel& model);
    /// The document was changed by somebody else.
    void Update();

    double Zoom() const { return m_view.Zoom(); }

    /// What is under the mouse while no button is down.
    const std::optional<millichart::PlacedPart>& Hovered() const { return m_hovered; }

    /// Up, or with -1 down, by a step; about the middle.
    void ZoomBy(int direction);
    void ShowTrueSize();
    void SetDpi(double dpi);

    /// Opens an editor over the selected part's text, if it has one that can be edited.
    void EditText();

    bool IsEditingText() const { return m_edit != nullptr; }

    /// Ends that, if it is going on.
    void FinishEdit(bool isKept);

    /// The middle of the selected part on the screen, where its menu opens by the keyboard.
    POINT MenuPlace() const;

private:
    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    std::optional<LRESULT> OnMouse(UINT message, WPARAM wParam, LPARAM lParam);
    std::optional<LRESULT> OnEdit(UINT message, WPARAM wParam, LPARAM lParam);
    void OnPaint();
    void OnMouseMove(PixelPoint point);
    void OnButtonDown(PixelPoint point);
    void OnButtonUp();
    void OnDoubleClick(PixelPoint point);
    bool OnSetCursor(LPARAM lParam) const;
    void OnWheel(WPARAM wParam, LPARAM lParam, bool sideways);
    void OnScrollBar(int bar, WPARAM wParam);
    bool OnKey(WPARAM key);
    bool OnArrow(WPARAM key);
    void OnTyped(WPARAM character);
    void Hover(std::optional<millichart::PlacedPart> part);
    std::optional<millichart::PlacedPart> PartAt(PixelPoint point) const;
    float Reach() const;
    void Ask(int command) const;
    void SetZoom(double zoom, PixelPoint anchor);
    void ScrollBy(int dx, int dy);
    void UpdateScrollBars();
    PixelPoint Middle() const;

    std::function<void()> m_onChange;
    ChartModel* m_model = nullptr;
    const millichart::ChartKind* m_kind = nullptr; ///< that is shown; null before the first is
    PageView m_view;
    PageBuffer m_page;
    MemoryBitmap m_frame; ///< what is shown next, page and frames
    std::optional<millichart::PlacedPart> m_hovered;
    std::unique_ptr<InPlaceEdit> m_edit;
    PixelPoint m_pressed; ///< where the button went down
    int m_wheel = 0;      ///< turned and not yet used
};

} // namespace host
