#pragma once

#include "documents/doubts/SeenText.h"
#include "documents/doubts/Wording.h"

#include <vector>

namespace millichart::documents {

/// Where a legend stands.
struct LegendBox {
    penlode::RectF Box;
    std::size_t Part = 0; ///< of the chart
};

/// Of texts that lie over each other: one warning for two kinds of texts. A legend's names count with its
/// box.
void AddOverlapDoubts(const std::vector<SeenText>& texts, const PartRecords& records,
                      Diagnostics& diagnostics);

/// Of texts below a legend.
void AddLegendDoubts(const std::vector<SeenText>& texts, const std::vector<LegendBox>& legends,
                     const PartRecords& records, Diagnostics& diagnostics);

/// Of texts that the page does not hold, such as labels of bars far out of the axis's range.
void AddOutsideDoubts(const std::vector<SeenText>& texts, const penlode::RectF& page,
                      const PartRecords& records, Diagnostics& diagnostics);

} // namespace millichart::documents
