#pragma once

#include "charts/curve/CurveProp.h"
#include "documents/ChartDocument.h"
#include "model/DataTable.h"

/// Looks of which there is one a slice, component or curve, while these change their places.
namespace designer {

/// Colours that the list lacks are those that the chart would take for them.
void FollowColors(std::vector<penlode::Color>& colors, const Origins& origins);
/// How far labels were moved.
void FollowOffsets(std::vector<penlode::PointF>& offsets, const Origins& origins);
/// All lists of the plot's that have an entry a curve, but the names.
void FollowCurves(millichart::CurvePlotProp& plot, const Origins& origins);

/// Has anything moved that has a colour of its own in this chart: rows of slices, columns of others?
bool AreColorsMoved(const millichart::ChartContent& content, const std::vector<DataTable>& tables);

/// Colours of the safe palette, which go by places, become the record's. The palette for print stays, as a
/// record knows no hatches.
void OwnColors(millichart::ChartDocument& document);

/// The lists of colours of a chart, in the order of its tables, and how many each must have.
struct ColorList {
    std::vector<penlode::Color>* Colors = nullptr;
    std::size_t Count = 0;
};

std::vector<ColorList> ColorListsOf(millichart::ChartContent& content);

} // namespace designer
