#include "pages/ChartDocument.h"

#include "documents/Fields.h"
#include "documents/ProblemMessages.h"
#include "files/InputFile.h"
#include "files/UserError.h"
#include "pages/FontReport.h"
#include "penlode/text/StringUtil.h"

#include <cmath>
#include <filesystem>
#include <new>

namespace cli {
namespace {

using penlode::CStringUtil;

constexpr const char* kFormatVersion = "1";
constexpr float kMaxPage = 5000.0F;

void LoadHead(ChartStream& stream, ChartDocument& document) {
    const std::string version = LoadText(stream, "version", kFormatVersion);
    if (version != kFormatVersion) {
        stream.Refuse("version", version, kFormatVersion);
    }
    document.Kind = LoadText(stream, "kind", "");
    document.Title = CStringUtil::AnsiToUtf8(LoadText(stream, "title", ""));
    document.Description = CStringUtil::AnsiToUtf8(LoadText(stream, "description", ""));
    const std::string source = CStringUtil::AnsiToUtf8(LoadText(stream, "source", ""));
    document.Description += (document.Description.empty() || source.empty() ? "" : "\n") + source;
}

void LoadContent(ChartStream& stream, const DataSource& source, ChartDocument& document) {
    if (const ChartKind* kind = FindChartKind(document.Kind)) {
        document.Content = kind->Load(stream, source);
    } else if (stream.Has("kind")) {
        stream.Refuse("kind", document.Kind, ChartKindNames());
    } else {
        source.Messages->push_back({"", Severity::Error, 0, "kind", "no such key", ChartKindNames()});
    }
}

bool FitsAPage(const penlode::RectF& extent) {
    return std::isfinite(extent.X) && std::isfinite(extent.Y) && extent.Width >= 0.0F &&
           extent.Height >= 0.0F && extent.Width <= kMaxPage && extent.Height <= kMaxPage;
}

/// Why the chart cannot be drawn, or what is doubtful about it.
std::vector<Message> Findings(const Chart& chart) {
    std::vector<Message> findings = chart.Doubts();
    if (HasErrors(findings)) {
        return findings;
    }
    const penlode::RectF extent = chart.Extent();
    if (extent.Width == 0.0F && extent.Height == 0.0F) {
        return {chart.Emptiness()};
    }
    if (!FitsAPage(extent)) {
        return {{"", Severity::Error, 0, "", "", "",
                 "the chart does not fit a page of 5000 x 5000 mm, check its sizes and values"}};
    }
    for (const std::string& warning : ReportFonts(chart).Warnings) {
        findings.push_back({"", Severity::Warning, 0, "", "", "", warning});
    }
    return findings;
}

void Append(std::vector<Message>& messages, const std::vector<Message>& more) {
    messages.insert(messages.end(), more.begin(), more.end());
}

void Load(const std::string& input, const std::optional<std::string>& data, ChartDocument& document) {
    penlode::CJsonSerializeStream json(ReadInput(input), input);
    ChartStream stream(json);
    if (!json.IsUnreadable()) {
        const std::string folder = std::filesystem::path(input).parent_path().string();
        LoadHead(stream, document);
        LoadContent(stream, {folder, data, &document.Messages, &document.DataFiles}, document);
    }
    Append(document.Messages, ProblemMessages(json, stream));
    if (document.Content != nullptr && !HasErrors(document.Messages)) {
        Append(document.Messages, Findings(*document.Content));
    }
    PutInDocumentOrder(json, document.Messages);
}

} // namespace

ChartDocument LoadChartDocument(const std::string& input, const std::optional<std::string>& data) {
    ChartDocument document;
    const std::string shownName = ShownName(input);
    try {
        Load(input, data, document);
        for (Message& message : document.Messages) {
            message.File = message.File.empty() ? shownName : message.File; // without one, it is the document
        }
    } catch (const UserError& error) {
        document.Messages.push_back({shownName, Severity::Error, 0, "", "", "", error.Reason()});
    } catch (const std::bad_alloc&) {
        document.Messages = {{shownName, Severity::Error, 0, "", "", "", kTooLittleMemory}};
    }
    if (HasErrors(document.Messages)) {
        document.Content = nullptr;
    }
    return document;
}

} // namespace cli
