#pragma once

#include "documents/ChartContent.h"
#include "foundation/ChartOptions.h"

#include <cstdint>
#include <span>

/// The reading options as a person sets them: a table, from which the panel is made.
namespace designer {

struct OptionChoice {
    std::int32_t Value;
    const char* Text;
};

/// One option. Texts are sources of translations in the context of OptionsPanel.
struct OptionRow {
    std::int32_t millichart::ChartOptions::*Field;
    const char* Text; ///< with its mnemonic
    const char* Tip;
    std::span<const OptionChoice> Choices; ///< of two, with a text for the second alone, a check box
    std::uint32_t Kinds;                   ///< of charts that it changes, a bit for each of ChartContent

    bool IsFlag() const { return Choices.size() == 2 && Choices[0].Text == nullptr; }
};

std::span<const OptionRow> OptionRows();

/// In a set of kinds as a row has it? No kind is in none.
bool IsKindIn(const millichart::ChartKind* kind, std::uint32_t kinds);

/// Those with titles among their options, and those with two.
extern const std::uint32_t kKindsWithTitle;
extern const std::uint32_t kKindsWithTwoTitles;
/// Those that write values, with decimals, at their parts.
extern const std::uint32_t kKindsWithValues;

} // namespace designer
