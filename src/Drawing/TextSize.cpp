#include "Drawing/TextSize.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

#include "Drawing/TextLayout.hpp"

namespace Merivane::Drawing {
namespace {

// From the position of a text to the start of its base line, in the text's own directions.
Point AnchorOffset(const TextRun& text, const TextSize& size) {
    Point offset;
    if (text.horizontal == HorizontalAnchor::Center) {
        offset.x = -0.5 * size.width;
    } else if (text.horizontal == HorizontalAnchor::Right) {
        offset.x = -size.width;
    }
    if (text.vertical == VerticalAnchor::Middle) {
        offset.y = -0.5 * text.height;
    } else if (text.vertical == VerticalAnchor::Top) {
        offset.y = -text.height;
    }
    return offset;
}

Point Turned(const TextRun& text, Point offset) {
    const double angle = text.rotation * std::numbers::pi / 180.0;
    return {text.position.x + offset.x * std::cos(angle) - offset.y * std::sin(angle),
            text.position.y + offset.x * std::sin(angle) + offset.y * std::cos(angle)};
}

} // namespace

TextSize MeasureText(std::string_view text, double height, TextWeight weight, TextFace face) {
    const LayoutPointer layout = MakeTextLayout(text, height, weight, face);
    PangoRectangle ink;
    PangoRectangle logical;
    pango_layout_line_get_extents(TextLine(layout), &ink, &logical);
    const double unit = 1.0 / PANGO_SCALE;
    return {logical.width * unit, std::max(-ink.y, 0) * unit,
            std::max(ink.y + ink.height, 0) * unit};
}

Point TextOrigin(const TextRun& text, const TextSize& size) {
    return Turned(text, AnchorOffset(text, size));
}

Box TextBounds(const TextRun& text) {
    const TextSize size = MeasureText(text.text, text.height, text.weight, text.face);
    const Point start = AnchorOffset(text, size);
    const std::array<Point, 4> corners = {
        Turned(text, {start.x, start.y - size.below}),
        Turned(text, {start.x + size.width, start.y - size.below}),
        Turned(text, {start.x + size.width, start.y + size.above}),
        Turned(text, {start.x, start.y + size.above})};
    Box box{corners[0].x, corners[0].y, corners[0].x, corners[0].y};
    for (const Point& corner : corners) {
        box.left = std::min(box.left, corner.x);
        box.right = std::max(box.right, corner.x);
        box.bottom = std::min(box.bottom, corner.y);
        box.top = std::max(box.top, corner.y);
    }
    return box;
}

bool BoxesMeet(const Box& a, const Box& b, double gap) {
    return a.left < b.right + gap && b.left < a.right + gap && a.bottom < b.top + gap &&
           b.bottom < a.top + gap;
}

} // namespace Merivane::Drawing
