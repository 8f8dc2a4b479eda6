#include "documents/LayoutTask.h"

#include "documents/Fields.h"

#include <algorithm>

namespace millichart::documents {

std::size_t CompleteNames(std::vector<std::string>& names, const std::vector<std::string>& ofData,
                          std::size_t count, bool areOpen) {
    TakeNames(names, ofData, areOpen);
    const std::size_t named = areOpen && names.empty() ? count : names.size();
    for (std::size_t i = names.size(); i < count; ++i) {
        names.push_back(i < ofData.size() ? ofData[i] : std::string());
    }
    return named;
}

void CompleteLegend(LegendProp& legend, const std::vector<std::string>& names, bool isOpen) {
    const bool isOfUse =
        names.size() > 1 &&
        std::any_of(names.begin(), names.end(), [](const std::string& name) { return !name.empty(); });
    legend.ShowLegend = isOpen && !isOfUse ? 0 : legend.ShowLegend;
}

void TakeNames(std::vector<std::string>& names, const std::vector<std::string>& ofData, bool inPlaceOfOwn) {
    if (!ofData.empty() && (names.empty() || inPlaceOfOwn)) {
        names = ofData;
    }
}

bool AreOthers(const std::vector<std::string>& names, const std::vector<std::string>& ofData) {
    return !ofData.empty() && names != ofData;
}

penlode::Diagnostic OtherNames(const std::string& place) {
    return penlode::Warning(place,
                            "other names than in the CSV file, and the document's are taken; leave out " +
                                place.substr(place.rfind('/') + 1) + " for those of the file");
}

penlode::Diagnostic WrongCount(const std::string& place, std::size_t count, const char* noun,
                               std::size_t expected, const std::string& which) {
    return penlode::Warning(place, Counted(count, noun), std::to_string(expected) + ", " + which);
}

penlode::Diagnostic NothingIn(const TableOrigin& origin, const char* place, const char* expected) {
    penlode::Diagnostic nothing =
        penlode::Error(origin.File.empty() ? place : "", "nothing to draw", expected);
    nothing.File = origin.File;
    return nothing;
}

} // namespace millichart::documents
