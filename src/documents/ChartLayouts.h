#pragma once

#include "documents/ChartDocument.h"
#include "documents/DataSource.h"
#include "documents/LayoutTask.h"
#include "documents/SavingStream.h"

#include <type_traits>
#include <variant>

/// What each kind of chart does with its document.
namespace millichart::documents {

/// Calls `work` with what the variant holds, unless that is nothing.
template <class Variant, class Work> void WithContent(Variant& held, const Work& work) {
    std::visit(
        [&work](auto& content) {
            if constexpr (!std::is_same_v<std::decay_t<decltype(content)>, std::monostate>) {
                work(content);
            }
        },
        held);
}

/// Loads a record, its data and range, the chart's location, how far parts were moved, and its options. What
/// is wrong is told.
void LoadContent(ChartStream& stream, const DataSource& source, ChartDocument& document);
void SaveContent(SavingStream& stream, ChartDocument& document);

/// Puts the names that came with a table into the record: those that it lacks, or in the place of its own.
void TakeTableNames(ChartContent& content, bool inPlaceOfOwn);

/// Completes the content, which is not needed afterwards, and lays out its chart.
void LayOutContent(ChartContent& content, LayoutTask& task, LaidOutChart& laidOut);

} // namespace millichart::documents
