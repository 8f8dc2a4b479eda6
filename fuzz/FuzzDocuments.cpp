#include "documents/ChartDocument.h"
#include "pages/Picture.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <optional>
#include <string>
#include <string_view>

/// A document, and behind a byte 0 a CSV file that replaces its data: loaded, drawn as SVG and,
/// if it is small, as PNG, and saved.
namespace {

void Draw(const millichart::LaidOutChart& chart) {
    const penlode::RectF extent = chart.Extent();
    cli::PictureSettings settings;
    settings.Page = {extent.Width + 10.0F, extent.Height + 10.0F};
    for (const cli::PictureFormat format : {cli::PictureFormat::Svg, cli::PictureFormat::Png}) {
        settings.Format = format;
        const bool isSmall = extent.Width < 300.0F && extent.Height < 300.0F;
        if (const auto picture =
                isSmall || format == cli::PictureFormat::Svg ? cli::MakePicture(settings) : nullptr) {
            chart.Draw(picture->Engine());
            picture->Finish();
        }
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    const std::string_view input(reinterpret_cast<const char*>(bytes), size);
    const std::size_t end = input.find('\0');
    std::optional<millichart::TableInput> table;
    if (end != std::string_view::npos) {
        table = millichart::TableInput{{"table.csv", std::string(input.substr(end + 1))}};
    }
    const auto document =
        millichart::ChartDocument::FromText(std::string(input.substr(0, end)), "document.json", table);
    const millichart::LaidOutChart chart = document.LayOut();
    if (document.IsSound() && !millichart::HasErrors(chart.Diagnostics)) {
        Draw(chart);
    }
    const auto saved = millichart::ChartDocument::FromText(document.Text(), "document.json");
    if (document.IsSound() && !saved.IsSound()) {
        std::abort(); // what was saved can be loaded
    }
    return 0;
}
