#include "Drawing/CairoPainter.hpp"

#include <new>
#include <numbers>

#include "Drawing/TextLayout.hpp"
#include "Drawing/TextSize.hpp"

namespace Merivane::Drawing {
namespace {

struct ReleaseContext {
    void operator()(cairo_t* context) const { cairo_destroy(context); }
};

// Cairo's y runs downwards: the painter turns every y over by hand, because a mirrored
// transformation would mirror the letters too.
struct Painter {
    cairo_t* context;
    double pageHeight; // mm
    TextForm textForm;

    void operator()(const Area& area) const;
    void operator()(const Polyline& line) const;
    void operator()(const Arc& arc) const;
    void operator()(const TextRun& text) const;

    void SetColor(const Color& color) const {
        cairo_set_source_rgba(context, color.red, color.green, color.blue, color.alpha);
    }
    void AppendLine(const std::vector<Point>& points, bool closed) const;
    void DrawStroke(const Stroke& stroke) const;
};

void Painter::AppendLine(const std::vector<Point>& points, bool closed) const {
    cairo_new_sub_path(context);
    for (const Point& point : points) {
        cairo_line_to(context, point.x, pageHeight - point.y);
    }
    if (closed) {
        cairo_close_path(context);
    }
}

void Painter::DrawStroke(const Stroke& stroke) const {
    SetColor(stroke.color);
    cairo_set_line_width(context, stroke.width);
    cairo_set_dash(context, stroke.dashes.data(), static_cast<int>(stroke.dashes.size()), 0.0);
    cairo_set_line_cap(context, stroke.dashes.empty() ? CAIRO_LINE_CAP_ROUND : CAIRO_LINE_CAP_BUTT);
    cairo_stroke(context);
}

void Painter::operator()(const Area& area) const {
    for (const std::vector<Point>& ring : area.rings) {
        AppendLine(ring, true);
    }
    SetColor(area.fill);
    cairo_fill_preserve(context);
    if (area.bleed > 0.0) {
        DrawStroke({2.0 * area.bleed, area.fill, {}});
    }
    cairo_new_path(context);
}

void Painter::operator()(const Polyline& line) const {
    AppendLine(line.points, line.closed);
    DrawStroke(line.stroke);
}

void Painter::operator()(const Arc& arc) const {
    cairo_new_sub_path(context);
    cairo_arc_negative(context, arc.center.x, pageHeight - arc.center.y, arc.radius, -arc.start,
                       -arc.end);
    DrawStroke(arc.stroke);
}

void Painter::operator()(const TextRun& text) const {
    const Point origin =
        TextOrigin(text, MeasureText(text.text, text.height, text.weight, text.face));
    const LayoutPointer layout = MakeTextLayout(text.text, text.height, text.weight, text.face);
    cairo_save(context);
    cairo_translate(context, origin.x, pageHeight - origin.y);
    cairo_rotate(context, -text.rotation * std::numbers::pi / 180.0);
    cairo_move_to(context, 0.0, 0.0);
    if (text.halo > 0.0 || textForm == TextForm::Outlines) {
        pango_cairo_layout_line_path(context, TextLine(layout));
    }
    if (text.halo > 0.0) {
        SetColor(White);
        cairo_set_line_width(context, 2.0 * text.halo);
        cairo_set_dash(context, nullptr, 0, 0.0);
        cairo_stroke_preserve(context);
    }
    SetColor(text.color);
    if (textForm == TextForm::Outlines) {
        cairo_fill(context);
    } else {
        cairo_new_path(context);
        cairo_move_to(context, 0.0, 0.0);
        pango_cairo_show_layout_line(context, TextLine(layout));
    }
    cairo_new_path(context);
    cairo_restore(context);
}

} // namespace

cairo_status_t AppendToString(void* target, const unsigned char* data, unsigned int length) {
    try {
        static_cast<std::string*>(target)->append(data, data + length);
    } catch (const std::bad_alloc&) {
        return CAIRO_STATUS_NO_MEMORY;
    }
    return CAIRO_STATUS_SUCCESS;
}

std::string PaintingError(cairo_status_t status) {
    return std::string("O desenho não pôde ser feito: ") + cairo_status_to_string(status) + ".";
}

bool PaintDisplayList(const DisplayList& list, cairo_surface_t* surface, double unitsPerMillimetre,
                      TextForm textForm, std::string& error) {
    const std::unique_ptr<cairo_t, ReleaseContext> context(cairo_create(surface));
    cairo_scale(context.get(), unitsPerMillimetre, unitsPerMillimetre);
    cairo_set_fill_rule(context.get(), CAIRO_FILL_RULE_EVEN_ODD);
    cairo_set_line_join(context.get(), CAIRO_LINE_JOIN_ROUND);
    const Painter painter{context.get(), list.height, textForm};
    for (const Layer& layer : list.layers) {
        for (const Element& element : layer.elements) {
            std::visit(painter, element);
        }
    }
    const cairo_status_t status = cairo_status(context.get());
    if (status != CAIRO_STATUS_SUCCESS) {
        error = PaintingError(status);
    }
    return status == CAIRO_STATUS_SUCCESS;
}

} // namespace Merivane::Drawing
