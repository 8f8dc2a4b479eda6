// A host that measures texts itself, and has no engine of the library's.
#include "millichart.h"

#if __has_include("documents/ChartDocument.h")
#include "documents/ChartDocument.h"
#endif

float penlode::CStringUtil::MeasureLine(std::wstring_view line, const Font& font) {
    return static_cast<float>(line.size()) * font.Size;
}

penlode::FontMetrics penlode::CStringUtil::MeasureFont(const Font& font) {
    return {font.Size, font.Size};
}

int main() {
    millichart::PieProp prop;
    prop.Basic.FixedSize = 1;
    prop.Basic.FixedWidth = 20.0F;
    millichart::CBasicPie pie;
    pie.SetPieProp(prop);
    pie.SetComponentValue({30.0, 70.0});
    pie.SetLocation({15.0F, 15.0F});
    pie.Layout();
    const bool isThere =
        pie.GetLayout().Pie == penlode::RectF{5.0F, 5.0F, 20.0F, 20.0F} && pie.GetShapes().Slices.size() == 2;
    return isThere ? 0 : 1;
}
