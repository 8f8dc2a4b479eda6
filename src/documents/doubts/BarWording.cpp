#include "documents/doubts/BarWording.h"

#include "documents/ValueRange.h"

#include <utility>

namespace millichart::documents {

penlode::Diagnostic AtBar(const TableOrigin& origin, std::size_t group, std::size_t component) {
    penlode::Diagnostic at =
        AtValue(origin, group, component + 1,
                "data/groups/" + std::to_string(group) + "/values/" + std::to_string(component));
    at.Severity = penlode::Severity::Warning;
    return at;
}

std::string BarNamed(const std::string& component, const std::string& group) {
    return (component.empty() ? "" : " of " + Quoted(component)) +
           (group.empty() ? "" : " in " + Quoted(group));
}

std::string BarNamed(const CBasicHistogram& chart, const Bar& bar) {
    return BarNamed(NameAt(chart.GetHistogramProp().Plot.ComponentName, bar.Component),
                    NameAt(chart.GetGroupName(), bar.Group));
}

penlode::Diagnostic AtFirst(const FoundBars& found, const TableOrigin& origin, std::string text) {
    penlode::Diagnostic told = AtBar(origin, found.First.Group, found.First.Component);
    told.Text = std::move(text);
    return told;
}

} // namespace millichart::documents
