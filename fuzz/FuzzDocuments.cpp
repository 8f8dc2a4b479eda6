#include "files/UserError.h"
#include "pages/ChartDocument.h"
#include "pages/Picture.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <new>
#include <string>
#include <string_view>
#include <unistd.h>

/// A document, and behind a byte 0 a CSV file that replaces its data: loaded as `millichart draw` does, and
/// drawn as SVG and, if it is small, as PNG.
namespace {

std::string Kept(const char* ending, std::string_view bytes) {
    const auto name =
        std::filesystem::temp_directory_path() / ("millichart-fuzz-" + std::to_string(getpid()) + ending);
    std::ofstream(name, std::ios::binary).write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    return name.string();
}

void Draw(const cli::Chart& chart) {
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
    std::optional<std::string> table;
    if (end != std::string_view::npos) {
        table = Kept(".csv", input.substr(end + 1));
    }
    const cli::ChartDocument document = cli::LoadChartDocument(Kept(".json", input.substr(0, end)), table);
    if (document.Content != nullptr) {
        Draw(*document.Content);
    }
    return 0;
}
