#include "Drawing/TextLayout.hpp"

#include <algorithm>
#include <cmath>

namespace Merivane::Drawing {
namespace {

using ContextPointer = std::unique_ptr<PangoContext, ReleaseObject>;
using FontMapPointer = std::unique_ptr<PangoFontMap, ReleaseObject>;

struct ReleaseFont {
    void operator()(PangoFontDescription* font) const { pango_font_description_free(font); }
};

struct ReleaseOptions {
    void operator()(cairo_font_options_t* options) const { cairo_font_options_destroy(options); }
};

// Without hinting and without rounding a text of 2 mm is laid out as finely as a large one.
ContextPointer MakeContext() {
    const FontMapPointer fonts(pango_cairo_font_map_new());
    ContextPointer context(pango_font_map_create_context(fonts.get()));
    const std::unique_ptr<cairo_font_options_t, ReleaseOptions> options(
        cairo_font_options_create());
    cairo_font_options_set_antialias(options.get(), CAIRO_ANTIALIAS_GRAY);
    cairo_font_options_set_hint_style(options.get(), CAIRO_HINT_STYLE_NONE);
    cairo_font_options_set_hint_metrics(options.get(), CAIRO_HINT_METRICS_OFF);
    pango_cairo_context_set_font_options(context.get(), options.get());
    pango_context_set_round_glyph_positions(context.get(), FALSE);
    pango_context_set_base_dir(context.get(), PANGO_DIRECTION_LTR);
    return context;
}

// Fonts found once serve every text of a thread. They are released when it ends: Pango's own
// default map never is.
PangoContext* TextContext() {
    thread_local const ContextPointer Context = MakeContext();
    return Context.get();
}

} // namespace

std::string CleanText(std::string_view text) {
    char* valid = g_utf8_make_valid(text.data(), static_cast<gssize>(text.size()));
    std::string clean = valid;
    g_free(valid);
    std::replace_if(
        clean.begin(), clean.end(),
        [](char c) {
            const auto byte = static_cast<unsigned char>(c);
            return byte < 0x20 || byte == 0x7F;
        },
        ' ');
    return clean;
}

LayoutPointer MakeTextLayout(std::string_view text, double height, TextWeight weight,
                             TextFace face) {
    const std::unique_ptr<PangoFontDescription, ReleaseFont> font(pango_font_description_new());
    pango_font_description_set_family_static(
        font.get(), face == TextFace::Monospaced ? MonospacedFamily : FontFamily);
    pango_font_description_set_weight(font.get(), weight == TextWeight::Bold ? PANGO_WEIGHT_BOLD
                                                                             : PANGO_WEIGHT_NORMAL);
    pango_font_description_set_absolute_size(font.get(), height * EmPerCapital * PANGO_SCALE);

    LayoutPointer layout(pango_layout_new(TextContext()));
    pango_layout_set_font_description(layout.get(), font.get());
    pango_layout_set_single_paragraph_mode(layout.get(), TRUE);
    pango_layout_set_auto_dir(layout.get(), FALSE);
    const std::string clean = CleanText(text);
    pango_layout_set_text(layout.get(), clean.data(), static_cast<int>(clean.size()));
    return layout;
}

PangoLayoutLine* TextLine(const LayoutPointer& layout) {
    return pango_layout_get_line_readonly(layout.get(), 0);
}

} // namespace Merivane::Drawing
