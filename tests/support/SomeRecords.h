#pragma once

#include "charts/curve/CurveProp.h"
#include "charts/histogram/HistogramProp.h"
#include "charts/pie/HalfPieHistogramProp.h"
#include "charts/pie/HalfPieProp.h"
#include "charts/pie/PieProp.h"
#include "foundation/CaptionProp.h"
#include "foundation/ChartOptions.h"
#include "foundation/Legend.h"

/// Records whose own fields differ from their neighbours and from both kinds of default, so that one that is
/// lost or taken for another shows.
millichart::CaptionProp SomeCaption();
millichart::LegendProp SomeLegend(); ///< without a font
millichart::PieProp SomePie();
millichart::HalfPieProp SomeHalf();
millichart::HistogramProp SomeHistogram();
millichart::ChartOptions SomeOptions();
millichart::CurveProp SomeCurves(); ///< its value axis is as constructed but for two fields
