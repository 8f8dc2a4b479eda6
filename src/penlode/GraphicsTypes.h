#pragma once

#include <cstdint>

#if defined(Status) || defined(None)
#error "<X11/Xlib.h> defines Status and None as macros: include it after these headers, or undefine both"
#endif

/// Numbers that cross the drawing surface's interface, with the values that GDI+ gives them.
namespace penlode {

enum class Status : std::int32_t {
    Ok = 0,
    GenericError = 1,
    InvalidParameter = 2,
    OutOfMemory = 3,
    NotImplemented = 6,
    WrongState = 8,
    Aborted = 9,
    ValueOverflow = 11,
};

/// What one unit of a coordinate means. Display is a pixel; Document is 1/300 inch.
enum class Unit : std::int32_t {
    World = 0,
    Display = 1,
    Pixel = 2,
    Point = 3,
    Inch = 4,
    Document = 5,
    Millimeter = 6,
};

enum class CoordinateSpace : std::int32_t { World = 0, Page = 1, Device = 2 };

/// Prepend lets the new step act on a point before the transform that stands, append after it.
enum class MatrixOrder : std::int32_t { Prepend = 0, Append = 1 };

enum class CombineMode : std::int32_t {
    Replace = 0,
    Intersect = 1,
    Union = 2,
    Xor = 3,
    Exclude = 4,    ///< what stands, less the new
    Complement = 5, ///< the new, less what stands
};

enum class SmoothingMode : std::int32_t {
    Default = 0,
    HighSpeed = 1,
    HighQuality = 2,
    None = 3,
    AntiAlias = 4,
};

enum class StringAlignment : std::int32_t { Near = 0, Center = 1, Far = 2 };

enum class GradientMode : std::uint32_t { RectH = 0, RectV = 1, Triangle = 2 };

} // namespace penlode
