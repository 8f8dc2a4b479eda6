#include "penlode/cairo/PangoText.h"

#include "penlode/engine/EngineArguments.h"
#include "penlode/engine/FaceMetrics.h"
#include "penlode/engine/LineKey.h"
#include "penlode/text/StringUtil.h"
#include "penlode/text/TextPlacement.h"

#include <algorithm>
#include <cmath>
#include <fontconfig/fontconfig.h>
#include <hb.h>
#include <memory>
#include <pango/pangocairo.h>
#include <pango/pangofc-fontmap.h>
#include <unordered_map>
#include <utility>

namespace penlode {
namespace {

struct PangoDeleter {
    void operator()(PangoFontDescription* description) const { pango_font_description_free(description); }

    void operator()(cairo_font_options_t* options) const { cairo_font_options_destroy(options); }

    template <class T> void operator()(T* object) const { g_object_unref(object); }
};

template <class T> using Held = std::unique_ptr<T, PangoDeleter>;

Held<PangoFontMap> MakeFontMap() {
    Held<PangoFontMap> map(pango_cairo_font_map_new_for_font_type(CAIRO_FONT_TYPE_FT));
    if (map != nullptr && FontConfiguration() != nullptr) {
        pango_fc_font_map_set_config(PANGO_FC_FONT_MAP(map.get()), FontConfiguration());
    }
    return map;
}

/// No hinting and no rounding: a text is as long on every surface.
Held<PangoContext> MakeContext(PangoFontMap* map) {
    Held<PangoContext> context(pango_font_map_create_context(map));
    const Held<cairo_font_options_t> options(cairo_font_options_create());
    cairo_font_options_set_hint_style(options.get(), CAIRO_HINT_STYLE_NONE);
    cairo_font_options_set_hint_metrics(options.get(), CAIRO_HINT_METRICS_OFF);
    cairo_font_options_set_antialias(options.get(), CAIRO_ANTIALIAS_GRAY);
    pango_cairo_context_set_font_options(context.get(), options.get());
    pango_cairo_context_set_resolution(context.get(), 72.0);
    pango_context_set_round_glyph_positions(context.get(), FALSE);
    pango_context_set_language(context.get(), pango_language_from_string("zh-cn"));
    return context;
}

/// Where a family is not installed and has no companions, or has no Chinese: our sans-serif, one face for all
/// of a text.
constexpr const char* kLastResort = ",SimHei";

Held<PangoFontDescription> Describe(const Font& font) {
    Held<PangoFontDescription> description(pango_font_description_new());
    const std::string family = CStringUtil::WideToUtf8(font.Family);
    pango_font_description_set_family(description.get(), (family + kLastResort).c_str());
    pango_font_description_set_weight(description.get(),
                                      font.Has(FontStyle::Bold) ? PANGO_WEIGHT_BOLD : PANGO_WEIGHT_NORMAL);
    pango_font_description_set_style(description.get(),
                                     font.Has(FontStyle::Italic) ? PANGO_STYLE_ITALIC : PANGO_STYLE_NORMAL);
    pango_font_description_set_absolute_size(description.get(), kShapingEm * PANGO_SCALE);
    return description;
}

double SetWidth(PangoLayoutLine* line) {
    PangoRectangle logical{};
    pango_layout_line_get_extents(line, nullptr, &logical);
    return static_cast<double>(logical.width) / PANGO_SCALE;
}

/// Cairo refuses to write a text into a document with code points that are no characters: U+FFFD stands for
/// each of them.
std::string Utf8Of(std::wstring_view text) {
    std::wstring shown(text);
    const auto isNoCharacter = [](wchar_t c) {
        const auto code = static_cast<std::uint32_t>(c);
        return (code & 0xFFFEU) == 0xFFFEU || (code >= 0xFDD0U && code <= 0xFDEFU);
    };
    std::replace_if(shown.begin(), shown.end(), isNoCharacter, L'\xFFFD');
    return CStringUtil::WideToUtf8(shown);
}

/// One thread's fonts and the lines that it has set. Both caches begin anew when they are full.
class Typesetter {
public:
    ShapedLine Line(std::wstring_view text, const Font& font) {
        text = text.substr(0, kMaxLineCharacters);
        if (text.empty() || m_context == nullptr) {
            return {};
        }
        LineKey key{font.Family, font.Style & kFaceStyles, std::wstring(text)};
        if (const auto found = m_lines.find(key); found != m_lines.end()) {
            return found->second.Set;
        }
        if (m_lines.size() >= kMaxLines || m_characters >= kMaxCharacters) {
            m_lines.clear();
            m_characters = 0;
        }
        m_characters += text.size();
        CachedLine line = Compose(text, font);
        return m_lines.emplace(std::move(key), std::move(line)).first->second.Set;
    }

    FaceMetrics Metrics(const Font& font) {
        LineKey key{font.Family, font.Style & kFaceStyles, {}};
        if (const auto found = m_faces.find(key); found != m_faces.end()) {
            return found->second;
        }
        if (m_faces.size() >= kMaxFaces) {
            m_faces.clear();
        }
        return m_faces.emplace(std::move(key), WithoutExcessAir(MeasureFace(font))).first->second;
    }

