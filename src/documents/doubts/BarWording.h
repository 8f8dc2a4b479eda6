#pragma once

#include "charts/histogram/BasicHistogram.h"
#include "documents/ChartData.h"
#include "documents/doubts/Wording.h"

#include <string>

/// Bars of which something is doubtful: how they are found, how they are called, and where their values
/// stand.
namespace millichart::documents {

/// A warning without a text at a bar's value.
penlode::Diagnostic AtBar(const TableOrigin& origin, std::size_t group, std::size_t component);

/// ' of "Wheat" in "North"', or what of it has a name; narrow texts.
std::string BarNamed(const std::string& component, const std::string& group);

/// A bar of a group.
struct Bar {
    std::size_t Group = 0;
    std::size_t Component = 0;
    double Value = 0.0;
};

std::string BarNamed(const CBasicHistogram& chart, const Bar& bar);

/// Bars that something is true of.
struct FoundBars {
    std::size_t Count = 0;
    Bar First;
};

template <class Accepts> FoundBars FindBars(const CBasicHistogram& chart, const Accepts& accepts) {
    FoundBars found;
    const auto& groups = chart.GetComponentValue();
    for (std::size_t group = 0; group < groups.size(); ++group) {
        for (std::size_t i = 0; i < groups[group].size(); ++i) {
            if (const Bar bar{group, i, groups[group][i]}; accepts(bar)) {
                found.First = found.Count++ == 0 ? bar : found.First;
            }
        }
    }
    return found;
}

/// A warning at the first of them.
penlode::Diagnostic AtFirst(const FoundBars& found, const TableOrigin& origin, std::string text);

} // namespace millichart::documents
