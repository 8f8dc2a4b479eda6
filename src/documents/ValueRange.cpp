#include "documents/ValueRange.h"

#include "charts/cartesian/Coordinate.h"
#include "documents/Fields.h"
#include "documents/Table.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace millichart::documents {
namespace {

using penlode::Diagnostic;
using Diagnostics = std::vector<Diagnostic>;

constexpr const char* kRange = "range";
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
           (r[1] - r[0]) / std::min(r[2], r[3]) < static_cast<double>(kMaxTicks);
}

bool IsLogarithmRange(const std::vector<double>& r) {
    return r.size() == 2 && r[0] > 0.0 && r[0] < r[1] && IsInReach(r[1]);
}

/// Visits the group, if there is one.
template <class Visit> void InRange(ChartStream& stream, Diagnostics& diagnostics, Visit visit) {
    constexpr const char* kFromLargest = "found from the largest value";
    if (!stream.Has(kRange)) {
        diagnostics.push_back(penlode::Note(kRange, std::string("missing, ") + kFromLargest));
        diagnostics.back().Expected = kFromLargest;
        return;
    }
    if (stream.Push(kRange, -1)) {
        visit();
    }
    stream.Pop();
}

double LoadLargest(ChartStream& stream) {
    const double value = LoadNumber(stream, kMax, 0.0);
    if (!IsInReach(value)) {
        stream.Refuse(kMax, NumberText(value), "at most " + NumberText(kMaxValue));
    }
    return value;
}

std::vector<double> LoadRange(ChartStream& stream, const char* key) {
    return stream.Has(key) ? LoadNumbers(stream, key, std::numeric_limits<double>::quiet_NaN())
                           : std::vector<double>();
}

template <std::size_t N> std::optional<std::array<double, N>> ArrayOf(const std::vector<double>& numbers) {
    std::array<double, N> all{};
    if (numbers.size() != N) {
        return std::nullopt;
    }
    std::copy(numbers.begin(), numbers.end(), all.begin());
    return all;
}

/// What is wrong with the group as a whole or with one of its lists; nothing where that was told when they
/// were loaded.
std::optional<Diagnostic> FaultOf(ChartStream& stream, bool isLogarithmic, const std::vector<double>& natural,
                                  const std::vector<double>& logarithm) {
    const std::string own = isLogarithmic ? kLogarithm : kNatural;
    const std::string foreign = isLogarithmic ? kNatural : kLogarithm;
    const auto fault = [](const std::string& key, const std::string& found, const std::string& expected) {
        return penlode::Error(key.empty() ? kRange : std::string(kRange) + "/" + key, found, expected);
    };
    if (stream.Has(foreign)) {
        return fault(foreign, "a range of the other scale",
                     own + ", as LogarithmScale is " + (isLogarithmic ? "on" : "off"));
    }
    if (stream.Has(own) && stream.Has(kMax)) {
        return fault(kMax, "a second range", "either it or " + own);
    }
    if (IsUnread(stream, kNatural, natural) || IsUnread(stream, kLogarithm, logarithm)) {
        return std::nullopt;
    }
    if (stream.Has(kNatural) && !IsNaturalRange(natural)) {
        return fault(kNatural, ListShown(natural),
                     "minimum, larger maximum, major step and minor step, both above 0 and for fewer than "
                     "100000 ticks");
    }
    if (stream.Has(kLogarithm) && !IsLogarithmRange(logarithm)) {
        return fault(kLogarithm, ListShown(logarithm), "minimum above 0 and larger maximum");
    }
    if (!stream.Has(own) && !stream.Has(kMax)) {
        return fault("", "no range", std::string(kMax) + " or " + own);
    }
    return std::nullopt;
}

template <class Numbers>
void SaveNumbers(SavingStream& stream, const char* key, const std::optional<Numbers>& numbers) {
    if (numbers) {
        stream.Numbers(key, std::vector<double>(numbers->begin(), numbers->end()));
    } else {
        stream.Remove(key);
    }
}

} // namespace

ValueRange LoadValueRange(ChartStream& stream, bool isLogarithmic, Diagnostics& diagnostics) {
    ValueRange range;
    InRange(stream, diagnostics, [&] {
        if (stream.Has(kMax)) {
            range.Largest = LoadLargest(stream);
        }
        const std::vector<double> natural = LoadRange(stream, kNatural);
        const std::vector<double> logarithm = LoadRange(stream, kLogarithm);
        range.Natural = ArrayOf<4>(natural);
        range.Logarithm = ArrayOf<2>(logarithm);
        if (auto fault = FaultOf(stream, isLogarithmic, natural, logarithm)) {
            diagnostics.push_back(*std::move(fault));
        }
    });
    return range;
}

std::optional<double> LoadLargestValue(ChartStream& stream, Diagnostics& diagnostics) {
    std::optional<double> largest;
    InRange(stream, diagnostics, [&] {
        if (stream.Has(kMax)) {
            largest = LoadLargest(stream);
        } else {
            diagnostics.push_back(penlode::Error(kRange, "no range", kMax));
        }
    });
    return largest;
}

void SaveValueRange(SavingStream& stream, const ValueRange& range) {
    if (range == ValueRange()) {
        stream.Remove(kRange);
        return;
    }
    stream.Push(kRange, -1);
    if (range.Largest) {
        stream.Text(kMax, NumberText(*range.Largest));
    } else {
        stream.Remove(kMax);
    }
    SaveNumbers(stream, kNatural, range.Natural);
    SaveNumbers(stream, kLogarithm, range.Logarithm);
    stream.Pop();
}

Diagnostics PlotSizeFaults(const std::string& place, float width, float height) {
    Diagnostics faults;
    for (const auto& [key, size] : {std::pair("/PlotWidth", width), {"/PlotHeight", height}}) {
        if (!(size > 0.0F)) {
            faults.push_back(penlode::Error(place + key, NumberText(size), "a number above 0"));
        }
    }
    return faults;
}

void RangeDoubts::AddTo(Diagnostics& diagnostics) const {
    const auto several = [](std::size_t count, const char* one, const char* many) {
        return count == 1 ? one : "this and " + Counted(count - 1, "other value") + many;
    };
    Diagnostic told = m_huge != 0 ? m_firstHuge : m_first;
    if (m_huge != 0) {
        told.Severity = penlode::Severity::Error;
        told.Text = several(m_huge, "is", " are") + " too large for a value axis, expected at most " +
                    NumberText(kMaxValue);
    } else if (m_outside != 0) {
        told.Severity = penlode::Severity::Warning;
        told.Text = several(m_outside, "lies outside ", " lie outside ") + Axis();
    } else {
        return;
    }
    diagnostics.push_back(std::move(told));
}

std::string RangeDoubts::Axis() const {
    return "the value axis, which goes from " + NumberText(m_min) + " to " + NumberText(m_max);
}

Diagnostic AtValue(const TableOrigin& origin, std::size_t row, std::size_t column, const std::string& place) {
    Diagnostic at;
    const bool isInTable = row < origin.Lines.size();
    at.File = isInTable ? origin.File : "";
    at.Line = isInTable ? origin.Lines[row] : 0;
    at.Place = isInTable ? ColumnPlace(column) : place;
    return at;
}

} // namespace millichart::documents
