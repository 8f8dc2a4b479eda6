#pragma once

#include "charts/curve/BasicCurve.h"
#include "documents/ChartContent.h"
#include "documents/DataSource.h"
#include "documents/LayoutTask.h"
#include "documents/SavingStream.h"
#include "documents/large/LargeRows.h"

#include <memory>
#include <vector>

namespace millichart::documents {

/// The curves of a document.
class Curves {
public:
    /// `large` takes what is too large to be held, whose extent are the data then.
    Curves(CurveData& data, CurveProp& prop, std::shared_ptr<LargeCurves>& large)
        : m_data(data), m_prop(prop), m_large(large) {}

    /// The stream's group "data": "curves", each a name, values and their times, or "csv" with a table of
    /// times and values a curve; and "labels". What is wrong is told.
    void Load(ChartStream& stream, const DataSource& source);

    void Save(SavingStream& stream) const;

    void TakeTableNames(bool inPlaceOfOwn);

    /// Completes the record and the labels.
    void Complete(const LayoutTask& task);

    /// The largest value that is not null. -infinity when there is none.
    double Largest() const;

    /// Makes times that a table gave as dates those since 1970 and gives their unit; leaves others, and those
    /// that do not fit in 32 bits, as numbers.
    std::int32_t CountSince1970();

    /// How the times were counted before that.
    TimeCount Counted() const { return m_counted; }

    /// The range that they fill in a chart with such options.
    ValueRange FittedRange(const ChartOptions& options) const;

    /// Warns of what was hardly meant. The chart has its range.
    void Check(const CBasicCurve& chart, std::vector<penlode::Diagnostic>& diagnostics) const;

    /// What is told of a chart that has nothing to draw.
    penlode::Diagnostic Emptiness() const;

private:
    void CompleteLooks(const OpenPlaces& open);
    void CompleteSteps(const OpenPlaces& open, std::size_t labels);
    template <class Look> void ForEachValue(const Look& look) const;
    void CheckRange(const CBasicCurve& chart, std::vector<penlode::Diagnostic>& diagnostics) const;

    CurveData& m_data;
    CurveProp& m_prop;
    std::shared_ptr<LargeCurves>& m_large;
    TimeCount m_counted;
    std::size_t m_named = 0; ///< curves with a name of the document or its table
};

} // namespace millichart::documents
