#include "penlode/cairo/Picture.h"

#include <array>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <vector>

using namespace penlode;

namespace {

const Pen kPen(kBlack, 2.0F);
const SolidBrush kBrush{kBlack};

} // namespace

TEST(GuardBand, ExtremeNumbersAreHarmless) {
    const auto g = PixelSurface(40, 30);
    const float huge = std::numeric_limits<float>::max();
    const std::array<PointF, 4> corners{{{-huge, -huge}, {huge, -huge}, {huge, huge}, {-huge, huge}}};
    std::vector<PointF> data;
    for (std::size_t i = 0; i < 100; ++i) {
        data.push_back(i % 3 == 0 ? PointF{static_cast<float>(i), 7} : corners[i % 4]);
    }
    const Font giant{L"宋体", 1e30F, FontStyle::Regular};
    const Pen wide(kBlack, huge);
    for (const float scale : {1e-30F, 1.0F, 1e30F}) {
        g->ResetTransform();
        g->ScaleTransform(scale, scale, MatrixOrder::Prepend);
        g->DrawPolygon(&kPen, corners.data(), 4);
        g->DrawLines(&wide, corners.data(), 4);
        g->DrawLines(&wide, data.data(), 100);
        g->DrawLines(&kPen, data.data(), 100);
        g->DrawCurve(&kPen, corners.data(), 4);
        g->DrawPie(&kPen, {-huge, -huge, huge, huge}, 1e30F, huge);
        g->FillEllipse(&kBrush, -huge, -huge, huge, huge);
        g->DrawString(L"大", -1, &giant, PointF{-huge, 0}, &kBrush);
        g->SetClip(RectF{-huge, -huge, huge, huge}, CombineMode::Xor);
        g->ResetClip();
    }
    g->ResetTransform();
    const SolidBrush red{Color{0xFFFF0000}};
    g->FillRectangle(&red, 0, 0, 40, 30);
    EXPECT_EQ(CountOf(g->Pixels(), Color{0xFFFF0000}), 1200);
}
