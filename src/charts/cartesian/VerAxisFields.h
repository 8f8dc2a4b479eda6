#pragma once

#include "charts/cartesian/VerAxisProp.h"
#include "foundation/RecordFields.h"

/// The fields of the value axis of bar and line charts, and what else their records share. Keyed, a missing
/// axis is off, and its minor grid and caption are on.
namespace millichart {

inline constexpr EnumName kScaleStyleNames[] = {{ScaleStyle::None, "none"},
                                                {ScaleStyle::Outer, "outer"},
                                                {ScaleStyle::Inner, "inner"},
                                                {ScaleStyle::Cross, "cross"}};

/// What the keyed records of bar and line charts give for an edge pen that is not there.
inline constexpr penlode::Pen kDefaultEdgePen{penlode::Color{0xFFDA8080}, 0.2F};

/// And for the pen of the vertical grid: the thinnest line.
inline constexpr penlode::Pen kDefaultVerGridPen{penlode::kBlack, 0.0F};

template <class Fields> void Describe(Fields& record, VerAxisProp& prop) {
    record.Field("ShowVerAxis", prop.ShowVerAxis, 0);
    record.Field("MajorScaleStyle", prop.MajorScaleStyle, kScaleStyleNames, ScaleStyle::Outer);
    record.Field("MinorScaleStyle", prop.MinorScaleStyle, kScaleStyleNames, ScaleStyle::Outer);
    record.Field("VerAxisPen", prop.VerAxisPen);
    record.Field("ShowVerAxisLabel", prop.ShowVerAxisLabel, 1);
    record.Record("VerAxisLabelTextProperty", prop.VerAxisLabelTextProperty);
    record.Field("ShowHorMajorGrid", prop.ShowHorMajorGrid, 1);
    record.Field("HorMajorGridPen", prop.HorMajorGridPen);
    record.Field("ShowHorMinorGrid", prop.ShowHorMinorGrid, 1);
    record.Field("HorMinorGridPen", prop.HorMinorGridPen);
    record.Field("ShowVerCaption", prop.ShowVerCaption, 1);
    record.Field("VerCaption", prop.VerCaption, "");
    record.Record("VerCaptionTextProperty", prop.VerCaptionTextProperty);
}

} // namespace millichart
