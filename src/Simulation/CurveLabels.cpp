#include "Simulation/CurveLabels.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace Merivane::Simulation {

namespace {

constexpr std::size_t FewestPoints = 6;
constexpr double LeastDistance = 0.35; // [m]
constexpr double NoLabelYet = 1e9;     // [m]
constexpr double EquallyHigh = 1e-9;   // [m]

/// Distance to the nearest label; any value up to `enough` when a label is that near, as the point
/// is then no better than one already found.
double DistanceToNearest(const std::vector<Point2D>& placed, Point2D point, double enough) {
    double nearest = NoLabelYet;
    for (auto label = placed.begin(); label != placed.end() && nearest > enough; ++label) {
        nearest = std::min(nearest, std::hypot(point.x - label->x, point.y - label->y));
    }
    return nearest;
}

std::optional<Point2D> ChoosePoint(const IsoCurve& curve, const std::vector<Point2D>& placed,
                                   double leastDistance, const LabelFilter& isWanted) {
    Point2D best;
    double farthest = -1.0;
    for (const Point2D& point : curve.points) {
        const double distance = DistanceToNearest(placed, point, farthest);
        if (distance > farthest && isWanted(curve, point)) {
            farthest = distance;
            best = point;
        }
    }
    return farthest < leastDistance ? std::nullopt : std::optional<Point2D>(best);
}

std::optional<Point2D> ChooseByWishes(const IsoCurve& curve, const std::vector<Point2D>& placed,
                                      double leastDistance,
                                      const std::vector<LabelFilter>& wishes) {
    std::optional<Point2D> place;
    if (curve.points.size() < FewestPoints) {
        return place;
    }
    for (auto wish = wishes.begin(); wish != wishes.end() && !place; ++wish) {
        place = ChoosePoint(curve, placed, leastDistance, *wish);
    }
    return place;
}

} // namespace

CurveLabels PlaceCurveLabels(const std::vector<IsoCurve>& curves, double labelWidth,
                             const std::vector<LabelFilter>& wishes) {
    const std::vector<LabelFilter> anywhere = {[](const IsoCurve&, Point2D) { return true; }};
    const double leastDistance = std::max(LeastDistance, labelWidth);
    CurveLabels labels;
    std::vector<Point2D> placed;
    for (const IsoCurve& curve : curves) {
        const std::optional<Point2D> position =
            ChooseByWishes(curve, placed, leastDistance, wishes.empty() ? anywhere : wishes);
        if (position) {
            placed.push_back(*position);
        } else {
            ++labels.unlabelled;
        }
        labels.positions.push_back(position);
    }
    return labels;
}

std::optional<Point2D> TopmostPoint(const std::vector<IsoCurve>& curves) {
    std::optional<Point2D> top;
    for (const IsoCurve& curve : curves) {
        for (const Point2D& point : curve.points) {
            const bool level = top && std::abs(point.y - top->y) <= EquallyHigh;
            if (!top || (level ? point.x < top->x : point.y > top->y)) {
                top = point;
            }
        }
    }
    return top;
}

std::string UnlabelledCurvesText(std::uint64_t count) {
    return std::to_string(count) + " curva(s) sem rotulo (pequenas demais ou sem espaco livre)";
}

} // namespace Merivane::Simulation
