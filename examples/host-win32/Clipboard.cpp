#include "Clipboard.h"

#include "Metafile.h"

#include <algorithm>
#include <string>

namespace host {
namespace {

using penlode::CGraphicsEngine;

constexpr float kMargin = 1.0F; // mm
constexpr double kPngDpi = 300.0;

penlode::SizeF PictureSize(const penlode::RectF& ink) {
    return {ink.Width + 2.0F * kMargin, ink.Height + 2.0F * kMargin};
}

void DrawPicture(CGraphicsEngine& engine, const millichart::LaidOutChart& chart) {
    const penlode::RectF ink = chart.InkExtent();
    engine.TranslateTransform(kMargin - ink.X, kMargin - ink.Y, penlode::MatrixOrder::Prepend);
    chart.Draw(engine);
}

KeptMetafile MetafileOf(const millichart::LaidOutChart& chart) {
    const auto engine = CGraphicsEngine::ForMetafile(PictureSize(chart.InkExtent()));
    if (engine == nullptr) {
        return nullptr;
    }
    DrawPicture(*engine, chart);
    return FinishedMetafile(*engine);
}

KeptMemory PngOf(const millichart::LaidOutChart& chart) {
    const auto engine = CGraphicsEngine::ForRaster(PictureSize(chart.InkExtent()), kPngDpi, penlode::kWhite);
    if (engine == nullptr) {
        return nullptr;
    }
    DrawPicture(*engine, chart);
    const std::string bytes = engine->EncodePng();
    KeptMemory memory(GlobalAlloc(GMEM_MOVEABLE, bytes.size()));
    if (memory) {
        std::copy(bytes.begin(), bytes.end(), static_cast<char*>(GlobalLock(memory.get())));
        GlobalUnlock(memory.get());
    }
    return memory;
}

/// The system owns what it has taken.
template <class Kept> void Put(UINT format, Kept& data) {
    if (data && SetClipboardData(format, data.get()) != nullptr) {
        data.release();
    }
}

} // namespace

bool CopyChart(HWND owner, const millichart::LaidOutChart& chart) {
    KeptMetafile metafile = MetafileOf(chart);
    KeptMemory png = PngOf(chart);
    if (OpenClipboard(owner) == FALSE) {
        return false;
    }
    EmptyClipboard();
    Put(CF_ENHMETAFILE, metafile);
    Put(RegisterClipboardFormatW(L"PNG"), png);
    CloseClipboard();
    return true;
}

} // namespace host
