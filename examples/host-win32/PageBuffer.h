#pragma once

#include "Handles.h"
#include "PagePixels.h"
#include "model/ChartModel.h"

namespace host {

/// Pixels in memory, drawn on through a device context.
class MemoryBitmap {
public:
    /// Keeps what is large enough already.
    void Reserve(int width, int height);

    HDC Context() const { return m_context.get(); }

private:
    int m_width = 0;
    int m_height = 0;
    // The context lets go of the bitmap before that is deleted.
    KeptBitmap m_bitmap;
    KeptContext m_context;
};

/// The drawn page. A chart is drawn again when it or the zoom has changed, or when the view has left what was
/// drawn ahead; any other painting only copies.
class PageBuffer {
public:
    void Show(HDC target, const ChartModel& model, const PageView& view);

    /// For another document.
    void Forget() { m_revision = 0; }

private:
    bool Serves(const ChartModel& model, const PageView& view) const;
    void Draw(const ChartModel& model, const PageView& view);

    MemoryBitmap m_bitmap;
    PixelRect m_area; ///< that is drawn, in page pixels
    double m_scale = 0.0;
    std::size_t m_revision = 0;
};

} // namespace host
