#include "penlode/cairo/CairoClip.h"

#include "penlode/cairo/CairoOutline.h"
#include "penlode/engine/PixelGrid.h"

#include <array>
#include <optional>
#include <utility>

namespace penlode {
namespace {

/// The points that lie in an odd number of the shapes. Everything among them negates the rest, and no shape
/// at all is no area.
using EvenOddArea = std::vector<Region::Shape>;

/// What lies in all of the areas; no area at all is the whole plane.
using Intersection = std::vector<EvenOddArea>;

std::optional<Intersection> Reduced(const Region& region);

std::optional<Intersection> Reduced(const Region::Shape& shape) {
    if (std::holds_alternative<Region::Everything>(shape)) {
        return Intersection{};
    }
    if (std::holds_alternative<Region::Nothing>(shape)) {
        return Intersection{EvenOddArea{}};
    }
    if (const auto* nested = std::get_if<Region::Nested>(&shape)) {
        return Reduced(*nested->Area);
    }
    return Intersection{EvenOddArea{shape}};
}

bool IsNothing(const Intersection& areas) {
    return areas.size() == 1 && areas.front().empty();
}

std::optional<EvenOddArea> AsOneArea(const Intersection& areas) {
    if (areas.size() > 1) {
        return std::nullopt;
    }
    return areas.empty() ? EvenOddArea{Region::Everything{}} : areas.front();
}

std::optional<Intersection> Both(Intersection a, const Intersection& b) {
    a.insert(a.end(), b.begin(), b.end());
    return a;
}

std::optional<Intersection> OneOfBoth(const Intersection& a, const Intersection& b) {
    std::optional<EvenOddArea> area = AsOneArea(a);
    const std::optional<EvenOddArea> other = AsOneArea(b);
    if (!area || !other) {
        return std::nullopt;
    }
    area->insert(area->end(), other->begin(), other->end());
    return Intersection{std::move(*area)};
}

std::optional<Intersection> FirstOnly(const Intersection& first, const Intersection& second) {
    const std::optional<Intersection> rest = OneOfBoth(second, {});
    return rest ? Both(first, *rest) : std::nullopt;
}

std::optional<Intersection> EitherOf(const Intersection& a, const Intersection& b) {
    if (a.empty() || IsNothing(b)) {
        return a;
    }
    return b.empty() || IsNothing(a) ? std::optional(b) : std::nullopt;
}

std::optional<Intersection> Joined(const Intersection& old, const Intersection& operand, CombineMode mode) {
    switch (mode) {
    case CombineMode::Intersect:
        return Both(old, operand);
    case CombineMode::Union:
        return EitherOf(old, operand);
    case CombineMode::Xor:
        return OneOfBoth(old, operand);
    case CombineMode::Exclude:
        return FirstOnly(old, operand);
    case CombineMode::Complement:
        return FirstOnly(operand, old);
    default:
        return operand;
    }
}

std::optional<Intersection> Reduced(const Region& region) {
    std::optional<Intersection> areas = Intersection{};
    for (const Region::Step& step : region.Steps()) {
        const std::optional<Intersection> operand = Reduced(step.Operand);
        areas = areas && operand ? Joined(*areas, *operand, step.Mode) : std::nullopt;
        if (!areas) {
            return std::nullopt;
        }
    }
    return areas;
}

/// Adds shapes to a context's path.
struct ShapeAdder {
    cairo_t* Context;
    const ClipSetting& Setting;

    void operator()(const Region::Everything&) const { AddBox(Context, Setting.Far, Setting.Far); }

    void operator()(const RectF& rect) const {
        const Matrix& m = Setting.ToDevice;
        if (m.KeepsAxes()) {
            const BoxD box =
                BoxBetween(Mapped(m, rect.TopLeft()), Mapped(m, PointF{rect.Right(), rect.Bottom()}));
            AddBox(Context, Setting.SnapsBoxes ? PixelGrid::Box(box) : box, Setting.Far);
        } else {
            GraphicsPath path;
            path.AddRectangle(rect);
            (*this)(path);
        }
    }

