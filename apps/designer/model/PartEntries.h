#pragma once

#include "documents/ChartDocument.h"
#include "foundation/ChartPart.h"

#include <optional>
#include <string>
#include <vector>

/// What of a document's data a part of its chart stands for.
namespace designer {

/// Which of the document's tables.
std::size_t TableOf(const millichart::ChartContent& content, const millichart::ChartPart& part);
/// Has that table a row a slice?
bool IsOfSlices(const millichart::ChartContent& content, const millichart::ChartPart& part);
bool IsOfLegend(const millichart::ChartPart& part);

/// Of the slice, component or curve among its like; nothing for what belongs to none.
std::optional<std::size_t> EntryOf(const millichart::ChartContent& content,
                                   const millichart::ChartPart& part);

/// The record of a legend that a bar or line chart shows, in the document; null for any other.
millichart::LegendProp* DockedLegendOf(millichart::ChartContent& content, const millichart::ChartPart& part);

/// The bars or the slices that a part belongs to; null if it belongs to others.
const millichart::BarData* BarsOf(const millichart::ChartContent& content, const millichart::ChartPart& part);
const millichart::SliceData* SlicesOf(const millichart::ChartContent& content,
                                      const millichart::ChartPart& part);

/// The names of slices, components or curves as the chart shows them, narrow.
std::vector<std::string> NamesOf(const millichart::ChartContent& content, const millichart::ChartPart& part);

/// The caption and its flag, if the part is one that can be written.
struct WrittenText {
    std::string* Text = nullptr;
    std::int32_t* IsShown = nullptr;
};

WrittenText CaptionOf(millichart::ChartDocument& document, const millichart::ChartPart& part);
/// Null where there is none.
const std::string* CaptionTextOf(const millichart::ChartDocument& document,
                                 const millichart::ChartPart& part);

} // namespace designer
