#pragma once

#include <cairo.h>
#include <cstdio>
#include <memory>
#include <pango/pangocairo.h>
#include <string>
#include <vector>

/// Texts, and a legend of them, as a program on bare Pango sets, draws and writes them.
namespace byhand {

struct Unref {
    void operator()(void* object) const { g_object_unref(object); }

    void operator()(PangoFontDescription* font) const { pango_font_description_free(font); }
};

/// A text that was set once and keeps what it was set to. Millimetres.
struct Text {
    std::string Content;
    std::unique_ptr<PangoLayout, Unref> Layout; ///< in hundredths of a millimetre, so that nothing is rounded
    double Width = 0.0;
    double Height = 0.0;
    double X = 0.0; ///< of its top left corner
    double Y = 0.0;

    void CenterAt(double x, double y) {
        X = x - Width / 2.0;
        Y = y - Height / 2.0;
    }
};

class Typesetter {
public:
    Typesetter(std::string family, double size);

    Text Set(std::string content) const;

    const std::string& Family() const { return m_family; }

    double Size() const { return m_size; }

private:
    std::string m_family;
    double m_size;
    std::unique_ptr<PangoFontDescription, Unref> m_font;
};

void SetColor(cairo_t* c, unsigned rgb);
void Show(cairo_t* c, const Text& text);

/// Appends what printf would print.
template <class... Numbers> void Print(std::string& out, const char* format, Numbers... numbers) {
    char line[512];
    const int length = std::snprintf(line, sizeof line, format, numbers...);
    out.append(line, static_cast<std::size_t>(length));
}

void PrintText(std::string& out, const Text& text, const Typesetter& set);
void PrintRect(std::string& out, double x, double y, double width, double height, unsigned rgb);
/// Opens a document of a page's size.
void PrintHead(std::string& out, double width, double height);

/// A frame round a column of names, each with its colour.
struct Legend {
    std::vector<Text> Names;
    std::vector<unsigned> Colors;
    double X = 0.0;
    double Y = 0.0;
    double Width = 0.0;
    double Height = 0.0;
};

/// Its left edge at x, its middle at the height `middle`.
Legend PlacedLegend(const std::vector<std::string>& names, const std::vector<unsigned>& colors, double x,
                    double middle, const Typesetter& set);
void DrawLegend(cairo_t* c, const Legend& legend);
void PrintLegend(std::string& out, const Legend& legend, const Typesetter& set);

} // namespace byhand
