#include "charts/reading/Air.h"

#include "penlode/text/StringUtil.h"

namespace millichart {

float AirOf(const ChartOptions& options, const penlode::Owned<penlode::Font>& font) {
    constexpr float kThird = 1.0F / 3.0F;
    return options.Air == ChartAir::ThirdOfLine && font
               ? penlode::CStringUtil::MeasureFont(*font).LineHeight * kThird
               : 0.0F;
}

std::string CaptionShown(const ChartOptions& options, const std::string& caption) {
    const bool isKept = options.Air != ChartAir::ThirdOfLine;
    return isKept ? caption : caption.substr(0, caption.find_last_not_of('\n') + 1);
}

} // namespace millichart
