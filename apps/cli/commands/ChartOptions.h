#pragma once

#include "pages/ChartSource.h"

#include <CLI/CLI.hpp>
#include <string>
#include <vector>

/// The options that every command has which makes a chart: what it is made of and how it looks.
namespace cli {

/// --data and how a table is read.
void AddTableOptions(CLI::App& command, ChartSource& source);
/// Of what draws or checks a chart and does not write its data.
void AddStreamOption(CLI::App& command, ChartSource& source);
/// --title and its like, and --set.
void AddLookOptions(CLI::App& command, ChartSource& source);
/// --kind
void AddKindOption(CLI::App& command, ChartSource& source);
/// A kind without an option's name before it.
CLI::Option* AddKind(CLI::App& command, const std::string& name, ChartSource& source,
                     const std::string& help);

/// Takes a table under --data for the input where there is none but a kind. Throws UsageError for what does
/// not go together, and for a look that the kind does not have.
void Settle(std::vector<std::string>& inputs, ChartSource& source);
/// The same of a chart on the data alone.
void CheckTable(const ChartSource& source, bool hasTable);

} // namespace cli
