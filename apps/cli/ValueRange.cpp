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

ValueRange::ValueRange(ChartStream& stream, bool isLogarithmic, std::vector<Message>& messages) {
    if (!stream.Has("range") || !stream.Push("range", -1)) {
        return;
    }
    if (stream.Offers(kLargest)) {
        m_largest = {LoadNumber(stream, kLargest, 0.0)};
    }
    if (stream.Offers(kNatural)) {
        m_natural = LoadNumbers(stream, kNatural);
    }
    if (stream.Offers(kLogarithm)) {
        m_logarithm = LoadNumbers(stream, kLogarithm);
    }
    Check(stream, isLogarithmic, messages);
    stream.Pop();
}

void ValueRange::Check(const ChartStream& stream, bool isLogarithmic, std::vector<Message>& messages) const {
    const std::string own = isLogarithmic ? kLogarithm : kNatural;
    const std::string foreign = isLogarithmic ? kNatural : kLogarithm;
    const auto tell = [&](const std::string& key, const std::string& found, const std::string& wanted) {
        messages.push_back({"", Severity::Error, 0, key.empty() ? "range" : "range/" + key, found, wanted});
    };
    if (stream.Has(foreign)) {
        tell(foreign, "a range of the other scale",
             own + ", as LogarithmScale is " + (isLogarithmic ? "on" : "off"));
    } else if (stream.Has(own) && stream.Has(kLargest)) {
        tell(kLargest, "a second range", "either it or " + own);
    } else if (stream.Has(kNatural) && !IsNaturalRange(m_natural)) {
        tell(kNatural, ListShown(m_natural),
             "minimum, larger maximum, major step and minor step, both above 0 and for fewer than 100000 "
             "ticks");
    } else if (stream.Has(kLogarithm) && !IsLogarithmRange(m_logarithm)) {
        tell(kLogarithm, ListShown(m_logarithm), "minimum above 0 and larger maximum");
    } else if (!stream.Has(own) && !stream.Has(kLargest)) {
        tell("", "no range", std::string(kLargest) + " or " + own);
    }
}

double LoadLargestValue(ChartStream& stream, double largest, std::vector<Message>& messages) {
    if (!stream.Has("range") || !stream.Push("range", -1)) {
        return largest;
    }
    double value = largest;
    if (stream.Offers(kLargest)) {
        value = LoadNumber(stream, kLargest, largest);
    } else {
        messages.push_back({"", Severity::Error, 0, "range", "no range", kLargest});
    }
    stream.Pop();
    return value;
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
