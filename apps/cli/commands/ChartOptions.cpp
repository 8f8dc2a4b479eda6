#include "commands/ChartOptions.h"

#include "commands/ParsedOption.h"
#include "documents/ChartContent.h"
#include "files/Streams.h"
#include "pages/PaperSize.h"
#include "penlode/text/Digits.h"

#include <algorithm>
#include <sstream>

namespace cli {
namespace {

using millichart::TableOptions;
using millichart::TableOrder;

bool ParseOrder(const std::string& text, TableOrder& order) {
    for (const auto& [name, known] : {std::pair("ascending", TableOrder::Ascending),
                                      {"descending", TableOrder::Descending},
                                      {"name", TableOrder::ByName}}) {
        if (text == name) {
            order = known;
            return true;
        }
    }
    return false;
}

bool ParseColumns(const std::string& text, std::vector<std::string>& columns) {
    std::istringstream parts(text);
    for (std::string column; std::getline(parts, column, ',');) {
        columns.push_back(column);
    }
    return !columns.empty() && std::none_of(columns.begin(), columns.end(),
                                            [](const std::string& column) { return column.empty(); });
}

bool ParseDecimal(const std::string& text, char& mark) {
    const bool isMark = text == "." || text == ",";
    mark = isMark ? text.front() : '.';
    return isMark;
}

bool ParseTop(const std::string& text, std::size_t& top) {
    top = penlode::NumberOf<std::size_t>(text).value_or(0);
    return top > 0;
}

bool ParseSetting(const std::string& text, millichart::Setting& setting) {
    const std::size_t equals = text.find('=');
    if (equals == std::string::npos) {
        return false;
    }
    setting = {text.substr(0, equals), text.substr(equals + 1)};
    return !setting.Place.empty() && ('/' + setting.Place + '/').find("//") == std::string::npos;
}

bool ParseLegend(const std::string& text, std::string& place) {
    const auto known = LegendPlace(text);
    place = known.value_or("");
    return known.has_value();
}

/// Of a data base's table whose rows are too many to be read.
void AddPointsOptions(CLI::App& command, millichart::PointsTable& points) {
    command.add_option(
        "--table", points.Name,
        "a line of all rows of a data base's table, however many: the data base finds what "
        "shows of them; its name, with a schema as in lab.points; goes with --time and --value");
    command.add_option("--time", points.Time, "the column of the table's times, which are whole numbers");
    command.add_option("--value", points.Value, "the column of the table's values");
    command.add_option("--by", points.Series,
                       "a column of the table whose every value is a curve, up to 100");
    command
        .add_option(
            "--where", points.Where,
            "the table's rows for which this holds: a column, one of = <> < <= > >= and a value, as in "
            "\"site = 3\"; may be given several times")
        ->expected(1)
        ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll);
}

/// Whether a table of points is named as a whole, and for what it can be.
void CheckPoints(const ChartSource& source) {
    const millichart::PointsTable& points = source.Table.Points;
    if (points == millichart::PointsTable()) {
        return;
    }
    if (points.Name.empty() || points.Time.empty() || points.Value.empty()) {
        throw UsageError("--table: expected --time and --value with it, and --by and --where with no other");
    }
    if (!source.Table.Query.empty()) {
        throw UsageError("--table: expected no --query with it");
    }
    if (source.Kind != nullptr && source.Kind->Name != std::string_view("curve")) {
        throw UsageError("--table: expected --kind line");
    }
}

} // namespace

void AddTableOptions(CLI::App& command, ChartSource& source) {
    TableOptions& table = source.Table;
    command.add_option(
        "--data", source.Data,
        "a table that replaces the document's data: a CSV or spreadsheet file, or a data base, "
        "sqlite:FILE or odbc:SOURCE");
    command.add_option("--query", table.Query, "what to ask of a data base, in SQL");
    AddPointsOptions(command, table.Points);
    command.add_option("--sheet", table.Sheet, "of a spreadsheet file; without it the first");
    AddParsed<std::vector<std::string>>(
        command, "--columns", table.Columns, ParseColumns, "names or numbers with commas between them",
        "columns by their headings or numbers from 1, such as Region,3; without it all");
    CLI::Option* const header = command.add_flag_function(
        "--header", [&table](std::int64_t) { table.HasHeading = true; }, "the first row is a heading");
    command
        .add_flag_function(
            "--no-header", [&table](std::int64_t) { table.HasHeading = false; }, "there is no heading")
        ->excludes(header);
    command.add_flag("--transpose", table.IsTransposed, "a row of the table is a column");
    AddParsed<TableOrder>(command, "--sort", table.Order, ParseOrder, "ascending, descending or name",
                          "the rows' order: ascending, descending or name");
    AddParsed<std::size_t>(command, "--top", table.Top, ParseTop, "a whole number from 1",
                           "so many of the largest rows, and the rest as one");
    AddParsed<char>(command, "--decimal", table.DecimalMark, ParseDecimal, "a point or a comma",
                    "the decimal mark; without it the table tells");
}

