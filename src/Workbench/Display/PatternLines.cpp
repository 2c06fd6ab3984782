#include "Workbench/Display/PatternLines.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace Merivane::Workbench {

namespace {

using Drawing::Point;

constexpr double MostLines = 20000.0;
constexpr double Touch = 1e-6; // where a line meets a corner [mm]

Point Turn(const Point& point, double cosine, double sine) {
    return {point.x * cosine - point.y * sine, point.x * sine + point.y * cosine};
}

// Where the sides of the rings cross the height y, from left to right.
std::vector<double> Crossings(const std::vector<std::vector<Point>>& rings, double y) {
    std::vector<double> places;
    for (const std::vector<Point>& ring : rings) {
        for (std::size_t i = 0; i < ring.size(); ++i) {
            const Point& a = ring[i];
            const Point& b = ring[(i + 1) % ring.size()];
            if ((a.y > y) != (b.y > y)) {
                places.push_back(a.x + (y - a.y) * (b.x - a.x) / (b.y - a.y));
            }
        }
    }
    std::sort(places.begin(), places.end());
    return places;
}

} // namespace

std::vector<std::pair<Point, Point>> PatternLines(const std::vector<std::vector<Point>>& rings,
                                                  double angle, double distance) {
    const double cosine = std::cos(angle);
    const double sine = std::sin(angle);
    std::vector<std::vector<Point>> level = rings; // turned so that the lines are level
    double low = HUGE_VAL;
    double high = -HUGE_VAL;
    for (std::vector<Point>& ring : level) {
        for (Point& point : ring) {
            point = Turn(point, cosine, -sine);
            low = std::min(low, point.y);
            high = std::max(high, point.y);
        }
    }
    std::vector<std::pair<Point, Point>> lines;
    if (!((high - low) / distance <= MostLines)) { // also where there is no point
        return lines;
    }
    for (double row = std::ceil(low / distance); row * distance <= high; row += 1.0) {
        const std::vector<double> places = Crossings(level, row * distance);
        for (std::size_t i = 0; i + 1 < places.size(); i += 2) {
            if (places[i + 1] - places[i] > Touch) {
                lines.emplace_back(Turn({places[i], row * distance}, cosine, sine),
                                   Turn({places[i + 1], row * distance}, cosine, sine));
            }
        }
    }
    return lines;
}

} // namespace Merivane::Workbench
