#pragma once

#include "charts/curve/CurveProp.h"
#include "charts/histogram/HistogramProp.h"
#include "charts/pie/HalfPieProp.h"
#include "charts/pie/PieProp.h"
#include "documents/doubts/SeenText.h"
#include "documents/doubts/Wording.h"

/// Settings that show nothing, or far too much.
namespace millichart::documents {

/// Of texts that are set and switched off, of legends without names, and of sizes that are none or out of all
/// measure. The record's fonts are looked at with the texts.
void AddRecordDoubts(const HistogramProp& prop, const std::string& place, Diagnostics& diagnostics);
void AddRecordDoubts(const CurveProp& prop, const std::string& place, Diagnostics& diagnostics);
void AddRecordDoubts(const PieProp& prop, const std::string& place, Diagnostics& diagnostics);
void AddRecordDoubts(const HalfPieProp& prop, const std::string& place, Diagnostics& diagnostics);

/// Of bars that stand alone with their legend, as in a composite chart.
void AddBarRecordDoubts(const HistogramProp& prop, const std::string& place, Diagnostics& diagnostics);

/// Of texts in fonts that cannot be seen or are out of all measure.
void AddFontDoubts(const std::vector<ChartText>& texts, const PartRecords& records, Diagnostics& diagnostics);

} // namespace millichart::documents
