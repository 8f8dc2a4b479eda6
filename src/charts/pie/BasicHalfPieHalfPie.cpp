#include "charts/pie/BasicHalfPieHalfPie.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace millichart {

using penlode::IGraphicsEngine;
using penlode::PointF;
using penlode::RectF;

namespace {

// A host may have turned the separator into other units and back.
constexpr double kSeparatorTolerance = 0.1;

/// Entries are points or rectangles.
template <class Entry> bool IsSeparator(const Entry& entry) {
    const auto isNear = [](double a, double b) { return std::fabs(a - b) < kSeparatorTolerance; };
    return isNear(entry.X, kHalvesSeparator.X) && isNear(entry.Y, kHalvesSeparator.Y);
}

template <class Entry>
std::vector<Entry> Joined(const std::vector<Entry>& first, const std::vector<Entry>& second) {
    std::vector<Entry> all = first;
    all.push_back({kHalvesSeparator.X, kHalvesSeparator.Y});
    all.insert(all.end(), second.begin(), second.end());
    return all;
}

template <class Entry> struct Halves {
    std::vector<Entry> First;
    std::vector<Entry> Second;
};

/// The entries before and after the first separator; nothing if there is none.
template <class Entry> std::optional<Halves<Entry>> Split(const std::vector<Entry>& all) {
    const auto separator = std::find_if(all.begin(), all.end(), IsSeparator<Entry>);
    if (separator == all.end()) {
        return std::nullopt;
    }
    return Halves<Entry>{{all.begin(), separator}, {separator + 1, all.end()}};
}

HalfPieProp WithoutLabels(HalfPieProp half) {
    half.Label.ShowNameLabel = 0;
    half.Label.ShowValueLabel = 0;
    half.Label.ShowPercentLabel = 0;
    return half;
}

ChartOptions WithoutTitle(ChartOptions options) {
    options.Title.ShowCaption = 0;
    return options;
}

ChartOptions ForSecond(ChartOptions options) {
    options.Title = options.SecondTitle;
    return options;
}

} // namespace

void CBasicHalfPieHalfPie::SetComponentValue(const std::vector<double>& first,
                                             const std::vector<double>& second) {
    m_firstValues = first;
    m_secondValues = second;
}

void CBasicHalfPieHalfPie::Layout() {
    m_first.SetLocation(m_location);
    m_second.SetLocation(m_location);
    m_second.SetOptions(ForSecond(m_options));
    m_second.SetHalfPieProp(m_prop.Second);
    m_first.SetComponentValue(m_firstValues);
    m_second.SetComponentValue(m_secondValues);
    m_second.Layout();
    const bool isSilent = IsFirstCovered();
    m_first.SetOptions(isSilent ? WithoutTitle(m_options) : m_options);
    m_first.SetHalfPieProp(isSilent ? WithoutLabels(m_prop.First) : m_prop.First);
    m_first.Layout();
    m_whole = penlode::Union(m_first.GetPositionAll(), m_second.GetPositionAll());
}

bool CBasicHalfPieHalfPie::IsFirstCovered() const {
    const auto isUpper = [](const HalfPieProp& half) { return half.Basic.WhichPart == HalfPiePart::Upper; };
    return m_options.SliceLabels == SliceLabelFit::Apart && isUpper(m_prop.First) == isUpper(m_prop.Second) &&
           m_second.GetLayout().Pie.Width > 0.0F;
}

void CBasicHalfPieHalfPie::Draw(IGraphicsEngine* engine) const {
    m_first.Draw(engine);
    m_second.Draw(engine);
}

void CBasicHalfPieHalfPie::VisitTexts(const TextVisitor& visit) const {
    m_first.VisitTexts(visit);
    m_second.VisitTexts(InPart(1, visit));
}

void CBasicHalfPieHalfPie::GetChildPosition(RectF&, std::vector<RectF>& labels, std::vector<RectF>&) const {
    labels = Joined(m_first.GetLayout().LabelRects, m_second.GetLayout().LabelRects);
}

void CBasicHalfPieHalfPie::SetChildPosition(const RectF&, const std::vector<RectF>& labels,
                                            const std::vector<RectF>&) {
    if (const auto halves = Split(labels)) {
        m_first.SetChildPosition({}, halves->First, {});
        m_second.SetChildPosition({}, halves->Second, {});
    }
}

void CBasicHalfPieHalfPie::GetChildOffset(std::vector<PointF>& labels, std::vector<PointF>& legend) const {
    std::vector<PointF> first;
    std::vector<PointF> second;
    m_first.GetChildOffset(first, legend);
    m_second.GetChildOffset(second, legend);
    labels = Joined(first, second);
}

void CBasicHalfPieHalfPie::SetChildOffset(const std::vector<PointF>& labels, const std::vector<PointF>&) {
    if (const auto halves = Split(labels)) {
        m_first.SetChildOffset(halves->First, {});
        m_second.SetChildOffset(halves->Second, {});
    }
}

} // namespace millichart
