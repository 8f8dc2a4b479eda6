#pragma once

#include "documents/large/Extremes.h"

#include <cmath>
#include <cstddef>
#include <limits>

namespace millichart::documents {

/// What a cell keeps of rows that come in any order, or before it is known how wide cells may be. Of gaps
/// only the first and the last are known, so a line may break a cell's width beside a gap.
struct LooseCell {
    Extremes Rows;
    CurveRow FirstGap{std::numeric_limits<double>::infinity(), 0.0};
    CurveRow LastGap{-std::numeric_limits<double>::infinity(), 0.0};

    void AddGap(const CurveRow& row) {
        FirstGap = row.Time < FirstGap.Time ? row : FirstGap;
        LastGap = row.Time >= LastGap.Time ? row : LastGap;
    }

    void Merge(const LooseCell& other) {
        Rows.Merge(other.Rows);
        if (std::isfinite(other.FirstGap.Time)) {
            AddGap(other.FirstGap);
            AddGap(other.LastGap);
        }
    }

    bool HasGap() const { return std::isfinite(FirstGap.Time); }
};

} // namespace millichart::documents
