#include "foundation/Legend.h"

#include "foundation/Hatching.h"
#include "foundation/LegendSide.h"
#include "foundation/NarrowText.h"
#include "foundation/TextPropertyOperation.h"
#include "penlode/text/StringUtil.h"

#include <algorithm>
#include <utility>

namespace millichart {

using penlode::PointF;
using penlode::RectF;
using penlode::SizeF;

namespace {

constexpr float kSwatchMargin = 1.0F;
/// Of an item's height: at most so much is free round a square of a legend that sits.
constexpr float kSeatedMargin = 0.25F;
constexpr float kSwatchFrameWidth = 0.1F;

std::vector<SizeF> ItemSizes(const LegendProp& prop, const std::vector<std::string>& names,
                             float swatchFactor) {
    std::vector<SizeF> sizes;
    sizes.reserve(names.size());
    for (const std::string& name : names) {
        const SizeF text = penlode::CStringUtil::MeasureWideString(WideText(name), prop.Font.Get());
        sizes.push_back({text.Height * swatchFactor + text.Width, text.Height});
    }
    return sizes;
}

/// The items' lengths added up, with the gaps between them.
float TotalLength(const std::vector<SizeF>& sizes, float SizeF::*length, float gap) {
    float total = 0.0F;
    for (const SizeF& size : sizes) {
        total += size.*length;
    }
    return total + static_cast<float>(sizes.size() - 1) * gap;
}

/// Where the first item of a row above or below the plot stands.
PointF RowStart(const LegendProp& prop, const std::vector<SizeF>& sizes, const RectF& plot) {
    const float width = TotalLength(sizes, &SizeF::Width, prop.ItemDist);
    const bool above = SideOf(prop.LegendPos) == LegendSide::Top;
    return {AlignedAlong(prop.LegendPos, plot.X, plot.Width, width),
            above ? plot.Y - sizes.back().Height - kLegendDistance : plot.Y + plot.Height + kLegendDistance};
}

/// Where the first item of a column beside the plot stands.
PointF ColumnStart(const LegendProp& prop, const std::vector<SizeF>& sizes, const RectF& plot) {
    float width = 0.0F;
    for (const SizeF& size : sizes) {
        width = std::max(width, size.Width);
    }
    const float height = TotalLength(sizes, &SizeF::Height, prop.ItemDist);
    const bool onLeft = SideOf(prop.LegendPos) == LegendSide::Left;
    return {onLeft ? plot.X - width - kLegendDistance : plot.X + plot.Width + kLegendDistance,
            AlignedAlong(prop.LegendPos, plot.Y, plot.Height, height)};
}

/// Black and level, in the middle of `box`.
ChartText NameIn(const LegendProp& prop, std::size_t index, const std::string& name, const RectF& box) {
    const penlode::Font* font = prop.Font.Get();
    std::wstring wide = WideText(name);
    const SizeF size = penlode::CStringUtil::MeasureWideString(wide, font);
    return {{TextRole::LegendName, index}, std::move(wide), font, nullptr, {}, box, size};
}

/// In what the swatch leaves of the item.
ChartText NameOf(const LegendProp& prop, std::size_t index, const std::string& name, const RectF& item,
                 float swatchFactor, const LegendFrame& frame) {
    const float swatch = swatchFactor * item.Height + frame.NameGap;
    return NameIn(prop, index, name, {item.X + swatch, item.Y, item.Width - swatch, item.Height});
}

ChartText RestOf(const LegendProp& prop, std::size_t shown, const LegendFrame& frame) {
    return NameIn(prop, shown, frame.RestText, frame.Rest);
}

float SwatchMargin(const RectF& item, const LegendFrame& frame) {
    return frame.IsSeated() ? std::min(kSwatchMargin, item.Height * kSeatedMargin) : kSwatchMargin;
}

void DrawBox(penlode::IGraphicsEngine& engine, const LegendProp& prop, const RectF& box) {
    if (prop.ShowBackground != 0) {
        const penlode::SolidBrush brush{prop.BackgroundColor};
        engine.FillRectangle(&brush, box.X, box.Y, box.Width, box.Height);
    }
    if (prop.ShowEdge != 0) {
        engine.DrawRectangle(prop.PenEdge.Get(), box.X, box.Y, box.Width, box.Height);
    }
}

} // namespace

RectF UnionOf(const std::vector<RectF>& rects) {
    RectF all = rects.empty() ? RectF{} : rects.front();
    for (const RectF& rect : rects) {
        all = penlode::Union(all, rect);
    }
    return all;
}

std::vector<RectF> CLegendOperation::PlaceItems(const LegendProp& prop, const std::vector<std::string>& names,
                                                const RectF& plot, float swatchFactor) {
    if (names.empty() || !IsNamedLegendPosition(prop.LegendPos)) {
        return std::vector<RectF>(names.size());
    }
    const std::vector<SizeF> sizes = ItemSizes(prop, names, swatchFactor);
    const bool inRow = IsInRows(prop.LegendPos);
    PointF at = inRow ? RowStart(prop, sizes, plot) : ColumnStart(prop, sizes, plot);
    std::vector<RectF> items;
    for (const SizeF& size : sizes) {
        items.push_back({at.X, at.Y, size.Width, size.Height});
        (inRow ? at.X : at.Y) += (inRow ? size.Width : size.Height) + prop.ItemDist;
    }
    return items;
}

RectF LegendBoxOf(const std::vector<RectF>& items, const LegendFrame& frame) {
    return frame.IsSeated() ? frame.Box : UnionOf(items);
}

void CLegendOperation::VisitNames(const TextVisitor& visit, const LegendProp& prop,
                                  const std::vector<std::string>& names, const std::vector<RectF>& items,
                                  float swatchFactor, const LegendFrame& frame) {
    if (prop.ShowLegend == 0) {
        return;
    }
    for (std::size_t i = 0; i < std::min(names.size(), items.size()); ++i) {
        visit(NameOf(prop, i, names[i], items[i], swatchFactor, frame));
    }
    if (frame.LeftOut > 0) {
        visit(RestOf(prop, items.size(), frame));
    }
}

void CLegendOperation::Draw(penlode::IGraphicsEngine* engine, const LegendProp& prop,
                            const std::vector<std::string>& names, const std::vector<penlode::Color>& colors,
                            const std::vector<RectF>& items) {
    if (engine != nullptr) {
        Draw(*engine, prop, names, FillsOf({}, colors, colors.size()), items, {});
    }
}

void CLegendOperation::Draw(penlode::IGraphicsEngine& engine, const LegendProp& prop,
                            const std::vector<std::string>& names, const std::vector<Fill>& fills,
                            const std::vector<RectF>& items, const LegendFrame& frame) {
    const penlode::Pen pen(penlode::kBlack, kSwatchFrameWidth);
    const auto drawSquare = [&](std::size_t i, const RectF& item) {
        const float margin = SwatchMargin(item, frame);
        const float side = item.Height - 2.0F * margin;
        const RectF square{item.X + margin, item.Y + margin, side, side};
        if (i < fills.size()) {
            const penlode::SolidBrush brush{fills[i].Color};
            engine.FillRectangle(&brush, square.X, square.Y, side, side);
            HatchRectangle(engine, square, fills[i].Hatch);
        }
        engine.DrawRectangle(&pen, square.X, square.Y, side, side);
    };
    Draw(engine, prop, names, items, kLegendSquareFactor, drawSquare, frame);
}

void CLegendOperation::Draw(penlode::IGraphicsEngine& engine, const LegendProp& prop,
                            const std::vector<std::string>& names, const std::vector<RectF>& items,
                            float swatchFactor, const LegendSwatch& drawSwatch, const LegendFrame& frame) {
    if (prop.ShowLegend == 0 || items.empty()) {
        return;
    }
    DrawBox(engine, prop, LegendBoxOf(items, frame));
    for (std::size_t i = 0; i < items.size(); ++i) {
        drawSwatch(i, items[i]);
        if (i < names.size()) {
            CTextPropertyOperation::Draw(engine, NameOf(prop, i, names[i], items[i], swatchFactor, frame));
        }
    }
    if (frame.LeftOut > 0) {
        CTextPropertyOperation::Draw(engine, RestOf(prop, items.size(), frame));
    }
}

} // namespace millichart
