#pragma once

/// Everything that a host needs: the charts, their records, the serializers and the streams. The engine that
/// a host draws on is included by its own header, such as penlode/cairo/GraphicsEngine.h.
#include "charts/pie/BasicHalfPie.h"
#include "charts/pie/BasicHalfPieHalfPie.h"
#include "charts/pie/BasicPie.h"
#include "charts/pie/HalfPieProp.h"
#include "charts/pie/HalfPiePropSerialize.h"
#include "charts/pie/PieProp.h"
#include "charts/pie/PiePropSerialize.h"
#include "foundation/CaptionProp.h"
#include "foundation/CaptionPropSerialize.h"
#include "foundation/Legend.h"
#include "foundation/LegendPropSerialize.h"
#include "foundation/TextProperty.h"
#include "foundation/TextPropertyOperation.h"
#include "foundation/TextPropertySerialize.h"
#include "penlode/BinarySerialize.h"
#include "penlode/IGraphicsEngine.h"
#include "penlode/JsonSerializeStream.h"
#include "penlode/StringUtil.h"
#include "penlode/Units.h"
