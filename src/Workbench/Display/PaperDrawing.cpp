#include "Workbench/Display/PaperDrawing.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <variant>

#include "Drawing/TextSize.hpp"
#include "Text/Number.hpp"
#include "Workbench/Project/DrawnExtent.hpp"

namespace Merivane::Workbench {

namespace {

using Drawing::Element;
using Drawing::Point;

constexpr double Margin = 15.0;     // around the contents [mm]
constexpr double TitleHeight = 2.5; // [mm]
constexpr double TitleBase = 6.0;   // above the lower edge of the sheet [mm]
constexpr std::array<Point, 5> Sheets = {
    {{297.0, 210.0}, {420.0, 297.0}, {594.0, 420.0}, {841.0, 594.0}, {1189.0, 841.0}}}; // A4 to A0

// Elements one after another, the lowest first.
template <typename Action> void ForEachLayer(PaperDrawing& drawing, const Action& action) {
    action("Hachuras", drawing.fills);
    action("Vista", drawing.below);
    action("Corte", drawing.cut);
    action("Projeção", drawing.above);
    action("Linhas", drawing.curves);
    action("Textos", drawing.texts);
}

struct Measure {
    Extent& extent;

    void Add(const std::vector<Point>& points) const {
        for (const Point& point : points) {
            AddPlace(extent, {point.x, point.y});
        }
    }
    void operator()(const Drawing::Area& area) const {
        for (const std::vector<Point>& ring : area.rings) {
            Add(ring);
        }
    }
    void operator()(const Drawing::Polyline& line) const { Add(line.points); }
    void operator()(const Drawing::Arc& arc) const {
        Host::ArcData data;
        data.center = {arc.center.x, arc.center.y};
        data.radius = arc.radius;
        data.begin = arc.start;
        data.end = arc.end;
        AddArc(extent, data);
    }
    void operator()(const Drawing::TextRun& text) const {
        const Drawing::Box box = Drawing::TextBounds(text);
        Add({{box.left, box.bottom}, {box.right, box.top}});
    }
};

struct Move {
    Point by;

    void Shift(Point& point) const { point = {point.x + by.x, point.y + by.y}; }
    void operator()(Drawing::Area& area) const {
        for (std::vector<Point>& ring : area.rings) {
            std::for_each(ring.begin(), ring.end(), [this](Point& point) { Shift(point); });
        }
    }
    void operator()(Drawing::Polyline& line) const {
        for (Point& point : line.points) {
            Shift(point);
        }
    }
    void operator()(Drawing::Arc& arc) const { Shift(arc.center); }
    void operator()(Drawing::TextRun& text) const { Shift(text.position); }
};

// Width and height of the sheet for contents of this size, with their margins.
Point ChooseSheet(double width, double height) {
    for (const Point& sheet : Sheets) {
        const Point upright = {sheet.y, sheet.x};
        const Point& first = width >= height ? sheet : upright;
        const Point& second = width >= height ? upright : sheet;
        for (const Point& candidate : {first, second}) {
            if (width <= candidate.x && height <= candidate.y) {
                return candidate;
            }
        }
    }
    return {width, height};
}

Drawing::TextRun SheetTitle(const std::string& title, double scale) {
    Drawing::TextRun run;
    run.text = title + (title.empty() ? "1:" : " – 1:") + Text::FormatShortest(scale);
    run.position = {Margin, TitleBase};
    run.height = TitleHeight;
    return run;
}

} // namespace

double MillimetresPerMetre(const PaperDrawing& drawing) {
    return 1000.0 / drawing.scale;
}

Point PaperPoint(const PaperDrawing& drawing, const Host::Coordinate& place) {
    return {place.x * MillimetresPerMetre(drawing), place.y * MillimetresPerMetre(drawing)};
}

std::vector<Point> PaperPoints(const PaperDrawing& drawing,
                               const std::vector<Host::Coordinate>& places) {
    std::vector<Point> points;
    points.reserve(places.size());
    for (const Host::Coordinate& place : places) {
        points.push_back(PaperPoint(drawing, place));
    }
    return points;
}

Drawing::DisplayList FinishSheet(PaperDrawing drawing, const std::string& title) {
    Extent extent;
    ForEachLayer(drawing, [&](const char* /*name*/, const std::vector<Element>& elements) {
        for (const Element& element : elements) {
            std::visit(Measure{extent}, element);
        }
    });
    const double width = extent.highest.x - extent.lowest.x;
    const double height = extent.highest.y - extent.lowest.y;
    const Point sheet = ChooseSheet(width + 2.0 * Margin, height + 2.0 * Margin);

    Drawing::DisplayList list;
    list.title = title;
    list.width = sheet.x;
    list.height = sheet.y;
    const Move move{
        {(sheet.x - width) / 2.0 - extent.lowest.x, (sheet.y - height) / 2.0 - extent.lowest.y}};
    ForEachLayer(drawing, [&](const char* name, std::vector<Element>& elements) {
        for (Element& element : elements) {
            std::visit(move, element);
        }
        if (!elements.empty()) {
            list.layers.push_back({name, std::move(elements)});
        }
    });
    list.layers.push_back({"Folha", {SheetTitle(title, drawing.scale)}});
    return list;
}

} // namespace Merivane::Workbench
