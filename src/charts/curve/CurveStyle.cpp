#include "charts/curve/CurveStyle.h"

namespace millichart {
namespace {

template <class T> void Take(T& value, const std::vector<T>& list, std::size_t index) {
    if (index < list.size()) {
        value = list[index];
    }
}

} // namespace

CurveStyle StyleOf(const CurvePlotProp& prop, std::size_t index) {
    CurveStyle style;
    Take(style.LineColor, prop.CurveColor, index);
    Take(style.Width, prop.CurveWidth, index);
    Take(style.Dash, prop.CurveDashStyle, index);
    Take(style.Dot, prop.CurveDotStyle, index);
    Take(style.DotColor, prop.CurveDotColor, index);
    Take(style.DotWidth, prop.CurveDotWidth, index);
    Take(style.NullValue, prop.NullValueStyle, index);
    return style;
}

} // namespace millichart
