#pragma once

#include "charts/pie/HalfPieProp.h"
#include "editing/RecordDialog.h"

namespace millichart {

/// A pie itself: its look, its size and its components.
class CPagePie : public RecordDialog<PieBasicProp> {
public:
    explicit CPagePie(const PieBasicProp& prop);
};

/// A half pie itself.
class CPageHalfPie : public RecordDialog<HalfPieBasicProp> {
public:
    explicit CPageHalfPie(const HalfPieBasicProp& prop);
};

/// The labels round a pie or a half pie.
class CPagePieLabel : public RecordDialog<PieLabelProp> {
public:
    explicit CPagePieLabel(const PieLabelProp& prop);
};

} // namespace millichart
