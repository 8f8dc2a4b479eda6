#include "kinds/ValueRange.h"

#include "charts/cartesian/Coordinate.h"
#include "documents/Fields.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace cli {
namespace {

constexpr const char* kMax = "InitializeValueRange";
constexpr const char* kNatural = "NaturalValueRange";
constexpr const char* kLogarithm = "LogarithmValueRange";

std::string ListShown(const std::vector<double>& numbers) {
    std::string text;
    for (const double number : numbers) {
        text += (text.empty() ? "[" : ", ") + NumberText(number);
    }
    return text.empty() ? "[]" : text + "]";
}

bool IsInReach(double number) {
    return std::abs(number) <= kMaxValue;
}

/// Was what is wrong with it told when it was loaded?
bool IsUnread(ChartStream& stream, const char* key, const std::vector<double>& numbers) {
    return stream.Has(key) && (!stream.IsList(key) || std::any_of(numbers.begin(), numbers.end(),
                                                                  [](double n) { return std::isnan(n); }));
}

bool IsNaturalRange(const std::vector<double>& r) {
    return r.size() == 4 && r[0] < r[1] && r[2] > 0.0 && r[3] > 0.0 && IsInReach(r[0]) && IsInReach(r[1]) &&
           (r[1] - r[0]) / std::min(r[2], r[3]) < static_cast<double>(millichart::kMaxTicks);
}

bool IsLogarithmRange(const std::vector<double>& r) {
    return r.size() == 2 && r[0] > 0.0 && r[0] < r[1] && IsInReach(r[1]);
}

/// Visits the group, if there is one.
template <class Visit> void InRange(ChartStream& stream, std::vector<Message>& messages, Visit visit) {
    constexpr const char* kFromLargest = "found from the largest value";
    if (!stream.Has("range")) {
        messages.push_back(
            {"", Severity::Note, 0, "range", "", kFromLargest, std::string("missing, ") + kFromLargest});
        return;
    }
    if (stream.Push("range", -1)) {
        visit();
    }
    stream.Pop();
}

double LoadLargest(ChartStream& stream, double largest) {
    const double value = LoadNumber(stream, kMax, largest);
    if (!IsInReach(value)) {
        stream.Refuse(kMax, NumberText(value), "at most " + NumberText(kMaxValue));
    }
    return value;
}

std::vector<double> LoadRange(ChartStream& stream, const char* key) {
    return stream.Has(key) ? LoadNumbers(stream, key, std::numeric_limits<double>::quiet_NaN())
                           : std::vector<double>();
}

} // namespace

ValueRange::ValueRange(ChartStream& stream, bool isLogarithmic, std::vector<Message>& messages) {
    InRange(stream, messages, [&] {
        if (stream.Has(kMax)) {
            m_largest = {LoadLargest(stream, 0.0)};
        }
        m_natural = LoadRange(stream, kNatural);
        m_logarithm = LoadRange(stream, kLogarithm);
        Check(stream, isLogarithmic, messages);
    });
}

void ValueRange::Check(ChartStream& stream, bool isLogarithmic, std::vector<Message>& messages) const {
    const std::string own = isLogarithmic ? kLogarithm : kNatural;
    const std::string foreign = isLogarithmic ? kNatural : kLogarithm;
    const auto tell = [&](const std::string& key, const std::string& found, const std::string& wanted) {
        messages.push_back({"", Severity::Error, 0, key.empty() ? "range" : "range/" + key, found, wanted});
    };
    if (stream.Has(foreign)) {
        tell(foreign, "a range of the other scale",
             own + ", as LogarithmScale is " + (isLogarithmic ? "on" : "off"));
    } else if (stream.Has(own) && stream.Has(kMax)) {
        tell(kMax, "a second range", "either it or " + own);
    } else if (IsUnread(stream, kNatural, m_natural) || IsUnread(stream, kLogarithm, m_logarithm)) {
        return;
    } else if (stream.Has(kNatural) && !IsNaturalRange(m_natural)) {
        tell(kNatural, ListShown(m_natural),
             "minimum, larger maximum, major step and minor step, both above 0 and for fewer than 100000 "
             "ticks");
    } else if (stream.Has(kLogarithm) && !IsLogarithmRange(m_logarithm)) {
        tell(kLogarithm, ListShown(m_logarithm), "minimum above 0 and larger maximum");
    } else if (!stream.Has(own) && !stream.Has(kMax)) {
        tell("", "no range", std::string(kMax) + " or " + own);
    }
}

double LoadLargestValue(ChartStream& stream, double largest, std::vector<Message>& messages) {
    double value = largest;
    InRange(stream, messages, [&] {
        if (stream.Has(kMax)) {
            value = LoadLargest(stream, largest);
        } else {
            messages.push_back({"", Severity::Error, 0, "range", "no range", kMax});
        }
    });
    return value;
}

std::vector<Message> RangeDoubts::Doubts() const {
    const auto several = [](std::size_t count, const char* one, const char* many) {
        return count == 1 ? one : "this and " + Counted(count - 1, "other value") + many;
    };
    if (m_huge != 0) {
        return {At(m_firstHuge, Severity::Error,
                   several(m_huge, "is", " are") + " too large for a value axis, expected at most " +
                       NumberText(kMaxValue))};
    }
    if (m_outside != 0) {
        return {
            At(m_first, Severity::Warning, several(m_outside, "lies outside ", " lie outside ") + Axis())};
    }
    return {};
}

std::string RangeDoubts::Axis() const {
    return "the value axis, which goes from " + NumberText(m_min) + " to " + NumberText(m_max);
}

} // namespace cli
