#include "Workbench/Bodies/EarClipping.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>

// Ear clipping (Meisters 1975): a corner whose triangle holds no other vertex is cut off, until
// three remain. Of the ears the one with the largest smallest angle goes first, against slivers.
namespace Merivane::Workbench {

namespace {

using Host::Coordinate;

double Cross(Coordinate a, Coordinate b, Coordinate c) {
    return (b.x - a.x) * (c.y - a.y) - (b.y - a.y) * (c.x - a.x);
}

double SquaredLength(Coordinate a, Coordinate b) {
    return (b.x - a.x) * (b.x - a.x) + (b.y - a.y) * (b.y - a.y);
}

/// On the border counts as inside: a vertex on a side of an ear would be left with nothing but
/// triangles without area.
bool Holds(Coordinate a, Coordinate b, Coordinate c, Coordinate point) {
    return Cross(a, b, point) >= 0.0 && Cross(b, c, point) >= 0.0 && Cross(c, a, point) >= 0.0;
}

class EarClipper {
public:
    explicit EarClipper(const PlanRing& clipped) : ring(clipped), rest(clipped.size()) {
        for (std::size_t i = 0; i < rest.size(); ++i) {
            rest[i] = static_cast<std::int32_t>(i);
        }
        RateAll();
    }

    std::vector<std::array<std::int32_t, 3>> Clip() {
        std::vector<std::array<std::int32_t, 3>> triangles;
        while (rest.size() >= 3) {
            auto best = std::max_element(qualities.begin(), qualities.end());
            if (*best <= 0.0) {
                // Vertices that stood in the way may be gone since a corner was rated.
                RateAll();
                best = std::max_element(qualities.begin(), qualities.end());
            }
            const auto at = static_cast<std::size_t>(best - qualities.begin());
            triangles.push_back({rest[Before(at)], rest[at], rest[After(at)]});
            rest.erase(rest.begin() + static_cast<std::ptrdiff_t>(at));
            qualities.erase(qualities.begin() + static_cast<std::ptrdiff_t>(at));
            if (rest.size() >= 3) {
                const std::size_t after = at % rest.size();
                qualities[after] = Quality(after);
                qualities[Before(after)] = Quality(Before(after));
            }
        }
        return triangles;
    }

private:
    void RateAll() {
        qualities.clear();
        for (std::size_t i = 0; i < rest.size(); ++i) {
            qualities.push_back(Quality(i));
        }
    }
    std::size_t Before(std::size_t at) const { return (at + rest.size() - 1) % rest.size(); }
    std::size_t After(std::size_t at) const { return (at + 1) % rest.size(); }
    Coordinate PlaceAt(std::size_t at) const { return ring[static_cast<std::size_t>(rest[at])]; }

    /// Above 0 for an ear: twice its area over the square of its longest side. 0 for a corner
    /// without an area, below it for one that is none.
    double Quality(std::size_t at) const {
        const Coordinate a = PlaceAt(Before(at));
        const Coordinate b = PlaceAt(at);
        const Coordinate c = PlaceAt(After(at));
        const double doubled = Cross(a, b, c);
        const double longest =
            std::max({SquaredLength(a, b), SquaredLength(b, c), SquaredLength(c, a)});
        if (!(longest > 0.0) || std::abs(doubled) <= 1e-12 * longest) {
            return longest > 0.0 && rest.size() > 3 ? -1.0 : 0.0;
        }
        if (doubled < 0.0) {
            return -2.0 + doubled / longest;
        }
        for (std::size_t other = 0; other < rest.size(); ++other) {
            const Coordinate point = PlaceAt(other);
            if (!(point == a) && !(point == b) && !(point == c) && Holds(a, b, c, point)) {
                return -1.5;
            }
        }
        return doubled / longest;
    }

    const PlanRing& ring;
    std::vector<std::int32_t> rest;
    std::vector<double> qualities;
};

} // namespace

std::vector<std::array<std::int32_t, 3>> ClipEars(const PlanRing& ring) {
    return EarClipper(ring).Clip();
}

} // namespace Merivane::Workbench
