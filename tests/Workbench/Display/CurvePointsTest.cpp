#include <cmath>
#include <numbers>

#include <gtest/gtest.h>

#include "Workbench/Display/CurvePoints.hpp"

namespace Merivane::Workbench {
namespace {

constexpr double Pi = std::numbers::pi;

double LargestStepOff(const std::vector<Host::Coordinate>& points, double radius) {
    double worst = 0.0;
    for (std::size_t i = 0; i + 1 < points.size(); ++i) {
        const double x = (points[i].x + points[i + 1].x) / 2.0;
        const double y = (points[i].y + points[i + 1].y) / 2.0;
        worst = std::max(worst, std::abs(std::hypot(x, y) - radius));
    }
    return worst;
}

TEST(ContourPoints, LieOnTheArcAndTheirChordsWithinTheTolerance) {
    const Host::Contour half = {{{2, 0}, {-2, 0}}, {{0, Pi}}};
    const auto points = ContourPoints(half, false, 0.001);
    for (const Host::Coordinate& point : points) {
        EXPECT_NEAR(std::hypot(point.x, point.y), 2.0, 1e-12);
        EXPECT_GE(point.y, -1e-12); // positive: to the right of the chord, which runs to the left
    }
    EXPECT_LE(LargestStepOff(points, 2.0), 0.001);
    EXPECT_GT(LargestStepOff(points, 2.0), 0.0005); // no more points than it takes
}

TEST(ContourPoints, BendTheSideThatClosesOnlyOfAClosedContour) {
    const Host::Contour ring = {{{2, 0}, {0, 2}, {-2, 0}}, {{2, Pi}}};
    EXPECT_EQ(ContourPoints(ring, false, 0.1).size(), 3U);
    const auto closed = ContourPoints(ring, true, 0.1);
    ASSERT_GT(closed.size(), 4U);
    EXPECT_NEAR(closed[closed.size() / 2 + 1].y, -2.0, 0.6);
}

TEST(ContourPoints, TurnTheOtherWayForANegativeAngle) {
    const Host::Contour half = {{{2, 0}, {-2, 0}}, {{0, -Pi}}};
    for (const Host::Coordinate& point : ContourPoints(half, false, 0.01)) {
        EXPECT_LE(point.y, 1e-12);
    }
}

TEST(SplinePoints, GoThroughThePointsAndComeNearAQuarterCircle) {
    const double pull = 4.0 / 3.0 * std::tan(Pi / 8.0); // of the usual quarter circle
    const std::vector<Host::SplineDirection> directions = {{0.0, pull, Pi / 2.0}, {pull, 0.0, Pi}};
    const auto points = SplinePoints({{1, 0}, {0, 1}}, directions, false, 1e-4);
    EXPECT_EQ(points.front(), (Host::Coordinate{1, 0}));
    EXPECT_EQ(points.back(), (Host::Coordinate{0, 1}));
    for (const Host::Coordinate& point : points) {
        EXPECT_NEAR(std::hypot(point.x, point.y), 1.0, 3e-4);
    }
}

TEST(SplinePoints, OfAClosedOneEndWhereTheyBegan) {
    const std::vector<Host::SplineDirection> directions(3, {0.5, 0.5, 0.0});
    const auto points = SplinePoints({{0, 0}, {2, 0}, {1, 2}}, directions, true, 0.01);
    EXPECT_EQ(points.front(), points.back());
    EXPECT_GT(points.size(), 4U);
}

TEST(SplinePoints, AreThePointsAloneWhereDirectionsAreMissing) {
    EXPECT_EQ(SplinePoints({{0, 0}, {2, 0}}, {}, true, 0.01).size(), 2U);
}

} // namespace
} // namespace Merivane::Workbench
