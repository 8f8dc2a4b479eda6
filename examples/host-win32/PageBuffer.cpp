#include "PageBuffer.h"

#include "penlode/gdiplus/GraphicsEngine.h"

#include <algorithm>

namespace host {
namespace {

PixelRect Common(const PixelRect& a, const PixelRect& b) {
    return {(std::max)(a.Left, b.Left), (std::max)(a.Top, b.Top), (std::min)(a.Right, b.Right),
            (std::min)(a.Bottom, b.Bottom)};
}

KeptBitmap PixelsInMemory(int width, int height) {
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = -height; // from the top row down
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    void* pixels = nullptr;
    return KeptBitmap(CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &pixels, nullptr, 0));
}

} // namespace

void MemoryBitmap::Reserve(int width, int height) {
    if (width <= m_width && height <= m_height) {
        return;
    }
    m_width = (std::max)(width, m_width);
    m_height = (std::max)(height, m_height);
    m_context.reset(CreateCompatibleDC(nullptr));
    m_bitmap = PixelsInMemory(m_width, m_height);
    SelectObject(m_context.get(), m_bitmap.get());
}

void PageBuffer::Show(HDC target, const ChartModel& model, const PageView& view) {
    if (!Serves(model, view)) {
        Draw(model, view);
    }
    const PixelPoint scroll = view.Scroll();
    BitBlt(target, m_area.Left - scroll.X, m_area.Top - scroll.Y, m_area.Width(), m_area.Height(),
           m_bitmap.Context(), 0, 0, SRCCOPY);
}

bool PageBuffer::Serves(const ChartModel& model, const PageView& view) const {
    return m_revision == model.Revision() && m_scale == view.PixelsPerMillimetre() &&
           m_area.Contains(Common(view.VisibleArea(), view.SheetPixels()));
}

void PageBuffer::Draw(const ChartModel& model, const PageView& view) {
    m_revision = model.Revision();
    m_scale = view.PixelsPerMillimetre();
    m_area = AreaToDraw(view);
    m_bitmap.Reserve(m_area.Width(), m_area.Height());
    const HDC context = m_bitmap.Context();
    const RECT whole{0, 0, m_area.Width(), m_area.Height()};
    FillRect(context, &whole, static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH)));
    if (const auto engine = penlode::CGraphicsEngine::ForDeviceContext(context, view.Dpi() * view.Zoom())) {
        engine->TranslateTransform(static_cast<float>(-m_area.Left / m_scale),
                                   static_cast<float>(-m_area.Top / m_scale), penlode::MatrixOrder::Prepend);
        model.Chart().Draw(*engine);
    }
}

} // namespace host
