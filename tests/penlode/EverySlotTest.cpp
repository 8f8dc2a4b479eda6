#include "support/EverySlot.h"

#include "penlode/cairo/GraphicsEngine.h"
#include "penlode/recording/RecordingEngine.h"
#include "penlode/svg/SvgEngine.h"

#include <gtest/gtest.h>

using namespace penlode;

TEST(EverySlot, IsRefusedAlikeByEveryEngine) {
    const auto answers = [](IGraphicsEngine& engine) {
        const Image flat{2, 2, 0.0F, 0.0F, std::vector<Color>(4, kBlack)};
        const Image plain{2, 2, 96.0F, 96.0F, std::vector<Color>(4, kBlack)};
        const RectF box{0, 0, 9, 9};
        const GradientVertex vertices[2]{};
        const GradientRect beyond{0, 2};
        const Matrix folded = Matrix::Scale(1, 0);
        std::vector<PointF> data(100, PointF{1, 1});
        data[70].Y = INFINITY;
        const Pen pen;
        const SolidBrush clear{Color{0}};
        std::vector<Status> statuses{
            engine.DrawImage(&flat, box, 0, 0, 1, 1, Unit::Inch, nullptr, nullptr, nullptr),
            engine.DrawImage(&plain, box, 0, 0, 1e38F, 1, Unit::Inch, nullptr, nullptr, nullptr),
            engine.DrawImage(&plain, box, 0, 0, 1, 1, Unit::World, nullptr, nullptr, nullptr),
            engine.DrawImage(&flat, box), // in pixels, whatever their size
        };
        engine.SetTransform(&folded);
        statuses.push_back(engine.DrawLines(&pen, data.data(), 100));
        statuses.push_back(engine.FillRectangle(&clear, NAN, 0, 1, 1));
        statuses.push_back(engine.DrawEllipse(&pen, 0, 0, -1, 5));
        const int filled =
            engine.GradientFill({0, 0, 9, 9}, {}, vertices, 2, &beyond, 1, GradientMode::RectH);
        statuses.push_back(filled == 0 ? Status::InvalidParameter : Status::Ok);
        return statuses;
    };
    constexpr Status kRefused = Status::InvalidParameter;
    const std::vector<Status> expected{kRefused, kRefused, kRefused,   Status::Ok,
                                       kRefused, kRefused, Status::Ok, kRefused};
    CSvgEngine svg(kEverySlotPage);
    CRecordingEngine recording;
    EXPECT_EQ(answers(*CGraphicsEngine::ForRaster(kEverySlotPage, 96, kWhite)), expected);
    EXPECT_EQ(answers(*CGraphicsEngine::ForPdf(kEverySlotPage)), expected);
    EXPECT_EQ(answers(svg), expected);
    EXPECT_EQ(answers(recording), expected);
}
