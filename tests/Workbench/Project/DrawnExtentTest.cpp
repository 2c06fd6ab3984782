#include "Workbench/Project/DrawnExtent.hpp"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <random>

#include <gtest/gtest.h>

namespace Merivane::Workbench {
namespace {

using Host::Coordinate;
using std::numbers::pi;

void ExpectExtent(const Extent& extent, double left, double bottom, double right, double top) {
    EXPECT_FALSE(extent.empty);
    EXPECT_NEAR(extent.lowest.x, left, 1e-12);
    EXPECT_NEAR(extent.lowest.y, bottom, 1e-12);
    EXPECT_NEAR(extent.highest.x, right, 1e-12);
    EXPECT_NEAR(extent.highest.y, top, 1e-12);
}

Extent ArcExtent(double begin, double end, bool whole = false) {
    Host::ArcData arc;
    arc.center = {1.0, 2.0};
    arc.radius = 2.0;
    arc.begin = begin;
    arc.end = end;
    arc.whole = whole;
    Extent extent;
    AddArc(extent, arc);
    return extent;
}

TEST(DrawnExtent, OfArcsHoldsTheQuarterPointsThatTheyPass) {
    const double half = std::sqrt(2.0); // radius 2 at 45 deg
    ExpectExtent(ArcExtent(0.0, pi / 2.0), 1.0, 2.0, 3.0, 4.0);
    ExpectExtent(ArcExtent(pi / 4.0, 3.0 * pi / 4.0), 1.0 - half, 2.0 + half, 1.0 + half, 4.0);
    ExpectExtent(ArcExtent(3.0 * pi / 4.0, pi / 4.0), -1.0, 0.0, 3.0, 2.0 + half);
    ExpectExtent(ArcExtent(-pi / 4.0, pi / 4.0), 1.0 + half, 2.0 - half, 3.0, 2.0 + half);
    ExpectExtent(ArcExtent(0.3, 0.3, true), -1.0, 0.0, 3.0, 4.0);
}

TEST(DrawnExtent, OfABentSideLiesToTheRightOfItsChordWhereTheAngleIsPositive) {
    Extent right;
    AddContour(right, {{{0.0, 0.0}, {2.0, 0.0}, {1.0, 5.0}}, {{0, pi}}}, true);
    ExpectExtent(right, 0.0, -1.0, 2.0, 5.0);
    Extent left;
    AddContour(left, {{{0.0, 0.0}, {2.0, 0.0}}, {{0, -pi}}}, false);
    ExpectExtent(left, 0.0, 0.0, 2.0, 1.0);
    Extent upright; // radius sqrt 2 about (-1, 1)
    AddContour(upright, {{{0.0, 0.0}, {0.0, 2.0}}, {{0, pi / 2.0}}}, false);
    ExpectExtent(upright, 0.0, 0.0, std::sqrt(2.0) - 1.0, 2.0);
    Extent large; // three quarters of a circle of radius sqrt 2 about (1, -1)
    AddContour(large, {{{0.0, 0.0}, {2.0, 0.0}}, {{0, 1.5 * pi}}}, false);
    ExpectExtent(large, 1.0 - std::sqrt(2.0), -1.0 - std::sqrt(2.0), 1.0 + std::sqrt(2.0), 0.0);
}

TEST(DrawnExtent, OfAnOpenContourLeavesOutTheClosingSide) {
    const Host::Contour contour = {{{0.0, 0.0}, {2.0, 0.0}, {2.0, 2.0}}, {{2, pi}}};
    Extent open;
    AddContour(open, contour, false);
    ExpectExtent(open, 0.0, 0.0, 2.0, 2.0);
    Extent closed;
    AddContour(closed, contour, true);
    EXPECT_LT(closed.lowest.x, -0.4);
}

TEST(DrawnExtent, OfASplineHoldsTheExtremesOfItsPieces) {
    Host::ElementMemo memo;
    memo.splinePoints = {{0.0, 0.0}, {3.0, 0.0}};
    memo.splineDirections = {{0.0, 1.0, pi / 2.0}, {1.0, 0.0, -pi / 2.0}};
    Extent extent;
    AddSpline(extent, memo, false);
    ExpectExtent(extent, 0.0, 0.0, 3.0, 0.75); // 3/4 of the control height
}

TEST(DrawnExtent, OfRandomSplinesHoldsEveryPointOfTheCurveAndLittleMore) {
    std::mt19937 random(3);
    std::uniform_real_distribution<double> number(-2.0, 2.0);
    for (int round = 0; round < 200; ++round) {
        Host::ElementMemo memo;
        for (int i = 0; i < 2; ++i) {
            memo.splinePoints.push_back({number(random), number(random)});
            memo.splineDirections.push_back(
                {std::abs(number(random)), std::abs(number(random)), number(random)});
        }
        Extent extent;
        AddSpline(extent, memo, false);
        const auto& d = memo.splineDirections;
        const Coordinate a = memo.splinePoints[0];
        const Coordinate b = memo.splinePoints[1];
        const Coordinate p = {a.x + d[0].lengthAfter * std::cos(d[0].angle),
                              a.y + d[0].lengthAfter * std::sin(d[0].angle)};
        const Coordinate q = {b.x - d[1].lengthBefore * std::cos(d[1].angle),
                              b.y - d[1].lengthBefore * std::sin(d[1].angle)};
        Extent walked;
        for (int i = 0; i <= 1000; ++i) {
            const double t = i / 1000.0;
            const double s = 1.0 - t;
            AddPlace(
                walked,
                {s * s * s * a.x + 3 * s * s * t * p.x + 3 * s * t * t * q.x + t * t * t * b.x,
                 s * s * s * a.y + 3 * s * s * t * p.y + 3 * s * t * t * q.y + t * t * t * b.y});
        }
        EXPECT_NEAR(extent.lowest.x, walked.lowest.x, 1e-4);
        EXPECT_NEAR(extent.lowest.y, walked.lowest.y, 1e-4);
        EXPECT_NEAR(extent.highest.x, walked.highest.x, 1e-4);
        EXPECT_NEAR(extent.highest.y, walked.highest.y, 1e-4);
    }
}

} // namespace
} // namespace Merivane::Workbench
