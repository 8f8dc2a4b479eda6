#include "penlode/cairo/CairoClip.h"

#include "penlode/cairo/CairoOutline.h"
#include "penlode/engine/PixelGrid.h"
#include "penlode/engine/RegionFold.h"

#include <array>

namespace penlode {
namespace {

/// The points that lie in an odd number of the shapes. Everything among them negates the rest, and no shape
/// at all is no area.
using EvenOddArea = std::vector<Region::Shape>;

/// What lies in all of the areas; no area at all is the whole plane.
using Intersection = std::vector<EvenOddArea>;

/// Regions that are plain intersections. An area that comes twice stays twice, as its soft edges show it.
class Intersections {
public:
    /// A region that is no plain intersection.
    bool IsExhausted() const { return m_isExhausted; }

    Intersection Of(const Region::Everything&) const { return {}; }

    Intersection Of(const Region::Nothing&) const { return {EvenOddArea{}}; }

    Intersection Of(const Region::Shape& shape) const { return {EvenOddArea{shape}}; }

    Intersection Both(Intersection a, const Intersection& b) const {
        a.insert(a.end(), b.begin(), b.end());
        return a;
    }

    Intersection Either(const Intersection& a, const Intersection& b) {
        if (a.empty() || IsNothing(b)) {
            return a;
        }
        m_isExhausted = m_isExhausted || !(b.empty() || IsNothing(a));
        return b;
    }

    Intersection OneOf(const Intersection& a, const Intersection& b) {
        m_isExhausted = m_isExhausted || a.size() > 1 || b.size() > 1;
        EvenOddArea area = AsOneArea(a);
        const EvenOddArea other = AsOneArea(b);
        area.insert(area.end(), other.begin(), other.end());
        return {area};
    }

    Intersection Without(const Intersection& first, const Intersection& second) {
        return Both(first, OneOf(second, {}));
    }

private:
    static bool IsNothing(const Intersection& areas) { return areas.size() == 1 && areas.front().empty(); }

    static EvenOddArea AsOneArea(const Intersection& areas) {
        return areas.empty() ? EvenOddArea{Region::Everything{}} : areas.front();
    }

    bool m_isExhausted = false;
};

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
        Intersections algebra;
        const Intersection areas = Folded(region, algebra);
        if (algebra.IsExhausted()) {
            m_masks.push_back(MaskOf(context, region, setting));
            continue;
        }
        for (const EvenOddArea& area : areas) {
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
