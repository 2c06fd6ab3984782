#include <cmath>
#include <numbers>
#include <random>
#include <vector>

#include <gtest/gtest.h>

#include "BodyChecks.hpp"
#include "Workbench/Bodies/EarClipping.hpp"
#include "Workbench/Bodies/SolidBodies.hpp"

namespace Merivane::Workbench {
namespace {

using namespace Merivane::Tests;

constexpr double Pi = std::numbers::pi;

Host::Contour Rectangle(double x, double y, double width, double depth) {
    return {{{x, y}, {x + width, y}, {x + width, y + depth}, {x, y + depth}}, {}};
}

Host::Contour Turned(Host::Contour contour) {
    std::reverse(contour.vertices.begin(), contour.vertices.end());
    return contour;
}

TEST(SlabBody, IsThePolygonLessItsHoles) {
    const Host::Contour outline = Rectangle(1.0, 1.0, 6.0, 4.0);
    const Host::Contour hole = Rectangle(2.0, 2.0, 1.0, 1.5);
    const Host::Contour other = Rectangle(5.0, 2.0, 1.0, 1.0);
    for (const Host::Polygon& polygon : {Host::Polygon{outline, hole, other},
                                         Host::Polygon{Turned(outline), Turned(hole), other}}) {
        const Host::Body body = Unplaced(BuildSlabBody({polygon, 2.5, 0.3, {1}, {2}, {3}}));
        const double area = 24.0 - 1.5 - 1.0;
        EXPECT_TRUE(IsClosed(body));
        EXPECT_NEAR(Volume(body), area * 0.3, 1e-12);
        EXPECT_NEAR(SurfaceArea(body, 1), area, 1e-12);
        EXPECT_NEAR(SurfaceArea(body, 2), area, 1e-12);
        EXPECT_NEAR(SurfaceArea(body, 3), 0.3 * (20.0 + 5.0 + 4.0), 1e-12);
        EXPECT_EQ(FaceContours(body, body.faces[0]).size(), 3U);
        for (const Host::BodyFace& face : body.faces) {
            const double up = DoubledArea(body, face).z;
            const double z = FaceContours(body, face)[0][0].z;
            if (face.surface == 1) {
                EXPECT_GT(up, 0.0);
                EXPECT_DOUBLE_EQ(z, 2.5);
            } else if (face.surface == 2) {
                EXPECT_LT(up, 0.0);
                EXPECT_DOUBLE_EQ(z, 2.2);
            }
        }
    }
}

TEST(SlabBody, FollowsArcsInChords) {
    // A square of 2 m with a half disc of radius 1 outside of its right side, and inside of it.
    for (const double angle : {Pi, -Pi}) {
        Host::Contour contour = Rectangle(0.0, 0.0, 2.0, 2.0);
        contour.arcs = {{1, angle}};
        const Host::Body body = Unplaced(BuildSlabBody({{contour}, 0.0, 1.0, {1}, {1}, {1}}));
        const double halfDisc = 36.0 * std::sin(Pi / 36.0) / 2.0;
        EXPECT_TRUE(IsClosed(body));
        EXPECT_NEAR(Volume(body), 4.0 + std::copysign(halfDisc, angle), 1e-12);
    }
}

TEST(SlabBody, IsEmptyWithoutAreaOrThickness) {
    const Host::Polygon line = {{{{0, 0}, {1, 0}, {2, 0}}, {}}};
    EXPECT_TRUE(BuildSlabBody({line, 0.0, 0.2, {}, {}, {}}).faces.empty());
    EXPECT_TRUE(BuildSlabBody({{}, 0.0, 0.2, {}, {}, {}}).faces.empty());
    EXPECT_TRUE(BuildSlabBody({{Rectangle(0, 0, 1, 1)}, 0.0, 0.0, {}, {}, {}}).faces.empty());
}

TEST(PolygonRings, LeaveOutPlacesThatFollowOnThemselves) {
    const Host::Contour closed = {{{0, 0}, {1, 0}, {1, 0}, {1, 1}, {0, 0}}, {}};
    EXPECT_EQ(ContourRing(closed), (PlanRing{{0, 0}, {1, 0}, {1, 1}}));
}

TEST(PolygonRings, MakeACircleOfTwoHalves) {
    const Host::Contour circle = {{{-1, 0}, {1, 0}}, {{0, Pi}, {1, Pi}}};
    const std::vector<PlanRing> rings = PolygonRings({circle});
    ASSERT_EQ(rings.size(), 1U);
    EXPECT_EQ(rings[0].size(), 72U);
    EXPECT_NEAR(SignedArea(rings[0]), 36.0 * std::sin(2.0 * Pi / 72.0), 1e-12);
}

TEST(PrismBody, IsTheColumnOverItsPolygon) {
    const Host::Body body = Unplaced(BuildPrismBody({{Rectangle(0, 0, 0.3, 0.4)}, 0.5, 3.0, {7}}));
    EXPECT_TRUE(IsClosed(body));
    EXPECT_NEAR(Volume(body), 0.3 * 0.4 * 3.0, 1e-12);
    EXPECT_NEAR(SurfaceArea(body, 7), 2.0 * 0.12 + 1.4 * 3.0, 1e-12);
    for (const Host::Coordinate3D& vertex : body.vertices) {
        EXPECT_TRUE(vertex.z == 0.5 || vertex.z == 3.5);
    }
}

TEST(BarBody, HangsSquareOnItsLine) {
    const Host::Coordinate3D ends[] = {{4, 0, 3}, {0, 5, 3}, {2, 2, 4}, {1, 1, 6}, {1, 1, -6}};
    for (const Host::Coordinate3D& end : ends) {
        const Host::Body body = Unplaced(BuildBarBody({{1, 1, 3}, end, 0.2, 0.5, {7}}));
        const double length = std::sqrt((end.x - 1) * (end.x - 1) + (end.y - 1) * (end.y - 1) +
                                        (end.z - 3) * (end.z - 3));
        EXPECT_TRUE(IsClosed(body));
        EXPECT_LT(Unevenness(body), 1e-12);
        EXPECT_NEAR(Volume(body), length * 0.2 * 0.5, 1e-12);
    }
}

TEST(BarBody, HasItsLineInTheMiddleOfItsTop) {
    double lowest = 9.0;
    double highest = 0.0;
    for (const auto& vertex : BuildBarBody({{0, 0, 3}, {4, 0, 3}, 0.2, 0.5, {7}}).vertices) {
        EXPECT_NEAR(std::abs(vertex.y), 0.1, 1e-12);
        lowest = std::min(lowest, vertex.z);
        highest = std::max(highest, vertex.z);
    }
    EXPECT_NEAR(highest, 3.0, 1e-12);
    EXPECT_NEAR(lowest, 2.5, 1e-12);
}

TEST(BarBody, IsEmptyWithoutLengthWidthOrHeight) {
    EXPECT_TRUE(BuildBarBody({{1, 1, 1}, {1, 1, 1}, 0.2, 0.5, {}}).faces.empty());
    EXPECT_TRUE(BuildBarBody({{1, 1, 1}, {2, 1, 1}, 0.0, 0.5, {}}).faces.empty());
    EXPECT_TRUE(BuildBarBody({{1, 1, 1}, {2, 1, 1}, 0.2, 0.0, {}}).faces.empty());
}

TEST(RoofBody, RisesToTheLeftOfItsPivotLine) {
    RoofGeometry roof;
    roof.polygon = {Rectangle(0.0, 0.0, 6.0, 4.0), Rectangle(1.0, 1.0, 1.0, 1.0)};
    roof.pivotBegin = {0.0, 0.0};
    roof.pivotEnd = {6.0, 0.0};
    roof.level = 3.0;
    roof.slope = 0.5;
    roof.thickness = 0.25;
    roof.topSurface = {1};
    roof.bottomSurface = {2};
    roof.edgeSurface = {3};
    const Host::Body body = Unplaced(BuildRoofBody(roof));
    EXPECT_TRUE(IsClosed(body));
    EXPECT_LT(Unevenness(body), 1e-12);
    EXPECT_NEAR(Volume(body), 23.0 * 0.25, 1e-12);
    EXPECT_NEAR(SurfaceArea(body, 1), 23.0 / std::cos(0.5), 1e-12);
    for (const Host::Coordinate3D& vertex : body.vertices) {
        const double plane = 3.0 + vertex.y * std::tan(0.5);
        EXPECT_TRUE(std::abs(vertex.z - plane) < 1e-12 ||
                    std::abs(vertex.z - plane - 0.25) < 1e-12);
    }
    std::swap(roof.pivotBegin, roof.pivotEnd);
    for (const Host::Coordinate3D& vertex : BuildRoofBody(roof).vertices) {
        EXPECT_LE(vertex.z, 3.25 + 1e-12);
    }
}

TEST(RoofBody, IsLevelWithoutASlopeAndNothingWhenUpright) {
    RoofGeometry roof;
    roof.polygon = {Rectangle(0.0, 0.0, 6.0, 4.0)};
    EXPECT_NEAR(Volume(Unplaced(BuildRoofBody(roof))), 24.0 * 0.2, 1e-12);
    roof.slope = Pi / 2.0;
    EXPECT_TRUE(BuildRoofBody(roof).faces.empty());
    roof.slope = 0.3; // without a pivot line
    EXPECT_TRUE(BuildRoofBody(roof).faces.empty());
}

TEST(MeshBody, StandsOnItsBottomUnderTriangles) {
    // A plane z = 1 + x / 10 over an L: 3 by 3 less 2 by 2.
    MeshGeometry mesh;
    for (const auto& [x, y] :
         std::vector<std::pair<double, double>>{{0, 0}, {3, 0}, {3, 1}, {1, 1}, {1, 3}, {0, 3}}) {
        mesh.outline.push_back({x, y, 1.0 + x / 10.0});
    }
    mesh.bottom = -1.0;
    mesh.topSurface = {1};
    mesh.edgeSurface = {3};
    // Mean height over the part 1 by 3 at x = 0.5 and the part 2 by 1 at x = 2.
    const double volume = 3.0 * 2.05 + 2.0 * 2.2;
    for (int turned = 0; turned < 2; ++turned) {
        const Host::Body body = Unplaced(BuildMeshBody(mesh));
        EXPECT_TRUE(IsClosed(body));
        EXPECT_LT(Unevenness(body), 1e-12);
        EXPECT_NEAR(Volume(body), volume, 1e-12);
        EXPECT_EQ(FaceCount(body, 1), 4);
        EXPECT_NEAR(SurfaceArea(body, 1), 5.0 * std::sqrt(1.01), 1e-12);
        std::reverse(mesh.outline.begin(), mesh.outline.end());
    }
}

TEST(ClipEars, CoversARingWithTrianglesOfItsVertices) {
    const PlanRing rings[] = {
        {{0, 0}, {1, 0}, {0, 1}},
        {{0, 0}, {1, 0}, {2, 0}, {2, 2}},         // a vertex on a straight side
        {{0, 0}, {4, 0}, {4, 4}, {2, 1}, {0, 4}}, // one that is no corner
        {{0, 0}, {1, 0}, {2, 0}, {3, 0}, {3, 1}, {2, 1}, {1, 1}, {0, 1}},
        {{0, 0}, {5, 0}, {5, 5}, {0, 5}, {0, 4}, {4, 4}, {4, 1}, {0, 1}}, // a C
    };
    for (const PlanRing& ring : rings) {
        const auto triangles = ClipEars(ring);
        EXPECT_EQ(triangles.size(), ring.size() - 2);
        double area = 0.0;
        for (const auto& [a, b, c] : triangles) {
            const double part =
                SignedArea({ring[static_cast<std::size_t>(a)], ring[static_cast<std::size_t>(b)],
                            ring[static_cast<std::size_t>(c)]});
            EXPECT_GT(part, 0.0);
            area += part;
        }
        EXPECT_NEAR(area, SignedArea(ring), 1e-12);
    }
}

TEST(ClipEars, NeverTurnsATriangleOver) {
    std::mt19937 random(3);
    std::uniform_real_distribution<double> radius(0.2, 2.0);
    for (int round = 0; round < 200; ++round) {
        PlanRing ring;
        const int count = 3 + round % 40;
        for (int i = 0; i < count; ++i) {
            const double r = radius(random);
            ring.push_back(
                {r * std::cos(2.0 * Pi * i / count), r * std::sin(2.0 * Pi * i / count)});
        }
        double area = 0.0;
        for (const auto& [a, b, c] : ClipEars(ring)) {
            const double part =
                SignedArea({ring[static_cast<std::size_t>(a)], ring[static_cast<std::size_t>(b)],
                            ring[static_cast<std::size_t>(c)]});
            EXPECT_GT(part, 0.0);
            area += part;
        }
        EXPECT_NEAR(area, SignedArea(ring), 1e-10);
    }
}

TEST(ClipEars, EndsForRingsThatCrossThemselves) {
    EXPECT_EQ(ClipEars({{0, 0}, {2, 2}, {2, 0}, {0, 2}}).size(), 2U);
    EXPECT_EQ(ClipEars({{0, 0}, {1, 0}, {2, 0}, {3, 0}}).size(), 2U);
    EXPECT_TRUE(ClipEars({{0, 0}, {1, 0}}).empty());
}

} // namespace
} // namespace Merivane::Workbench
