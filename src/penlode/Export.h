#pragma once

/// PENLODE_API marks what the shared library `penlode` offers; everything else stays hidden.
/// Define PENLODE_STATIC when the code is compiled into a static library or linked from one.
#if defined(PENLODE_STATIC)
#define PENLODE_API
#elif defined(_WIN32)
#if defined(PENLODE_BUILDING)
#define PENLODE_API __declspec(dllexport)
#else
#define PENLODE_API __declspec(dllimport)
#endif
#else
#define PENLODE_API __attribute__((visibility("default")))
#endif
