#include "DrawCommand.h"

#include "ChartDocument.h"
#include "FontReport.h"
#include "OutputFile.h"
#include "Picture.h"
#include "UserError.h"

#include <cmath>
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

void Remark(const std::string& message) {
    std::cerr << "millichart: " << message << '\n';
}

void TellRemarks(const DrawOptions& options, const ChartDocument& document) {
    for (const penlode::StreamProblem& remark : document.Remarks) {
        Remark(Describe(options.Input, remark));
    }
    const FontReport fonts = ReportFonts(*document.Content);
    for (const std::string& face : fonts.Faces) {
        if (options.Verbose) {
            Remark(options.Input + ": " + face);
        }
    }
    for (const std::string& warning : fonts.Warnings) {
        Remark(options.Input + ": " + warning);
    }
}

PictureSettings SettingsOf(const DrawOptions& options, const ChartDocument& document,
                           const penlode::RectF& extent) {
    const auto format = FormatOfName(options.Output);
    if (!format) {
        throw UserError(options.Output +
                        ": found another ending, expected a name that ends in .png, .svg or .pdf");
    }
    return {*format,
            {extent.Width + 2.0F * kMargin, extent.Height + 2.0F * kMargin},
            options.Dpi,
            document.Title,
            document.Description,
            options.TextAsOutlines};
}

} // namespace

void Draw(const DrawOptions& options) {
    const ChartDocument document = LoadChartDocument(options.Input);
    const penlode::RectF extent = CheckedExtent(*document.Content, options.Input);
    const std::unique_ptr<Picture> picture = MakePicture(SettingsOf(options, document, extent));
    if (picture == nullptr) {
        throw UserError(options.Output + ": the picture would be too large, expected fewer dots per inch");
    }
    TellRemarks(options, document);
    picture->Engine().TranslateTransform(kMargin - extent.X, kMargin - extent.Y,
                                         penlode::MatrixOrder::Prepend);
    document.Content->Draw(picture->Engine());
    WriteFileWhole(options.Output, picture->Finish());
}

} // namespace cli
