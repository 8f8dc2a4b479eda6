#include "documents/ChartDocument.h"

#include "documents/ChartLayouts.h"
#include "documents/Fields.h"
#include "documents/OptionsGroup.h"
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

/// A text's font has two names, of which a document holds one.
std::string HeldPlace(const std::string& place, const penlode::CJsonSerializeStream& json) {
    const std::string own = CStringUtil::AnsiToUtf8(FontTag());
    const std::size_t end = place.rfind('/') + 1;
    const std::string key = place.substr(end);
    if (end == 0 || (key != own && key != kFontAlias)) {
        return place;
    }
    penlode::CJsonSerializeStream held(json.Text());
    held.BeginSaving();
    for (std::size_t at = 0; at < end; at = place.find('/', at) + 1) {
        const std::string group = place.substr(at, place.find('/', at) - at);
        if (!held.Has(group) || !held.Push(group, -1)) {
            return place;
        }
    }
    const bool isOwn = key == own;
    return held.Has(isOwn ? kFontAlias : FontTag()) ? place.substr(0, end) + (isOwn ? kFontAlias : own)
                                                    : place;
}

/// A document that asks for all options by one word has a group of them where one is set.
void OpenOptions(penlode::CJsonSerializeStream& json, const std::string& name) {
    if (!json.IsText(kOptions)) {
        return;
    }
    penlode::CJsonSerializeStream opened(json.Text());
    opened.BeginSaving();
    opened.Remove(kOptions);
    ChartOptions all = ChartOptions::Readable();
    CChartOptionsSerialize::SerializeChartOptions(opened, all, kOptions);
    json = penlode::CJsonSerializeStream(opened.Text(), name);
}

/// Tells of the settings for which the document has no place.
void Apply(const std::vector<Setting>& settings, const std::string& name, penlode::CJsonSerializeStream& json,
           std::vector<Diagnostic>& diagnostics) {
    for (const Setting& setting : settings) {
        if (setting.Place != kOptions && IsPlaceIn(setting.Place, kOptions)) {
            OpenOptions(json, name);
        }
        if (!json.Set(HeldPlace(setting.Place, json), setting.Value)) {
            diagnostics.push_back(penlode::Error(setting.Place, "no such place in the document"));
        }
    }
}

/// A key that was mistyped in a document does no harm; one that was set does nothing.
void RefuseUnknown(const std::vector<Setting>& settings, std::vector<Diagnostic>& diagnostics) {
    for (Diagnostic& unknown : diagnostics) {
        const bool isSet = std::any_of(settings.begin(), settings.end(), [&unknown](const Setting& setting) {
            return IsPlaceIn(setting.Place, unknown.Place);
        });
        if (isSet && unknown.Kind == penlode::DiagnosticKind::UnknownKey) {
            const std::string guess = unknown.Expected;
            unknown.Severity = penlode::Severity::Error;
            unknown.Text = "no such key" + (guess.empty() ? "" : "; is \"" + guess + "\" meant?");
        }
    }
}

