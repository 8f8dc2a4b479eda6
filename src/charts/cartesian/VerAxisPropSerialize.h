#pragma once

#include "charts/cartesian/VerAxisProp.h"
#include "foundation/SerializeFrame.h"
#include "penlode/streams/ISerialize.h"
#include "penlode/streams/SerializeStream.h"

namespace millichart {

inline constexpr EnumName kScaleStyleNames[] = {{ScaleStyle::None, "none"},
                                                {ScaleStyle::Outer, "outer"},
                                                {ScaleStyle::Inner, "inner"},
                                                {ScaleStyle::Cross, "cross"}};

/// What the keyed records of bar and line charts give for an edge pen that is not there.
inline constexpr penlode::Pen kDefaultEdgePen{penlode::Color{0xFFDA8080}, 0.2F};

/// And for the pen of the vertical grid: the thinnest line.
inline constexpr penlode::Pen kDefaultVerGridPen{penlode::kBlack, 0.0F};

/// Saves and loads the value axis of a bar or line chart. Keyed, a missing axis is off, and its minor grid
/// and caption are on.
void SerializeVerAxis(penlode::ISerialize& stream, VerAxisProp& prop);
void SerializeVerAxis(penlode::CSerializeStream& stream, VerAxisProp& prop, const char* tag);

} // namespace millichart
