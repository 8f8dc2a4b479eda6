#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

namespace millichart::documents {

/// A row as one of its curves sees it.
struct CurveRow {
    double Time;
    double Value;

    friend bool operator==(const CurveRow&, const CurveRow&) = default;
};

/// Of rows between which there is no gap, those by which a line through all of them is drawn in a column.
struct Extremes {
    CurveRow First{};
    CurveRow Low{};  ///< the first of the lowest
    CurveRow High{}; ///< the first of the highest
    CurveRow Last{};
    std::uint64_t Count = 0;
    bool IsLowFirst = true; ///< the low one does not come behind the high one

    /// A row that comes behind all others.
    void Append(const CurveRow& row) {
        if (Count++ == 0) {
            First = Low = High = Last = row;
            return;
        }
        Last = row;
        if (row.Value < Low.Value) {
            Low = row;
            IsLowFirst = false;
        } else if (row.Value > High.Value) {
            High = row;
            IsLowFirst = true;
        }
    }

    /// Rows that come behind all others.
    void Append(const Extremes& later) {
        if (Count == 0 || later.Count == 0) {
            *this = Count == 0 ? later : *this;
            return;
        }
        const bool isLower = later.Low.Value < Low.Value;
        const bool isHigher = later.High.Value > High.Value;
        IsLowFirst = isLower == isHigher ? (isLower ? later.IsLowFirst : IsLowFirst) : isHigher;
        Low = isLower ? later.Low : Low;
        High = isHigher ? later.High : High;
        Last = later.Last;
        Count += later.Count;
    }

    /// Rows that stand behind all others in their file, whatever their times are.
    void Merge(const Extremes& others) {
        if (Count == 0 || others.Count == 0) {
            *this = Count == 0 ? others : *this;
            return;
        }
        const auto isEarlier = [](const CurveRow& a, const CurveRow& b) { return a.Time < b.Time; };
        First = std::min(First, others.First, isEarlier);
        Last = std::max(others.Last, Last, isEarlier);
        if (others.Low.Value < Low.Value || (others.Low.Value == Low.Value && isEarlier(others.Low, Low))) {
            Low = others.Low;
        }
        if (others.High.Value > High.Value ||
            (others.High.Value == High.Value && isEarlier(others.High, High))) {
            High = others.High;
        }
        IsLowFirst = Low.Time <= High.Time;
        Count += others.Count;
    }

    void Merge(const CurveRow& row) { Merge(Extremes{row, row, row, row, 1, true}); }

    /// Puts them into a list in their order, each once, and gives how many there are.
    std::size_t List(std::array<CurveRow, 4>& rows) const {
        std::size_t listed = 0;
        for (const CurveRow& row : {First, IsLowFirst ? Low : High, IsLowFirst ? High : Low, Last}) {
            if (listed == 0 || (Count > listed && !(rows[listed - 1] == row))) {
                rows[listed++] = row;
            }
        }
        return listed;
    }
};

} // namespace millichart::documents
