#include "model/SwitchedKind.h"

#include "documents/NewDocument.h"
#include "model/CellTexts.h"
#include "model/Looks.h"

#include <algorithm>
#include <cmath>
#include <type_traits>

namespace designer {
namespace {

using millichart::ChartContent;
using millichart::ChartDocument;
using millichart::ChartKind;
using TableList = std::vector<DataTable>;

constexpr std::size_t kAllColumns = std::numeric_limits<std::size_t>::max();

/// So many rows tell what suits a chart.
constexpr std::size_t kEnoughRows = 2000;

template <class Document> bool Is(const ChartContent& content) {
    return std::holds_alternative<Document>(content);
}

bool HasAxes(const ChartContent& content) {
    return Is<millichart::HistogramDocument>(content) || Is<millichart::CurveDocument>(content);
}

bool HasNumbers(const DataTable& table, std::size_t column) {
    const std::vector<double>& numbers = table.Numbers(column);
    return std::any_of(numbers.begin(), numbers.end(), [](double number) { return !std::isnan(number); });
}

/// The second half's numbers beside the first one's, if both have the same rows.
DataTable Joined(const DataTable& first, const DataTable& second) {
    DataTable joined = first;
    if (!HasNumbers(second, 1) || second.RowCount() > first.RowCount()) {
        return joined;
    }
    for (std::size_t row = 0; row < second.RowCount(); ++row) {
        if (!second.Text(row, 0).empty() && second.Text(row, 0) != first.Text(row, 0)) {
            return joined;
        }
    }
    joined.SetHeading(2, second.Heading(1));
    for (std::size_t row = 0; row < second.RowCount(); ++row) {
        joined.SetText(row, 2, second.Text(row, 1));
    }
    return joined;
}

/// The one table that the next chart is made of, all columns for any kind.
DataTable Source(const ChartContent& before, const ChartContent& after, const TableList& tables) {
    if (tables.empty()) {
        return DataTable();
    }
    DataTable source = tables.front();
    if (Is<millichart::HalfPieHistogramDocument>(before) && HasAxes(after)) {
        source = tables.back();
    } else if (Is<millichart::HalfPieHalfPieDocument>(before)) {
        source = Joined(tables.front(), tables.back());
    }
    source.SetUsedColumns(kAllColumns);
    source.ForgetOrigins();
    return source;
}

/// Names that are times of a line, written as this program writes them, so that they come back as they are.
bool TakesHeads(const DataTable& table, RowHeads heads) {
    std::int64_t last = std::numeric_limits<std::int64_t>::min();
    for (std::size_t row = 0; row < table.RowCount(); ++row) {
        const std::string text = table.Text(row, 0);
        const std::optional<std::int64_t> time = ReadTimeCell(text, heads);
        if (!time || *time <= last || TimeCell(*time, heads) != text) {
            return false;
        }
        last = *time;
    }
    return table.RowCount() > 0;
}

DataTable ForCurves(DataTable table) {
    for (const RowHeads heads : {RowHeads::Times, RowHeads::Days, RowHeads::Seconds}) {
        if (table.Heads() == RowHeads::Names && TakesHeads(table, heads)) {
            table.SetHeads(heads);
        }
    }
    return table;
}

DataTable ForNames(DataTable table, std::size_t columns) {
    table.SetHeads(RowHeads::Names);
    table.SetUsedColumns(columns);
    return table;
}

/// The column of a second half; without one there are its names alone.
DataTable SecondHalf(const DataTable& source) {
    DataTable second = ForNames(source, 1);
    second.RemoveColumns(3, second.ColumnCount());
    if (second.ColumnCount() > 2) {
        second.RemoveColumns(1, 1);
    } else {
        second.Clear({0, 1, second.RowCount(), 1});
    }
    second.ForgetOrigins();
    return second;
}

TableList TablesFor(const ChartContent& content, const DataTable& source) {
    if (Is<millichart::CurveDocument>(content)) {
        return {ForCurves(source)};
    }
    if (Is<millichart::HistogramDocument>(content)) {
        return {ForNames(source, kAllColumns)};
    }
    if (Is<millichart::HalfPieHalfPieDocument>(content)) {
        return {ForNames(source, 1), SecondHalf(source)};
    }
    if (Is<millichart::HalfPieHistogramDocument>(content)) {
        return {ForNames(source, 1), ForNames(source, kAllColumns)};
    }
    return {ForNames(source, 1)};
}

std::string Quoted(const std::string& text) {
    std::string quoted = "\"";
    for (const char c : text) {
        quoted.append(c == '"' ? 2 : 1, c);
    }
    return quoted + "\"";
}

/// A table by which a new document chooses what suits: of slices what they can show, of lines without times.
std::string SampleOf(const TableList& tables, const ChartContent& content) {
    const bool hasAxes = HasAxes(content);
    const DataTable& table = tables.front();
    const std::size_t columns = hasAxes ? std::max<std::size_t>(table.ColumnCount() - 1, 1) : tables.size();
    std::string text = "\"\"";
    for (std::size_t i = 0; i < columns; ++i) {
        text += "," + Quoted(hasAxes ? table.Heading(i + 1) : std::to_string(i + 1) + ".");
    }
    const std::size_t rows = std::clamp<std::size_t>(table.RowCount(), 1, kEnoughRows);
    for (std::size_t row = 0; row < rows; ++row) {
        const bool isCurve = Is<millichart::CurveDocument>(content);
        text += "\n" + (isCurve ? std::to_string(row) : Quoted(table.Text(row, 0)));
        for (std::size_t i = 0; i < columns; ++i) {
            const double number = hasAxes ? table.Number(row, i + 1) : tables[i].Number(row, 1);
            text += "," + (hasAxes ? NumberCell(number) : NumberCell(number > 0.0 ? number : 1.0));
        }
    }
    return text + "\n";
}

/// Without data of the example's, and without a word about the sample.
ChartDocument Fresh(const ChartKind& kind, const TableList& tables, const ChartContent& content) {
    if (Is<millichart::HalfPieHistogramDocument>(content)) {
        return ChartDocument::FromText(std::string(kind.Template)); // no table gives both of its parts
    }
    millichart::TableInput sample{{"", SampleOf(tables, content)}};
    sample.Options.HasHeading = true;
    sample.Options.DecimalMark = '.';
    const ChartDocument document = millichart::NewDocument(kind, {std::move(sample)});
    return ChartDocument::FromText(document.Text());
}

millichart::CaptionProp& CaptionOf(ChartDocument& document) {
    if (auto* bars = std::get_if<millichart::HistogramDocument>(&document.Content)) {
        return bars->Prop.Caption;
    }
    if (auto* curves = std::get_if<millichart::CurveDocument>(&document.Content)) {
        return curves->Prop.Caption;
    }
    return document.Options.Title;
}

/// What both records know under one name.
template <class From, class To> void CarryAxes(const From& from, To& to) {
    to.VerAxis.ShowVerCaption = from.VerAxis.ShowVerCaption;
    to.VerAxis.VerCaption = from.VerAxis.VerCaption;
    to.HorAxis.ShowHorCaption = from.HorAxis.ShowHorCaption;
    to.HorAxis.HorCaption = from.HorAxis.HorCaption;
    to.Legend.ShowLegend = from.Legend.ShowLegend;
    to.Legend.LegendPos = from.Legend.LegendPos;
    to.Plot.PlotWidth = from.Plot.PlotWidth;
    to.Plot.PlotHeight = from.Plot.PlotHeight;
}

template <class From, class To> void CarrySize(const From& from, To& to) {
    to.FixedSize = from.FixedSize;
    to.FixedWidth = from.FixedWidth;
    to.BaseValue = from.BaseValue;
    to.BasePieWidth = from.BasePieWidth;
}

void CarryContent(const ChartContent& before, ChartContent& after) {
    std::visit(
        [](const auto& from, auto& to) {
            if constexpr (requires {
                              from.Prop.VerAxis;
                              to.Prop.VerAxis;
                          }) {
                CarryAxes(from.Prop, to.Prop);
            } else if constexpr (requires {
                                     from.Prop.Basic;
                                     to.Prop.Basic;
                                 }) {
                CarrySize(from.Prop.Basic, to.Prop.Basic);
            }
        },
        before, after);
}

void CarryColors(ChartContent before, ChartContent& after) {
    const std::vector<ColorList> from = ColorListsOf(before);
    std::vector<ColorList> to = ColorListsOf(after);
    for (std::size_t i = 0; i < std::min(from.size(), to.size()); ++i) {
        const std::size_t count = std::min({from[i].Colors->size(), from[i].Count, to[i].Count});
        if (count > 0) {
            to[i].Colors->assign(from[i].Colors->begin(),
                                 from[i].Colors->begin() + static_cast<std::ptrdiff_t>(count));
        }
    }
}

void CarryOver(const ChartDocument& from, ChartDocument& to) {
    to.Title = from.Title;
    to.Description = from.Description;
    to.Source = from.Source;
    ChartDocument before = from;
    const millichart::CaptionProp& caption = CaptionOf(before);
    CaptionOf(to).Caption = caption.Caption;
    CaptionOf(to).ShowCaption = caption.Caption.empty() ? 0 : caption.ShowCaption;
    to.Options.Palette = from.Options.Palette;
    if (from.Options.Numbers == millichart::NumberStyle::Exact) {
        to.Options.Thousands = from.Options.Thousands;
        to.Options.MaxDecimals = from.Options.MaxDecimals;
    }
    CarryContent(from.Content, to.Content);
    CarryColors(std::move(before.Content), to.Content);
}

/// Texts and figures of an example's own.
void Empty(ChartDocument& document) {
    if (auto* chart = std::get_if<millichart::HalfPieHistogramDocument>(&document.Content)) {
        chart->Prop.HalfPie.Basic.ComponentName.clear();
        chart->Prop.HalfPie.Basic.ComponentColor.clear();
        chart->Prop.Histogram.Plot.ComponentName.clear();
        chart->Prop.Histogram.Plot.ComponentColor.clear();
        chart->LabelOffsets.clear();
        chart->Slices = {};
        chart->Bars = {};
        chart->IsFitted = true;
        chart->Largest.reset();
    }
}

} // namespace

Switched SwitchedTo(const ChartKind& kind, const ChartDocument& before, const TableList& tables) {
    const ChartContent empty = kind.Make();
    Switched switched;
    switched.Tables = TablesFor(empty, Source(before.Content, empty, tables));
    switched.Document = Fresh(kind, switched.Tables, empty);
    Empty(switched.Document);
    TakeTables(switched.Document.Content, switched.Tables);
    if (auto* curves = std::get_if<millichart::CurveDocument>(&switched.Document.Content)) {
        curves->Data.Origin = {};
        switched.Document.Options.TimeUnit = TimeUnitOf(switched.Tables.front().Heads());
    }
    CarryOver(before, switched.Document);
    for (DataTable& table : switched.Tables) {
        table.ForgetOrigins();
    }
    return switched;
}

ChartDocument DocumentOnTable(const ChartKind& kind, millichart::TableInput table) {
    const bool isComposite = Is<millichart::HalfPieHistogramDocument>(kind.Make()) ||
                             Is<millichart::HalfPieHalfPieDocument>(kind.Make());
    ChartDocument document = millichart::NewDocument(kind, {table});
    if (!isComposite || document.IsSound()) {
        return document;
    }
    // A table that is not made for both parts still has rows of names and numbers.
    const ChartDocument bars =
        millichart::NewDocument(*millichart::FindChartKind("histogram"), {std::move(table)});
    return bars.IsSound() ? SwitchedTo(kind, bars, TablesOf(bars.Content, bars.Options.TimeUnit)).Document
                          : document;
}

} // namespace designer
