#include "ValueRange.h"

#include "Fields.h"
#include "Json.h"
#include "foundation/Coordinate.h"

#include <algorithm>

namespace cli {
namespace {

constexpr const char* kLargest = "InitializeValueRange";
constexpr const char* kNatural = "NaturalValueRange";
constexpr const char* kLogarithm = "LogarithmValueRange";

std::string Shown(double number) {
    return ToJson(number).dump();
}

std::string ListShown(const std::vector<double>& numbers) {
    std::string text;
    for (const double number : numbers) {
        text += (text.empty() ? "[" : ", ") + Shown(number);
    }
    return text.empty() ? "[]" : text + "]";
}

bool IsNaturalRange(const std::vector<double>& r) {
    return r.size() == 4 && r[0] < r[1] && r[2] > 0.0 && r[3] > 0.0 &&
           (r[1] - r[0]) / std::min(r[2], r[3]) < static_cast<double>(millichart::kMostTicks);
}

bool IsLogarithmRange(const std::vector<double>& r) {
    return r.size() == 2 && r[0] > 0.0 && r[0] < r[1];
}

} // namespace

ValueRange::ValueRange(ChartStream& stream, bool isLogarithmic) {
    if (!stream.Has("range")) {
        return;
    }
    stream.Push("range", -1);
    if (stream.Has(kLargest)) {
        m_largest = {LoadNumber(stream, kLargest, 0.0)};
    }
    if (stream.Has(kNatural)) {
        m_natural = LoadNumbers(stream, kNatural);
    }
    if (stream.Has(kLogarithm)) {
        m_logarithm = LoadNumbers(stream, kLogarithm);
    }
    Check(stream, isLogarithmic);
    stream.Pop();
}

void ValueRange::Check(ChartStream& stream, bool isLogarithmic) const {
    const char* const wanted = isLogarithmic ? kLogarithm : kNatural;
    const char* const foreign = isLogarithmic ? kNatural : kLogarithm;
    if (stream.Has(foreign)) {
        stream.Refuse(foreign, "a range of the other scale",
                      std::string(wanted) + ", as LogarithmScale is " + (isLogarithmic ? "on" : "off"));
    } else if (stream.Has(wanted) && stream.Has(kLargest)) {
        stream.Refuse(kLargest, "two ranges", std::string("either it or ") + wanted);
    } else if (stream.Has(kNatural) && !IsNaturalRange(m_natural)) {
        stream.Refuse(kNatural, ListShown(m_natural),
                      "minimum, larger maximum, major step and minor step, both above 0 and for fewer than "
                      "100000 ticks");
    } else if (stream.Has(kLogarithm) && !IsLogarithmRange(m_logarithm)) {
        stream.Refuse(kLogarithm, ListShown(m_logarithm), "minimum above 0 and larger maximum");
    } else if (!stream.Has(kNatural) && !stream.Has(kLogarithm) && !stream.Has(kLargest)) {
        stream.Refuse("", "no range", std::string(kLargest) + " or " + wanted);
    }
}

std::vector<Message> RangeDoubts::Doubts() const {
    if (m_outside == 0) {
        return {};
    }
    const std::string axis = "the value axis, which goes from " + Shown(m_min) + " to " + Shown(m_max);
    return {{"", Severity::Warning, 0, m_first, "", "",
             m_outside == 1 ? "lies outside " + axis
                            : "this and " + Counted(m_outside - 1, "other value") + " lie outside " + axis}};
}

} // namespace cli
