#include "charts/pie/PiePlacement.h"

#include "foundation/TextPropertyOperation.h"

#include <cmath>

namespace millichart {

using penlode::PointF;
using penlode::RectF;
using penlode::SizeF;

namespace {

// Its digits are part of the labels' places.
constexpr double kPi = 3.1415927;

bool HasLabels(const PieLabelProp& label) {
    return label.ShowNameLabel != 0 || label.ShowValueLabel != 0 || label.ShowPercentLabel != 0;
}

std::vector<std::string> LabelParts(const PiePlan& plan, std::size_t slice, double total) {
    const double value = plan.Values[slice];
    std::vector<std::string> parts;
    if (plan.Label.ShowNameLabel == 1 && slice < plan.Names.size()) {
        parts.push_back(plan.Names[slice]);
    }
    if (plan.Label.ShowValueLabel == 1) {
        parts.push_back(plan.Numbers.ValueText(value, 1));
    }
    if (plan.Label.ShowPercentLabel == 1) {
        parts.push_back(plan.Numbers.PercentText(ShareOf(value, total) * 100.0));
    }
    return parts;
}

std::string Joined(const std::vector<std::string>& parts, const PieLabelProp& label) {
    const std::string separator = label.LabelSeparator + (label.LabelsInSingleRow == 0 ? "\n" : "");
    std::string text;
    for (std::size_t i = 0; i < parts.size(); ++i) {
        text += parts[i] + (i + 1 < parts.size() ? separator : "");
    }
    return text;
}

/// A label's centre: the corner of its box that faces the pie touches the circle of `radius` at angle `mid`,
/// and the box lies outside that circle.
///
///     180 to 270 | 270 to 360        each box grows away from the centre,
///     -----------+-----------        so that it never covers the pie
///      90 to 180 |   0 to 90
PointF LabelCenter(PointF center, double radius, float mid, SizeF size) {
    struct Quadrant {
        double Angle; ///< from the horizontal, 0 to 90
        double AcrossSign;
        double DownSign;
    };

    const auto placed = [&](const Quadrant& q) {
        const double theta = q.Angle * kPi / 180.0;
        return PointF{
            static_cast<float>(center.X + q.AcrossSign * (std::cos(theta) * radius + size.Width * 0.5)),
            static_cast<float>(center.Y + q.DownSign * (std::sin(theta) * radius + size.Height * 0.5))};
    };
    if (mid >= 0.0F && mid <= 90.0F) {
        return placed({mid, 1.0, 1.0});
    }
    if (mid > 90.0F && mid <= 180.0F) {
        return placed({180.0 - mid, -1.0, 1.0});
    }
    if (mid > 180.0F && mid <= 270.0F) {
        return placed({mid - 180.0, -1.0, -1.0});
    }
    if (mid > 270.0F && mid < 360.0F) {
        return placed({360.0 - mid, 1.0, -1.0});
    }
    return {};
}

void PlaceLabels(const PiePlan& plan, const std::vector<float>& sweeps, PieLayout& layout) {
    const double radius =
        static_cast<double>(plan.Label.DistBetweenLabelCenterAndPieCenter) + plan.Diameter * 0.5;
    float angle = plan.StartAngle;
    for (std::size_t i = 0; i < sweeps.size(); ++i) {
        const SizeF size =
            CTextPropertyOperation::GetTextSize(layout.LabelTexts[i], plan.Label.PieLabelTextProperty);
        float mid = angle + sweeps[i] * 0.5F;
        if (mid >= 360.0F) {
            mid -= 360.0F;
        }
        const PointF center = LabelCenter(plan.Center, radius, mid, size);
        const PointF offset = i < plan.LabelOffsets.size() ? plan.LabelOffsets[i] : PointF{};
        layout.LabelRects.push_back({center.X - size.Width * 0.5F + offset.X,
                                     center.Y - size.Height * 0.5F + offset.Y, size.Width, size.Height});
        angle += sweeps[i];
    }
}

} // namespace

bool PlacePie(const PiePlan& plan, PieLayout& layout) {
    layout.Pie = {plan.Center.X, plan.Center.Y, 0.0F, 0.0F};
    layout.LabelTexts.clear();
    layout.LabelRects.clear();
    layout.LeadLines.clear();
    layout.Title.reset();
    const std::vector<float> sweeps = SliceSweeps(plan.Values, plan.TotalSweep);
    if (sweeps.empty()) {
        return false;
    }
    const float radius = plan.Diameter * 0.5F;
    layout.Pie = {plan.Center.X - radius, plan.Center.Y - radius, plan.Diameter, plan.Diameter};
    if (HasLabels(plan.Label)) {
        const double total = TotalOf(plan.Values);
        for (std::size_t i = 0; i < plan.Values.size(); ++i) {
            const std::string text = Joined(LabelParts(plan, i, total), plan.Label);
            layout.LabelTexts.push_back(Decorated(text, plan.Label.PieLabelTextProperty));
        }
        PlaceLabels(plan, sweeps, layout);
    }
    return true;
}

} // namespace millichart
