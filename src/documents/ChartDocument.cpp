#include "documents/ChartDocument.h"

#include "documents/ChartLayouts.h"
#include "documents/Fields.h"
#include "penlode/text/StringUtil.h"

#include <algorithm>
#include <cmath>
#include <set>
#include <type_traits>
#include <utility>

namespace millichart {

using namespace documents;
using penlode::CStringUtil;
using penlode::Diagnostic;

namespace {

constexpr const char* kFormatVersion = "1";
constexpr float kMaxPage = 5000.0F;

template <class T> constexpr bool kIsNone = std::is_same_v<std::decay_t<T>, std::monostate>;

/// Calls `work` with what the variant holds, unless that is nothing.
template <class Variant, class Work> void WithContent(Variant& held, const Work& work) {
    std::visit(
        [&work](auto& content) {
            if constexpr (!kIsNone<decltype(content)>) {
                work(content);
            }
        },
        held);
}

/// Loads or saves.
void SerUtf8(penlode::CSerializeStream& stream, const char* key, std::string& text) {
    std::string narrow = CStringUtil::Utf8ToAnsi(text);
    stream.Ser(key, narrow, {});
    if (!stream.IsSaving()) {
        text = CStringUtil::AnsiToUtf8(narrow);
    }
}

void SerTexts(penlode::CSerializeStream& stream, ChartDocument& document) {
    SerUtf8(stream, "title", document.Title);
    SerUtf8(stream, "description", document.Description);
    SerUtf8(stream, "source", document.Source);
}

void LoadVersion(ChartStream& stream) {
    const std::string version = LoadText(stream, "version", kFormatVersion);
    if (version != kFormatVersion) {
        stream.Refuse("version", version, kFormatVersion);
    }
}

/// The content of the kind that the document tells, empty.
ChartContent LoadKind(ChartStream& stream, std::vector<Diagnostic>& diagnostics) {
    const std::string name = LoadText(stream, "kind", "");
    if (const ChartKind* kind = FindChartKind(name)) {
        return kind->Make();
    }
    if (stream.Has("kind")) {
        stream.Refuse("kind", name, ChartKindNames());
    } else {
        diagnostics.push_back(penlode::Error("kind", "no such key", ChartKindNames()));
    }
    return {};
}

void SaveDocument(SavingStream& stream, ChartDocument& document) {
    stream.Text("version", kFormatVersion);
    if (const ChartKind* kind = KindOf(document.Content)) {
        stream.Text("kind", kind->Name);
    }
    SerTexts(stream, document);
    WithContent(document.Content, [&](auto& content) {
        SaveContent(stream, content);
        SerPoint(stream, "location", document.Location);
        SerOffsets(stream, content);
    });
}

PlaceHashes HashesOf(ChartDocument& document) {
    PlaceHashes hashes;
    SavingStream stream(hashes);
    SaveDocument(stream, document);
    return hashes;
}

void TakeNamesOfTable(ChartContent& content, bool inPlaceOfOwn) {
    WithContent(content, [inPlaceOfOwn](auto& held) { TakeTableNames(held, inPlaceOfOwn); });
}

bool IsOfData(const std::string& place) {
    return place.starts_with("data/");
}

bool FitsAPage(const penlode::RectF& extent) {
    return std::isfinite(extent.X) && std::isfinite(extent.Y) && extent.Width >= 0.0F &&
           extent.Height >= 0.0F && extent.Width <= kMaxPage && extent.Height <= kMaxPage;
}

/// Why a chart without errors cannot be drawn nevertheless takes the place of what is doubtful.
std::vector<Diagnostic> WithFaultOfExtent(LayoutTask task, const penlode::RectF& extent) {
    if (HasErrors(task.Diagnostics)) {
        return std::move(task.Diagnostics);
    }
    if (extent.Width == 0.0F && extent.Height == 0.0F) {
        return {task.Emptiness};
    }
    if (!FitsAPage(extent)) {
        return {penlode::Error(
            "", "the chart does not fit a page of 5000 x 5000 mm, check its sizes and values")};
    }
    return std::move(task.Diagnostics);
}

} // namespace

penlode::RectF LaidOutChart::Extent() const {
    penlode::RectF extent;
    WithContent(Chart, [&extent](const auto& chart) { extent = chart.GetPositionAll(); });
    return extent;
}

penlode::RectF LaidOutChart::InkExtent() const {
    penlode::RectF extent;
    WithContent(Chart, [&extent](const auto& chart) { extent = chart.InkExtent(); });
    return extent;
}

void LaidOutChart::VisitTexts(const TextVisitor& visit) const {
    WithContent(Chart, [&visit](const auto& chart) { chart.VisitTexts(visit); });
}

void LaidOutChart::Draw(penlode::IGraphicsEngine& engine) const {
    WithContent(Chart, [&engine](const auto& chart) { chart.Draw(&engine); });
}

/// What a document was when it was loaded.
struct ChartDocument::Loaded {
    std::string Name;
    penlode::CJsonSerializeStream Json; ///< of the text; knows its places
    bool IsUnread = false;
    std::vector<Diagnostic> Diagnostics;
    std::vector<std::string> DataFiles;
    OpenPlaces Missing;
    PlaceHashes Hashes;

