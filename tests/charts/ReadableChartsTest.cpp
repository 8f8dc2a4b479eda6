// What charts draw when they are to read well, held by thousands of random ones: no text lies over another or
// leaves its chart, no slice's label lies on the pie, and what was moved is still in its order.
#include "charts/cartesian/FittedRange.h"
#include "penlode/Matrix.h"
#include "penlode/engine/Finite.h"
#include "penlode/recording/RecordingEngine.h"
#include "penlode/text/StringUtil.h"
#include "support/RandomCharts.h"
#include "support/Texts.h"

#include <cmath>
#include <gtest/gtest.h>
#include <numbers>
#include <sstream>

using namespace millichart;
using penlode::PointD;
using penlode::PointF;
using penlode::RectF;

namespace {

constexpr std::uint32_t kCharts = 1000;
/// What rounding may cost, in mm.
constexpr double kNegligible = 0.01;

/// Convex.
using Polygon = std::vector<PointD>;

struct Range {
    double Least = INFINITY;
    double Most = -INFINITY;

    void Take(double value) {
        Least = std::min(Least, value);
        Most = std::max(Most, value);
    }
};

/// What a polygon covers of an axis of length 1.
Range Along(PointD axis, const Polygon& polygon) {
    Range range;
    for (const PointD corner : polygon) {
        range.Take(corner.X * axis.X + corner.Y * axis.Y);
    }
    return range;
}

/// Is there an axis across an edge of `a` on which both are apart?
bool ArePartedByEdge(const Polygon& a, const Polygon& b) {
    for (std::size_t i = 0; i < a.size(); ++i) {
        const PointD from = a[i];
        const PointD to = a[(i + 1) % a.size()];
        const double length = std::hypot(to.X - from.X, to.Y - from.Y);
        if (length > 0.0) {
            const PointD across{(to.Y - from.Y) / length, (from.X - to.X) / length};
            const Range rangeA = Along(across, a);
            const Range rangeB = Along(across, b);
            if (rangeA.Most - rangeB.Least < kNegligible || rangeB.Most - rangeA.Least < kNegligible) {
                return true;
            }
        }
    }
    return false;
}

bool Overlap(const Polygon& a, const Polygon& b) {
    return !ArePartedByEdge(a, b) && !ArePartedByEdge(b, a);
}

/// A text's own box, turned as it is.
Polygon CornersOf(const ChartText& text) {
    penlode::Matrix toPage = penlode::Matrix::Rotation(-static_cast<float>(text.Angle));
    toPage.Dx = text.Origin.X;
    toPage.Dy = text.Origin.Y;
    const PointF middle = text.Layout.Center();
    const float right = text.Size.Width * 0.5F;
    const float down = text.Size.Height * 0.5F;
    Polygon corners;
    for (const PointF corner : {PointF{-right, -down}, {right, -down}, {right, down}, {-right, down}}) {
        corners.push_back(penlode::Mapped(toPage, middle + corner));
    }
    return corners;
}

struct Seen {
    const ChartText* Text;
    Polygon Corners;
    Range Across;
};

bool CanBeSeen(const ChartText& text) {
    return !text.Text.empty() && text.Font != nullptr;
}

/// From left to right.
std::vector<Seen> SeenOf(const std::vector<ChartText>& texts) {
    std::vector<Seen> seen;
    for (const ChartText& text : texts) {
        if (CanBeSeen(text)) {
            const Polygon corners = CornersOf(text);
            seen.push_back({&text, corners, Along({1.0, 0.0}, corners)});
        }
    }
    std::sort(seen.begin(), seen.end(),
              [](const Seen& a, const Seen& b) { return a.Across.Least < b.Across.Least; });
    return seen;
}

std::string Described(const ChartText& text) {
    static constexpr std::array kRoles{"slice label", "value axis label", "value axis caption",
                                       "time label",  "group name",       "group axis caption",
                                       "bar label",   "caption",          "legend name"};
    const RectF box = text.Box();
    std::ostringstream out;
    out << kRoles.at(static_cast<std::size_t>(text.Owner.Role)) << " " << text.Owner.Index << "."
        << text.Owner.Component << " of part " << text.Owner.Part << " \""
        << penlode::CStringUtil::WideToUtf8(text.Text) << "\" (" << box.X << ", " << box.Y << ", "
        << box.Width << ", " << box.Height << ") at " << text.Angle << " degrees";
    return out.str();
}

/// What is wrong with a chart: nothing, or a sentence each.
class Faults {
public:
    void Add(const std::string& fault) { m_sentences += "  " + fault + "\n"; }

