#pragma once

/// How a shared library says that it offers something, and a program that it takes it from one.
#if defined(_WIN32)
#define PENLODE_EXPORT_ __declspec(dllexport)
#define PENLODE_IMPORT_ __declspec(dllimport)
#else
#define PENLODE_EXPORT_ __attribute__((visibility("default")))
#define PENLODE_IMPORT_ PENLODE_EXPORT_
#endif

/// PENLODE_API marks what the shared library `penlode` offers; everything else stays hidden.
/// Define PENLODE_STATIC when the code is compiled into a static library or linked from one.
#if defined(PENLODE_STATIC)
#define PENLODE_API
#elif defined(PENLODE_BUILDING)
#define PENLODE_API PENLODE_EXPORT_
#else
#define PENLODE_API PENLODE_IMPORT_
#endif