/// The content of the kind that the document tells, empty.
ChartContent LoadKind(ChartStream& stream, std::vector<Diagnostic>& diagnostics) {
    const std::string narrow = LoadText(stream, "kind", "");
    const std::string name = CStringUtil::AnsiToUtf8(narrow);
    if (const ChartKind* kind = FindChartKind(name)) {
        stream.SetKind(kind->Name);
        return kind->Make();
    }
    if (stream.Has("kind")) {
        stream.Refuse("kind", narrow, CStringUtil::Utf8ToAnsi(ExpectedKind(name)));
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
    SaveContent(stream, document);
}

PlaceHashes HashesOf(ChartDocument& document) {
    PlaceHashes hashes;
    SavingStream stream(hashes);
    SaveDocument(stream, document);
    return hashes;
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

bool IsPlaceIn(std::string_view place, std::string_view group) {
    return place.starts_with(group) && (place.size() == group.size() || place[group.size()] == '/');
}

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

std::optional<PlacedPart> LaidOutChart::HitTest(penlode::PointF point, float reach) const {
    std::optional<PlacedPart> part;
    WithContent(Chart, [&](const auto& chart) { part = chart.HitTest(point, reach); });
    return part;
}

void LaidOutChart::VisitParts(const PartVisitor& visit) const {
    WithContent(Chart, [&visit](const auto& chart) { chart.VisitParts(visit); });
}

std::vector<Diagnostic> LaidOutChart::TakeRows(const penlode::IGraphicsEngine& engine) {
    std::vector<Diagnostic> told;
    if (auto* const curves = std::get_if<CBasicCurve>(&Chart); curves != nullptr && Rows.Source) {
        told = TakeShownRows(Rows, engine, *curves);
    }
    return told;
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
    return FromInput(ReadFile(file));
}

ChartDocument ChartDocument::FromText(std::string text, const std::string& file,
                                      std::optional<TableInput> table) {
    return FromInput({file, std::move(text)}, std::move(table));
}

ChartDocument ChartDocument::FromInput(InputText input, std::optional<TableInput> table,
                                       const std::vector<Setting>& settings) {
    ChartDocument document;
    auto loaded = std::make_shared<Loaded>();
    loaded->Name = input.Name;
    if (!input.Fault.empty()) {
        loaded->Diagnostics = {penlode::Error("", input.Fault)};
        loaded->Diagnostics.front().File = input.Name;
        loaded->IsUnread = true;
        document.m_loaded = std::move(loaded);
        return document;
    }
    loaded->Json = penlode::CJsonSerializeStream(input.Text, input.Name);
    loaded->IsUnread = loaded->Json.IsUnreadable();
    if (!loaded->IsUnread && !settings.empty()) {
        Apply(settings, input.Name, loaded->Json, loaded->Diagnostics);
        input.Text = loaded->Json.Text();
    }
    document.m_text = std::make_shared<const std::string>(std::move(input.Text));
    ChartStream stream(loaded->Json);
    if (!loaded->IsUnread) {
        LoadVersion(stream);
        document.Content = LoadKind(stream, loaded->Diagnostics);
        SerTexts(stream, document);
        const DataSource source{PathFromUtf8(input.Name).parent_path(), table ? &*table : nullptr,
                                &loaded->Diagnostics, &loaded->DataFiles};
        LoadContent(stream, source, document);
    }
    const std::vector<Diagnostic> met = LoadDiagnostics(loaded->Json, stream);
    loaded->Diagnostics.insert(loaded->Diagnostics.end(), met.begin(), met.end());
    RefuseUnknown(settings, loaded->Diagnostics);
    loaded->Missing = stream.Missing();
    loaded->Hashes = HashesOf(document);
    if (table) {
        document.m_hasOtherData = true;
        TakeTableNames(document.Content, true);
    }
    loaded->PutInOrder(loaded->Diagnostics);
    document.m_loaded = std::move(loaded);
    return document;
}

/// Empty, of one that was not.
const ChartDocument::Loaded& ChartDocument::AsLoaded() const {
    static const Loaded kNone;
    return m_loaded ? *m_loaded : kNone;
}

const std::vector<Diagnostic>& ChartDocument::Diagnostics() const {
    return AsLoaded().Diagnostics;
}

bool ChartDocument::IsSound() const {
    return !HasErrors(Diagnostics());
}

const std::vector<std::string>& ChartDocument::DataFiles() const {
    return AsLoaded().DataFiles;
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
    const Loaded& loaded = AsLoaded();
    const PlaceHashes now = HashesOf(*this);
    const std::set<std::string> changed = loaded.ChangedPlaces(now);
    LayoutTask task;
    task.Location = Location;
    task.Options = Options;
    task.Open = loaded.Open(now);
    task.AreDataChanged = std::any_of(changed.begin(), changed.end(), IsOfData);
    task.Emptiness = penlode::Error("kind", "no kind", ChartKindNames());
    LaidOutChart laidOut;
    LayOutContent(Content, task, laidOut);
    const ChartKind* const kind = KindOf(Content);
    Content = kind == nullptr ? ChartContent() : kind->Make();
    m_isSpent = true;
    laidOut.Diagnostics = WithFaultOfExtent(std::move(task), laidOut.Extent());
    PutInOrder(laidOut.Diagnostics);
    return laidOut;
}

/// What a table gave is written into the document once any of it has changed.
std::string ChartDocument::SavedText(std::string& fault) const {
    const Loaded& loaded = AsLoaded();
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
        TakeTableNames(copy.Content, false);
        const PlaceHashes now = HashesOf(copy);
        changed = loaded.ChangedPlaces(now);
        for (const auto& [place, hash] : now) {
            if (m_hasOtherData && IsOfData(place)) {
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