    void AddOverlaps(const std::vector<Seen>& seen) {
        for (std::size_t i = 0; i < seen.size(); ++i) {
            for (std::size_t j = i + 1; j < seen.size() && seen[j].Across.Least < seen[i].Across.Most; ++j) {
                if (Overlap(seen[i].Corners, seen[j].Corners)) {
                    Add(Described(*seen[i].Text) + " lies over " + Described(*seen[j].Text));
                }
            }
        }
    }

    void AddLeaving(const std::vector<Seen>& seen, const RectF& whole) {
        for (const Seen& one : seen) {
            const Range down = Along({0.0, 1.0}, one.Corners);
            if (one.Across.Least < whole.X - kNegligible || one.Across.Most > whole.Right() + kNegligible ||
                down.Least < whole.Y - kNegligible || down.Most > whole.Bottom() + kNegligible) {
                Add(Described(*one.Text) + " leaves the whole, which ends at " +
                    std::to_string(whole.Right()) + ", " + std::to_string(whole.Bottom()));
            }
        }
    }

    const std::string& Sentences() const { return m_sentences; }

private:
    std::string m_sentences;
};

void AddFaults(const std::vector<ChartText>& texts, const RectF& whole, Faults& faults) {
    const std::vector<Seen> seen = SeenOf(texts);
    faults.AddOverlaps(seen);
    faults.AddLeaving(seen, whole);
}

/// A circle, half circle or ellipse above its wall, a little smaller than it is: letters are as much low in
/// the box that stands beside it.
Polygon OutlineOf(const PieShapes& pie, double from, double to) {
    constexpr int kSteps = 48;
    constexpr double kLow = 0.25;
    const double across = std::max(0.0, pie.Face.Width * 0.5 - kLow);
    const double up = std::max(0.0, pie.Face.Height * 0.5 - kLow);
    const PointF center = pie.Face.Center();
    Polygon outline;
    for (int i = 0; i <= kSteps; ++i) {
        const double angle = (from + (to - from) * i / kSteps) * std::numbers::pi / 180.0;
        const double down = std::sin(angle);
        outline.push_back(
            {center.X + std::cos(angle) * across, center.Y + down * up + (down > 0.0 ? pie.Depth : 0.0)});
    }
    return outline;
}

void AddLabelsOn(const Polygon& pie, const std::vector<ChartText>& texts, Faults& faults) {
    for (const ChartText& text : texts) {
        if (text.Owner.Role == TextRole::SliceLabel && CanBeSeen(text) && Overlap(CornersOf(text), pie)) {
            faults.Add(Described(text) + " lies on the pie");
        }
    }
}

void AddLabelsOnHalf(const PieShapes& pie, const std::vector<ChartText>& texts, Faults& faults) {
    if (!pie.Slices.empty()) {
        const double from = pie.Slices.front().StartAngle;
        AddLabelsOn(OutlineOf(pie, from, from + kHalfTurn), texts, faults);
    }
}

/// Texts of one role, in the order of their places, which `place` says.
template <class Place>
void AddDisorder(const std::vector<ChartText>& texts, TextRole role, const Place& place, Faults& faults) {
    const ChartText* before = nullptr;
    for (const ChartText& text : texts) {
        if (text.Owner.Role == role && CanBeSeen(text)) {
            if (before != nullptr && place(*before) >= place(text)) {
                faults.Add(Described(text) + " comes before " + Described(*before));
            }
            before = &text;
        }
    }
}

/// A level name by its middle, any other by the end that is higher.
double HungAt(const ChartText& text) {
    const double angle = text.Angle * std::numbers::pi / 180.0;
    const double toEnd = std::abs(std::sin(angle)) < kNegligible ? 0.0 : std::copysign(0.5, std::sin(angle));
    return text.Origin.X + toEnd * text.Size.Width * std::cos(angle);
}

void AddFrameFaults(const std::vector<ChartText>& texts, PointF location, const RectF& whole,
                    Faults& faults) {
    const auto across = [](const ChartText& text) { return HungAt(text); };
    AddDisorder(texts, TextRole::GroupName, across, faults);
    AddDisorder(texts, TextRole::HorAxisLabel, across, faults);
    AddDisorder(
        texts, TextRole::VerAxisLabel, [](const ChartText& text) { return -text.Origin.Y; }, faults);
    if (std::abs(whole.X - location.X) > kNegligible || std::abs(whole.Y - location.Y) > kNegligible) {
        faults.Add("begins elsewhere");
    }
}

void AddLabelsOutOfBars(const CBasicHistogram& chart, const std::vector<ChartText>& texts, Faults& faults) {
    const HistogramLayout& layout = chart.GetLayout();
    for (const ChartText& text : texts) {
        if (text.Owner.Role != TextRole::BarLabel || layout.ValueLabels.empty() || !CanBeSeen(text)) {
            continue;
        }
        const std::size_t group = text.Owner.Index;
        const std::size_t bar = text.Owner.Component;
        const RectF& front = layout.ComponentRects[group][bar];
        const RectF box = text.Box();
        const bool isIn = box.X >= front.X - kNegligible && box.Right() <= front.Right() + kNegligible &&
                          box.Y >= front.Y - kNegligible && box.Bottom() <= front.Bottom() + kNegligible;
        if (layout.ValueLabels[group][bar].IsInside && !isIn) {
            faults.Add(Described(text) + " leaves its bar");
        }
    }
}

ValueSpan SpanOf(const std::vector<std::vector<double>>& lists) {
    ValueSpan span;
    for (const std::vector<double>& list : lists) {
        for (const double value : list) {
            span.Take(value);
        }
    }
    return span;
}

/// Every other chart keeps its own range, out of which values may be.
template <class Chart> void TakeRange(std::uint32_t seed, const ValueSpan& span, Chart& chart) {
    if (seed % 2 == 0 && std::isfinite(span.Min())) {
        chart.InitializeValueRange(span.Min(), span.Max());
    }
}

void Complete(std::uint32_t seed, CBasicHistogram& chart) {
    const bool areStacked = chart.GetHistogramProp().Plot.Juxtaposition == 0;
    TakeRange(seed, BarSpanOf(chart.GetComponentValue(), areStacked, chart.GetOptions()), chart);
}

void Complete(std::uint32_t seed, CBasicCurve& chart) {
    std::vector<std::vector<double>> values = chart.GetCurveValue();
    for (std::vector<double>& list : values) {
        list.erase(std::remove_if(list.begin(), list.end(), IsCurveNull), list.end());
    }
    TakeRange(seed, SpanOf(values), chart);
    if (!chart.GetCurveTime().empty()) {
        chart.SetHorAxisLabelTimes(chart.GetCurveTime().front());
    }
}

void Complete(std::uint32_t seed, CBasicHalfPieHistogram& chart) {
    if (seed % 2 == 0) {
        chart.ResetValueRange();
    }
}

template <class Pie> void Complete(std::uint32_t, Pie&) {}

/// Numbers, titles and colours of every kind, chosen by a seed.
ChartOptions Readable(std::uint32_t seed) {
    ChartOptions options = ChartOptions::Readable();
    options.Thousands = static_cast<std::int32_t>(seed % 4);
    options.MaxDecimals = static_cast<std::int32_t>(seed % 7);
    options.Palette = static_cast<std::int32_t>(seed % 3);
    options.TimeUnit = static_cast<std::int32_t>(seed / 3 % 3);
    options.Title.Caption = seed % 5 == 0 ? "" : Narrow(L"A title, 两行\nof two lines");
    options.Title.CaptionTextProperty.Angle = seed % 11 == 0 ? 45 : 0;
    options.SecondTitle.Caption = seed % 5 == 1 ? "" : "another title";
    return options;
}

template <class Chart> Chart LaidOut(Chart chart, const ChartOptions& options, std::uint32_t seed) {
    chart.SetOptions(options);
    Complete(seed, chart);
    chart.Layout();
    return chart;
}

/// `add` finds the faults that only this kind of chart can have.
template <class Chart, class Add>
void ExpectNoFaults(Chart (*random)(std::uint32_t, Variety), const Add& add) {
    constexpr std::size_t kShown = 5;
    std::size_t wrong = 0;
    std::string shown;
    for (std::uint32_t seed = 0; seed < kCharts; ++seed) {
        const Chart chart = LaidOut(random(seed, Variety::Moderate), Readable(seed), seed);
        const std::vector<ChartText> texts = TextsOf(chart);
        Faults faults;
        AddFaults(texts, chart.GetPositionAll(), faults);
        add(chart, texts, faults);
        if (!faults.Sentences().empty() && ++wrong <= kShown) {
            shown += "seed " + std::to_string(seed) + "\n" + faults.Sentences();
        }
    }
    EXPECT_EQ(wrong, 0U) << shown;
}

template <class Chart> void ExpectSoundWithout(Chart (*random)(std::uint32_t, Variety)) {
    static constexpr std::array<std::int32_t ChartOptions::*, 10> kFields{
        &ChartOptions::Numbers,     &ChartOptions::BarBase, &ChartOptions::ValueRange, &ChartOptions::Labels,
        &ChartOptions::SliceLabels, &ChartOptions::Legend,  &ChartOptions::TimeLabels, &ChartOptions::Air,
        &ChartOptions::Contrast,    &ChartOptions::Palette};
    for (std::uint32_t seed = 0; seed < 200; ++seed) {
        ChartOptions options = Readable(seed);
        options.*kFields[seed % kFields.size()] = 0;
        const Variety variety = seed % 4 < 2 ? Variety::Full : Variety::Moderate;
        const Chart chart = LaidOut(random(seed, variety), options, seed);
        penlode::CRecordingEngine engine;
        chart.Draw(&engine);
        if (variety == Variety::Moderate) {
            const RectF whole = chart.GetPositionAll();
            EXPECT_TRUE(penlode::IsFinite(whole) && whole.Width >= 0.0F && whole.Height >= 0.0F) << seed;
            EXPECT_EQ(engine.Calls().empty(), whole.Width == 0.0F) << seed;
        }
    }
}

} // namespace

