#pragma once

#include <string>
#include <string_view>

namespace millichart::documents {

/// What a chart document of a kind takes for a key that it leaves out, where that is not what a record takes
/// that is loaded by itself: a short document gives a chart that can be read. `place` is of the key's group,
/// as in "property/PieLabelProp/PieLabelTextProperty", and `key` as documents write it; both UTF-8. Null
/// where the record's own default stands.
const char* DocumentDefault(std::string_view kind, std::string_view place, std::string_view key);

/// They follow the data where a document leaves them open.
inline constexpr std::string_view kKeysOfData[] = {
    "ComponentName",  "ComponentColor", "CurveName",     "CurveColor",    "CurveWidth",
    "CurveDashStyle", "CurveDotStyle",  "CurveDotColor", "CurveDotWidth", "NullValueStyle",
    "ScaleStep",      "LabelStep",      "VerGridStep"};

} // namespace millichart::documents
