#include "documents/Slices.h"

#include "documents/Fields.h"
#include "documents/Palette.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <utility>

namespace millichart::documents {
namespace {

using penlode::Diagnostic;

constexpr const char* kNames = "/ComponentName";
constexpr const char* kColors = "/ComponentColor";
constexpr const char* kValues = "values";
constexpr const char* kTableNames = "names of the table";
constexpr const char* kFirst = "first";
constexpr const char* kSecond = "second";

/// A pie of more is a grey disk, and takes its layout minutes.
constexpr std::size_t kMaxSlices = 5000;
constexpr const char* kFewerSlices = "at most 5000, a slice each";

constexpr float kMinPie = 5.0F;
constexpr const char* kSizesAboveZero =
    "FixedWidth above 0 with a FixedSize of 1, or BaseValue and BasePieWidth above 0";

constexpr TableForm kPieTable{.HeadedBy = TableForm::Heading::OverNumber,
                              .Width = 2,
                              .WidthForm = "a name and a value",
                              .AreNamesJoined = true,
                              .IsPositive = true,
                              .MaxRows = kMaxSlices,
                              .MaxRowsForm = kFewerSlices,
                              .RowsForm = "rows of a name and a value"};

/// There always is a heading: it may well be of years, which look like values.
constexpr TableForm kHalvesTable{.Width = 3,
                                 .WidthForm = "a name and two values",
                                 .AreNamesJoined = true,
                                 .IsPositive = true,
                                 .MaxRows = kMaxSlices,
                                 .MaxRowsForm = kFewerSlices,
                                 .RowsForm = "a heading, and rows of a name and two values"};

/// Names that are all empty are none.
SliceData SlicesOf(const Table& table, std::size_t column) {
    SliceData data;
    if (column < table.Columns.size()) {
        data = {table.Names, table.Columns[column]};
    }
    if (std::all_of(data.Names.begin(), data.Names.end(), [](const auto& name) { return name.empty(); })) {
        data.Names.clear();
    }
    return data;
}

/// The values that stand in the document.
std::vector<double> LoadValues(ChartStream& stream, const DataSource& source) {
    std::vector<double> values = LoadNumbers(stream, kValues);
    for (std::size_t i = 0; i < values.size(); ++i) {
        if (values[i] < 0.0) {
            stream.Refuse(std::string(kValues) + "/" + std::to_string(i), "a number below 0", "0 or more");
        }
    }
    if (values.size() > kMaxSlices) {
        source.Diagnostics->push_back(
            penlode::Error(stream.PlaceOf(kValues), Counted(values.size(), "value"), kFewerSlices));
        values.clear();
    }
    return values;
}

/// The slices in the stream's current group.
SliceData LoadSlicesHere(ChartStream& stream, const DataSource& source) {
    const std::optional<Table> table = LoadTable(stream, kValues, source, kPieTable);
    SliceData data;
    if (!table || stream.Has(kValues)) {
        data.Values = LoadValues(stream, source);
    }
    return table ? SlicesOf(*table, 0) : data;
}

/// One of two pies, each with a group of its own. A file that it names is not read when a table replaces
/// both.
SliceData LoadHalf(ChartStream& stream, const char* key, const DataSource& source, bool isReplaced) {
    SliceData data;
    if (isReplaced && !stream.Has(key)) {
        return data;
    }
    stream.Push(key, -1);
    if (isReplaced && stream.Has("csv")) {
        LoadText(stream, "csv", "");
    } else {
        data = LoadSlicesHere(stream, {source.Folder, nullptr, source.Diagnostics, source.Files});
    }
    stream.Pop();
    return data;
}

} // namespace

SliceData LoadSlices(ChartStream& stream, const DataSource& source) {
    stream.Push("data", -1);
    SliceData data = LoadSlicesHere(stream, source);
    stream.Pop();
    return data;
}

void LoadHalves(ChartStream& stream, const DataSource& source, SliceData& first, SliceData& second) {
    stream.Push("data", -1);
    const std::optional<Table> table =
        LoadTable(stream, stream.Has(kFirst) ? kFirst : kSecond, source, kHalvesTable);
    first = LoadHalf(stream, kFirst, source, table.has_value());
    second = LoadHalf(stream, kSecond, source, table.has_value());
    stream.Pop();
    if (table) {
        first = SlicesOf(*table, 0);
        second = SlicesOf(*table, 1);
    }
}

/// A legend would lay out each of them, values or not.
void CheckSliceNames(const SlicesPlace& place, std::vector<std::string>& names,
                     std::vector<Diagnostic>& diagnostics) {
    if (names.size() > kMaxSlices) {
        diagnostics.push_back(
            penlode::Error(place.Record + kNames, Counted(names.size(), "name"), kFewerSlices));
        names.clear();
    }
}

void SaveSlices(SavingStream& stream, const SlicesPlace& place, const SliceData& data,
                const std::vector<std::string>& names) {
    stream.CheckJoined(place.Record + "/ComponentName", names);
    stream.ReplaceTable("csv", {kValues, kTableNames});
    stream.Numbers(kValues, data.Values);
    stream.Note(kTableNames, data.Names);
}

/// The document's own names stand.
void Slices::Complete(const OpenPlaces& open) {
    if (m_names.empty()) {
        m_names = m_data.Names;
    } else if (!m_data.Names.empty() && m_data.Names != m_names) {
        m_doubts.push_back(OtherNames(m_place.Record + kNames));
    }
    if (open.contains(m_place.Record + kColors)) {
        m_colors = PaletteColors(m_data.Values.size());
    }
}

void Slices::DoubtOffsets(std::size_t count, const std::string& place) {
    if (count > m_names.size()) {
        m_doubts.push_back(
            penlode::Warning(place, Counted(count, "point"),
                             std::to_string(m_names.size()) + ", as a label without a name does not move"));
    }
}

Diagnostic Slices::Emptiness() const {
    if (m_data.Values.empty()) {
        return penlode::Error(m_place.Data + "/" + kValues, "nothing to draw", "a number for each slice");
    }
    if (std::accumulate(m_data.Values.begin(), m_data.Values.end(), 0.0) == 0.0) {
        return penlode::Error(m_place.Data, "no value above 0", "one for each slice");
    }
    return penlode::Error(m_place.Record, "nothing to draw, as the pie has no size", kSizesAboveZero);
}

void Slices::DoubtSize(float width, double total) {
    if (total == 0.0) {
        m_doubts.push_back(penlode::Warning(m_place.Data, "no value above 0", "one for each slice"));
    } else if (width < 0.0F) {
        m_doubts.push_back(
            penlode::Error(m_place.Record, "a pie of " + NumberText(width) + " mm", kSizesAboveZero));
    } else if (width < kMinPie) {
        const double shown = std::round(static_cast<double>(width) * 1000.0) / 1000.0;
        m_doubts.push_back(penlode::Warning(
            m_place.Record + (m_isFixed ? "/FixedWidth" : "/FixedSize"),
            "the pie is only " + NumberText(shown) + " mm across" +
                (m_isFixed ? "" : ", by its values' total; with 1 here it is as wide as FixedWidth")));
    }
}

void Slices::DoubtCount(const char* key, std::size_t count, const char* noun) {
    m_doubts.push_back(penlode::Warning(m_place.Record + key, Counted(count, noun),
                                        std::to_string(m_data.Values.size()) + ", one a value"));
}

void Slices::Doubt(float width, std::vector<Diagnostic>& diagnostics) {
    const std::vector<double>& values = m_data.Values;
    const double total = std::accumulate(values.begin(), values.end(), 0.0);
    if (!std::isfinite(total)) {
        diagnostics.push_back(penlode::Error(m_place.Data, "a total that is too large", "smaller values"));
        return;
    }
    DoubtSize(width, total);
    if (!m_names.empty() && m_names.size() != values.size()) {
        DoubtCount(kNames, m_names.size(), "name");
    }
    if (m_colors.size() < values.size()) {
        DoubtCount(kColors, m_colors.size(), "colour");
    }
    diagnostics.insert(diagnostics.end(), m_doubts.begin(), m_doubts.end());
}

} // namespace millichart::documents
