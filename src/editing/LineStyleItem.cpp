#include "editing/LineStyleItem.h"

namespace millichart {
namespace {

constexpr penlode::Color kFocused{0xFFA0A0A0U};

void Fill(penlode::IGraphicsEngine& engine, const penlode::RectF& box, penlode::Color color) {
    const penlode::SolidBrush brush{color};
    engine.FillRectangle(&brush, box.X, box.Y, box.Width, box.Height);
}

} // namespace

void DrawLineStyleItem(penlode::IGraphicsEngine& engine, const penlode::RectF& box, int item, bool hasFocus,
                       bool isSelected) {
    if (item < 0) {
        return;
    }
    if (hasFocus) {
        Fill(engine, box, kFocused);
    }
    if (!isSelected) {
        Fill(engine, box, penlode::kWhite);
    }
    const penlode::RectF frame{box.X + 2, box.Y + 2, box.Width - 4, box.Height - 4};
    penlode::Pen pen(penlode::kBlack, 0.1F);
    engine.DrawRectangle(&pen, frame.X, frame.Y, frame.Width, frame.Height);
    pen.SetDashStyle(static_cast<penlode::DashStyle>(item));
    const float middle = frame.Y + frame.Height / 2;
    engine.DrawLine(&pen, frame.X, middle, frame.X + frame.Width, middle);
}

} // namespace millichart
