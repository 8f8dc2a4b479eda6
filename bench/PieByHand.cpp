#include "PieByHand.h"

#include "ByHand.h"
#include "TextByHand.h"

#include <cmath>
#include <numbers>
#include <numeric>

namespace byhand {
namespace {

struct Slice {
    double Start; ///< radians
    double End;
    unsigned Color;
    Text Label;
};

struct Drawing {
    std::vector<Slice> Slices;
    Legend Names;
};

std::string LabelOf(const std::string& name, double share) {
    std::string text;
    Print(text, "%s;%.1f%%", name.c_str(), share * 100.0);
    return text;
}

Text PlacedLabel(const Pie& pie, std::string content, double angle, const Typesetter& set) {
    Text label = set.Set(std::move(content));
    const double radius = pie.Diameter / 2.0 + 2.0;
    label.X = pie.CenterX + radius * std::cos(angle) - (std::cos(angle) < 0.0 ? label.Width : 0.0);
    label.Y = pie.CenterY + radius * std::sin(angle) - (std::sin(angle) < 0.0 ? label.Height : 0.0);
    return label;
}

Drawing LaidOut(const Pie& pie, const Typesetter& set) {
    Drawing drawing;
    const double total = std::accumulate(pie.Values.begin(), pie.Values.end(), 0.0);
    double angle = std::numbers::pi;
    for (std::size_t i = 0; i < pie.Values.size(); ++i) {
        const double share = pie.Values[i] / total;
        const double end = angle + share * 2.0 * std::numbers::pi;
        drawing.Slices.push_back({angle, end, pie.Colors[i],
                                  PlacedLabel(pie, LabelOf(pie.Names[i], share), (angle + end) / 2.0, set)});
        angle = end;
    }
    const double right = pie.CenterX + pie.Diameter / 2.0;
    drawing.Names = PlacedLegend(pie.Names, pie.Colors, right + 25.0, pie.CenterY, set);
    return drawing;
}

void DrawSlice(cairo_t* c, const Pie& pie, const Slice& slice) {
    cairo_move_to(c, pie.CenterX, pie.CenterY);
    cairo_arc(c, pie.CenterX, pie.CenterY, pie.Diameter / 2.0, slice.Start, slice.End);
    cairo_close_path(c);
    SetColor(c, slice.Color);
    cairo_fill_preserve(c);
    SetColor(c, 0);
    cairo_stroke(c);
}

void PrintSlice(std::string& out, const Pie& pie, const Slice& slice) {
    const double r = pie.Diameter / 2.0;
    Print(out,
          "<path d=\"M%.3f %.3f L%.3f %.3f A%.3f %.3f 0 %d 1 %.3f %.3f Z\" fill=\"#%06x\" stroke=\"#000\" "
          "stroke-width=\"0.2\"/>\n",
          pie.CenterX, pie.CenterY, pie.CenterX + r * std::cos(slice.Start),
          pie.CenterY + r * std::sin(slice.Start), r, r, slice.End - slice.Start > std::numbers::pi ? 1 : 0,
          pie.CenterX + r * std::cos(slice.End), pie.CenterY + r * std::sin(slice.End), slice.Color);
}

} // namespace

std::string PiePng(const Pie& pie, double dpi) {
    const double scale = dpi / 25.4;
    const Picture picture(static_cast<int>(pie.PageWidth * scale), static_cast<int>(pie.PageHeight * scale));
    cairo_t* c = picture.Context.get();
    cairo_scale(c, scale, scale);
    cairo_set_line_width(c, 0.2);
    const Drawing drawing = LaidOut(pie, Typesetter(pie.Family, pie.FontSize));
    for (const Slice& slice : drawing.Slices) {
        DrawSlice(c, pie, slice);
    }
    for (const Slice& slice : drawing.Slices) {
        Show(c, slice.Label);
    }
    DrawLegend(c, drawing.Names);
    return EncodePng(picture);
}

std::string PieSvg(const Pie& pie) {
    const Typesetter set(pie.Family, pie.FontSize);
    const Drawing drawing = LaidOut(pie, set);
    std::string out;
    PrintHead(out, pie.PageWidth, pie.PageHeight);
    for (const Slice& slice : drawing.Slices) {
        PrintSlice(out, pie, slice);
    }
    for (const Slice& slice : drawing.Slices) {
        PrintText(out, slice.Label, set);
    }
    PrintLegend(out, drawing.Names, set);
    return out + "</svg>\n";
}

} // namespace byhand
