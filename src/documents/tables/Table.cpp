#include "documents/tables/Table.h"

#include "documents/tables/Arrange.h"
#include "documents/tables/DecimalMark.h"
#include "documents/tables/Heading.h"
#include "documents/tables/OpenTable.h"
#include "documents/tables/TableReader.h"
#include "documents/tables/TableShape.h"
#include "documents/tables/TransposedRows.h"

#include <algorithm>
#include <memory>
#include <utility>

namespace millichart::documents {
namespace {

using penlode::Diagnostic;

/// A table's rows as they are to be read.
struct OpenedTable {
    std::unique_ptr<RowReader> Rows;
    std::vector<std::uint32_t> Lines; ///< of the columns, where rows are columns
    std::string Title;                ///< of such a table
};

OpenedTable Opened(const TableInput& input) {
    OpenedTable opened{OpenTable(input), {}, {}};
    if (input.Options.IsTransposed) {
        auto transposed = std::make_unique<TransposedRows>(std::move(opened.Rows));
        opened.Lines = transposed->Lines();
        opened.Title = transposed->Title();
        opened.Rows = std::move(transposed);
    }
    return opened;
}

TableOptions OptionsOf(const TableInput& input) {
    TableOptions options = input.Options;
    if (!input.Source.empty()) {
        options.HasHeading = options.HasHeading.value_or(true);
    }
    return options;
}

/// Points where a program wrote the numbers; nothing where they tell.
std::optional<DecimalMark> GivenMark(const TableOptions& options, const RowReader& reader) {
    if (options.DecimalMark || reader.IsExact()) {
        return DecimalMark{options.DecimalMark.value_or('.')};
    }
    return std::nullopt;
}

/// Reads all rows: at first as if numbers were plain, and again with the mark if one is not. `make` makes a
/// reader for a mark.
template <class Make>
auto ReadRows(const std::optional<DecimalMark>& given, const TableForm& form, LookedAtRows& rows,
              const TableShape& shape, const Make& make) {
    auto reader = make(given);
    const bool isRead = reader->Read();
    const char separator = rows.Reader().Separator();
    if (given || (isRead && separator != ';')) {
        return reader;
    }
    const DecimalMark found = FindDecimalMark(rows, shape, form.HasTimes ? 0 : 1);
    if (!isRead) {
        reader = make(found);
        reader->Read();
    }
    if (!found.Open.empty() && separator != ',') {
        reader->WarnOfMark(found, isRead ? '.' : found.Mark);
    }
    return reader;
}

} // namespace

std::optional<TableShape> ShapeOfInput(const TableInput& input, const TableForm& form, LookedAtRows& rows,
                                       std::vector<Diagnostic>& diagnostics) {
    const TableOptions options = OptionsOf(input);
    const RowReader& reader = rows.Reader();
    std::vector<Diagnostic> told;
    TableShape shape = ShapeOf(rows, form, options, told);
    if (!options.Sheet.empty() && reader.Sheet().empty() && reader.Fault().empty()) {
        told.push_back(penlode::Warning("sheet", "has no effect, as this table has no sheets"));
    }
    if (!options.Query.empty() && input.Source.empty()) {
        told.push_back(penlode::Warning("query", "has no effect, as this table is no data base"));
    }
    for (Diagnostic& diagnostic : told) {
        diagnostic.File = input.Input.Name;
        diagnostic.Line = options.IsTransposed ? 0 : diagnostic.Line;
    }
    diagnostics.insert(diagnostics.end(), told.begin(), told.end());
    const bool isWrong = std::any_of(told.begin(), told.end(), [](const Diagnostic& one) {
        return one.Severity == penlode::Severity::Error;
    });
    return isWrong ? std::nullopt : std::optional(std::move(shape));
}

Table ReadTable(const TableInput& input, const TableForm& form, std::vector<Diagnostic>& diagnostics) {
    const TableOptions options = OptionsOf(input);
    const OpenedTable opened = Opened(input);
    LookedAtRows rows(*opened.Rows);
    std::optional<TableShape> found = ShapeOfInput(input, form, rows, diagnostics);
    if (!found) {
        return {};
    }
    TableShape& shape = *found;
    shape.Title = options.IsTransposed ? opened.Title : shape.Title;
    const auto reader =
        ReadRows(GivenMark(options, *opened.Rows), form, rows, shape, [&](std::optional<DecimalMark> mark) {
            return std::make_unique<TableReader>(input, form, rows, shape, std::move(mark), opened.Lines);
        });
    Arrange(reader->Result(), form, options, reader->Diagnostics());
    reader->CheckRows();
    diagnostics.insert(diagnostics.end(), reader->Diagnostics().begin(), reader->Diagnostics().end());
    return std::move(reader->Result());
}

std::string TableTitle(const TableInput& input) {
    const std::unique_ptr<RowReader> reader = OpenTable(input);
    const LookedAtRows rows(*reader);
    const std::size_t titles = TitleRows(rows.First(), true, input.Options.HasHeading);
    return titles == 0 ? "" : FirstText(rows.First().front());
}

} // namespace millichart::documents
