#include "charts/pie/PieFigure.h"

#include "foundation/NumberText.h"
#include "foundation/TextPropertyOperation.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <numeric>

namespace millichart {

using penlode::PointF;
using penlode::RectF;
using penlode::SizeF;

namespace {

// Its digits are part of the labels' places.
constexpr double kPi = 3.1415927;

float ShareOf(double value, double total) {
    return static_cast<float>(value / total);
}

bool HasLabels(const PieLabelProp& label) {
    return label.ShowNameLabel != 0 || label.ShowValueLabel != 0 || label.ShowPercentLabel != 0;
}

std::vector<std::string> LabelParts(const PieFigure& figure, std::size_t slice, double total) {
    const double value = figure.Values[slice];
    std::vector<std::string> parts;
    if (figure.Label.ShowNameLabel == 1 && slice < figure.Names.size()) {
        parts.push_back(figure.Names[slice]);
    }
    if (figure.Label.ShowValueLabel == 1) {
        parts.push_back(FixedText(value, 1));
    }
    if (figure.Label.ShowPercentLabel == 1) {
        parts.push_back(FixedText(ShareOf(value, total) * 100.0, 1) + "%");
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

void PlaceLabels(const PieFigure& figure, const std::vector<float>& sweeps, PieLayout& layout) {
    const double radius =
        static_cast<double>(figure.Label.DistBetweenLabelCenterAndPieCenter) + figure.Diameter * 0.5;
    float angle = figure.StartAngle;
    for (std::size_t i = 0; i < sweeps.size(); ++i) {
        const SizeF size =
            CTextPropertyOperation::GetTextSize(layout.LabelTexts[i], figure.Label.PieLabelTextProperty);
        float mid = angle + sweeps[i] * 0.5F;
        if (mid >= 360.0F) {
            mid -= 360.0F;
        }
        const PointF center = LabelCenter(figure.Center, radius, mid, size);
        const PointF offset = i < figure.LabelOffsets.size() ? figure.LabelOffsets[i] : PointF{};
        layout.LabelRects.push_back({center.X - size.Width * 0.5F + offset.X,
                                     center.Y - size.Height * 0.5F + offset.Y, size.Width, size.Height});
        angle += sweeps[i];
    }
}

} // namespace

double TotalOf(const std::vector<double>& values) {
    return std::accumulate(values.begin(), values.end(), 0.0);
}

std::vector<float> SliceSweeps(const std::vector<double>& values, float totalSweep) {
    const double total = TotalOf(values);
    std::vector<float> sweeps;
    if (total == 0.0) {
        return sweeps;
    }
    std::transform(values.begin(), values.end(), std::back_inserter(sweeps),
                   [&](double value) { return ShareOf(value, total) * totalSweep; });
    return sweeps;
}

float PieDiameter(std::int32_t fixedSize, float fixedWidth, float baseValue, float basePieWidth,
                  double total) {
    return fixedSize != 0 ? fixedWidth : static_cast<float>(basePieWidth * total / baseValue);
}

bool LayOutFigure(const PieFigure& figure, PieLayout& layout) {
    layout.Pie = {figure.Center.X, figure.Center.Y, 0.0F, 0.0F};
    layout.LabelTexts.clear();
    layout.LabelRects.clear();
    const std::vector<float> sweeps = SliceSweeps(figure.Values, figure.TotalSweep);
    if (sweeps.empty()) {
        return false;
    }
    const float radius = figure.Diameter * 0.5F;
    layout.Pie = {figure.Center.X - radius, figure.Center.Y - radius, figure.Diameter, figure.Diameter};
    if (HasLabels(figure.Label)) {
        const double total = TotalOf(figure.Values);
        for (std::size_t i = 0; i < figure.Values.size(); ++i) {
            const std::string text = Joined(LabelParts(figure, i, total), figure.Label);
            layout.LabelTexts.push_back(Decorated(text, figure.Label.PieLabelTextProperty));
        }
        PlaceLabels(figure, sweeps, layout);
    }
    return true;
}

RectF FigureExtent(const RectF& pie, const std::vector<RectF>& labels) {
    return std::accumulate(labels.begin(), labels.end(), pie,
                           [](const RectF& all, const RectF& label) { return penlode::Union(all, label); });
}

void DrawFlatSlices(penlode::IGraphicsEngine& engine, const RectF& circle, float startAngle,
                    const std::vector<float>& sweeps, const std::vector<penlode::Color>& colors,
                    const penlode::Pen* outline) {
    float angle = startAngle;
    for (std::size_t i = 0; i < sweeps.size(); ++i) {
        if (i < colors.size()) {
            const penlode::SolidBrush brush{colors[i]};
            engine.FillPie(&brush, circle, angle, sweeps[i]);
        }
        if (outline != nullptr) {
            engine.DrawPie(outline, circle, angle, sweeps[i]);
        }
        angle += sweeps[i];
    }
}

void DrawPieLabels(penlode::IGraphicsEngine& engine, const PieLayout& layout, const PieLabelProp& label) {
    for (std::size_t i = 0; i < layout.LabelTexts.size(); ++i) {
        CTextPropertyOperation::DrawTextAtCenter(&engine, layout.LabelTexts[i], label.PieLabelTextProperty,
                                                 layout.LabelRects[i].Center());
    }
}

void AddMoves(std::vector<PointF>& offsets, const std::vector<RectF>& from, const std::vector<RectF>& to) {
    const std::size_t count = std::min({offsets.size(), from.size(), to.size()});
    for (std::size_t i = 0; i < count; ++i) {
        offsets[i] = offsets[i] + (to[i].TopLeft() - from[i].TopLeft());
    }
}

} // namespace millichart
