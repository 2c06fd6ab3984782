#include "Photometry/PlanSymbol.hpp"

#include <cmath>
#include <limits>

#include <gtest/gtest.h>

namespace Merivane::Photometry {
namespace {

using Kind = SymbolStrokeKind;

SymbolStroke Arc(double radius, double begin, double end) {
    return {.kind = Kind::Arc,
            .points = {{0.1, 0.2}},
            .radius = radius,
            .beginAngle = begin,
            .endAngle = end,
            .filled = true};
}

TEST(OutlinePoints, HaveFortyEightChordsOnACircle) {
    const std::vector<SymbolPoint> points =
        OutlinePoints({.kind = Kind::Circle, .points = {{0, 0}}, .radius = 1});
    ASSERT_EQ(points.size(), 48U);
    for (std::size_t i = 0; i < points.size(); ++i) {
        const double angle = 2.0 * M_PI * static_cast<double>(i) / 48.0;
        EXPECT_NEAR(points[i].x, std::cos(angle), 1e-15);
        EXPECT_NEAR(points[i].y, std::sin(angle), 1e-15);
    }
}

TEST(OutlinePoints, DivideAnArcAsFinelyAsACircle) {
    struct Case {
        double begin;
        double end;
        std::size_t points;
    };
    const Case cases[] = {
        {0, 180, 25}, {0, 7.5, 3},  {0, 15, 3},   {0, 15.1, 4},   {90, 180, 13},
        {350, 10, 4}, {0, 360, 48}, {30, 30, 48}, {0, 359, 49},   {180, 0, 25},
        {0, -90, 37}, {0, 540, 25}, {0, 22.5, 4}, {1.1, 16.1, 3},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(std::to_string(c.begin) + " to " + std::to_string(c.end));
        EXPECT_EQ(OutlinePoints(Arc(0.5, c.begin, c.end)).size(), c.points);
    }
}

TEST(OutlinePoints, LieOnTheArcFromItsBeginToItsEnd) {
    const std::vector<SymbolPoint> points = OutlinePoints(Arc(0.5, 90, 200));
    const auto angleOf = [](const SymbolPoint& p) {
        return std::fmod(std::atan2(p.y - 0.2, p.x - 0.1) * 180 / M_PI + 360, 360);
    };
    EXPECT_NEAR(angleOf(points.front()), 90, 1e-9);
    EXPECT_NEAR(angleOf(points.back()), 200, 1e-9);
    for (std::size_t i = 0; i < points.size(); ++i) {
        EXPECT_NEAR(std::hypot(points[i].x - 0.1, points[i].y - 0.2), 0.5, 1e-15);
        EXPECT_TRUE(i == 0 || angleOf(points[i]) > angleOf(points[i - 1]));
    }
}

TEST(OutlinePoints, AreThePolygonsOwnAndNoneOfALine) {
    const std::vector<SymbolPoint> corners = {{0, 0}, {1, 0}, {0, 1}};
    EXPECT_EQ(OutlinePoints({.kind = Kind::Polygon, .points = corners}), corners);
    EXPECT_TRUE(OutlinePoints({.kind = Kind::Line, .points = {{0, 0}, {1, 0}}}).empty());
}

TEST(IsDrawable, AsksForThePointsOfTheKindAndARadius) {
    EXPECT_FALSE(IsDrawable({}));
    EXPECT_TRUE(IsDrawable({.kind = Kind::Line, .points = {{0, 0}, {1, 0}}}));
    EXPECT_FALSE(IsDrawable({.kind = Kind::Line, .points = {{0, 0}, {1, 0}, {1, 1}}}));
    EXPECT_TRUE(IsDrawable({.kind = Kind::Circle, .points = {{0, 0}}, .radius = 0.1}));
    EXPECT_FALSE(IsDrawable({.kind = Kind::Circle, .points = {{0, 0}}}));
    EXPECT_FALSE(IsDrawable({.kind = Kind::Circle, .points = {}, .radius = 1}));
    EXPECT_FALSE(IsDrawable(Arc(-1, 0, 90)));
    EXPECT_FALSE(IsDrawable({.kind = Kind::Polygon, .points = {{0, 0}, {1, 0}}}));
    EXPECT_TRUE(IsDrawable({.kind = Kind::Polygon, .points = {{0, 0}, {1, 0}, {0, 1}}}));
}

TEST(IsDrawable, AsksForFiniteNumbers) {
    constexpr double infinity = std::numeric_limits<double>::infinity();
    EXPECT_TRUE(IsDrawable(Arc(1, 0, 90)));
    EXPECT_FALSE(IsDrawable(Arc(infinity, 0, 90)));
    EXPECT_FALSE(IsDrawable(Arc(1, infinity, 90)));
    EXPECT_FALSE(IsDrawable(Arc(1, 0, std::nan(""))));
    EXPECT_FALSE(IsDrawable({.kind = Kind::Line, .points = {{0, 0}, {1, infinity}}}));
}

} // namespace
} // namespace Merivane::Photometry