void AddStreamOption(CLI::App& command, ChartSource& source) {
    command.add_flag_function(
        "--stream,!--no-stream", [&source](std::int64_t count) { source.Streams = count > 0; },
        "read a line chart's CSV row by row without holding it, as is done from 64 MB on; --no-stream holds "
        "it");
}

void AddLookOptions(CLI::App& command, ChartSource& source) {
    Look& look = source.Look;
    command.add_option("--title", look.Title, "the caption");
    command.add_option("--x-title", look.XTitle, "the caption of the horizontal axis");
    command.add_option("--y-title", look.YTitle, "the caption of the value axis");
    command.add_flag("--log", look.IsLogarithmic, "a logarithmic value axis");
    command.add_flag("--stacked", look.IsStacked, "the bars of a group on each other");
    command.add_flag("--3d", look.Is3D, "a pie or bars with depth");
    AddParsed<std::string>(command, "--legend", look.Legend, ParseLegend,
                           "none, or right, top-left, BottomCenter and the like",
                           "where the legend stands: right, top-left, BottomCenter and the like, or none");
    AddParsed<penlode::SizeF>(command, "--size", source.Figure, ParseSize, kSizeForm,
                              "the whole figure: 80x60 in mm, 8x6cm, 3x2in, A5, A4-landscape");
    command
        .add_option_function<std::vector<std::string>>(
            "--set",
            [&source](const std::vector<std::string>& texts) {
                for (const std::string& text : texts) {
                    millichart::Setting setting;
                    if (!ParseSetting(text, setting)) {
                        throw CLI::ValidationError("--set", "found \"" + text +
                                                                "\", expected PLACE=VALUE, such as "
                                                                "property/PieBasicProp/FixedWidth=40");
                    }
                    source.Settings.push_back(std::move(setting));
                }
            },
            "PLACE=VALUE: any key of the document; may be given several times")
        ->expected(1)
        ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll);
}

CLI::Option* AddKind(CLI::App& command, const std::string& name, ChartSource& source,
                     const std::string& help) {
    return command.add_option_function<std::string>(
        name,
        [&source, name](const std::string& text) {
            source.Kind = millichart::FindChartKind(text);
            if (source.Kind == nullptr) {
                throw CLI::ValidationError(name, "found \"" + text + "\", expected " +
                                                     millichart::ExpectedKind(text));
            }
        },
        help);
}

void AddKindOption(CLI::App& command, ChartSource& source) {
    AddKind(command, "--kind", source,
            "pie, bar, line, half-pie or the like: FILE is a table then, and needs no document");
}

void CheckTable(const ChartSource& source, bool hasTable) {
    TableOptions options = source.Table;
    if (!hasTable && options != TableOptions()) {
        throw UsageError(
            "--sheet, --query, --table, --columns and what else tells how a table is read: expected --data "
            "with it, or --kind");
    }
    CheckPoints(source);
    if (source.Kind != nullptr) {
        static_cast<void>(SettingsOf(source.Look, *source.Kind));
        if (hasTable && source.Kind->Name == std::string_view("half-pie-histogram")) {
            throw UsageError(
                "half-pie-histogram: needs two tables, expected a document that names them under "
                "data/csv and data/groupsCsv");
        }
    }
}

void Settle(std::vector<std::string>& inputs, ChartSource& source) {
    if (source.Kind != nullptr && inputs.empty() && source.Data) {
        inputs = {*source.Data};
        source.Data.reset();
    }
    if (inputs.empty()) {
        throw UsageError(source.Kind == nullptr ? "FILE: expected a chart document, or --kind and a table"
                                                : "FILE: expected a table");
    }
    if (source.Data && source.Kind != nullptr) {
        throw UsageError("--data: expected no FILE with it, or no --kind");
    }
    if (source.Data && inputs.size() > 1) {
        throw UsageError("--data: expected one FILE with it");
    }
    CheckTable(source, source.Data || source.Kind != nullptr);
}

} // namespace cli
