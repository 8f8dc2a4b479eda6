#include "support/EverySlot.h"

#include <array>
#include <cmath>
#include <string>
#include <vector>

using namespace penlode;

namespace {

constexpr float kCellWidth = 25.0F;
constexpr float kCellHeight = 26.0F;
constexpr std::size_t kColumns = 6;

const SolidBrush kInk{Color{0xFF202020}};
const SolidBrush kBlue{Color{0xFF3B6FB6}};
const SolidBrush kOrange{Color{0xC0E58A3C}};
const Pen kThin(Color{0xFF202020}, 0.2F);
const Pen kThick(Color{0xFFC9504E}, 0.8F);
const Font kSmall{L"Arial", 2.4F};
const RectF kBox{3, 3, 18, 14};

/// A colour wheel of 24 × 16 pixels that fades to the right.
Image Wheel() {
    Image image{24, 16, 60.0F, 60.0F, {}};
    for (std::int32_t y = 0; y < image.Height; ++y) {
        for (std::int32_t x = 0; x < image.Width; ++x) {
            const auto channel = [&](double phase) {
                return static_cast<std::uint32_t>(127.5 + 127.5 * std::cos(x * 0.4 + y * 0.3 + phase));
            };
            const auto alpha = static_cast<std::uint32_t>(255 - 6 * x);
            image.Pixels.push_back(Color::FromArgb(alpha, channel(0.0), channel(2.1), channel(4.2)));
        }
    }
    return image;
}

std::vector<PointF> Star() {
    std::vector<PointF> points;
    for (int i = 0; i < 5; ++i) {
        const double angle = (i * 144 - 90) * 3.14159265 / 180.0;
        points.push_back(
            {static_cast<float>(12 + 8 * std::cos(angle)), static_cast<float>(10.5 + 8 * std::sin(angle))});
    }
    return points;
}

const std::array<PointF, 5> kZigzag{{{3, 15}, {7, 4}, {12, 14}, {16, 5}, {21, 12}}};

void Lines(IGraphicsEngine& g) {
    for (int style = 0; style < 5; ++style) {
        const Pen pen(kBlack, 0.4F, static_cast<DashStyle>(style));
        const float y = 4.0F + 3.0F * static_cast<float>(style);
        g.DrawLine(&pen, 3, y, 21, y);
    }
}

void Rectangles(IGraphicsEngine& g) {
    g.FillRectangle(&kBlue, 3, 3, 12, 9);
    g.FillRectangle(&kOrange, 8, 7, 13, 10);
    g.DrawRectangle(&kThin, 3, 3, 12, 9);
    g.DrawRectangle(&kThick, 8, 7, 13, 10);
}

void Polylines(IGraphicsEngine& g) {
    g.DrawLines(&kThick, kZigzag.data(), static_cast<std::int32_t>(kZigzag.size()));
    g.DrawCurve(&kThin, kZigzag.data(), static_cast<std::int32_t>(kZigzag.size()));
}

void Polygons(IGraphicsEngine& g) {
    const std::vector<PointF> star = Star();
    g.FillPolygon(&kOrange, star.data(), 5);
    g.DrawPolygon(&kThin, star.data(), 5);
}

void Ellipses(IGraphicsEngine& g) {
    g.FillEllipse(&kBlue, 3, 3, 18, 10);
    g.DrawEllipse(&kThick, 6, 6, 12, 11);
    g.DrawArc(&kThin, 2, 2, 20, 16, 20, 140);
}

void Pies(IGraphicsEngine& g) {
    g.FillPie(&kBlue, kBox, 200, 100);
    g.FillPie(&kOrange, kBox, 300, 150);
    g.DrawPie(&kThin, kBox, 90, 110);
    g.DrawPie(&kThin, kBox, 300, 150);
}

void Paths(IGraphicsEngine& g) {
    GraphicsPath path;
    path.AddArc({3, 3, 18, 8}, 0, 180);
    path.AddArc({3, 9, 18, 8}, 180, -180);
    path.CloseFigure();
    path.AddEllipse({9, 5, 6, 8});
    g.FillPath(&kBlue, &path);
}

void Strings(IGraphicsEngine& g) {
    const Font song{L"宋体", 3.4F};
    const Font bold{L"Arial", 3.0F, FontStyle::Bold | FontStyle::Underline};
    const Font italic{L"Times New Roman", 3.2F, FontStyle::Italic | FontStyle::Strikeout};
    const StringFormat right{0, 0, StringAlignment::Far, StringAlignment::Far};
    g.DrawString(L"图表 Chart", -1, &song, PointF{3, 2}, &kInk);
    g.DrawString(L"bold<&>", -1, &bold, PointF{3, 7}, &kInk);
    g.DrawString(L"two\nlines", -1, &italic, kBox, &right, &kInk);
    g.DrawScriptText(L"手写 script", &kSmall, 3, 13, &kBlue);
}

void Measures(IGraphicsEngine& g) {
    const Font font{L"宋体", 4.0F};
    const wchar_t* const text = L"量一量";
    RectF bounds;
    std::int32_t characters = 0;
    std::int32_t lines = 0;
    g.MeasureString(text, -1, &font, PointF{3, 3}, &bounds);
    g.DrawString(text, -1, &font, PointF{3, 3}, &kInk);
    g.DrawRectangle(&kThin, bounds.X, bounds.Y, bounds.Width, bounds.Height);
    const StringFormat center{0, 0, StringAlignment::Center, StringAlignment::Near};
    g.MeasureString(L"mid", -1, &font, PointF{12, 8}, &center, &bounds);
    g.DrawString(L"mid", -1, &font, PointF{12, 8}, &center, &kInk);
    g.DrawRectangle(&kThin, bounds.X, bounds.Y, bounds.Width, bounds.Height);
    g.MeasureString(L"a\nb\nc", -1, &font, RectF{0, 0, 20, 10}, nullptr, &bounds, &characters, &lines);
    const SizeF script = g.MeasureScriptText(L"script", &font);
    g.FillRectangle(&kBlue, 3, 14, script.Width, static_cast<float>(lines));
}

void Images(IGraphicsEngine& g) {
    const Image wheel = Wheel();
    g.DrawImage(&wheel, RectF{3, 2, 8, 7});
    g.DrawImage(&wheel, RectF{13, 2, 8, 7}, 4, 4, 8, 8, Unit::Pixel, nullptr, nullptr, nullptr);
    ImageAttributes grey;
    for (auto& row : grey.ColorMatrix) {
        row = {0, 0, 0, 0, 0};
    }
    for (std::size_t to = 0; to < 3; ++to) {
        grey.ColorMatrix[0][to] = 0.3F;
        grey.ColorMatrix[1][to] = 0.59F;
        grey.ColorMatrix[2][to] = 0.11F;
    }
    grey.ColorMatrix[3][3] = 1.0F;
    g.DrawImage(&wheel, RectF{3, 10.5F, 18, 6.5F}, 0, 0, 24, 16, Unit::Pixel, &grey, nullptr, nullptr);
}

void FilledStripes(IGraphicsEngine& g) {
    for (int i = 0; i < 9; ++i) {
        g.FillRectangle(i % 2 == 0 ? &kBlue : &kOrange, 3, 2.0F + 1.7F * static_cast<float>(i), 18, 1.7F);
    }
}

GraphicsPath Circle(float x) {
    GraphicsPath path;
    path.AddEllipse({x, 4, 11, 11});
    return path;
}

/// Two circles combined in one of the ways, in the colour stripes.
template <CombineMode Mode> void Clips(IGraphicsEngine& g) {
    const std::uint32_t container = g.BeginContainer();
    g.SetPageUnit(Unit::Millimeter);
    const GraphicsPath first = Circle(3);
    const GraphicsPath second = Circle(10);
    g.SetClip(&first, CombineMode::Replace);
    if constexpr (Mode == CombineMode::Exclude) {
        const Region region(second);
        g.SetClip(&region, Mode);
    } else if constexpr (Mode == CombineMode::Complement) {
        Region region(second);
        g.SetClip(&region, Mode);
    } else {
        g.SetClip(&second, Mode);
    }
    FilledStripes(g);
    g.EndContainer(container);
}

void ClipBoxes(IGraphicsEngine& g) {
    const std::uint32_t container = g.BeginContainer();
    g.SetPageUnit(Unit::Millimeter);
    g.SetClip(RectF{3, 3, 8, 14}, CombineMode::Replace);
    g.SetClip(RectF{13, 3, 8, 14}, CombineMode::Union);
    Region kept;
    g.GetClip(&kept);
    g.ResetClip();
    g.DrawRectangle(&kThin, 2, 2, 20, 16);
    g.SetClip(&kept, CombineMode::Replace);
    FilledStripes(g);
    g.EndContainer(container);
}

void Transforms(IGraphicsEngine& g) {
    const std::uint32_t container = g.BeginContainer();
    g.SetPageUnit(Unit::Millimeter);
    g.TranslateTransform(12, 10, MatrixOrder::Prepend);
    for (int i = 0; i < 6; ++i) {
        g.RotateTransform(30, MatrixOrder::Prepend);
        g.DrawRectangle(&kThin, -7, -2, 14, 4);
    }
    Matrix kept;
    g.GetTransform(&kept);
    g.ResetTransform();
    g.ScaleTransform(0.5F, 0.5F, MatrixOrder::Append);
    g.FillRectangle(&kOrange, 5, 5, 6, 6);
    g.SetTransform(&kept);
    PointF corner{-7, -2};
    g.TransformPoints(CoordinateSpace::Page, CoordinateSpace::World, &corner, 1);
    g.ResetTransform();
    g.FillEllipse(&kBlue, corner.X - 1, corner.Y - 1, 2, 2);
    g.EndContainer(container);
}

void Units(IGraphicsEngine& g) {
    const std::uint32_t container = g.BeginContainer();
    g.SetPageUnit(Unit::Inch);
    g.SetPageScale(0.5F);
    const Pen pen(kBlack, 0.02F);
    g.DrawRectangle(&pen, 0.3F, 0.3F, 1.2F, 0.9F); // half inches: 3.8 to 19 mm across
    g.SetPageUnit(Unit::Point);
    g.SetPageScale(g.GetPageScale() * 2.0F);
    g.FillRectangle(&kOrange, 20, 20, 28, 14);
    g.EndContainer(container);
    g.FillRectangle(g.GetPageUnit() == Unit::Millimeter ? &kBlue : &kOrange, 15, 14, 6, 3);
}

void Smoothing(IGraphicsEngine& g) {
    const SmoothingMode before = g.GetSmoothingMode();
    g.SetSmoothingMode(SmoothingMode::None);
    g.DrawEllipse(g.GetSmoothingMode() == SmoothingMode::None ? &kThick : &kThin, 3, 3, 8, 14);
    g.SetSmoothingMode(before);
    g.DrawEllipse(&kThick, 13, 3, 8, 14);
}

/// GradientFill takes whole numbers: its vertices are in tenths of a millimetre here.
template <GradientMode Mode> void Gradient(IGraphicsEngine& g) {
    const std::uint32_t container = g.BeginContainer();
    g.SetPageUnit(Unit::Millimeter);
    g.ScaleTransform(0.1F, 0.1F, MatrixOrder::Prepend);
    const GradientVertex vertices[] = {{0, 0, 0xFF00, 0x4000, 0x2000, 0xFF00},
                                       {180, 140, 0x2000, 0x6000, 0xFF00, 0xFF00},
                                       {0, 140, 0x2000, 0xE000, 0x6000, 0xFF00}};
    const GradientRect rect{0, 1};
    const GradientTriangle triangle{0, 1, 2};
    const void* mesh = Mode == GradientMode::Triangle ? static_cast<const void*>(&triangle) : &rect;
    g.GradientFill({0, 0, 240, 240}, {30, 30}, vertices, 3, mesh, 1, Mode);
    g.EndContainer(container);
}

const SlotCell kCells[] = {
    {L"DrawLine, dashes", Lines},
    {L"rectangles", Rectangles},
    {L"DrawLines, DrawCurve", Polylines},
    {L"polygons", Polygons},
    {L"ellipses, DrawArc", Ellipses},
    {L"pies", Pies},
    {L"FillPath, even-odd", Paths},
    {L"texts", Strings},
    {L"measured texts", Measures},
    {L"images", Images},
    {L"clip intersect", Clips<CombineMode::Intersect>},
    {L"clip union", Clips<CombineMode::Union>},
    {L"clip xor", Clips<CombineMode::Xor>},
    {L"clip exclude", Clips<CombineMode::Exclude>},
    {L"clip complement", Clips<CombineMode::Complement>},
    {L"clip boxes, reset", ClipBoxes},
    {L"transforms", Transforms},
    {L"units and scales", Units},
    {L"smoothing off, on", Smoothing},
    {L"gradient across", Gradient<GradientMode::RectH>},
    {L"gradient down", Gradient<GradientMode::RectV>},
    {L"gradient triangle", Gradient<GradientMode::Triangle>},
};

} // namespace

std::span<const SlotCell> SlotCells() {
    return kCells;
}

void DrawEverySlot(IGraphicsEngine& engine) {
    const StringFormat center{0, 0, StringAlignment::Center, StringAlignment::Near};
    for (std::size_t i = 0; i < std::size(kCells); ++i) {
        const std::uint32_t container = engine.BeginContainer();
        engine.SetPageUnit(Unit::Millimeter);
        engine.TranslateTransform(static_cast<float>(i % kColumns) * kCellWidth,
                                  static_cast<float>(i / kColumns) * kCellHeight, MatrixOrder::Prepend);
        kCells[i].Draw(engine);
        engine.DrawString(kCells[i].Caption, -1, &kSmall, PointF{kCellWidth / 2, 19.5F}, &center, &kInk);
        engine.EndContainer(container);
    }
}
