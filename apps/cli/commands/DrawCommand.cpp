#include "commands/Commands.h"
#include "commands/Crew.h"
#include "commands/OutputNames.h"
#include "files/Console.h"
#include "files/Streams.h"
#include "pages/LoadedChart.h"
#include "pages/PaperSize.h"
#include "penlode/text/StringUtil.h"

#include <new>
#include <set>

namespace cli {
namespace {

using penlode::RectF;
using penlode::SizeF;

constexpr float kMargin = 5.0F;
constexpr double kScreenDpi = 96.0;

/// What became of an input before anything is written or told.
struct Attempt {
    std::vector<Diagnostic> Problems;
    std::vector<Diagnostic> Faces; ///< to be told if they are wanted
    std::vector<std::string> DataFiles;
    std::string Bytes; ///< of the picture; none when it failed
};

/// One name for a file, however it is called.
std::string CanonicalName(const std::string& name) {
    std::error_code error;
    const std::filesystem::path path =
        std::filesystem::weakly_canonical(millichart::PathFromUtf8(name), error);
    return error ? name : millichart::Utf8FromPath(path);
}

/// The page that was asked for, with a warning if the chart is larger; else the chart's own.
SizeF PageOf(const DrawOptions& options, const RectF& extent, std::vector<Diagnostic>& problems) {
    if (!options.Page) {
        return {extent.Width + 2.0F * kMargin, extent.Height + 2.0F * kMargin};
    }
    constexpr float kUnseen = 0.1F; // a figure that fills its page is as near
    if (extent.Width > options.Page->Width + kUnseen || extent.Height > options.Page->Height + kUnseen) {
        problems.push_back(penlode::Warning("", "the chart of " + Millimetres({extent.Width, extent.Height}) +
                                                    " is cut off by the page of " +
                                                    Millimetres(*options.Page)));
    }
    return *options.Page;
}

/// The document's, or else the caption.
std::string TitleOf(const LoadedChart& loaded) {
    std::string title = loaded.Document.Title;
    loaded.Chart->VisitTexts([&title](const millichart::ChartText& text) {
        if (title.empty() && text.Owner.Role == millichart::TextRole::Caption) {
            title = penlode::CStringUtil::WideToUtf8(text.Text);
            title.resize(title.find_last_not_of(" \r\n") + 1);
        }
    });
    return title;
}

/// With its source.
std::string DescriptionOf(const millichart::ChartDocument& document) {
    const bool hasBoth = !document.Description.empty() && !document.Source.empty();
    return document.Description + (hasBoth ? "\n" : "") + document.Source;
}

/// The file's bytes.
std::string Render(const DrawOptions& options, LoadedChart& loaded, const OutputName& output,
                   std::vector<Diagnostic>& problems) {
    // A figure of a size fills its page without any margin.
    const RectF extent = options.Source.Figure ? loaded.Chart->FullExtent() : loaded.Chart->InkExtent();
    const SizeF page = PageOf(options, extent, problems);
    const std::unique_ptr<Picture> picture =
        MakePicture({output.Format, page, options.Dpi.value_or(kScreenDpi), options.Background,
                     TitleOf(loaded), DescriptionOf(loaded.Document), options.TextAsOutlines});
    if (picture == nullptr) {
        throw UserError(ShownOutput(output.Name),
                        "the picture would be too large, expected fewer dots per inch or a smaller page");
    }
    const penlode::PointF corner{(page.Width - extent.Width) / 2.0F, (page.Height - extent.Height) / 2.0F};
    picture->Engine().TranslateTransform(corner.X - extent.X, corner.Y - extent.Y,
                                         penlode::MatrixOrder::Prepend);
    const std::vector<Diagnostic> ofRows = loaded.Chart->TakeRows(picture->Engine());
    problems.insert(problems.end(), ofRows.begin(), ofRows.end());
    loaded.Chart->Draw(picture->Engine());
    std::string bytes = picture->Finish();
    if (bytes.empty()) {
        throw UserError(ShownOutput(output.Name), "the picture was lost, there may be too little memory");
    }
    return bytes;
}

/// What was asked for and has no effect.
void WarnOfOptions(const DrawOptions& options, PictureFormat format, std::vector<Diagnostic>& problems) {
    if (options.Dpi && format != PictureFormat::Png) {
        problems.push_back(penlode::Warning("", std::string("--dpi is for a PNG; a picture ") +
                                                    EndingOf(format) + " has no dots"));
    }
}

/// Loads and draws, in the memory alone. May run on any thread.
Attempt DrawAhead(const DrawOptions& options, const std::string& input) {
    Attempt attempt;
    try {
        LoadedChart loaded = LoadChart(input, options.Source);
        attempt.Faces = loaded.Faces;
        attempt.Problems = loaded.Diagnostics;
        attempt.DataFiles = loaded.Document.DataFiles();
        if (loaded.Chart) {
            const OutputName output = OutputOf(options, input);
            WarnOfOptions(options, output.Format, attempt.Problems);
            attempt.Bytes = Render(options, loaded, output, attempt.Problems);
        }
    } catch (const UserError& error) {
        attempt.Problems.push_back(error.Told());
    } catch (const std::bad_alloc&) {
        attempt.Problems.push_back(penlode::Error("", kTooLittleMemory));
    }
    for (Diagnostic& problem : attempt.Problems) {
        problem.File = problem.File.empty() ? ShownName(input) : problem.File;
    }
    if (options.IsStrict) {
        TakeWarningsForErrors(attempt.Problems);
    }
    return attempt;
}

void Tell(const DrawOptions& options, const std::string& input, Attempt& attempt) {
    TellProblems(attempt.Problems, options.Voice);
    for (Diagnostic& face : attempt.Faces) {
        if (options.Verbose) {
            face.File = ShownName(input);
            TellFact(face, options.Voice);
        }
    }
}

/// Throws UserError.
void Write(const DrawOptions& options, const std::string& input, const Attempt& attempt,
           std::set<std::string>& drawn) {
    const std::string shownName = ShownName(input);
    const OutputName output = OutputOf(options, input);
    if (!output.Folder.empty()) {
        MakeFolder(output.Folder);
    }
    RefuseToOverwrite(output.Name, shownName, options, attempt.DataFiles);
    if (output.Name != kStandardStream && !drawn.insert(CanonicalName(output.Name)).second) {
        throw UserError(shownName, output.Name + " is already the picture of another input");
    }
    WriteOutput(output.Name, attempt.Bytes);
}

/// False when there is no picture, which has been told then.
bool Finish(const DrawOptions& options, const std::string& input, Attempt attempt,
            std::set<std::string>& drawn) {
    Tell(options, input, attempt);
    if (millichart::HasErrors(attempt.Problems)) {
        return false;
    }
    try {
        Write(options, input, attempt, drawn);
    } catch (const UserError& error) {
        TellProblems({error.Told()}, options.Voice);
        return false;
    }
    return true;
}

} // namespace

bool Draw(const DrawOptions& options) {
    CheckOutputs(options);
    Progress progress(options.Inputs.size());
    Crew<Attempt> crew(options.Inputs.size(), options.Jobs,
                       [&options](std::size_t i) { return DrawAhead(options, options.Inputs[i]); });
    std::set<std::string> drawn;
    bool allDrawn = true;
    for (std::size_t i = 0; i < options.Inputs.size(); ++i) {
        progress.Begin(ShownName(options.Inputs[i]));
        allDrawn = Finish(options, options.Inputs[i], crew.Take(i), drawn) && allDrawn;
    }
    return allDrawn;
}

} // namespace cli
