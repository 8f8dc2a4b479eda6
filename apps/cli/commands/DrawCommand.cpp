#include "commands/Commands.h"
#include "commands/Json.h"
#include "commands/OutputNames.h"
#include "files/Console.h"
#include "files/Streams.h"
#include "pages/LoadedChart.h"

#include <new>
#include <set>

namespace cli {
namespace {

using penlode::RectF;
using penlode::SizeF;

constexpr float kMargin = 5.0F;

/// One name for a file, however it is called.
std::string CanonicalName(const std::string& name) {
    std::error_code error;
    const std::filesystem::path path =
        std::filesystem::weakly_canonical(millichart::PathFromUtf8(name), error);
    return error ? name : millichart::Utf8FromPath(path);
}

std::string Millimetres(SizeF size) {
    return ToJson(static_cast<double>(size.Width)).dump() + " x " +
           ToJson(static_cast<double>(size.Height)).dump() + " mm";
}

void TellDocument(const DrawOptions& options, const LoadedChart& loaded, const std::string& shownName) {
    TellProblems(loaded.Diagnostics);
    if (options.Verbose && loaded.Chart) {
        for (const std::string& face : ReportFonts(*loaded.Chart).Faces) {
            Tell(shownName + ": " + face);
        }
    }
}

/// The page that was asked for, with a warning if the chart is larger; else the chart's own.
SizeF PageOf(const DrawOptions& options, const RectF& extent, const std::string& shownName) {
    if (!options.Page) {
        return {extent.Width + 2.0F * kMargin, extent.Height + 2.0F * kMargin};
    }
    if (extent.Width > options.Page->Width || extent.Height > options.Page->Height) {
        Diagnostic cut = penlode::Warning("", "the chart of " + Millimetres({extent.Width, extent.Height}) +
                                                  " is cut off by the page of " + Millimetres(*options.Page));
        cut.File = shownName;
        Tell(ToLine(cut));
    }
    return *options.Page;
}

/// With its source.
std::string DescriptionOf(const millichart::ChartDocument& document) {
    const bool hasBoth = !document.Description.empty() && !document.Source.empty();
    return document.Description + (hasBoth ? "\n" : "") + document.Source;
}

/// The file's bytes.
std::string Render(const DrawOptions& options, const LoadedChart& loaded, const std::string& shownName,
                   const OutputName& output) {
    const RectF extent = loaded.Chart->InkExtent();
    const SizeF page = PageOf(options, extent, shownName);
    const std::unique_ptr<Picture> picture =
        MakePicture({output.Format, page, options.Dpi, options.Background, loaded.Document.Title,
                     DescriptionOf(loaded.Document), options.TextAsOutlines});
    if (picture == nullptr) {
        throw UserError(ShownOutput(output.Name),
                        "the picture would be too large, expected fewer dots per inch or a smaller page");
    }
    const penlode::PointF corner{(page.Width - extent.Width) / 2.0F, (page.Height - extent.Height) / 2.0F};
    picture->Engine().TranslateTransform(corner.X - extent.X, corner.Y - extent.Y,
                                         penlode::MatrixOrder::Prepend);
    loaded.Chart->Draw(picture->Engine());
    std::string bytes = picture->Finish();
    if (bytes.empty()) {
        throw UserError(ShownOutput(output.Name), "the picture was lost, there may be too little memory");
    }
    return bytes;
}

/// False when the document cannot be drawn, which has been told then.
bool DrawOne(const DrawOptions& options, const std::string& input, std::set<std::string>& drawn) {
    const std::string shownName = ShownName(input);
    const LoadedChart loaded = LoadChart(input, options.Data);
    TellDocument(options, loaded, shownName);
    if (!loaded.Chart) {
        return false;
    }
    const OutputName output = OutputOf(options, input);
    RefuseToOverwrite(output.Name, shownName, options, loaded.Document.DataFiles());
    if (output.Name != kStandardStream && !drawn.insert(CanonicalName(output.Name)).second) {
        throw UserError(shownName, output.Name + " is already the picture of another input");
    }
    WriteOutput(output.Name, Render(options, loaded, shownName, output));
    return true;
}

} // namespace

bool Draw(const DrawOptions& options) {
    CheckOutputs(options);
    Progress progress(options.Inputs.size());
    std::set<std::string> drawn;
    bool allDrawn = true;
    for (const std::string& input : options.Inputs) {
        progress.Begin(ShownName(input));
        try {
            allDrawn = DrawOne(options, input, drawn) && allDrawn;
        } catch (const UserError& error) {
            Tell(error.what());
            allDrawn = false;
        } catch (const std::bad_alloc&) {
            Tell(ShownName(input) + ": " + kTooLittleMemory);
            allDrawn = false;
        }
    }
    return allDrawn;
}

} // namespace cli
