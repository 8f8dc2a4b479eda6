#pragma once

/* Dialogs for the range of a value axis, for hosts in C and in every language that calls C.

   Each opens a modal dialog on the host's active window and returns true after OK, with the user's numbers
   written back through the pointers. After Cancel, and if a pointer is null, nothing is written and false
   comes back. Call them on the thread of the user interface. */

#include "foundation/Export.h"

#ifdef __cplusplus
extern "C" {
#else
#include <stdbool.h>
#endif

/* A linear axis: its ends and the distances between major and between minor ticks. */
MILLICHART_API bool EditNaturalValueRange(double* minimum, double* maximum, double* majorStep,
                                          double* minorStep);

/* A logarithmic axis: its ends, powers of ten from 1e-6 to 1e7. */
MILLICHART_API bool EditLogarithmValueRange(double* minimum, double* maximum);

#ifdef __cplusplus
}
#endif
