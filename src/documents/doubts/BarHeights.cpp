#include "documents/doubts/BarHeights.h"

#include "documents/Fields.h"
#include "documents/doubts/BarWording.h"
#include "penlode/text/StringUtil.h"

namespace millichart::documents {

using penlode::CStringUtil;

namespace {

bool IsNegative(const Bar& bar) {
    return bar.Value < 0.0;
}

/// ", the first is -2 of "Wheat" in "North""
std::string FirstOf(const FoundBars& found, const CBasicHistogram& chart) {
    return ", " + ToFirst(found.Count) + NumberText(found.First.Value) + BarNamed(chart, found.First);
}

void AddStackDoubts(const CBasicHistogram& chart, const TableOrigin& origin, Diagnostics& diagnostics) {
    const FoundBars falls = FindBars(chart, IsNegative);
    if (falls.Count > 0) {
        diagnostics.push_back(
            AtFirst(falls, origin,
                    CountedAre(falls.Count, "negative value") +
                        " not drawn in a stack, whose sum falls there" + FirstOf(falls, chart) +
                        "; set options/BarBase to \"Zero\", or Juxtaposition to 1 for bars side by side"));
    }
}

bool IsDigit(wchar_t letter) {
    return letter >= L'0' && letter <= L'9';
}

/// Does a text name a number, and not one that has the same digits in it? Of a narrow text a letter may end
/// in a byte that looks like a digit, a minus sign for one.
bool Names(const std::wstring& text, const std::wstring& number) {
    for (std::size_t at = text.find(number); at != std::wstring::npos; at = text.find(number, at + 1)) {
        const std::size_t end = at + number.size();
        const bool goesOn = end < text.size() && IsDigit(text[end]);
        if (!goesOn && (at == 0 || !IsDigit(text[at - 1]))) {
            return true;
        }
    }
    return false;
}

/// Does the axis's caption, as "°C, bars from -300", name where they stand?
bool IsSaid(const VerAxisProp& axis, double min) {
    return axis.ShowVerAxis != 0 && axis.ShowVerCaption != 0 &&
           Names(CStringUtil::AnsiToWideString(axis.VerCaption),
                 CStringUtil::AnsiToWideString(NumberText(-min)));
}

void AddBaseDoubts(const CBasicHistogram& chart, Diagnostics& diagnostics) {
    double min = 0.0;
    double unused = 0.0;
    chart.GetNaturalValueRange(min, unused, unused, unused);
    const FoundBars negative = FindBars(chart, IsNegative);
    if (min < 0.0 && negative.Count > 0 && !IsSaid(chart.GetHistogramProp().VerAxis, min)) {
        diagnostics.push_back(penlode::Warning(
            "range", "bars stand on " + NumberText(min) +
                         ", where the value axis begins, and not on 0, those of " +
                         Counted(negative.Count, "negative value") + " too" + FirstOf(negative, chart) +
                         "; set options/BarBase to \"Zero\", or name " + NumberText(min) + " in VerCaption"));
    }
}

} // namespace

void AddBarHeightDoubts(const CBasicHistogram& chart, const TableOrigin& origin, Diagnostics& diagnostics) {
    const HistogramPlotProp& plot = chart.GetHistogramProp().Plot;
    const bool standOnZero = chart.GetOptions().BarBase == BarBase::Zero;
    if (!standOnZero && plot.Juxtaposition == 0) {
        AddStackDoubts(chart, origin, diagnostics);
    } else if (!standOnZero && plot.LogarithmScale == 0) {
        AddBaseDoubts(chart, diagnostics);
    }
    const FoundBars zeros = FindBars(chart, [](const Bar& bar) { return bar.Value == 0.0; });
    const FoundBars others =
        FindBars(chart, [](const Bar& bar) { return bar.Value < 0.0 || bar.Value > 0.0; });
    if (zeros.Count > 0 && others.Count == 0 && plot.LogarithmScale == 0) {
        diagnostics.push_back(AtFirst(zeros, origin, "all values are 0, so that no bar has a height"));
    }
}

} // namespace millichart::documents
