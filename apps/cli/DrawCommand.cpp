#include "DrawCommand.h"

#include "ChartDocument.h"
#include "OutputFile.h"
#include "UserError.h"
#include "penlode/cairo/GraphicsEngine.h"

#include <cmath>
#include <filesystem>
#include <iostream>

namespace cli {
namespace {

constexpr float kMargin = 5.0F;
constexpr float kLargestPage = 5000.0F;

bool IsDrawable(const penlode::RectF& extent) {
    return std::isfinite(extent.X) && std::isfinite(extent.Y) && extent.Width > 0.0F &&
           extent.Height > 0.0F && extent.Width <= kLargestPage && extent.Height <= kLargestPage;
}

/// The chart's extent, or an error that says why there is nothing to draw.
penlode::RectF CheckedExtent(const Chart& chart, const std::string& fileName) {
    const penlode::RectF extent = chart.Extent();
    if (extent.Width == 0.0F && extent.Height == 0.0F) {
        throw UserError(fileName +
                        ": found nothing to draw, expected values in data/values and a size above 0");
    }
    if (!IsDrawable(extent)) {
        throw UserError(fileName +
                        ": the chart does not fit a page of 5000 x 5000 mm, check its sizes and values");
    }
    return extent;
}

} // namespace

void Draw(const DrawOptions& options) {
    if (std::filesystem::path(options.Output).extension() != ".png") {
        throw UserError(options.Output + ": found another ending, expected a name that ends in .png");
    }
    const ChartDocument document = LoadChartDocument(options.Input);
    for (const penlode::StreamProblem& remark : document.Remarks) {
        std::cerr << "millichart: " << Describe(options.Input, remark) << '\n';
    }
    const penlode::RectF extent = CheckedExtent(*document.Content, options.Input);

    const penlode::SizeF page{extent.Width + 2.0F * kMargin, extent.Height + 2.0F * kMargin};
    const auto engine = penlode::CGraphicsEngine::ForRaster(page, options.Dpi, penlode::kWhite);
    if (engine == nullptr) {
        throw UserError(options.Output + ": the picture would be too large, expected fewer dots per inch");
    }
    engine->TranslateTransform(kMargin - extent.X, kMargin - extent.Y, penlode::MatrixOrder::Prepend);
    document.Content->Draw(*engine);
    WriteFileWhole(options.Output, engine->EncodePng());
}

} // namespace cli
