#include "Workbench/Interface/PixelCanvas.hpp"

#include <cmath>
#include <numbers>
#include <string>

#include "Workbench/Interface/IconImage.hpp"
#include "Workbench/Interface/OwnResources.hpp"

namespace Merivane::Workbench {

namespace {

using Drawing::Color;
using Drawing::Point;

constexpr double MillimetresPerPixel = 25.4 / 96.0;
constexpr int CornerSteps = 6;
constexpr int CircleSteps = 48;

constexpr Color Rgb(int value) {
    return {(value >> 16 & 255) / 255.0, (value >> 8 & 255) / 255.0, (value & 255) / 255.0, 1.0};
}

Point OnPaper(const PixelCanvas& canvas, Point pixel) {
    return {(canvas.origin.x + pixel.x) * MillimetresPerPixel,
            (canvas.height - canvas.origin.y - pixel.y) * MillimetresPerPixel};
}

void Add(PixelCanvas& canvas, Drawing::Element element) {
    canvas.list.layers.front().elements.push_back(std::move(element));
}

/// The outline of a box, `inset` inside its edge, so that a line of one pixel lies on pixels.
std::vector<Point> Outline(const PixelBox& box, double radius, double inset) {
    const double left = box.left + inset;
    const double top = box.top + inset;
    const double right = box.left + box.width - inset;
    const double bottom = box.top + box.height - inset;
    if (radius <= 0.0) {
        return {{left, top}, {right, top}, {right, bottom}, {left, bottom}};
    }
    const Point centers[] = {{right - radius, top + radius},
                             {right - radius, bottom - radius},
                             {left + radius, bottom - radius},
                             {left + radius, top + radius}};
    std::vector<Point> points;
    for (int corner = 0; corner < 4; ++corner) {
        for (int step = 0; step <= CornerSteps; ++step) {
            const double angle =
                std::numbers::pi / 2.0 * (corner - 1.0 + static_cast<double>(step) / CornerSteps);
            points.push_back({centers[corner].x + radius * std::cos(angle),
                              centers[corner].y + radius * std::sin(angle)});
        }
    }
    return points;
}

void AddStroke(PixelCanvas& canvas, const std::vector<Point>& points, bool closed,
               const Color& color, double width) {
    Drawing::Polyline line;
    for (const Point& point : points) {
        line.points.push_back(OnPaper(canvas, point));
    }
    line.closed = closed;
    line.stroke = {width * MillimetresPerPixel, color, {}};
    Add(canvas, std::move(line));
}

Color Paled(Color color, const PixelCanvas& canvas, bool greyed) {
    if (!greyed) {
        return color;
    }
    const Color& body = canvas.theme->body;
    return {color.red * 0.35 + body.red * 0.65, color.green * 0.35 + body.green * 0.65,
            color.blue * 0.35 + body.blue * 0.65, color.alpha};
}

/// The host's own signs: information, warning, error.
void DrawSign(PixelCanvas& canvas, std::int16_t icon, const PixelBox& box) {
    const Point center{box.left + box.width / 2.0, box.top + box.height / 2.0};
    const double radius = std::min(box.width, box.height) / 2.0;
    const FontMeasures font{radius * 0.95, 0.0, true};
    if (icon == -2) {
        FillPolygon(canvas,
                    {{center.x, center.y - radius},
                     {center.x + radius, center.y + radius * 0.8},
                     {center.x - radius, center.y + radius * 0.8}},
                    Rgb(0xF2B200));
        DrawLine(canvas, "!", {center.x, center.y + radius * 0.25}, font, Rgb(0x202020),
                 Drawing::HorizontalAnchor::Center);
        return;
    }
    FillCircle(canvas, center, radius, icon == -3 ? Rgb(0xC42B1C) : Rgb(0x2176C7));
    DrawLine(canvas, icon == -3 ? "×" : "i", center, font, Drawing::White,
             Drawing::HorizontalAnchor::Center);
}

} // namespace

const Theme& LightTheme() {
    static const Theme Colors = {.frame = Rgb(0x9AA0A6),
                                 .titleBar = Rgb(0xFFFFFF),
                                 .title = Rgb(0x1A1A1A),
                                 .body = Rgb(0xF3F3F3),
                                 .text = Rgb(0x1A1A1A),
                                 .greyed = Rgb(0xA0A0A0),
                                 .field = Rgb(0xFFFFFF),
                                 .fieldEdge = Rgb(0x8A8A8A),
                                 .button = Rgb(0xFDFDFD),
                                 .buttonEdge = Rgb(0xB4B4B4),
                                 .groupEdge = Rgb(0xCFCFCF),
                                 .header = Rgb(0xEAEAEA),
                                 .selection = Rgb(0xCCE4F7),
                                 .accent = Rgb(0x0067C0),
                                 .scrollBar = Rgb(0xC4C4C4)};
    return Colors;
}

const Theme& DarkTheme() {
    static const Theme Colors = {.frame = Rgb(0x15181B),
                                 .titleBar = Rgb(0x22262B),
                                 .title = Rgb(0xE6E6E6),
                                 .body = Rgb(0x2B3036),
                                 .text = Rgb(0xE6E6E6),
                                 .greyed = Rgb(0x767C82),
                                 .field = Rgb(0x1E2226),
                                 .fieldEdge = Rgb(0x6A7178),
                                 .button = Rgb(0x3A4047),
                                 .buttonEdge = Rgb(0x596069),
                                 .groupEdge = Rgb(0x4A5057),
                                 .header = Rgb(0x363C43),
                                 .selection = Rgb(0x1F4E79),
                                 .accent = Rgb(0x69B4FF),
                                 .scrollBar = Rgb(0x596069)};
    return Colors;
}

PixelCanvas MakeCanvas(double width, double height, const Theme& theme) {
    PixelCanvas canvas;
    canvas.list.width = width * MillimetresPerPixel;
    canvas.list.height = height * MillimetresPerPixel;
    canvas.list.layers.push_back({"diálogo", {}});
    canvas.theme = &theme;
    canvas.height = height;
    return canvas;
}

void FillPolygon(PixelCanvas& canvas, const std::vector<Point>& points, const Color& color) {
    Drawing::Area area;
    area.rings.emplace_back();
    for (const Point& point : points) {
        area.rings.front().push_back(OnPaper(canvas, point));
    }
    area.fill = color;
    Add(canvas, std::move(area));
}

void FillBox(PixelCanvas& canvas, const PixelBox& box, const Color& color, double radius) {
    FillPolygon(canvas, Outline(box, radius, 0.0), color);
}

void StrokeBox(PixelCanvas& canvas, const PixelBox& box, const Color& color, double radius,
               double width) {
    AddStroke(canvas, Outline(box, radius, 0.5), true, color, width);
}

void StrokeLine(PixelCanvas& canvas, const std::vector<Point>& points, const Color& color,
                double width) {
    AddStroke(canvas, points, false, color, width);
}

void StrokeCircle(PixelCanvas& canvas, Point center, double radius, const Color& color,
                  double width) {
    Drawing::Arc arc;
    arc.center = OnPaper(canvas, center);
    arc.radius = radius * MillimetresPerPixel;
    arc.stroke = {width * MillimetresPerPixel, color, {}};
    Add(canvas, arc);
}

void FillCircle(PixelCanvas& canvas, Point center, double radius, const Color& color) {
    std::vector<Point> points;
    for (int step = 0; step < CircleSteps; ++step) {
        const double angle = 2.0 * std::numbers::pi * step / CircleSteps;
        points.push_back(
            {center.x + radius * std::cos(angle), center.y + radius * std::sin(angle)});
    }
    FillPolygon(canvas, points, color);
}

void DrawLine(PixelCanvas& canvas, std::string_view text, Point position, const FontMeasures& font,
              const Color& color, Drawing::HorizontalAnchor anchor) {
    if (text.empty()) {
        return;
    }
    Drawing::TextRun run;
    run.text = text;
    run.position = OnPaper(canvas, position);
    run.height = font.capital * MillimetresPerPixel;
    run.weight = font.bold ? Drawing::TextWeight::Bold : Drawing::TextWeight::Normal;
    run.horizontal = anchor;
    run.vertical = Drawing::VerticalAnchor::Middle;
    run.color = color;
    Add(canvas, std::move(run));
}

void DrawIcon(PixelCanvas& canvas, std::int16_t icon, const PixelBox& box, bool greyed) {
    if (icon < 0) {
        DrawSign(canvas, icon, box);
        return;
    }
    const auto& icons = OwnResources().icons;
    const auto name = icons.find(icon);
    IconImage image;
    std::string error;
    if (name == icons.end() || !ParseIconImage(OwnIconImage(name->second), image, error)) {
        return;
    }
    const Point corner{box.left + (box.width - image.width) / 2.0,
                       box.top + (box.height - image.height) / 2.0};
    for (const IconShape& shape : image.shapes) {
        std::vector<Point> points;
        for (const Point& point : shape.points) {
            points.push_back({corner.x + point.x, corner.y + point.y});
        }
        if (shape.fill && shape.radius > 0.0) {
            FillCircle(canvas, points.front(), shape.radius, Paled(*shape.fill, canvas, greyed));
        } else if (shape.fill) {
            FillPolygon(canvas, points, Paled(*shape.fill, canvas, greyed));
        }
        if (shape.stroke && shape.radius > 0.0) {
            StrokeCircle(canvas, points.front(), shape.radius, Paled(*shape.stroke, canvas, greyed),
                         shape.strokeWidth);
        } else if (shape.stroke) {
            AddStroke(canvas, points, shape.closed, Paled(*shape.stroke, canvas, greyed),
                      shape.strokeWidth);
        }
    }
}

} // namespace Merivane::Workbench
