#include "editing/qt/SurfacePainter.h"

#include "penlode/GraphicsEngine.h"

#include <QImage>
#include <QPaintDevice>

namespace millichart {

void PaintByEngine(QPainter& painter, const QRect& box,
                   const std::function<void(penlode::IGraphicsEngine& engine)>& draw) {
    constexpr double kPixelsPerInch = 96.0;
    constexpr float kMillimetresPerPixel = 25.4F / 96.0F;
    const double scale = painter.device()->devicePixelRatioF();
    const penlode::SizeF size{static_cast<float>(box.width()) * kMillimetresPerPixel,
                              static_cast<float>(box.height()) * kMillimetresPerPixel};
    const auto engine = penlode::CGraphicsEngine::ForRaster(size, kPixelsPerInch * scale, penlode::Color{0});
    if (!engine) {
        return;
    }
    engine->SetPageUnit(penlode::Unit::Pixel);
    engine->SetPageScale(static_cast<float>(scale));
    draw(*engine);
    const penlode::Image pixels = engine->Pixels();
    QImage picture(reinterpret_cast<const uchar*>(pixels.Pixels.data()), pixels.Width, pixels.Height,
                   QImage::Format_ARGB32);
    picture.setDevicePixelRatio(scale);
    painter.drawImage(box.topLeft(), picture);
}

} // namespace millichart
