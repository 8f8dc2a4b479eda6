#include "window/Pictures.h"

#include "penlode/GraphicsEngine.h"
#include "penlode/svg/SvgEngine.h"

#include <cstring>
#include <optional>

namespace designer {
namespace {

using millichart::ChartDocument;
using millichart::LaidOutChart;
using penlode::CGraphicsEngine;
using penlode::Color;
using penlode::RectF;
using penlode::SizeF;

constexpr float kMargin = 5.0F;
constexpr double kClipboardDpi = 300.0;
constexpr Color kNone{0U};

void DrawInMargin(penlode::IGraphicsEngine& engine, const LaidOutChart& chart) {
    const RectF ink = chart.InkExtent();
    engine.TranslateTransform(kMargin - ink.X, kMargin - ink.Y, penlode::MatrixOrder::Prepend);
    chart.Draw(engine);
}

/// With its source.
std::string DescriptionOf(const ChartDocument& document) {
    const bool hasBoth = !document.Description.empty() && !document.Source.empty();
    return document.Description + (hasBoth ? "\n" : "") + document.Source;
}

std::unique_ptr<CGraphicsEngine> Raster(const LaidOutChart& chart, double dpi, bool isTransparent) {
    auto engine = CGraphicsEngine::ForRaster(PageSizeOf(chart), dpi, isTransparent ? kNone : penlode::kWhite);
    if (engine) {
        DrawInMargin(*engine, chart);
    }
    return engine;
}

} // namespace

SizeF PageSizeOf(const LaidOutChart& chart) {
    const RectF ink = chart.InkExtent();
    return {ink.Width + 2.0F * kMargin, ink.Height + 2.0F * kMargin};
}

std::string PictureOf(const ChartDocument& document, const LaidOutChart& chart, const PictureWish& wish) {
    if (wish.Format == PictureFormat::Png) {
        const auto engine = Raster(chart, wish.Dpi, wish.IsTransparent);
        return engine ? engine->EncodePng() : std::string();
    }
    if (wish.Format == PictureFormat::Pdf) {
        const auto engine =
            CGraphicsEngine::ForPdf(PageSizeOf(chart), {document.Title, DescriptionOf(document)});
        if (engine) {
            DrawInMargin(*engine, chart);
        }
        return engine ? engine->FinishPdf() : std::string();
    }
    const auto ground = wish.IsTransparent ? std::nullopt : std::optional(penlode::kWhite);
    penlode::CSvgEngine engine(PageSizeOf(chart), {document.Title, DescriptionOf(document), ground, false});
    DrawInMargin(engine, chart);
    return engine.Text();
}

QImage ImageOf(const LaidOutChart& chart, double dpi, bool isTransparent) {
    const auto engine = Raster(chart, dpi, isTransparent);
    if (!engine) {
        return {};
    }
    const penlode::Image pixels = engine->Pixels();
    const QImage lent(reinterpret_cast<const uchar*>(pixels.Pixels.data()), pixels.Width, pixels.Height,
                      QImage::Format_ARGB32);
    QImage image = lent.copy();
    constexpr double kInchesPerMetre = 1000.0 / 25.4;
    image.setDotsPerMeterX(static_cast<int>(dpi * kInchesPerMetre));
    image.setDotsPerMeterY(static_cast<int>(dpi * kInchesPerMetre));
    return image;
}

std::unique_ptr<QMimeData> MimeDataOf(const ChartDocument& document, const LaidOutChart& chart,
                                      const std::string& data) {
    auto mime = std::make_unique<QMimeData>();
    mime->setImageData(ImageOf(chart, kClipboardDpi));
    const std::string svg = PictureOf(document, chart, {PictureFormat::Svg});
    mime->setData(QStringLiteral("image/svg+xml"),
                  QByteArray(svg.data(), static_cast<qsizetype>(svg.size())));
    mime->setText(QString::fromStdString(data));
    return mime;
}

} // namespace designer
