#include "Workbench/Interface/UserPicturePainting.hpp"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <string>
#include <variant>

#include "Workbench/Interface/BoxClipping.hpp"

namespace Merivane::Workbench {

namespace {

using Drawing::Point;

constexpr int CircleSteps = 72;

Drawing::Color ColorOf(const Host::Colour& colour) {
    return {colour.red, colour.green, colour.blue, 1.0};
}

bool IsFinite(const Point& point) {
    return std::isfinite(point.x) && std::isfinite(point.y);
}

/// The shapes of one item on their way to the canvas.
struct Painter {
    PixelCanvas& canvas;
    const PixelBox& place;

    ClipBox Box() const {
        return {place.left + 0.0, place.top + 0.0, place.left + place.width + 0.0,
                place.top + place.height + 0.0};
    }

    Point OnCanvas(const Host::ItemPoint& point) const {
        return {place.left + point.x, place.top + point.y};
    }

    std::vector<Point> OnCanvas(const std::vector<Host::ItemPoint>& points) const {
        std::vector<Point> moved;
        moved.reserve(points.size());
        for (const Host::ItemPoint& point : points) {
            moved.push_back(OnCanvas(point));
        }
        return moved;
    }

    void Stroke(const std::vector<Point>& points, const Host::Colour& colour, double width) const {
        if (!std::all_of(points.begin(), points.end(), IsFinite) || !std::isfinite(width)) {
            return;
        }
        for (const std::vector<Point>& piece : ClipLine(points, Box())) {
            StrokeLine(canvas, piece, ColorOf(colour), width);
        }
    }

    void operator()(const Host::PictureLine& line) const {
        Stroke(OnCanvas(line.points), line.colour, line.width);
    }

    void operator()(const Host::PicturePolygon& polygon) const {
        const std::vector<Point> points = OnCanvas(polygon.points);
        if (!std::all_of(points.begin(), points.end(), IsFinite)) {
            return;
        }
        const std::vector<Point> inside = ClipPolygon(points, Box());
        if (inside.size() >= 3) {
            FillPolygon(canvas, inside, ColorOf(polygon.colour));
        }
    }

    void operator()(const Host::PictureCircle& circle) const {
        std::vector<Point> points;
        const Point center = OnCanvas(circle.center);
        for (int step = 0; step <= CircleSteps; ++step) {
            const double angle = 2.0 * std::numbers::pi * step / CircleSteps;
            points.push_back({center.x + circle.radius * std::cos(angle),
                              center.y + circle.radius * std::sin(angle)});
        }
        Stroke(points, circle.colour, circle.width);
    }

    /// Letters are not cut: a text that does not stand in the item whole is shortened or left out.
    void operator()(const Host::PictureText& text) const {
        ItemResource small;
        small.fontSize = FontSize::Small;
        const FontMeasures font = MeasuresOf(small);
        const Point position = OnCanvas(text.position);
        const ClipBox box = Box();
        if (!IsFinite(position) || position.x < box.left ||
            position.y - font.capital / 2.0 < box.top ||
            position.y + font.capital / 2.0 > box.bottom) {
            return;
        }
        const std::string shown = ShortenText(text.text, box.right - position.x, font);
        if (TextWidth(shown, font) <= box.right - position.x) {
            DrawLine(canvas, shown, position, font, ColorOf(text.colour));
        }
    }
};

} // namespace

void DrawUserPicture(PixelCanvas& canvas, const Host::UserPicture& picture, const PixelBox& place) {
    FillBox(canvas, place, ColorOf(picture.ground));
    const Painter painter{canvas, place};
    for (const Host::PictureShape& shape : picture.shapes) {
        std::visit(painter, shape);
    }
    StrokeBox(canvas, place, canvas.theme->groupEdge);
}

} // namespace Merivane::Workbench
