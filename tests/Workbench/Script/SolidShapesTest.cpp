#include <cmath>
#include <numbers>
#include <vector>

#include <gtest/gtest.h>

#include "../Bodies/BodyChecks.hpp"
#include "ShapeRuns.hpp"

namespace Merivane::Workbench {
namespace {

using namespace Merivane::Tests;

constexpr double Pi = std::numbers::pi;

/// Area of a regular polygon of 36 corners in a circle of radius 1.
const double Disc = 18.0 * std::sin(Pi / 18.0);

void ExpectExtent(const Host::Body& body, const std::vector<double>& expected) {
    const std::vector<double> extent = Extent(body);
    for (std::size_t i = 0; i < expected.size(); ++i) {
        EXPECT_NEAR(extent[i], expected[i], 1e-9) << i;
    }
}

TEST(Block, StandsOnTheOriginAlongTheAxes) {
    for (const char* const keyword : {"BLOCK", "BRICK"}) {
        const Host::Body body = Built(keyword, {2.0, 3.0, 4.0});
        ExpectSolid(body, 24.0);
        EXPECT_EQ(EulerCharacteristic(body), 2);
        EXPECT_EQ(body.faces.size(), 6U);
        EXPECT_EQ(FaceCount(body, 7), 6);
        ExpectExtent(body, {0, 0, 0, 2, 3, 4});
    }
}

TEST(Block, IsARectangleWithOneLengthOfZero) {
    for (const auto& [size, area] :
         {std::pair{std::vector<double>{2, 3, 0}, 6.0}, {{0, 3, 4}, 12.0}, {{2, 0, 4}, 8.0}}) {
        const Host::Body body = Built("BLOCK", size);
        ASSERT_EQ(body.faces.size(), 1U);
        EXPECT_NEAR(FaceArea(body, body.faces[0]), area, 1e-12);
        ExpectExtent(body, {0, 0, 0, size[0], size[1], size[2]});
    }
    EXPECT_EQ(Refusal("BLOCK", {2.0, 0.0, 0.0}), "");
    EXPECT_EQ(Refusal("BLOCK", {2.0, -1.0, 1.0}), "pede medidas que não sejam negativas");
}

TEST(Cylinder, IsAPrismOfChords) {
    for (const double height : {2.0, -2.0}) {
        const Host::Body body = Built("CYLIND", {height, 0.5});
        ExpectSolid(body, 2.0 * 0.25 * Disc);
        EXPECT_EQ(EulerCharacteristic(body), 2);
        EXPECT_EQ(body.faces.size(), 38U);
        ExpectExtent(body, {-0.5, -0.5, std::min(0.0, height), 0.5, 0.5, std::max(0.0, height)});
    }
}

TEST(Cylinder, IsADiscWithoutHeightAndALineWithoutRadius) {
    const Host::Body disc = Built("CYLIND", {0.0, 2.0});
    ASSERT_EQ(disc.faces.size(), 1U);
    EXPECT_NEAR(DoubledArea(disc, disc.faces[0]).z, 2.0 * 4.0 * Disc, 1e-12);
    ModelBuild build = EmptyBuild();
    build.look.pen = 5;
    EXPECT_EQ(Build(build, "CYLIND", {3.0, 0.0}), "");
    EXPECT_EQ(build.model.wires, (std::vector<PartWire>{{{0, 0, 0}, {0, 0, 3}, 5}}));
    EXPECT_TRUE(build.model.bodies.empty());
    EXPECT_EQ(Refusal("CYLIND", {3.0, -1.0}), "pede medidas que não sejam negativas");
}

TEST(Sphere, HasOneVertexAtEachPole) {
    const Host::Body body = Built("SPHERE", {2.0});
    // Frustums between latitudes 10 degrees apart, of polygons of 36 corners.
    double volume = 0.0;
    for (int i = -9; i < 9; ++i) {
        const double a = 2.0 * std::cos(i * Pi / 18.0);
        const double b = 2.0 * std::cos((i + 1) * Pi / 18.0);
        const double h = 2.0 * (std::sin((i + 1) * Pi / 18.0) - std::sin(i * Pi / 18.0));
        volume += Disc * h / 3.0 * (a * a + a * b + b * b);
    }
    ExpectSolid(body, volume);
    EXPECT_NEAR(volume, 4.0 / 3.0 * Pi * 8.0, 0.5);
    EXPECT_EQ(EulerCharacteristic(body), 2);
    EXPECT_EQ(body.vertices.size(), 17U * 36U + 2U);
    EXPECT_EQ(Refusal("SPHERE", {0.0}), "");
    EXPECT_EQ(Refusal("SPHERE", {-1.0}), "pede medidas que não sejam negativas");
}

TEST(Sphere, IsRoundWhereverItIsLarge) {
    const Host::Body body = Built("SPHERE", {1e9});
    EXPECT_TRUE(IsClosed(body));
    EXPECT_EQ(body.vertices.size(), 17U * 36U + 2U);
}

TEST(Ellipsoid, IsHalfOfOneOnThePlane) {
    for (const double height : {3.0, -3.0}) {
        const Host::Body body = Built("ELLIPS", {height, 1.0});
        EXPECT_TRUE(IsClosed(body));
        EXPECT_NEAR(Volume(body), 2.0 / 3.0 * Pi * 3.0, 0.08);
        EXPECT_EQ(EulerCharacteristic(body), 2);
        ExpectExtent(body, {-1, -1, std::min(0.0, height), 1, 1, std::max(0.0, height)});
    }
    EXPECT_EQ(Built("ELLIPS", {0.0, 1.0}).faces.size(), 1U);
    EXPECT_EQ(Refusal("ELLIPS", {1.0, 0.0}), "");
}

TEST(Cone, IsAFrustumAndHasAPeakWithoutRadius) {
    const auto frustum = [](double h, double a, double b) {
        return Disc * h / 3.0 * (a * a + a * b + b * b);
    };
    ExpectSolid(Built("CONE", {3.0, 2.0, 1.0, 90.0, 90.0}), frustum(3.0, 2.0, 1.0));
    ExpectSolid(Built("CONE", {-3.0, 2.0, 1.0, 90.0, 90.0}), frustum(3.0, 2.0, 1.0));
    const Host::Body peak = Built("CONE", {3.0, 2.0, 0.0, 90.0, 90.0});
    ExpectSolid(peak, frustum(3.0, 2.0, 0.0));
    EXPECT_EQ(peak.vertices.size(), 37U);
    EXPECT_EQ(peak.faces.size(), 37U);
    EXPECT_EQ(EulerCharacteristic(peak), 2);
    ExpectSolid(Built("CONE", {3.0, 0.0, 2.0, 90.0, 90.0}), frustum(3.0, 2.0, 0.0));
}

TEST(Cone, HasEndsInclinedByTheirAngles) {
    // A cylinder between inclined planes has the volume of a right one between the axis points.
    const Host::Body slanted = Built("CONE", {4.0, 1.0, 1.0, 60.0, 120.0});
    ExpectSolid(slanted, 4.0 * Disc);
    for (const Host::Coordinate3D& vertex : slanted.vertices) {
        const double rise = vertex.x / std::tan(60.0 * Pi / 180.0);
        EXPECT_NEAR(vertex.z, vertex.z < 2.0 ? rise : 4.0 - rise, 1e-12);
    }
    // The top of a cone is cut in an ellipse on the cone.
    const Host::Body cone = Built("CONE", {2.0, 2.0, 1.0, 90.0, 70.0});
    EXPECT_TRUE(IsClosed(cone));
    EXPECT_LT(Unevenness(cone), 1e-9);
    for (const Host::Coordinate3D& vertex : cone.vertices) {
        EXPECT_NEAR(std::hypot(vertex.x, vertex.y), 2.0 - vertex.z / 2.0, 1e-12);
    }
}

TEST(Cone, RefusesEndsThatMakeNoBody) {
    EXPECT_EQ(Refusal("CONE", {1.0, 2.0, 1.0, 0.0, 90.0}), "pede ângulos entre 0 e 180 graus");
    EXPECT_EQ(Refusal("CONE", {1.0, 2.0, 1.0, 90.0, 180.0}), "pede ângulos entre 0 e 180 graus");
    EXPECT_EQ(Refusal("CONE", {1.0, 2.0, 2.0, 30.0, 150.0}),
              "as bases inclinadas do cone se cruzam");
    EXPECT_EQ(Refusal("CONE", {1.0, 4.0, 1.0, 60.0, 90.0}),
              "a base inclinada não corta todo o cone");
    EXPECT_EQ(Refusal("CONE", {1.0, -2.0, 1.0, 90.0, 90.0}),
              "pede medidas que não sejam negativas");
}

TEST(Cone, IsAnAnnulusWithoutHeight) {
    for (const std::vector<double>& radii : {std::vector<double>{2.0, 1.0}, {1.0, 2.0}}) {
        const Host::Body body = Built("CONE", {0.0, radii[0], radii[1], 0.0, 0.0});
        ASSERT_EQ(body.faces.size(), 1U);
        EXPECT_EQ(FaceContours(body, body.faces[0]).size(), 2U);
        EXPECT_NEAR(DoubledArea(body, body.faces[0]).z, 2.0 * 3.0 * Disc, 1e-12);
    }
    EXPECT_EQ(Refusal("CONE", {0.0, 1.0, 1.0, 90.0, 90.0}), "");
}

TEST(Elbow, LeavesTheOriginUpwardsAndBendsTowardsX) {
    const Host::Body body = Built("ELBOW", {2.0, 90.0, 0.5});
    // By Pappus: the sum of frustums between planes through the axis, 10 degrees apart.
    ExpectSolid(body, 0.25 * Disc * 2.0 * 9.0 * std::sin(Pi / 18.0));
    EXPECT_EQ(EulerCharacteristic(body), 2);
    ExpectExtent(body, {-0.5, -0.5, 0.0, 2.0, 0.5, 2.5});
    const Host::Body ring = Built("ELBOW", {2.0, 360.0, 0.5});
    EXPECT_TRUE(IsClosed(ring));
    EXPECT_EQ(EulerCharacteristic(ring), 0);
    EXPECT_EQ(Refusal("ELBOW", {0.4, 90.0, 0.5}),
              "o raio da curva deve ser maior do que o do tubo");
    EXPECT_EQ(Refusal("ELBOW", {2.0, 0.0, 0.5}), "");
    ExpectSolid(Built("ELBOW", {2.0, -90.0, 0.5}), Volume(body));
}

TEST(Arms, BeginOnTheSurfaceThatTheyLeave) {
    const Host::Body arm = Built("ARMC", {1.0, 0.25, 3.0, 2.0, 0.5, 60.0});
    EXPECT_EQ(arm.faces.size(), 37U);
    int onTube = 0;
    for (const Host::Coordinate3D& vertex : arm.vertices) {
        onTube += std::abs(std::hypot(vertex.x, vertex.y) - 1.0) < 1e-9 ? 1 : 0;
        EXPECT_GT(std::hypot(vertex.x, vertex.y), 1.0 - 1e-9);
    }
    EXPECT_EQ(onTube, 36);
    EXPECT_EQ(Refusal("ARMC", {1.0, 0.25, 3.0, 2.0, 0.9, 60.0}),
              "as medidas do braço não o deixam sair do tubo");
    const Host::Body up = Built("ARME", {3.0, 1.0, 0.25, 2.0, 0.5});
    EXPECT_EQ(up.faces.size(), 37U);
    for (const Host::Coordinate3D& vertex : up.vertices) {
        const double share = vertex.x * vertex.x + vertex.y * vertex.y + vertex.z * vertex.z / 4.0;
        EXPECT_TRUE(std::abs(share - 1.0) < 1e-9 || vertex.z == 3.0);
    }
    EXPECT_EQ(Refusal("ARME", {1.0, 1.0, 0.25, 2.0, 0.5}),
              "as medidas do braço não o deixam sair do elipsoide");
    for (const Host::Body& body : {arm, up}) {
        // What is there of it looks away from its axis, and the far end along it.
        const Host::Coordinate3D end = DoubledArea(body, body.faces.back());
        EXPECT_GT(end.z, 0.0);
    }
}

TEST(Circles, AreCutByTheResolutionInForce) {
    ModelBuild build = EmptyBuild();
    const auto sides = [&](double radius) {
        build.model = {};
        EXPECT_EQ(Build(build, "CYLIND", {1.0, radius}), "");
        return OnlyBody(build).faces.size() - 2;
    };
    build.look.segments = 12;
    EXPECT_EQ(sides(1.0), 12U);
    build.look.radiusLowest = 0.1;
    build.look.radiusHighest = 0.5;
    EXPECT_EQ(sides(0.05), 6U);
    EXPECT_EQ(sides(0.3), 21U);
    EXPECT_EQ(sides(2.0), 36U);
    build.look.tolerance = 0.01;
    EXPECT_EQ(sides(1.0), 23U);
}

} // namespace
} // namespace Merivane::Workbench
