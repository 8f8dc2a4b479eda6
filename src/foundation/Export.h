#pragma once

/// MILLICHART_API marks what the shared library `millichart` offers; everything else stays hidden.
/// Define MILLICHART_STATIC when the code is compiled into a static library or linked from one.
#if defined(MILLICHART_STATIC)
#define MILLICHART_API
#elif defined(_WIN32)
#if defined(MILLICHART_BUILDING)
#define MILLICHART_API __declspec(dllexport)
#else
#define MILLICHART_API __declspec(dllimport)
#endif
#else
#define MILLICHART_API __attribute__((visibility("default")))
#endif
