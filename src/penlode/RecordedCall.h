#pragma once

#include "penlode/IGraphicsEngine.h"
#include "penlode/Region.h"

#include <array>
#include <string>
#include <variant>
#include <vector>

namespace penlode {

/// The names of enumerators in their order, for whoever writes calls down.
inline constexpr std::array kAlignmentNames{"near", "center", "far"};
inline constexpr std::array kCombineModeNames{"replace", "intersect", "union",
                                              "xor",     "exclude",   "complement"};
inline constexpr std::array kUnitNames{"world", "display",  "pixel",     "point",
                                       "inch",  "document", "millimeter"};
inline constexpr std::array kSmoothingModeNames{"default", "high-speed", "high-quality", "none", "antialias"};

/// One call that an engine got: the operation's name and its arguments in order, each with a name of its own
/// in the call. A null pointer is a monostate.
struct RecordedCall {
    using Value =
        std::variant<std::monostate, std::int32_t, std::uint32_t, float, PointF, RectF, std::vector<PointF>,
                     std::wstring, Pen, SolidBrush, Font, StringFormat, GraphicsPath, Region, Matrix, Image,
                     CombineMode, MatrixOrder, Unit, SmoothingMode, std::vector<Color>,
                     std::vector<std::uint32_t>, ImageAttributes>;

    struct Argument {
        const char* Name; ///< "pen", "rect", "start"
        Value Held;
    };

    std::string Operation;
    std::vector<Argument> Arguments;
};

/// The call on one line: `DrawPie #FF000000/0.1 (45 45 10 10) 180 108`. Numbers are rounded to `decimals`
/// places; texts are UTF-8, with line breaks, quotes and backslashes escaped.
PENLODE_API std::string ToText(const RecordedCall& call, int decimals = 2);

} // namespace penlode
