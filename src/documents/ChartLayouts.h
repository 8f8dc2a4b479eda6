#pragma once

#include "documents/ChartDocument.h"
#include "documents/ChartStream.h"
#include "documents/DataSource.h"
#include "documents/SavingStream.h"

#include <vector>

/// What each kind of chart does with its document: four functions a kind.
namespace millichart::documents {

/// What a layout is told besides the document's content.
struct LayoutTask {
    penlode::PointF Location;
    OpenPlaces Open;
    bool AreDataChanged = false; ///< since they were loaded, so that they do not stand where they came from
    std::vector<penlode::Diagnostic> Diagnostics; ///< takes what was hardly meant
    penlode::Diagnostic Emptiness;                ///< takes what is told when the chart has no extent
};

/// Loads a record, its data and range. What is wrong is told.
void LoadContent(ChartStream& stream, const DataSource& source, PieDocument& document);
void LoadContent(ChartStream& stream, const DataSource& source, HalfPieDocument& document);
void LoadContent(ChartStream& stream, const DataSource& source, HalfPieHalfPieDocument& document);
void LoadContent(ChartStream& stream, const DataSource& source, HalfPieHistogramDocument& document);
void LoadContent(ChartStream& stream, const DataSource& source, HistogramDocument& document);
void LoadContent(ChartStream& stream, const DataSource& source, CurveDocument& document);

/// Loads or saves how far parts were moved.
void SerOffsets(penlode::CSerializeStream& stream, PieDocument& document);
void SerOffsets(penlode::CSerializeStream& stream, HalfPieDocument& document);
void SerOffsets(penlode::CSerializeStream& stream, HalfPieHalfPieDocument& document);
void SerOffsets(penlode::CSerializeStream& stream, HalfPieHistogramDocument& document);

inline void SerOffsets(penlode::CSerializeStream&, HistogramDocument&) {}

inline void SerOffsets(penlode::CSerializeStream&, CurveDocument&) {}

void SaveContent(SavingStream& stream, PieDocument& document);
void SaveContent(SavingStream& stream, HalfPieDocument& document);
void SaveContent(SavingStream& stream, HalfPieHalfPieDocument& document);
void SaveContent(SavingStream& stream, HalfPieHistogramDocument& document);
void SaveContent(SavingStream& stream, HistogramDocument& document);
void SaveContent(SavingStream& stream, CurveDocument& document);

/// Puts the names that came with a table into the record: those that it lacks, or in the place of its own.
void TakeTableNames(PieDocument& document, bool inPlaceOfOwn);
void TakeTableNames(HalfPieDocument& document, bool inPlaceOfOwn);
void TakeTableNames(HalfPieHalfPieDocument& document, bool inPlaceOfOwn);
void TakeTableNames(HalfPieHistogramDocument& document, bool inPlaceOfOwn);
void TakeTableNames(HistogramDocument& document, bool inPlaceOfOwn);
void TakeTableNames(CurveDocument& document, bool inPlaceOfOwn);

/// Completes the document, which is not needed afterwards, and lays out its chart.
CBasicPie LayOutContent(PieDocument& document, LayoutTask& task);
CBasicHalfPie LayOutContent(HalfPieDocument& document, LayoutTask& task);
CBasicHalfPieHalfPie LayOutContent(HalfPieHalfPieDocument& document, LayoutTask& task);
CBasicHalfPieHistogram LayOutContent(HalfPieHistogramDocument& document, LayoutTask& task);
CBasicHistogram LayOutContent(HistogramDocument& document, LayoutTask& task);
CBasicCurve LayOutContent(CurveDocument& document, LayoutTask& task);

inline void ForgetOrigin(TableOrigin& origin, const LayoutTask& task) {
    if (task.AreDataChanged) {
        origin = {};
    }
}

/// Such names go into the record's.
inline void TakeNames(std::vector<std::string>& names, const std::vector<std::string>& ofTable,
                      bool inPlaceOfOwn) {
    if (!ofTable.empty() && (names.empty() || inPlaceOfOwn)) {
        names = ofTable;
    }
}

} // namespace millichart::documents