    /// The places that hold something else now.
    std::set<std::string> ChangedPlaces(const PlaceHashes& now) const {
        std::set<std::string> changed;
        for (const auto& [place, hash] : now) {
            const auto then = Hashes.find(place);
            if (then == Hashes.end() || then->second != hash) {
                changed.insert(place);
            }
        }
        return changed;
    }

    /// What a document leaves open: what it did not hold when it was loaded and nobody has set since, and
    /// what is empty where nothing was loaded.
    OpenPlaces Open(const PlaceHashes& now) const {
        OpenPlaces open;
        for (const auto& [place, hash] : now) {
            const auto then = Hashes.find(place);
            if (then == Hashes.end() ? hash == HashOfNothing()
                                     : hash == then->second && Missing.contains(place)) {
                open.insert(place);
            }
        }
        return open;
    }

    /// What has no file is about the document.
    void PutInOrder(std::vector<Diagnostic>& diagnostics) const {
        for (Diagnostic& diagnostic : diagnostics) {
            diagnostic.File = diagnostic.File == Name ? "" : diagnostic.File;
        }
        Json.PutInOrder(diagnostics);
        for (Diagnostic& diagnostic : diagnostics) {
            diagnostic.File = diagnostic.File.empty() ? Name : diagnostic.File;
        }
    }
};

ChartDocument ChartDocument::Load(const std::string& file) {
    InputText input = ReadFile(file);
    if (input.Fault.empty()) {
        return FromText(std::move(input.Text), file);
    }
    ChartDocument document;
    auto loaded = std::make_shared<Loaded>();
    loaded->Name = file;
    loaded->Diagnostics = {penlode::Error("", input.Fault)};
    loaded->Diagnostics.front().File = file;
    loaded->IsUnread = true;
    document.m_loaded = std::move(loaded);
    return document;
}

ChartDocument ChartDocument::FromText(std::string text, const std::string& file,
                                      std::optional<InputText> table) {
    ChartDocument document;
    auto loaded = std::make_shared<Loaded>();
    loaded->Name = file;
    loaded->Json = penlode::CJsonSerializeStream(text, file);
    document.m_text = std::make_shared<const std::string>(std::move(text));
    loaded->IsUnread = loaded->Json.IsUnreadable();
    ChartStream stream(loaded->Json);
    if (!loaded->IsUnread) {
        LoadVersion(stream);
        document.Content = LoadKind(stream, loaded->Diagnostics);
        SerTexts(stream, document);
        const DataSource source{PathFromUtf8(file).parent_path(), table ? &*table : nullptr,
                                &loaded->Diagnostics, &loaded->DataFiles};
        WithContent(document.Content, [&](auto& content) {
            LoadContent(stream, source, content);
            SerPoint(stream, "location", document.Location);
            SerOffsets(stream, content);
        });
    }
    const std::vector<Diagnostic> met = LoadDiagnostics(loaded->Json, stream);
    loaded->Diagnostics.insert(loaded->Diagnostics.end(), met.begin(), met.end());
    loaded->Missing = stream.Missing();
    loaded->Hashes = HashesOf(document);
    if (table) {
        document.m_hasOtherData = true;
        TakeNamesOfTable(document.Content, true);
    }
    loaded->PutInOrder(loaded->Diagnostics);
    document.m_loaded = std::move(loaded);
    return document;
}

const std::vector<Diagnostic>& ChartDocument::Diagnostics() const {
    static const std::vector<Diagnostic> kNone;
    return m_loaded ? m_loaded->Diagnostics : kNone;
}

bool ChartDocument::IsSound() const {
    return !HasErrors(Diagnostics());
}

const std::vector<std::string>& ChartDocument::DataFiles() const {
    static const std::vector<std::string> kNone;
    return m_loaded ? m_loaded->DataFiles : kNone;
}

void ChartDocument::PutInOrder(std::vector<Diagnostic>& diagnostics) const {
    if (m_loaded) {
        m_loaded->PutInOrder(diagnostics);
    }
}

LaidOutChart ChartDocument::LayOut() const& {
    return ChartDocument(*this).LayOutAndSpend();
}

/// A large document's text takes more memory than its data, and nobody saves it any more.
LaidOutChart ChartDocument::LayOut() && {
    m_text = nullptr;
    return LayOutAndSpend();
}

LaidOutChart ChartDocument::LayOutAndSpend() {
    const Loaded none;
    const Loaded& loaded = m_loaded ? *m_loaded : none;
    const PlaceHashes now = HashesOf(*this);
    const std::set<std::string> changed = loaded.ChangedPlaces(now);
    LayoutTask task;
    task.Location = Location;
    task.Open = loaded.Open(now);
    task.AreDataChanged = std::any_of(changed.begin(), changed.end(), IsOfData);
    task.Emptiness = penlode::Error("kind", "no kind", ChartKindNames());
    LaidOutChart laidOut;
    WithContent(Content, [&](auto& content) { laidOut.Chart = LayOutContent(content, task); });
    const ChartKind* const kind = KindOf(Content);
    Content = kind == nullptr ? ChartContent() : kind->Make();
    m_isSpent = true;
    laidOut.Diagnostics = WithFaultOfExtent(std::move(task), laidOut.Extent());
    PutInOrder(laidOut.Diagnostics);
    return laidOut;
}

/// What a table gave is written into the document once any of it has changed.
std::string ChartDocument::SavedText(std::string& fault) const {
    const Loaded none;
    const Loaded& loaded = m_loaded ? *m_loaded : none;
    const std::string before = m_text ? *m_text : "";
    if (loaded.IsUnread || m_isSpent) {
        fault = loaded.IsUnread ? "cannot be saved, as it could not be read"
                                : "cannot be saved, as its content was taken out";
        return before;
    }
    penlode::CJsonSerializeStream json(before.empty() ? "{}" : before);
    ChartDocument copy = *this;
    std::set<std::string> changed = loaded.ChangedPlaces(HashesOf(copy));
    if (m_hasOtherData || std::any_of(changed.begin(), changed.end(), IsOfData)) {
        TakeNamesOfTable(copy.Content, false);
        changed = loaded.ChangedPlaces(HashesOf(copy));
    }
    if (m_hasOtherData) {
        for (const auto& [place, hash] : HashesOf(copy)) {
            if (IsOfData(place)) {
                changed.insert(place);
            }
        }
    }
    json.BeginSaving();
    SavingStream stream(loaded.Hashes, changed, json);
    SaveDocument(stream, copy);
    fault = stream.Fault();
    return fault.empty() ? json.Text() : before;
}

std::string ChartDocument::Text() const {
    std::string fault;
    return SavedText(fault);
}

std::string ChartDocument::Save(const std::string& file) const {
    std::string fault;
    const std::string text = SavedText(fault);
    return fault.empty() ? WriteFile(file, text) : fault;
}

bool HasErrors(const std::vector<Diagnostic>& diagnostics) {
    return std::any_of(diagnostics.begin(), diagnostics.end(), [](const Diagnostic& diagnostic) {
        return diagnostic.Severity == penlode::Severity::Error;
    });
}

} // namespace millichart
