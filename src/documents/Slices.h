#pragma once

#include "charts/pie/SlicedCircle.h"
#include "documents/ChartData.h"
#include "documents/DataSource.h"
#include "documents/LayoutTask.h"
#include "documents/SavingStream.h"
#include "penlode/Color.h"

#include <cstdint>
#include <string>
#include <vector>

namespace millichart::documents {

/// The slices of one pie or half pie in a document.
class Slices {
public:
    /// `record` is the place of its PieBasicProp or HalfPieBasicProp, `half` the group within "data" of one
    /// of two.
    template <class Basic>
    Slices(const char* record, SliceData& data, Basic& basic, const char* half = "")
        : m_record(record), m_half(half), m_data(data), m_names(basic.ComponentName),
          m_colors(basic.ComponentColor), m_fixedSize(basic.FixedSize) {}

    /// The stream's group "data": "values", or "csv" with a table of names and values. What is wrong is told;
    /// data with more slices than a pie can show are told and empty, names too.
    void Load(ChartStream& stream, const DataSource& source);

    /// Two pies in the group "data": "first" and "second", each as Load has its group, or "csv" with a table
    /// of names and each half's values, under a heading.
    friend void LoadHalves(ChartStream& stream, const DataSource& source, Slices& first, Slices& second);

    /// The record was saved before.
    void Save(SavingStream& stream) const;

    void TakeTableNames(bool inPlaceOfOwn) { TakeNames(m_names, m_data.Names, inPlaceOfOwn); }

    /// Completes the names and colours that the record leaves open.
    void Complete(const LayoutTask& task);

    /// Warns of what was hardly meant in the circle that shows them. A half pie in a chart of several keeps
    /// as many of its label offsets as it has names.
    void Check(const CSlicedCircle& circle, std::vector<penlode::Diagnostic>& diagnostics,
               std::size_t offsetsInSeveral = 0) const;

    /// What is told of a chart without size.
    penlode::Diagnostic Emptiness() const;

private:
    void LoadHere(ChartStream& stream, const DataSource& source);
    void LoadHalf(ChartStream& stream, const DataSource& source, bool isReplaced);
    void Take(const Table& table, std::size_t column);
    void CheckNames(std::vector<penlode::Diagnostic>& diagnostics);
    void CheckSize(float width, std::vector<penlode::Diagnostic>& diagnostics) const;
    double Total() const;
    std::string DataPlace() const;

    std::string m_record;
    std::string m_half;
    SliceData& m_data;
    std::vector<std::string>& m_names;
    std::vector<penlode::Color>& m_colors;
    const std::int32_t& m_fixedSize;
};

} // namespace millichart::documents
