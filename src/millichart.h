#pragma once

/// Everything that a host needs: the charts, their records, the serializers and the streams. The engine that
/// a host draws on is included by its own header: penlode/GraphicsEngine.h, this platform's.
///
/// <windows.h> may come before or after, with or without its macros. <X11/Xlib.h> comes after: its macros
/// Status and None are names here. A host that names either behind both undefines the macro first.
#include "charts/curve/BasicCurve.h"
#include "charts/curve/CurveProp.h"
#include "charts/curve/CurvePropSerialize.h"
#include "charts/histogram/BasicHistogram.h"
#include "charts/histogram/HistogramProp.h"
#include "charts/histogram/HistogramPropSerialize.h"
#include "charts/pie/BasicHalfPie.h"
#include "charts/pie/BasicHalfPieHalfPie.h"
#include "charts/pie/BasicHalfPieHistogram.h"
#include "charts/pie/BasicPie.h"
#include "charts/pie/HalfPieHistogramProp.h"
#include "charts/pie/HalfPieProp.h"
#include "charts/pie/HalfPiePropSerialize.h"
#include "charts/pie/PieProp.h"
#include "charts/pie/PiePropSerialize.h"
#include "foundation/CaptionProp.h"
#include "foundation/ChartText.h"
#include "foundation/Legend.h"
#include "foundation/PropSerialize.h"
#include "foundation/TextProperty.h"
#include "foundation/TextPropertyOperation.h"
#include "penlode/IGraphicsEngine.h"
#include "penlode/Units.h"
#include "penlode/streams/BinarySerialize.h"
#include "penlode/text/StringUtil.h"
#if __has_include("penlode/streams/JsonSerializeStream.h") // a library without documents lacks it
#include "penlode/streams/JsonSerializeStream.h"
#endif
