#include "BarsByHand.h"

#include "ByHand.h"
#include "TextByHand.h"

namespace byhand {
namespace {

constexpr double kLineWidth = 0.1;
constexpr double kMajorTick = 1.0;
constexpr double kMinorTick = 0.5;
constexpr double kTextGap = 1.0;

struct Line {
    double X1;
    double Y1;
    double X2;
    double Y2;
};

struct Rect {
    double X;
    double Y;
    double Width;
    double Height;
    unsigned Color;
};

struct Drawing {
    std::vector<Line> Lines;
    std::vector<Rect> Rects;
    std::vector<Text> Texts;
    Legend Names;
};

std::string WholeNumber(double value) {
    std::string text;
    Print(text, "%.0f", value);
    return text;
}

double HeightOf(const Bars& bars, double value) {
    return bars.Top + bars.Height * (1.0 - value / bars.Largest);
}

void PlaceValueAxis(const Bars& bars, const Typesetter& set, Drawing& drawing) {
    const double x = bars.Left;
    for (double value = 0.0; value <= bars.Largest; value += bars.Step) {
        const double y = HeightOf(bars, value);
        drawing.Lines.push_back({x - kMajorTick, y, x, y});
        drawing.Lines.push_back({x, y, x + bars.Width, y});
        Text label = set.Set(WholeNumber(value));
        label.CenterAt(x - kTextGap - label.Width / 2.0, y);
        drawing.Texts.push_back(std::move(label));
    }
    for (double value = 0.0; value < bars.Largest; value += bars.MinorStep) {
        const double y = HeightOf(bars, value);
        drawing.Lines.push_back({x - kMinorTick, y, x, y});
    }
}

void PlaceGroupAxis(const Bars& bars, const Typesetter& set, Drawing& drawing) {
    const double bottom = bars.Top + bars.Height;
    const double slot = bars.Width / static_cast<double>(bars.Values.size());
    for (std::size_t i = 0; i < bars.GroupNames.size(); ++i) {
        const double x = bars.Left + static_cast<double>(i) * slot;
        if (i > 0) {
            drawing.Lines.push_back({x, bars.Top, x, bottom + kMajorTick});
        }
        Text name = set.Set(bars.GroupNames[i]);
        name.CenterAt(x + slot / 2.0, bottom + kTextGap + name.Height / 2.0);
        drawing.Texts.push_back(std::move(name));
    }
}

void PlaceBars(const Bars& bars, const Typesetter& set, Drawing& drawing) {
    const double slot = bars.Width / static_cast<double>(bars.Values.size());
    const double width = (slot - bars.Gap) / static_cast<double>(bars.Names.size());
    for (std::size_t group = 0; group < bars.Values.size(); ++group) {
        double x = bars.Left + static_cast<double>(group) * slot + bars.Gap / 2.0;
        for (std::size_t i = 0; i < bars.Names.size(); ++i, x += width) {
            const double value = bars.Values[group][i];
            const double top = HeightOf(bars, value);
            drawing.Rects.push_back({x, top, width, bars.Top + bars.Height - top, bars.Colors[i]});
            Text label = set.Set(WholeNumber(value));
            label.CenterAt(x + width / 2.0, top - label.Height / 2.0);
            drawing.Texts.push_back(std::move(label));
        }
    }
}

void PlaceEdge(const Bars& bars, Drawing& drawing) {
    const double right = bars.Left + bars.Width;
    const double bottom = bars.Top + bars.Height;
    drawing.Lines.push_back({bars.Left, bars.Top, right, bars.Top});
    drawing.Lines.push_back({right, bars.Top, right, bottom});
    drawing.Lines.push_back({right, bottom, bars.Left, bottom});
    drawing.Lines.push_back({bars.Left, bottom, bars.Left, bars.Top});
}

Drawing LaidOut(const Bars& bars, const Typesetter& set) {
    Drawing drawing;
    PlaceEdge(bars, drawing);
    PlaceValueAxis(bars, set, drawing);
    PlaceGroupAxis(bars, set, drawing);
    PlaceBars(bars, set, drawing);
    const double middle = bars.Top + bars.Height / 2.0;
    drawing.Names = PlacedLegend(bars.Names, bars.Colors, bars.Left + bars.Width + 2.0, middle, set);
    return drawing;
}

} // namespace

std::string BarsPng(const Bars& bars, double dpi) {
    const double scale = dpi / 25.4;
    const Picture picture(static_cast<int>(bars.PageWidth * scale),
                          static_cast<int>(bars.PageHeight * scale));
    cairo_t* c = picture.Context.get();
    cairo_scale(c, scale, scale);
    const Drawing drawing = LaidOut(bars, Typesetter(bars.Family, bars.FontSize));
    SetColor(c, 0);
    cairo_set_line_width(c, kLineWidth);
    for (const Line& line : drawing.Lines) {
        cairo_move_to(c, line.X1, line.Y1);
        cairo_line_to(c, line.X2, line.Y2);
    }
    cairo_stroke(c);
    for (const Rect& rect : drawing.Rects) {
        SetColor(c, rect.Color);
        cairo_rectangle(c, rect.X, rect.Y, rect.Width, rect.Height);
        cairo_fill(c);
    }
    SetColor(c, 0);
    for (const Text& text : drawing.Texts) {
        Show(c, text);
    }
    DrawLegend(c, drawing.Names);
    return EncodePng(picture);
}

std::string BarsSvg(const Bars& bars) {
    const Typesetter set(bars.Family, bars.FontSize);
    const Drawing drawing = LaidOut(bars, set);
    std::string out;
    PrintHead(out, bars.PageWidth, bars.PageHeight);
    Print(out, "<path stroke=\"#000\" stroke-width=\"%.3f\" d=\"", kLineWidth);
    for (const Line& line : drawing.Lines) {
        Print(out, "M%.3f %.3fL%.3f %.3f", line.X1, line.Y1, line.X2, line.Y2);
    }
    out += "\"/>\n";
    for (const Rect& rect : drawing.Rects) {
        PrintRect(out, rect.X, rect.Y, rect.Width, rect.Height, rect.Color);
    }
    for (const Text& text : drawing.Texts) {
        PrintText(out, text, set);
    }
    PrintLegend(out, drawing.Names, set);
    return out + "</svg>\n";
}

} // namespace byhand
