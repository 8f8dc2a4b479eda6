#include "documents/ValueRange.h"

#include "charts/cartesian/Coordinate.h"
#include "documents/Fields.h"
#include "documents/tables/Table.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace millichart::documents {
namespace {

using penlode::Diagnostic;
using Diagnostics = std::vector<Diagnostic>;

constexpr const char* kRange = "range";
constexpr const char* kFit = "fit";
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

bool IsNaturalRange(const std::vector<double>& r) {
    return r.size() == 4 && r[0] < r[1] && r[2] > 0.0 && r[3] > 0.0 && IsInReach(r[0]) && IsInReach(r[1]) &&
           (r[1] - r[0]) / std::min(r[2], r[3]) < static_cast<double>(kMaxTicks);
}

bool IsLogarithmRange(const std::vector<double>& r) {
    return r.size() == 2 && r[0] > 0.0 && r[0] < r[1] && IsInReach(r[1]);
}

/// "fit", the only range that is one word.
ValueRange LoadWord(ChartStream& stream) {
    const std::string word = LoadText(stream, kRange, "");
    if (word != kFit) {
        stream.Refuse(kRange, word, "\"fit\" or a group");
    }
    ValueRange range;
    range.IsFitted = word == kFit;
    return range;
}

/// `load` loads from the group, if there is one.
template <class Load> ValueRange LoadRangeBy(ChartStream& stream, Diagnostics& diagnostics, Load load) {
    constexpr const char* kFromLargest = "found from the largest value";
    ValueRange range;
    if (!stream.Has(kRange)) {
        diagnostics.push_back(penlode::Note(kRange, std::string("missing, ") + kFromLargest));
        diagnostics.back().Expected = kFromLargest;
        return range;
    }
    if (stream.IsText(kRange)) {
        return LoadWord(stream);
    }
    if (stream.Push(kRange, -1)) {
        load(range);
    }
    stream.Pop();
    return range;
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

/// What is wrong with the group as a whole or with its list; nothing where that was told when it was loaded.
std::optional<Diagnostic> FaultOf(ChartStream& stream, bool isLogarithmic,
                                  const std::vector<double>& numbers) {
    const std::string own = isLogarithmic ? kLogarithm : kNatural;
    const std::string foreign = isLogarithmic ? kNatural : kLogarithm;
    const std::string group = std::string(kRange) + "/";
    if (stream.Has(foreign)) {
        return penlode::Error(group + foreign, "a range of the other scale",
                              own + ", as LogarithmScale is " + (isLogarithmic ? "on" : "off"));
    }
    const bool hasMax = stream.Has(kMax);
    if (!stream.Has(own)) {
        return hasMax ? std::nullopt
                      : std::optional(penlode::Error(kRange, "no range", std::string(kMax) + " or " + own));
    }
    if (hasMax) {
        return penlode::Error(group + kMax, "a second range", "either it or " + own);
    }
    const bool isRead = stream.IsList(own) && std::none_of(numbers.begin(), numbers.end(),
                                                           [](double number) { return std::isnan(number); });
    if (!isRead || (isLogarithmic ? IsLogarithmRange(numbers) : IsNaturalRange(numbers))) {
        return std::nullopt;
    }
    return penlode::Error(group + own, ListShown(numbers),
                          isLogarithmic ? "minimum above 0 and larger maximum"
                                        : "minimum, larger maximum, major step and minor step, both above 0 "
                                          "and for fewer than 100000 ticks");
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
    return LoadRangeBy(stream, diagnostics, [&](ValueRange& range) {
        if (stream.Has(kMax)) {
            range.Largest = LoadLargest(stream);
        }
        const std::vector<double> natural = LoadRange(stream, kNatural);
        const std::vector<double> logarithm = LoadRange(stream, kLogarithm);
        range.Natural = ArrayOf<4>(natural);
        range.Logarithm = ArrayOf<2>(logarithm);
        if (auto fault = FaultOf(stream, isLogarithmic, isLogarithmic ? logarithm : natural)) {
            diagnostics.push_back(*std::move(fault));
        }
    });
}

ValueRange LoadLargestValue(ChartStream& stream, Diagnostics& diagnostics) {
    return LoadRangeBy(stream, diagnostics, [&](ValueRange& range) {
        if (stream.Has(kMax)) {
            range.Largest = LoadLargest(stream);
        } else {
            diagnostics.push_back(penlode::Error(kRange, "no range", kMax));
        }
    });
}

void SaveValueRange(SavingStream& stream, const ValueRange& range) {
    if (range.IsFitted) {
        stream.Text(kRange, kFit);
        return;
    }
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

ValueRange RangeFilledBy(const ValueSpan& values, bool isLogarithmic, bool areBars,
                         const ChartOptions& options) {
    ValueRange range;
    if (isLogarithmic) {
        range.Logarithm = FittedDecades(values, areBars);
    } else {
        range.Natural = FittedRange(values, RangeNeeds::Of(options, areBars));
    }
    return range;
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

void RangeCheck::Note(const Item& item) {
    const bool isHuge = item.Value < -kMaxValue || item.Value > kMaxValue;
    const bool isUnplaced = std::isnan(item.Value) || (m_isLogarithmic && item.Value <= 0.0);
    Items& items = isHuge ? m_huge : isUnplaced ? m_unplaced : m_outside;
    items.First = items.Count++ == 0 ? item : items.First;
}

void RangeCheck::AddTo(Diagnostics& diagnostics,
                       const std::function<Diagnostic(std::size_t, std::size_t)>& locate) const {
    const auto add = [&](const Items& items, penlode::Severity severity, const char* one, const char* several,
                         const std::string& rest) {
        if (items.Count == 0) {
            return;
        }
        diagnostics.push_back(locate(items.First.List, items.First.Index));
        Diagnostic& told = diagnostics.back();
        const bool isOne = items.Count == 1 || m_areOutermost;
        told.Severity = severity;
        told.Text = NumberText(items.First.Value) + told.Text +
                    (isOne ? "" : " and " + Counted(items.Count - 1, "other value")) + " " +
                    (isOne ? one : several) + " " + rest;
    };
    if (m_huge.Count > 0) {
        add(m_huge, penlode::Severity::Error, "is", "are",
            "too large for a value axis, expected at most " + NumberText(kMaxValue));
        return;
    }
    add(m_unplaced, penlode::Severity::Warning, "has", "have",
        m_isLogarithmic ? "no place on a logarithmic axis, expected numbers above 0, or a LogarithmScale of 0"
                        : "no place on the value axis, expected numbers");
    add(m_outside, penlode::Severity::Warning, "lies", "lie",
        "outside " + Axis() + ", and so outside the plot; \"range\": \"fit\" makes one that holds all");
}

std::string RangeCheck::Axis() const {
    return "the value axis, which goes from " + NumberText(m_min) + " to " + NumberText(m_max);
}

Diagnostic AtValue(const TableOrigin& origin, std::size_t row, std::size_t column, const std::string& place) {
    Diagnostic at;
    if (row < origin.Lines.size()) {
        PutAt(origin, row, column, at);
    } else {
        at.Place = place;
    }
    return at;
}

} // namespace millichart::documents
