#include "PieByHand.h"

#include "ByHand.h"

#include <cmath>
#include <cstdio>
#include <numbers>
#include <numeric>
#include <pango/pangocairo.h>

namespace byhand {
namespace {

struct Unref {
    void operator()(void* object) const { g_object_unref(object); }

    void operator()(PangoFontDescription* font) const { pango_font_description_free(font); }
};

struct Extent {
    double Width;
    double Height;
};

/// One layout for all texts. It is set in hundredths of a millimetre, so that sizes need no rounding.
class Typesetter {
public:
    explicit Typesetter(const Pie& pie) : m_layout(pango_layout_new(Context())) {
        const std::unique_ptr<PangoFontDescription, Unref> font(
            pango_font_description_from_string(pie.Family.c_str()));
        pango_font_description_set_absolute_size(font.get(), pie.FontSize * 100.0 * PANGO_SCALE);
        pango_layout_set_font_description(m_layout.get(), font.get());
    }

    Extent Set(const std::string& text) {
        pango_layout_set_text(m_layout.get(), text.data(), static_cast<int>(text.size()));
        int width = 0;
        int height = 0;
        pango_layout_get_size(m_layout.get(), &width, &height);
        return {width / 100.0 / PANGO_SCALE, height / 100.0 / PANGO_SCALE};
    }

    PangoLayout* Layout() const { return m_layout.get(); }

private:
    static PangoContext* Context() {
        static const std::unique_ptr<PangoContext, Unref> context(
            pango_font_map_create_context(pango_cairo_font_map_get_default()));
        return context.get();
    }

