#include "documents/Slices.h"

#include "documents/Fields.h"
#include "documents/Palette.h"
#include "documents/tables/TableKeys.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace millichart::documents {
namespace {

using penlode::Diagnostic;

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

constexpr TableForm SliceTable(std::size_t width, const char* widthForm, const char* rowsForm) {
    return {.Width = width,
            .WidthForm = widthForm,
            .AreNamesJoined = true,
            .IsPositive = true,
            .MaxRows = kMaxSlices,
            .MaxRowsForm = kFewerSlices,
            .RowsForm = rowsForm};
}

constexpr TableForm kPieTable = SliceTable(2, "a name and a value", "rows of a name and a value");
constexpr TableForm kHalvesTable = SliceTable(3, "a name and two values", "rows of a name and two values");

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

} // namespace

void Slices::Load(ChartStream& stream, const DataSource& source) {
    stream.Push("data", -1);
    LoadHere(stream, source);
    stream.Pop();
    CheckNames(*source.Diagnostics);
}

void LoadHalves(ChartStream& stream, const DataSource& source, Slices& first, Slices& second) {
    stream.Push("data", -1);
    const std::optional<Table> table =
        LoadTable(stream, stream.Has(kFirst) ? kFirst : kSecond, source, kHalvesTable);
    DataSource own = source;
    own.Table = nullptr;
    for (Slices* half : {&first, &second}) {
        half->LoadHalf(stream, own, table.has_value());
        if (table) {
            half->Take(*table, half == &first ? 0 : 1);
        }
        half->CheckNames(*source.Diagnostics);
    }
    stream.Pop();
}

/// The slices in the stream's current group.
void Slices::LoadHere(ChartStream& stream, const DataSource& source) {
    const std::optional<Table> table = LoadTable(stream, kValues, source, kPieTable);
    if (!table || stream.Has(kValues)) {
        m_data.Values = LoadValues(stream, source);
    }
    if (table) {
        Take(*table, 0);
    }
}

/// One of two pies, each with a group of its own. A file that it names is not read when a table replaces
/// both.
void Slices::LoadHalf(ChartStream& stream, const DataSource& source, bool isReplaced) {
    if (isReplaced && !stream.Has(m_half)) {
        return;
    }
    stream.Push(m_half, -1);
    if (isReplaced && NamesTable(stream, "csv")) {
        LoadTableName(stream, "csv", kValues);
        LoadTableOptions(stream, "csv");
    } else {
        LoadHere(stream, source);
    }
    stream.Pop();
}

/// Names that are all empty are none.
void Slices::Take(const Table& table, std::size_t column) {
    m_data = {};
    if (column < table.Columns.size()) {
        m_data = {table.Names, table.Columns[column]};
    }
    const std::vector<std::string>& names = m_data.Names;
    if (std::all_of(names.begin(), names.end(), [](const std::string& name) { return name.empty(); })) {
        m_data.Names.clear();
    }
}

/// A legend would lay out each of them, values or not.
void Slices::CheckNames(std::vector<Diagnostic>& diagnostics) {
    if (m_names.size() > kMaxSlices) {
        diagnostics.push_back(
            penlode::Error(m_record + kNames, Counted(m_names.size(), "name"), kFewerSlices));
        m_names.clear();
    }
}

void Slices::Save(SavingStream& stream) const {
    stream.CheckJoined(m_record + kNames, m_names);
    stream.Push("data", -1);
    if (!m_half.empty()) {
        stream.ReplaceTable(TableKeys("csv"), {kFirst, kSecond});
        stream.Push(m_half, -1);
    }
    stream.ReplaceTable(TableKeys("csv"), {kValues, kTableNames});
    stream.Numbers(kValues, m_data.Values);
    stream.Note(kTableNames, m_data.Names);
    if (!m_half.empty()) {
        stream.Pop();
    }
    stream.Pop();
}

void Slices::Complete(const LayoutTask& task) {
    CompleteNames(m_names, m_data.Names, m_data.Names.size(), false);
    if (task.Open.contains(m_record + kColors)) {
        m_colors.clear();
    }
    FillUp(m_colors, m_data.Values.size());
}

std::string Slices::DataPlace() const {
    return m_half.empty() ? "data" : "data/" + m_half;
}

double Slices::Total() const {
    return std::accumulate(m_data.Values.begin(), m_data.Values.end(), 0.0);
}

void Slices::Check(const CSlicedCircle& circle, std::vector<Diagnostic>& diagnostics,
                   std::size_t offsetsInSeveral) const {
    const std::size_t values = m_data.Values.size();
    if (!std::isfinite(Total())) {
        diagnostics.push_back(penlode::Error(DataPlace(), "a total that is too large", "smaller values"));
        return;
    }
    if (AreOthers(m_names, m_data.Names)) {
        diagnostics.push_back(OtherNames(m_record + kNames));
    }
    if (offsetsInSeveral > m_names.size()) {
        diagnostics.push_back(WrongCount(kLabelOffsets + (m_half.empty() ? "" : "/" + m_half),
                                         offsetsInSeveral, "point", m_names.size(),
                                         "as a label without a name does not move"));
    }
    CheckSize(circle.GetLayout().Pie.Width, diagnostics);
    if (!m_names.empty() && m_names.size() != values) {
        diagnostics.push_back(WrongCount(m_record + kNames, m_names.size(), "name", values, "one a value"));
    }
}

void Slices::CheckSize(float width, std::vector<Diagnostic>& diagnostics) const {
    if (Total() == 0.0) {
        diagnostics.push_back(penlode::Warning(DataPlace(), "no value above 0", "one for each slice"));
    } else if (!(width > 0.0F)) {
        diagnostics.push_back(
            penlode::Error(m_record, "a pie of " + NumberText(width) + " mm", kSizesAboveZero));
    } else if (width < kMinPie) {
        const double shown = std::round(static_cast<double>(width) * 1000.0) / 1000.0;
        const bool isFixed = m_fixedSize != 0;
        diagnostics.push_back(penlode::Warning(
            m_record + (isFixed ? "/FixedWidth" : "/FixedSize"),
            "the pie is only " + NumberText(shown) + " mm across" +
                (isFixed ? "" : ", by its values' total; with 1 here it is as wide as FixedWidth")));
    }
}

Diagnostic Slices::Emptiness() const {
    if (m_data.Values.empty()) {
        return penlode::Error(DataPlace() + "/" + kValues, "nothing to draw", "a number for each slice");
    }
    if (Total() == 0.0) {
        return penlode::Error(DataPlace(), "no value above 0", "one for each slice");
    }
    return penlode::Error(m_record, "nothing to draw, as the pie has no size", kSizesAboveZero);
}

} // namespace millichart::documents
