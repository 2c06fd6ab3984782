#include "Workbench/Project/PolygonRules.hpp"

#include <cmath>
#include <limits>
#include <numbers>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace Merivane::Workbench {
namespace {

using Host::Contour;
using Host::Polygon;

Contour Ring(std::vector<Host::Coordinate> vertices) {
    return {std::move(vertices), {}};
}

Contour Square(double x, double y, double side) {
    return Ring({{x, y}, {x + side, y}, {x + side, y + side}, {x, y + side}});
}

Contour Bent(Contour contour, std::size_t from, double angle) {
    contour.arcs.push_back({from, angle});
    return contour;
}

// A star whose vertices go round in order: never crosses itself.
Contour RandomStar(std::mt19937& random, std::size_t count) {
    std::uniform_real_distribution<double> radius(1.0, 10.0);
    Contour star;
    for (std::size_t i = 0; i < count; ++i) {
        const double angle =
            2.0 * std::numbers::pi * static_cast<double>(i) / static_cast<double>(count);
        const double r = radius(random);
        star.vertices.push_back({r * std::cos(angle), r * std::sin(angle)});
    }
    return star;
}

struct Case {
    std::string name;
    Polygon polygon;
    Host::ErrorCode code;
};

void Expect(const std::vector<Case>& cases) {
    for (const Case& c : cases) {
        EXPECT_EQ(CheckPolygon(c.polygon), c.code) << c.name;
    }
}

TEST(PolygonRules, RefusesWhatCannotBeBuilt) {
    const double none = std::numeric_limits<double>::quiet_NaN();
    const double turn = 2.0 * std::numbers::pi;
    Expect({
        {"nothing", {}, Host::BadPolygon},
        {"an empty contour", {Ring({})}, Host::BadPolygon},
        {"two vertices", {Ring({{0, 0}, {1, 0}})}, Host::BadPolygon},
        {"three vertices", {Ring({{0, 0}, {1, 0}, {0, 1}})}, Host::NoError},
        {"a hole of two", {Square(0, 0, 4), Ring({{1, 1}, {2, 2}})}, Host::BadPolygon},
        {"no number", {Ring({{0, 0}, {1, none}, {0, 1}})}, Host::BadPolygon},
        {"arc of the last vertex", {Bent(Square(0, 0, 1), 3, 1.0)}, Host::NoError},
        {"arc of no vertex", {Bent(Square(0, 0, 1), 4, 1.0)}, Host::BadPolygon},
        {"straight arc", {Bent(Square(0, 0, 1), 0, 0.0)}, Host::BadPolygon},
        {"nearly a whole turn", {Bent(Square(0, 0, 1), 0, turn - 1e-6)}, Host::NoError},
        {"a whole turn", {Bent(Square(0, 0, 1), 0, -turn)}, Host::BadPolygon},
        {"two arcs of one side", {Bent(Bent(Square(0, 0, 1), 0, 1.0), 0, 2.0)}, Host::BadPolygon},
    });
}

TEST(PolygonRules, RefusesContoursThatCrossThemselves) {
    Expect({
        {"a bow tie", {Ring({{0, 0}, {2, 2}, {2, 0}, {0, 2}})}, Host::IrregularPolygon},
        {"a crossing in a vertex",
         {Ring({{0, 0}, {1, 1}, {3, 3}, {3, 0}, {1, 1}, {0, 2}})},
         Host::IrregularPolygon},
        {"a vertex that passes through a side",
         {Ring({{0, 0}, {4, 0}, {4, 2}, {2, 2}, {2, 0}, {2, -1}, {0, -1}})},
         Host::IrregularPolygon},
        {"a spike", {Ring({{0, 0}, {2, 0}, {3, 0}, {2, 0}, {2, 2}})}, Host::IrregularPolygon},
        {"a spike that turns left",
         {Ring({{0, 0}, {3, 0}, {1, 0}, {1, 2}})},
         Host::IrregularPolygon},
        {"a spike that turns right",
         {Ring({{0, 0}, {3, 0}, {1, 0}, {1, -2}})},
         Host::IrregularPolygon},
        {"one vertex twice", {Ring({{0, 0}, {2, 0}, {2, 0}, {0, 2}})}, Host::IrregularPolygon},
        {"a closing vertex", {Ring({{0, 0}, {2, 0}, {0, 2}, {0, 0}})}, Host::IrregularPolygon},
        {"flat", {Ring({{0, 0}, {1, 0}, {2, 0}})}, Host::IrregularPolygon},
        {"a vertex on a straight side", {Ring({{0, 0}, {1, 0}, {2, 0}, {2, 2}})}, Host::NoError},
        {"clockwise", {Ring({{0, 0}, {0, 2}, {2, 2}, {2, 0}})}, Host::NoError},
        {"touching itself in a vertex",
         {Ring({{0, 0}, {1, 1}, {2, 0}, {2, 2}, {1, 1}, {0, 2}})},
         Host::NoError},
        {"touching a side with a vertex",
         {Ring({{0, 0}, {4, 0}, {4, 4}, {2, 0}, {0, 4}})},
         Host::NoError},
    });
}

TEST(PolygonRules, KnowsCrossingFromTouchingInAVertexHoweverItIsTurned) {
    const Contour crossing = Ring({{0, 0}, {1, 1}, {3, 3}, {3, 0}, {1, 1}, {0, 2}});
    const Contour touching = Ring({{0, 0}, {1, 1}, {3, 0}, {3, 3}, {1, 1}, {0, 2}});
    const Contour onASide = Ring({{0, 0}, {4, 0}, {4, 4}, {1, 0}, {0, 4}});
    const Contour throughASide = Ring({{0, 0}, {4, 0}, {4, 2}, {2, 2}, {2, 0}, {2, -1}, {0, -1}});
    for (int step = 0; step < 48; ++step) {
        const double angle = std::numbers::pi * step / 24.0;
        const auto turned = [angle](Contour contour) {
            for (Host::Coordinate& place : contour.vertices) {
                place = {place.x * std::cos(angle) - place.y * std::sin(angle),
                         place.x * std::sin(angle) + place.y * std::cos(angle)};
            }
            return Polygon{contour};
        };
        EXPECT_EQ(CheckPolygon(turned(crossing)), Host::IrregularPolygon) << step;
        EXPECT_EQ(CheckPolygon(turned(touching)), Host::NoError) << step;
        EXPECT_EQ(CheckPolygon(turned(onASide)), Host::NoError) << step;
        EXPECT_EQ(CheckPolygon(turned(throughASide)), Host::IrregularPolygon) << step;
    }
}

TEST(PolygonRules, WantsHolesInsideAndApart) {
    const Contour outline = Square(0, 0, 10);
    Expect({
        {"one", {outline, Square(1, 1, 2)}, Host::NoError},
        {"two", {outline, Square(1, 1, 2), Square(5, 5, 2)}, Host::NoError},
        {"outside", {outline, Square(20, 0, 2)}, Host::IrregularPolygon},
        {"around", {outline, Square(-1, -1, 12)}, Host::IrregularPolygon},
        {"across", {outline, Square(9, 9, 2)}, Host::IrregularPolygon},
        {"the outline itself", {outline, outline}, Host::IrregularPolygon},
        {"along a side", {outline, Square(0, 1, 2)}, Host::IrregularPolygon},
        {"on a whole side", {outline, Ring({{0, 0}, {10, 0}, {5, 5}})}, Host::IrregularPolygon},
        {"on a whole side backwards",
         {outline, Ring({{10, 0}, {0, 0}, {5, 5}})},
         Host::IrregularPolygon},
        {"touching from inside", {outline, Ring({{0, 5}, {2, 4}, {2, 6}})}, Host::NoError},
        {"touching from outside",
         {outline, Ring({{0, 5}, {-2, 4}, {-2, 6}})},
         Host::IrregularPolygon},
        {"one in another", {outline, Square(1, 1, 5), Square(2, 2, 2)}, Host::IrregularPolygon},
        {"two across", {outline, Square(1, 1, 3), Square(3, 3, 3)}, Host::IrregularPolygon},
        {"two touching", {outline, Square(1, 1, 2), Square(3, 3, 2)}, Host::NoError},
        {"two with a common side",
         {outline, Square(1, 1, 2), Square(3, 1, 2)},
         Host::IrregularPolygon},
    });
}

// The arc goes outside of the outline, its chord does not: chords count.
TEST(PolygonRules, TakesArcsByTheirChords) {
    EXPECT_EQ(CheckPolygon({Bent(Square(0, 0, 1), 0, 3.0), {}}), Host::BadPolygon);
    EXPECT_EQ(CheckPolygon({Bent(Square(0, 0, 1), 0, -3.0)}), Host::NoError);
}

TEST(PolygonRules, KnowsStarsFromStarsWithTwoVerticesExchanged) {
    std::mt19937 random(7);
    for (std::size_t count = 5; count < 200; count += 13) {
        Contour star = RandomStar(random, count);
        EXPECT_EQ(CheckPolygon({star}), Host::NoError) << count;
        std::swap(star.vertices[1], star.vertices[count / 2 + 1]);
        EXPECT_EQ(CheckPolygon({star}), Host::IrregularPolygon) << count;
    }
}

TEST(PolygonRules, LetsPolyLinesCrossThemselves) {
    const Polygon line = {Ring({{0, 0}, {1, 0}})};
    EXPECT_EQ(CheckPolyLine(line, false), Host::NoError);
    EXPECT_EQ(CheckPolyLine(line, true), Host::BadPolygon);
    EXPECT_EQ(CheckPolyLine({Ring({{0, 0}, {2, 2}, {2, 0}, {0, 2}})}, true), Host::NoError);
    EXPECT_EQ(CheckPolyLine({Ring({{0, 0}})}, false), Host::BadPolygon);
    EXPECT_EQ(CheckPolyLine({}, false), Host::BadPolygon);
    EXPECT_EQ(CheckPolyLine({Square(0, 0, 1), Square(2, 2, 1)}, true), Host::BadPolygon);
    const Polygon bent = {Bent(Ring({{0, 0}, {1, 0}, {1, 1}}), 2, 1.0)};
    EXPECT_EQ(CheckPolyLine(bent, true), Host::NoError);
    EXPECT_EQ(CheckPolyLine(bent, false), Host::BadPolygon); // no side behind the last vertex
}

TEST(PolygonRules, ComparesCountsOfContoursAndVertices) {
    const Polygon a = {Square(0, 0, 4), Square(1, 1, 1)};
    EXPECT_TRUE(HasSameCounts(a, {Square(0, 0, 9), Square(2, 2, 2)}));
    EXPECT_FALSE(HasSameCounts(a, {Square(0, 0, 9)}));
    EXPECT_FALSE(HasSameCounts(a, {Square(0, 0, 9), Ring({{1, 1}, {2, 1}, {1, 2}})}));
}

} // namespace
} // namespace Merivane::Workbench