    std::unique_ptr<PangoLayout, Unref> m_layout;
};

struct Text {
    std::string Content;
    double X; ///< of its top left corner
    double Y;
    Extent Size;
};

struct Slice {
    double Start; ///< radians
    double End;
    unsigned Color;
    Text Label;
    Text Item; ///< in the legend
};

struct Figure {
    std::vector<Slice> Slices;
    double LegendX = 0.0;
    double LegendY = 0.0;
    double LegendWidth = 0.0;
    double LegendHeight = 0.0;
};

std::string LabelOf(const std::string& name, double share) {
    char text[64];
    std::snprintf(text, sizeof text, "%s;%.1f%%", name.c_str(), share * 100.0);
    return text;
}

Text PlacedLabel(const Pie& pie, const std::string& content, double angle, Typesetter& set) {
    const Extent size = set.Set(content);
    const double radius = pie.Diameter / 2.0 + 2.0;
    const double x = pie.CenterX + radius * std::cos(angle);
    const double y = pie.CenterY + radius * std::sin(angle);
    return {content, std::cos(angle) < 0.0 ? x - size.Width : x, std::sin(angle) < 0.0 ? y - size.Height : y,
            size};
}

void PlaceLegend(const Pie& pie, Figure& figure, Typesetter& set) {
    for (std::size_t i = 0; i < figure.Slices.size(); ++i) {
        Text& item = figure.Slices[i].Item;
        item.Content = pie.Names[i];
        item.Size = set.Set(item.Content);
        figure.LegendWidth = std::max(figure.LegendWidth, item.Size.Width + 1.5 * item.Size.Height);
        figure.LegendHeight += item.Size.Height;
    }
    figure.LegendX = pie.CenterX + pie.Diameter / 2.0 + 25.0;
    figure.LegendY = pie.CenterY - figure.LegendHeight / 2.0;
    double y = figure.LegendY;
    for (Slice& slice : figure.Slices) {
        slice.Item.X = figure.LegendX + 1.5 * slice.Item.Size.Height;
        slice.Item.Y = y;
        y += slice.Item.Size.Height;
    }
}

Figure LaidOut(const Pie& pie, Typesetter& set) {
    Figure figure;
    const double total = std::accumulate(pie.Values.begin(), pie.Values.end(), 0.0);
    double angle = std::numbers::pi;
    for (std::size_t i = 0; i < pie.Values.size(); ++i) {
        const double share = pie.Values[i] / total;
        const double end = angle + share * 2.0 * std::numbers::pi;
        figure.Slices.push_back({angle,
                                 end,
                                 pie.Colors[i],
                                 PlacedLabel(pie, LabelOf(pie.Names[i], share), (angle + end) / 2.0, set),
                                 {}});
        angle = end;
    }
    PlaceLegend(pie, figure, set);
    return figure;
}

void SetColor(cairo_t* c, unsigned rgb) {
    cairo_set_source_rgb(c, (rgb >> 16U) / 255.0, (rgb >> 8U & 0xFFU) / 255.0, (rgb & 0xFFU) / 255.0);
}

void Show(cairo_t* c, const Text& text, Typesetter& set) {
    set.Set(text.Content);
    cairo_save(c);
    cairo_translate(c, text.X, text.Y);
    cairo_scale(c, 0.01, 0.01);
    pango_cairo_show_layout(c, set.Layout());
    cairo_restore(c);
}

void DrawSlice(cairo_t* c, const Pie& pie, const Slice& slice) {
    cairo_move_to(c, pie.CenterX, pie.CenterY);
    cairo_arc(c, pie.CenterX, pie.CenterY, pie.Diameter / 2.0, slice.Start, slice.End);
    cairo_close_path(c);
    SetColor(c, slice.Color);
    cairo_fill_preserve(c);
    cairo_set_source_rgb(c, 0.0, 0.0, 0.0);
    cairo_stroke(c);
}

void DrawItem(cairo_t* c, const Figure& figure, const Slice& slice, Typesetter& set) {
    const double side = slice.Item.Size.Height * 0.6;
    cairo_rectangle(c, figure.LegendX + side / 2.0, slice.Item.Y + slice.Item.Size.Height * 0.2, side, side);
    SetColor(c, slice.Color);
    cairo_fill(c);
    cairo_set_source_rgb(c, 0.0, 0.0, 0.0);
    Show(c, slice.Item, set);
}

} // namespace

std::string PiePng(const Pie& pie, double dpi) {
    const double scale = dpi / 25.4;
    const Picture picture(static_cast<int>(pie.PageWidth * scale), static_cast<int>(pie.PageHeight * scale));
    cairo_t* c = picture.Context.get();
    cairo_scale(c, scale, scale);
    cairo_set_line_width(c, 0.2);
    Typesetter set(pie);
    const Figure figure = LaidOut(pie, set);
    for (const Slice& slice : figure.Slices) {
        DrawSlice(c, pie, slice);
    }
    for (const Slice& slice : figure.Slices) {
        Show(c, slice.Label, set);
        DrawItem(c, figure, slice, set);
    }
    cairo_rectangle(c, figure.LegendX, figure.LegendY, figure.LegendWidth, figure.LegendHeight);
    cairo_stroke(c);
    return EncodePng(picture);
}

namespace {

template <class... Numbers> void Print(std::string& out, const char* format, Numbers... numbers) {
    char line[512];
    const int length = std::snprintf(line, sizeof line, format, numbers...);
    out.append(line, static_cast<std::size_t>(length));
}

void PrintText(std::string& out, const Pie& pie, const Text& text) {
    Print(out,
          "<text x=\"%.3f\" y=\"%.3f\" textLength=\"%.3f\" font-family=\"%s\" font-size=\"%.3f\">%s</text>\n",
          text.X, text.Y + text.Size.Height * 0.8, text.Size.Width, pie.Family.c_str(), pie.FontSize,
          text.Content.c_str());
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

std::string PieSvg(const Pie& pie) {
    Typesetter set(pie);
    const Figure figure = LaidOut(pie, set);
    std::string out;
    Print(out,
          "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"%gmm\" height=\"%gmm\" viewBox=\"0 0 %g %g\">\n",
          pie.PageWidth, pie.PageHeight, pie.PageWidth, pie.PageHeight);
    for (const Slice& slice : figure.Slices) {
        PrintSlice(out, pie, slice);
    }
    for (const Slice& slice : figure.Slices) {
        const double side = slice.Item.Size.Height * 0.6;
        PrintText(out, pie, slice.Label);
        PrintText(out, pie, slice.Item);
        Print(out, "<rect x=\"%.3f\" y=\"%.3f\" width=\"%.3f\" height=\"%.3f\" fill=\"#%06x\"/>\n",
              figure.LegendX + side / 2.0, slice.Item.Y + side / 3.0, side, side, slice.Color);
    }
    Print(out,
          "<rect x=\"%.3f\" y=\"%.3f\" width=\"%.3f\" height=\"%.3f\" fill=\"none\" "
          "stroke=\"#000\"/>\n</svg>\n",
          figure.LegendX, figure.LegendY, figure.LegendWidth, figure.LegendHeight);
    return out;
}

} // namespace byhand
