#pragma once

#include "charts/pie/PieLayout.h"
#include "charts/pie/PieProp.h"
#include "charts/reading/SlicesApart.h"
#include "penlode/IGraphicsEngine.h"

#include <vector>

/// A circle's labels that are kept apart, and their lead lines.
namespace millichart {

/// Slices, one after the other, with what is known of their labels.
struct LabelledSlices {
    float StartAngle;
    std::vector<float> Sweeps;
    const PieLabelProp& Label;
    const std::vector<penlode::PointF>& LabelOffsets; ///< the user's displacements; a missing one is (0, 0)
};

/// Moves the labels of a finished layout apart, which stand at their slices and their offsets, and adds lead
/// lines where the label asks for them. The text of a label that is left out becomes empty.
void KeepLabelsApart(const SliceRim& rim, const LabelledSlices& slices, PieLayout& layout);

void DrawLeadLines(penlode::IGraphicsEngine& engine, const PieLabelProp& label,
                   const std::vector<LeadLine>& lines);

} // namespace millichart
