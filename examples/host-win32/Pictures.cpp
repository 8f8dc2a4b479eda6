#include "Pictures.h"

#include "penlode/gdiplus/GraphicsEngine.h"
#include "penlode/svg/SvgEngine.h"

namespace host {
namespace {

using millichart::LaidOutChart;
using penlode::CGraphicsEngine;

constexpr double kPngDpi = 300.0;

penlode::SizeF PageOf(const LaidOutChart& chart, float margin) {
    const penlode::RectF ink = chart.InkExtent();
    return {ink.Width + 2.0F * margin, ink.Height + 2.0F * margin};
}

void DrawInMargin(penlode::IGraphicsEngine& engine, const LaidOutChart& chart, float margin) {
    const penlode::RectF ink = chart.InkExtent();
    engine.TranslateTransform(margin - ink.X, margin - ink.Y, penlode::MatrixOrder::Prepend);
    chart.Draw(engine);
}

} // namespace

std::string PngOf(const LaidOutChart& chart, float margin) {
    const auto engine = CGraphicsEngine::ForRaster(PageOf(chart, margin), kPngDpi, penlode::kWhite);
    if (engine == nullptr) {
        return {};
    }
    DrawInMargin(*engine, chart, margin);
    return engine->EncodePng();
}

std::string EmfOf(const LaidOutChart& chart, float margin) {
    const auto engine = CGraphicsEngine::ForMetafile(PageOf(chart, margin));
    if (engine == nullptr) {
        return {};
    }
    DrawInMargin(*engine, chart, margin);
    return engine->FinishMetafile();
}

std::string SvgOf(const millichart::ChartDocument& document, const LaidOutChart& chart, float margin) {
    const bool hasBoth = !document.Description.empty() && !document.Source.empty();
    const std::string description = document.Description + (hasBoth ? "\n" : "") + document.Source;
    penlode::CSvgEngine engine(PageOf(chart, margin), {document.Title, description, penlode::kWhite, false});
    DrawInMargin(engine, chart, margin);
    return engine.Text();
}

} // namespace host