TEST(ReadableCharts, PiesHaveNoOverlaps) {
    ExpectNoFaults(RandomPie, [](const CBasicPie& chart, const auto& texts, Faults& faults) {
        AddLabelsOn(OutlineOf(chart.GetShapes(), 0.0, kFullTurn), texts, faults);
    });
}

TEST(ReadableCharts, HalfPiesHaveNoOverlaps) {
    ExpectNoFaults(RandomHalfPie, [](const CBasicHalfPie& chart, const auto& texts, Faults& faults) {
        AddLabelsOnHalf(chart.GetShapes(), texts, faults);
    });
}

TEST(ReadableCharts, TwoHalfPiesHaveNoOverlaps) {
    ExpectNoFaults(RandomHalfPieHalfPie,
                   [](const CBasicHalfPieHalfPie& chart, const auto& texts, Faults& faults) {
                       AddLabelsOnHalf(chart.GetShapes().First, texts, faults);
                       AddLabelsOnHalf(chart.GetShapes().Second, texts, faults);
                   });
}

TEST(ReadableCharts, BarsOnAHalfPieHaveNoOverlaps) {
    ExpectNoFaults(RandomHalfPieHistogram,
                   [](const CBasicHalfPieHistogram& chart, const auto& texts, Faults& faults) {
                       AddLabelsOnHalf(chart.GetShapes().HalfPie, texts, faults);
                   });
}

TEST(ReadableCharts, BarsHaveNoOverlaps) {
    ExpectNoFaults(RandomHistogram, [](const CBasicHistogram& chart, const auto& texts, Faults& faults) {
        AddFrameFaults(texts, chart.GetLocation(), chart.GetPositionAll(), faults);
        AddLabelsOutOfBars(chart, texts, faults);
    });
}

TEST(ReadableCharts, CurvesHaveNoOverlaps) {
    ExpectNoFaults(RandomCurve, [](const CBasicCurve& chart, const auto& texts, Faults& faults) {
        AddFrameFaults(texts, chart.GetLocation(), chart.GetPositionAll(), faults);
    });
}

TEST(ReadableCharts, AreSoundWithoutAnyOneOption) {
    ExpectSoundWithout(RandomPie);
    ExpectSoundWithout(RandomHalfPie);
    ExpectSoundWithout(RandomHalfPieHalfPie);
    ExpectSoundWithout(RandomHalfPieHistogram);
    ExpectSoundWithout(RandomHistogram);
    ExpectSoundWithout(RandomCurve);
}
