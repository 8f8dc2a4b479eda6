#include "model/PrintedPage.h"

#include <algorithm>

namespace host {
namespace {

using penlode::MatrixOrder;
using penlode::PointF;
using penlode::RectF;

/// Where something that long begins, as near the middle of the paper as the printable part lets it.
float Begin(float length, float paperMiddle, float from, float to) {
    return std::clamp(paperMiddle - length * 0.5F, from, std::max(from, to - length));
}

} // namespace

PagePlace PlaceOnPage(const RectF& ink, const PrintedPage& page) {
    const RectF& printable = page.Printable;
    const PointF middle = page.Paper.Center();
    PagePlace place;
    place.Scale = std::min({1.0F, printable.Width / ink.Width, printable.Height / ink.Height});
    const float left = Begin(ink.Width * place.Scale, middle.X, printable.X, printable.Right());
    const float top = Begin(ink.Height * place.Scale, middle.Y, printable.Y, printable.Bottom());
    place.Offset = PointF{left, top} - PointF{ink.X * place.Scale, ink.Y * place.Scale};
    return place;
}

void DrawOnPage(penlode::IGraphicsEngine& engine, const millichart::LaidOutChart& chart,
                const PrintedPage& page) {
    const PagePlace place = PlaceOnPage(chart.InkExtent(), page);
    engine.TranslateTransform(place.Offset.X, place.Offset.Y, MatrixOrder::Prepend);
    engine.ScaleTransform(place.Scale, place.Scale, MatrixOrder::Prepend);
    chart.Draw(engine);
}

} // namespace host