    std::wstring Face(const Font& font) const {
        const Held<PangoFont> face = Load(font);
        if (face == nullptr) {
            return {};
        }
        const Held<PangoFontDescription> description(pango_font_describe(face.get()));
        return CStringUtil::Utf8ToWideString(pango_font_description_get_family(description.get()));
    }

private:
    static constexpr std::size_t kMaxLines = 4096;
    static constexpr std::size_t kMaxCharacters = 262144;
    static constexpr std::size_t kMaxFaces = 256;

    struct CachedLine {
        Held<PangoLayout> Layout;
        ShapedLine Set;
    };

    CachedLine Compose(std::wstring_view text, const Font& font) const {
        CachedLine line{Held<PangoLayout>(pango_layout_new(m_context.get())), {}};
        PangoLayout* layout = line.Layout.get();
        const std::string utf8 = Utf8Of(text);
        pango_layout_set_single_paragraph_mode(layout, TRUE);
        pango_layout_set_font_description(layout, Describe(font).get());
        pango_layout_set_text(layout, utf8.data(), static_cast<int>(utf8.size()));
        line.Set.Line = pango_layout_get_line_readonly(layout, 0);
        line.Set.Width = line.Set.Line == nullptr ? 0.0 : SetWidth(line.Set.Line);
        return line;
    }

    /// The first face alone: what other faces a text may need does not change a font's line height.
    FaceMetrics MeasureFace(const Font& font) const {
        const Held<PangoFont> face = Load(font);
        hb_font_t* shaper = face == nullptr ? nullptr : pango_font_get_hb_font(face.get());
        hb_font_extents_t extents{};
        if (shaper == nullptr || !hb_font_get_h_extents(shaper, &extents)) {
            return {0.88, 0.12};
        }
        int scaleX = 0;
        int scaleY = 0;
        hb_font_get_scale(shaper, &scaleX, &scaleY);
        const double em = std::abs(scaleY);
        return {extents.ascender / em, -extents.descender / em};
    }

    Held<PangoFont> Load(const Font& font) const {
        return Held<PangoFont>(
            m_context == nullptr ? nullptr : pango_context_load_font(m_context.get(), Describe(font).get()));
    }

    Held<PangoFontMap> m_map = MakeFontMap();
    Held<PangoContext> m_context = m_map == nullptr ? nullptr : MakeContext(m_map.get());
    std::unordered_map<LineKey, CachedLine, LineKeyHash> m_lines;
    std::size_t m_characters = 0;
    std::unordered_map<LineKey, FaceMetrics, LineKeyHash> m_faces;
};

/// The character whose UTF-8 form begins at an offset.
std::wstring CharacterAt(const std::string& utf8, std::size_t offset) {
    const std::size_t end = std::min(
        utf8.size(), static_cast<std::size_t>(g_utf8_next_char(utf8.c_str() + offset) - utf8.c_str()));
    return CStringUtil::Utf8ToWideString(std::string_view(utf8).substr(offset, end - offset));
}

Typesetter& ThisThread() {
    thread_local Typesetter typesetter;
    return typesetter;
}

} // namespace

ShapedLine ShapeLine(std::wstring_view text, const Font& font) {
    return ThisThread().Line(text, font);
}

std::vector<std::wstring> UnknownCharacters(std::wstring_view line, const Font& font) {
    std::vector<std::wstring> unknown;
    const ShapedLine set = ShapeLine(line, font);
    const std::string utf8 = Utf8Of(line.substr(0, kMaxLineCharacters));
    for (const GSList* run = set.Line == nullptr ? nullptr : set.Line->runs; run != nullptr;
         run = run->next) {
        const auto* const glyphs = static_cast<const PangoLayoutRun*>(run->data)->glyphs;
        const int offset = static_cast<const PangoLayoutRun*>(run->data)->item->offset;
        for (int i = 0; i < glyphs->num_glyphs; ++i) {
            if ((glyphs->glyphs[i].glyph & PANGO_GLYPH_UNKNOWN_FLAG) != 0 &&
                glyphs->glyphs[i].glyph != PANGO_GLYPH_EMPTY) {
                unknown.push_back(
                    CharacterAt(utf8, static_cast<std::size_t>(offset + glyphs->log_clusters[i])));
            }
        }
    }
    return unknown;
}

std::wstring FaceOf(const Font& font) {
    return ThisThread().Face(font);
}

float CStringUtil::MeasureLine(std::wstring_view line, const Font& font) {
    return IsDrawable(font) ? static_cast<float>(ShapeLine(line, font).Width / kShapingEm * font.Size) : 0.0F;
}

FontMetrics CStringUtil::MeasureFont(const Font& font) {
    if (!IsDrawable(font)) {
        return {};
    }
    const FaceMetrics face = ThisThread().Metrics(font);
    return {static_cast<float>(face.Ascent * font.Size),
            static_cast<float>((face.Ascent + face.Descent) * font.Size)};
}

} // namespace penlode
