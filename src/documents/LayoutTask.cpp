#include "documents/LayoutTask.h"

#include "documents/Fields.h"

namespace millichart::documents {

void CompleteNames(std::vector<std::string>& names, const std::vector<std::string>& ofData, std::size_t count,
                   bool areOpen) {
    TakeNames(names, ofData, areOpen);
    if (areOpen && ofData.empty()) {
        names.assign(count, "");
    }
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
