#include "canvas/Picture.h"

#include "penlode/GraphicsEngine.h"
#include "penlode/Units.h"

#include <memory>

namespace designer {
namespace {

/// Takes the engine's pixels over as they are.
QImage AsImage(penlode::Image&& drawn) {
    if (!drawn.IsDrawable()) {
        return {};
    }
    auto kept = std::make_unique<penlode::Image>(std::move(drawn));
    auto* const image = kept.get();
    const auto drop = [](void* taken) { delete static_cast<penlode::Image*>(taken); };
    QImage picture(reinterpret_cast<uchar*>(image->Pixels.data()), image->Width, image->Height,
                   QImage::Format_RGB32, drop, image);
    if (!picture.isNull()) {
        kept.release(); // NOLINT(bugprone-unused-return-value): the picture has it now
    }
    return picture;
}

} // namespace

Picture Drawn(const millichart::LaidOutChart& chart, const PixelRect& area, double pixelsPerMillimetre) {
    Picture picture{{}, area, pixelsPerMillimetre};
    if (area.IsEmpty()) {
        return picture;
    }
    const auto millimetres = [pixelsPerMillimetre](int pixels) {
        return static_cast<float>(pixels / pixelsPerMillimetre);
    };
    const auto engine = penlode::CGraphicsEngine::ForRaster(
        {millimetres(area.Width()), millimetres(area.Height())},
        pixelsPerMillimetre * penlode::kMillimetresPerInch, penlode::kWhite);
    if (!engine) {
        return picture;
    }
    engine->TranslateTransform(-millimetres(area.Left), -millimetres(area.Top), penlode::MatrixOrder::Append);
    chart.Draw(*engine);
    picture.Pixels = AsImage(engine->Pixels());
    return picture;
}

} // namespace designer
