#include "Drawing/DisplayList.hpp"

#include <algorithm>
#include <cmath>
#include <initializer_list>

namespace Merivane::Drawing {
namespace {

constexpr double LargestPage = 5000.0; // mm; a PDF page ends at 5080 mm

bool AllFinite(std::initializer_list<double> numbers) {
    return std::all_of(numbers.begin(), numbers.end(), [](double n) { return std::isfinite(n); });
}

bool IsFinite(const Point& point) {
    return AllFinite({point.x, point.y});
}

bool IsFinite(const Color& color) {
    return AllFinite({color.red, color.green, color.blue, color.alpha});
}

bool IsFinite(const std::vector<Point>& points) {
    return std::all_of(points.begin(), points.end(), [](const Point& p) { return IsFinite(p); });
}

// Cairo refuses dashes below 0 and dashes that are all 0.
bool IsDrawable(const Stroke& stroke) {
    double total = 0.0;
    for (double dash : stroke.dashes) {
        if (!(dash >= 0.0)) {
            return false;
        }
        total += dash;
    }
    return AllFinite({stroke.width, total}) && IsFinite(stroke.color) &&
           (stroke.dashes.empty() || total > 0.0);
}

bool IsDrawable(const Area& area) {
    return AllFinite({area.bleed}) && IsFinite(area.fill) &&
           std::all_of(area.rings.begin(), area.rings.end(),
                       [](const std::vector<Point>& ring) { return IsFinite(ring); });
}

bool IsDrawable(const Polyline& line) {
    return IsFinite(line.points) && IsDrawable(line.stroke);
}

bool IsDrawable(const Arc& arc) {
    return IsFinite(arc.center) && AllFinite({arc.radius, arc.start, arc.end}) &&
           IsDrawable(arc.stroke);
}

bool IsDrawable(const TextRun& text) {
    return IsFinite(text.position) && AllFinite({text.height, text.rotation, text.halo}) &&
           IsFinite(text.color);
}

} // namespace

bool CheckDisplayList(const DisplayList& list, std::string& error) {
    const auto isSide = [](double side) { return side > 0.0 && side <= LargestPage; };
    if (!isSide(list.width) || !isSide(list.height)) {
        error = "A folha do desenho precisa de largura e altura acima de 0 e de até 5000 mm.";
        return false;
    }
    for (const Layer& layer : list.layers) {
        for (const Element& element : layer.elements) {
            if (!std::visit([](const auto& e) { return IsDrawable(e); }, element)) {
                error = "A camada \"" + layer.name +
                        "\" do desenho tem uma medida que não é um número válido.";
                return false;
            }
        }
    }
    return true;
}

} // namespace Merivane::Drawing
