#pragma once

#include "charts/cartesian/FittedRange.h"
#include "documents/ChartContent.h"
#include "documents/ChartStream.h"
#include "documents/SavingStream.h"
#include "penlode/streams/Diagnostic.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

/// The range of a value axis as a document gives it in its group "range", or in it by the library's own
/// words:
///
///     "range": "fit"
///     "range": {"InitializeValueRange": 37}
///     "range": {"NaturalValueRange": [0, 40, 10, 2]}
///     "range": {"LogarithmValueRange": [1, 1000]}
namespace millichart::documents {

/// Refuses what is not one sound range of the chart's scale.
ValueRange LoadValueRange(ChartStream& stream, bool isLogarithmic,
                          std::vector<penlode::Diagnostic>& diagnostics);

/// The range of a chart that else always finds its axis's range from a largest value.
ValueRange LoadLargestValue(ChartStream& stream, std::vector<penlode::Diagnostic>& diagnostics);

void SaveValueRange(SavingStream& stream, const ValueRange& range);

template <class Chart> void SetValueRange(Chart& chart, const ValueRange& range, double largest) {
    if (const auto& natural = range.Natural) {
        chart.SetNaturalValueRange((*natural)[0], (*natural)[1], (*natural)[2], (*natural)[3]);
    } else if (const auto& logarithm = range.Logarithm) {
        chart.SetLogarithmValueRange((*logarithm)[0], (*logarithm)[1]);
    } else {
        chart.InitializeValueRange(range.Largest.value_or(largest));
    }
}

/// Whether a chart with such options finds its range from both ends of its values.
inline bool IsFitted(const ValueRange& range, const ChartOptions& options) {
    return range.IsFitted || (range == ValueRange() && options.ValueRange == RangeStyle::BothEnds);
}

/// The range that the values of a chart with such options fill.
ValueRange RangeFilledBy(const ValueSpan& values, bool isLogarithmic, bool areBars,
                         const ChartOptions& options);

/// An error for each extent of the plot of a bar or line chart that is not above 0. `place` is its record's.
std::vector<penlode::Diagnostic> PlotSizeFaults(const std::string& place, float width, float height);

/// Looks for values that a value axis does not hold, one after the other.
class RangeCheck {
public:
    template <class Chart>
    RangeCheck(const Chart& chart, bool isLogarithmic) : m_isLogarithmic(isLogarithmic) {
        double step = 0.0;
        if (isLogarithmic) {
            chart.GetLogarithmValueRange(m_min, m_max);
        } else {
            chart.GetNaturalValueRange(m_min, m_max, step, step);
        }
    }

    void Look(double value, std::size_t list, std::size_t item) {
        const bool isHeld = value >= m_min && value <= m_max;
        if (!isHeld || value < -kMaxValue || value > kMaxValue) {
            Note({value, list, item});
        }
    }

    /// There may be more values than were looked at, but none that is smaller or larger.
    void SetOutermost() { m_areOutermost = true; }

    /// Adds nothing, warnings, or an error. `locate` gives a diagnostic of the file, line and place of an
    /// item of a list, and in its text what the item belongs to: ' of "Wheat" in "North"'.
    void AddTo(std::vector<penlode::Diagnostic>& diagnostics,
               const std::function<penlode::Diagnostic(std::size_t, std::size_t)>& locate) const;

    /// Where in the range a value stands, 0 being its minimum and 1 its maximum.
    double PartOf(double value) const { return (value - m_min) / (m_max - m_min); }

    /// "the value axis, which goes from 0 to 50"
    std::string Axis() const;

private:
    struct Item {
        double Value = 0.0;
        std::size_t List = 0;
        std::size_t Index = 0;
    };

    /// Values that are alike, by the first of them.
    struct Items {
        std::size_t Count = 0;
        Item First;
    };

    void Note(const Item& item);

    bool m_isLogarithmic;
    bool m_areOutermost = false;
    double m_min = 0.0;
    double m_max = 0.0;
    Items m_outside;
    Items m_unplaced; ///< no numbers, and on a logarithmic axis those not above 0: no range holds them
    Items m_huge;     ///< those that no axis could hold
};

/// Of the value in a column of a row of the table, or else at that place in the document.
penlode::Diagnostic AtValue(const TableOrigin& origin, std::size_t row, std::size_t column,
                            const std::string& place);

} // namespace millichart::documents
