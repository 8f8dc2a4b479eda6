#include "TextByHand.h"

#include <algorithm>

namespace byhand {
namespace {

PangoContext* Context() {
    static const std::unique_ptr<PangoContext, Unref> context(
        pango_font_map_create_context(pango_cairo_font_map_get_default()));
    return context.get();
}

/// A name's colour square.
double SideOf(const Text& name) {
    return name.Height * 0.6;
}

} // namespace

Typesetter::Typesetter(std::string family, double size)
    : m_family(std::move(family)), m_size(size),
      m_font(pango_font_description_from_string(m_family.c_str())) {
    pango_font_description_set_absolute_size(m_font.get(), size * 100.0 * PANGO_SCALE);
}

Text Typesetter::Set(std::string content) const {
    Text text{std::move(content), std::unique_ptr<PangoLayout, Unref>(pango_layout_new(Context()))};
    pango_layout_set_font_description(text.Layout.get(), m_font.get());
    pango_layout_set_text(text.Layout.get(), text.Content.data(), static_cast<int>(text.Content.size()));
    int width = 0;
    int height = 0;
    pango_layout_get_size(text.Layout.get(), &width, &height);
    text.Width = width / 100.0 / PANGO_SCALE;
    text.Height = height / 100.0 / PANGO_SCALE;
    return text;
}

void SetColor(cairo_t* c, unsigned rgb) {
    cairo_set_source_rgb(c, (rgb >> 16U) / 255.0, (rgb >> 8U & 0xFFU) / 255.0, (rgb & 0xFFU) / 255.0);
}

void Show(cairo_t* c, const Text& text) {
    cairo_save(c);
    cairo_translate(c, text.X, text.Y);
    cairo_scale(c, 0.01, 0.01);
    pango_cairo_show_layout(c, text.Layout.get());
    cairo_restore(c);
}

void PrintHead(std::string& out, double width, double height) {
    Print(out,
          "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"%gmm\" height=\"%gmm\" viewBox=\"0 0 %g %g\">\n",
          width, height, width, height);
}

void PrintText(std::string& out, const Text& text, const Typesetter& set) {
    Print(out,
          "<text x=\"%.3f\" y=\"%.3f\" textLength=\"%.3f\" font-family=\"%s\" font-size=\"%.3f\">%s</text>\n",
          text.X, text.Y + text.Height * 0.8, text.Width, set.Family().c_str(), set.Size(),
          text.Content.c_str());
}

void PrintRect(std::string& out, double x, double y, double width, double height, unsigned rgb) {
    Print(out, "<rect x=\"%.3f\" y=\"%.3f\" width=\"%.3f\" height=\"%.3f\" fill=\"#%06x\"/>\n", x, y, width,
          height, rgb);
}

Legend PlacedLegend(const std::vector<std::string>& names, const std::vector<unsigned>& colors, double x,
                    double middle, const Typesetter& set) {
    Legend legend{{}, colors, x, middle};
    for (const std::string& name : names) {
        Text text = set.Set(name);
        text.X = x + 1.5 * text.Height;
        legend.Width = std::max(legend.Width, text.Width + 1.5 * text.Height);
        legend.Height += text.Height;
        legend.Names.push_back(std::move(text));
    }
    legend.Y -= legend.Height / 2.0;
    double y = legend.Y;
    for (Text& name : legend.Names) {
        name.Y = y;
        y += name.Height;
    }
    return legend;
}

void DrawLegend(cairo_t* c, const Legend& legend) {
    for (std::size_t i = 0; i < legend.Names.size(); ++i) {
        const Text& name = legend.Names[i];
        const double side = SideOf(name);
        SetColor(c, legend.Colors[i]);
        cairo_rectangle(c, legend.X + side / 2.0, name.Y + side / 3.0, side, side);
        cairo_fill(c);
        SetColor(c, 0);
        Show(c, name);
    }
    cairo_rectangle(c, legend.X, legend.Y, legend.Width, legend.Height);
    cairo_stroke(c);
}

void PrintLegend(std::string& out, const Legend& legend, const Typesetter& set) {
    for (std::size_t i = 0; i < legend.Names.size(); ++i) {
        const Text& name = legend.Names[i];
        const double side = SideOf(name);
        PrintRect(out, legend.X + side / 2.0, name.Y + side / 3.0, side, side, legend.Colors[i]);
        PrintText(out, name, set);
    }
    Print(out, "<rect x=\"%.3f\" y=\"%.3f\" width=\"%.3f\" height=\"%.3f\" fill=\"none\" stroke=\"#000\"/>\n",
          legend.X, legend.Y, legend.Width, legend.Height);
}

} // namespace byhand
