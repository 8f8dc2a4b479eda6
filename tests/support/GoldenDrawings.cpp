#include "support/GoldenDrawings.h"

#include "millichart.h"
#include "support/EverySlot.h"

#include <cstring>

using namespace penlode;

namespace {

const std::vector<Color> kColors{{0xFF3B6FB6}, {0xFFE58A3C}, {0xB057A168}, {0xFFC9504E}};

void Pie(IGraphicsEngine& g, std::int32_t style) {
    millichart::PieProp prop;
    prop.Basic.PieStyle = style;
    prop.Basic.FixedSize = 1;
    prop.Basic.FixedWidth = 30.0F;
    prop.Basic.StartAngle = 200.0F;
    prop.Basic.PenSepLine = Pen(kWhite, 0.4F);
    prop.Basic.ComponentColor = kColors;
    millichart::CBasicPie pie;
    pie.SetPieProp(prop);
    pie.SetComponentValue({38, 27, 23, 12});
    pie.SetLocation({17.0F, 17.0F});
    pie.Layout();
    pie.Draw(&g);
}

void FlatPie(IGraphicsEngine& g) {
    Pie(g, millichart::PieStyle::Flat);
}

void PieWithDepth(IGraphicsEngine& g) {
    Pie(g, millichart::PieStyle::WithDepth);
}

/// A legend without names: a column whose box is filled and framed.
void LegendSquares(IGraphicsEngine& g) {
    millichart::LegendProp prop;
    prop.ShowLegend = 1;
    prop.ShowBackground = 1;
    prop.BackgroundColor = Color{0xFFF2EFE6};
    std::vector<RectF> items;
    for (std::size_t i = 0; i < kColors.size(); ++i) {
        items.push_back({3.0F, 2.5F + 5.7F * static_cast<float>(i), 12.0F, 5.7F});
    }
    millichart::CLegendOperation::Draw(&g, prop, {}, kColors, items);
}

/// Every dash style in four widths, down to the thinnest; level, slanted and bent.
void Lines(IGraphicsEngine& g) {
    const float widths[] = {0.0F, 0.26F, 0.6F, 1.1F};
    for (int style = 0; style < 5; ++style) {
        for (int w = 0; w < 4; ++w) {
            const Pen pen(kBlack, widths[w], static_cast<DashStyle>(style));
            const float y = 2.0F + 6.0F * static_cast<float>(style) + 1.5F * static_cast<float>(w);
            g.DrawLine(&pen, 2, y, 22, y);
            const PointF bent[] = {{25, y}, {32, y - 1.5F}, {40, y + 0.5F}};
            g.DrawLines(&pen, bent, 3);
        }
    }
}

/// Every operation that draws no text, each in its cell.
void Operations(IGraphicsEngine& g) {
    std::size_t place = 0;
    for (const SlotCell& cell : SlotCells()) {
        if (std::wcsstr(cell.Caption, L"text") != nullptr) {
            continue;
        }
        const std::uint32_t container = g.BeginContainer();
        g.SetPageUnit(Unit::Millimeter);
        g.TranslateTransform(static_cast<float>(place % 5) * 25.0F, static_cast<float>(place / 5) * 20.0F,
                             MatrixOrder::Prepend);
        cell.Draw(g);
        g.EndContainer(container);
        ++place;
    }
}

constexpr GoldenDrawing kDrawings[] = {
    {"pie-flat", {34, 34}, FlatPie},       {"pie-depth", {34, 34}, PieWithDepth},
    {"legend", {18, 28}, LegendSquares},   {"lines", {42, 32}, Lines},
    {"operations", {125, 80}, Operations},
};

} // namespace

std::span<const GoldenDrawing> GoldenDrawings() {
    return kDrawings;
}
