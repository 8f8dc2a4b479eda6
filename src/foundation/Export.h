#pragma once

#include "penlode/Export.h"

/// MILLICHART_API marks what the shared library `millichart` offers; everything else stays hidden.
/// Define MILLICHART_STATIC when the code is compiled into a static library or linked from one.
#if defined(MILLICHART_STATIC)
#define MILLICHART_API
#elif defined(MILLICHART_BUILDING)
#define MILLICHART_API PENLODE_EXPORT_
#else
#define MILLICHART_API PENLODE_IMPORT_
#endif
