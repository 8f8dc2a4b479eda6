#pragma once

#include "documents/ChartDocument.h"
#include "pages/Look.h"

#include <optional>
#include <string>
#include <vector>

namespace cli {

/// What makes a chart of an input, or changes it.
struct ChartSource {
    const millichart::ChartKind* Kind = nullptr; ///< inputs are tables, drawn as this; null: documents
    std::optional<std::string> Data;             ///< a table that replaces a document's data
    millichart::TableOptions Table;              ///< how either is read
    std::optional<bool> Streams;                 ///< a line chart's rows are not held; else if they are many
    cli::Look Look;
    std::optional<penlode::SizeF> Figure;      ///< mm, texts included; without one the document's own sizes
    std::vector<millichart::Setting> Settings; ///< beside those of the look
};

/// A file, "-" for the standard input, or a data base, which is not read here. Of what is to be streamed only
/// the beginning is.
millichart::TableInput ReadTableInput(const std::string& name, const millichart::TableOptions& options,
                                      std::optional<bool> streams = false);

/// Is it a table by its name's ending, or by what stands in it, and no document?
bool IsTable(const millichart::InputText& input);

/// The settings of the look in a document of that kind, and the others.
std::vector<millichart::Setting> AllSettings(const ChartSource& source, const millichart::ChartKind& kind);

/// What was set is told of its option. A document that nobody wrote has no file: what is told of it is told
/// of `name`, with the document's places but not its lines.
void TellOfOptions(const std::string& name, const ChartSource& source,
                   std::vector<penlode::Diagnostic>& diagnostics);

/// Sizes a sound document by the figure that was asked for, or adds why that cannot be.
void FitFigure(millichart::ChartDocument& document, const ChartSource& source,
               std::vector<penlode::Diagnostic>& diagnostics);

} // namespace cli