    void operator()(const GraphicsPath& path) const { AddArea(Context, path, Setting.ToDevice, Setting.Far); }

    void operator()(const Region::Nothing&) const {}

    void operator()(const Region::Nested&) const {}
};

cairo_operator_t OperatorFor(CombineMode mode) {
    static constexpr std::array kOperators{CAIRO_OPERATOR_OVER, CAIRO_OPERATOR_DEST_IN,  CAIRO_OPERATOR_OVER,
                                           CAIRO_OPERATOR_XOR,  CAIRO_OPERATOR_DEST_OUT, CAIRO_OPERATOR_OUT};
    const auto index = static_cast<std::size_t>(mode);
    return index < kOperators.size() ? kOperators[index] : CAIRO_OPERATOR_OVER;
}

void PaintMask(cairo_t* context, const Region& region, const ClipSetting& setting);

/// Combines one step with the mask that the context is drawing. A nested region is painted apart first.
void PaintStep(cairo_t* context, const Region::Step& step, const ClipSetting& setting) {
    if (step.Mode == CombineMode::Replace) {
        cairo_set_operator(context, CAIRO_OPERATOR_CLEAR);
        cairo_paint(context);
    }
    cairo_set_source_rgba(context, 0.0, 0.0, 0.0, 1.0);
    const auto* nested = std::get_if<Region::Nested>(&step.Operand);
    if (nested != nullptr) {
        cairo_push_group_with_content(context, CAIRO_CONTENT_ALPHA);
        PaintMask(context, *nested->Area, setting);
        cairo_pop_group_to_source(context);
    }
    cairo_set_operator(context, OperatorFor(step.Mode));
    if (nested != nullptr || std::holds_alternative<Region::Everything>(step.Operand)) {
        cairo_paint(context);
    } else {
        std::visit(ShapeAdder{context, setting}, step.Operand);
        cairo_fill(context);
    }
}

void PaintMask(cairo_t* context, const Region& region, const ClipSetting& setting) {
    const std::vector<Region::Step>& steps = region.Steps();
    if (steps.empty() || steps.front().Mode != CombineMode::Replace) {
        cairo_set_source_rgba(context, 0.0, 0.0, 0.0, 1.0);
        cairo_set_operator(context, CAIRO_OPERATOR_OVER);
        cairo_paint(context);
    }
    for (const Region::Step& step : steps) {
        PaintStep(context, step, setting);
    }
}

CairoPattern MaskOf(cairo_t* context, const Region& region, const ClipSetting& setting) {
    cairo_push_group_with_content(context, CAIRO_CONTENT_ALPHA);
    cairo_set_fill_rule(context, CAIRO_FILL_RULE_EVEN_ODD);
    PaintMask(context, region, setting);
    return CairoPattern(cairo_pop_group(context));
}

void ClipTo(cairo_t* context, const EvenOddArea& area, const ClipSetting& setting) {
    cairo_new_path(context);
    for (const Region::Shape& shape : area) {
        std::visit(ShapeAdder{context, setting}, shape);
    }
    cairo_set_fill_rule(context, CAIRO_FILL_RULE_EVEN_ODD);
    cairo_clip(context);
}

} // namespace

void CairoClip::Apply(cairo_t* context, const std::vector<Region>& regions, const ClipSetting& setting) {
    m_masks.clear();
    for (const Region& region : regions) {
        const std::optional<Intersection> areas = Reduced(region);
        if (!areas) {
            m_masks.push_back(MaskOf(context, region, setting));
            continue;
        }
        for (const EvenOddArea& area : *areas) {
            ClipTo(context, area, setting);
        }
    }
}

void CairoClip::BeginDrawing(cairo_t* context) const {
    for (std::size_t i = 0; i < m_masks.size(); ++i) {
        cairo_push_group(context);
    }
}

void CairoClip::EndDrawing(cairo_t* context) const {
    for (const CairoPattern& mask : m_masks) {
        cairo_pop_group_to_source(context);
        cairo_mask(context, mask.get());
    }
}

} // namespace penlode
