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

using Numbers = std::vector<double>;

/// The area of the only face, above 0 where it looks up.
double AreaUp(std::string_view keyword, const Numbers& numbers) {
    const Host::Body body = Built(keyword, numbers);
    EXPECT_EQ(body.faces.size(), 1U);
    return body.faces.empty() ? 0.0 : DoubledArea(body, body.faces[0]).z / 2.0;
}

TEST(PlaneShapes, LieInThePlaneAndLookUp) {
    const double disc = 18.0 * std::sin(Pi / 18.0);
    EXPECT_DOUBLE_EQ(AreaUp("RECT", {2, 3}), 6.0);
    EXPECT_DOUBLE_EQ(AreaUp("RECT", {-2, 3}), 6.0);
    EXPECT_NEAR(AreaUp("CIRCLE", {2}), 4.0 * disc, 1e-12);
    EXPECT_NEAR(AreaUp("ARC", {2, 0, 90}), disc, 1e-12);
    EXPECT_NEAR(AreaUp("ARC", {2, 90, 0}), 3.0 * disc, 1e-12);
    EXPECT_NEAR(AreaUp("ARC", {2, 30, 390}), 4.0 * disc, 1e-12);
    EXPECT_DOUBLE_EQ(AreaUp("POLY", {3, 0, 0, 2, 0, 0, 2}), 2.0);
    EXPECT_DOUBLE_EQ(AreaUp("POLY", {3, 0, 0, 0, 2, 2, 0}), 2.0);
    EXPECT_DOUBLE_EQ(AreaUp("POLY_", {10, 0, 0, 1, 4, 0, 1, 4, 4, 1, 0, 4, 0, 0, 0, -1,
                                      1,  1, 1, 3, 1, 1, 3, 3, 1, 1, 3, 1, 1, 1, -1}),
                     12.0);
    EXPECT_NEAR(AreaUp("POLY_", {2, 0, 0, 901, 1, 360, 4001}), disc, 1e-12);
}

TEST(PlaneShapes, AreNothingWithoutArea) {
    EXPECT_EQ(Refusal("RECT", {2, 0}), "");
    EXPECT_EQ(Refusal("CIRCLE", {0}), "");
    EXPECT_EQ(Refusal("ARC", {1, 45, 45}), "");
    EXPECT_EQ(Refusal("POLY", {3, 0, 0, 1, 1, 2, 2}), "");
    EXPECT_EQ(Refusal("PLANE", {3, 0, 0, 0, 1, 1, 1, 2, 2, 2}), "");
    EXPECT_EQ(Refusal("POLY", {2, 0, 0, 1, 1, 2, 2}),
              "o número de pontos deve ser inteiro e pelo menos 3");
    EXPECT_EQ(Refusal("PLANE", {3, 0, 0, 0, 1, 1, 1, 2, 2, 2, 2}), "pede 10 argumentos e tem 11");
}

TEST(Sector, IsTheArcAloneInAWireModel) {
    ModelBuild build = EmptyBuild();
    build.look.detail = ModelLook::Detail::Wire;
    EXPECT_EQ(Build(build, "ARC", {1, 0, 90}), "");
    ASSERT_EQ(build.model.wires.size(), 9U);
    EXPECT_NEAR(build.model.wires.back().end.y, 1.0, 1e-12);
    EXPECT_EQ(Build(build, "ARC", {1, 0, 360}), "");
    EXPECT_EQ(build.model.wires.size(), 9U + 36U);
    EXPECT_EQ(build.model.wires.back().end, build.model.wires[9].begin);
}

TEST(Plane, StandsAnywhereInSpace) {
    const Host::Body body = Built("PLANE", {4, 0, 0, 0, 1, 0, 1, 1, 1, 1, 0, 1, 0});
    ASSERT_EQ(body.faces.size(), 1U);
    EXPECT_NEAR(FaceArea(body, body.faces[0]), std::sqrt(2.0), 1e-12);
    EXPECT_GT(DoubledArea(body, body.faces[0]).z, 0.0);
    const Host::Body bent = Built("PLANE", {4, 0, 0, 0, 1, 0, 1, 1, 1, 0, 0, 1, 1});
    EXPECT_EQ(bent.faces.size(), 2U);
    const Host::Body holed =
        Built("PLANE_", {10, 0, 0, 0, 1, 0, 4, 0, 1, 0, 4, 4, 1, 0, 0, 4, 1, 0, 0, 0, -1,
                         0,  1, 1, 1, 0, 3, 1, 1, 0, 3, 3, 1, 0, 1, 3, 1, 0, 1, 1, -1});
    ASSERT_EQ(holed.faces.size(), 1U);
    EXPECT_EQ(FaceContours(holed, holed.faces[0]).size(), 2U);
    EXPECT_DOUBLE_EQ(DoubledArea(holed, holed.faces[0]).x, 2.0 * 12.0);
}

TEST(CoonsPatch, IsHungBetweenItsLines) {
    // A saddle over a square: its edges are straight, and so are the rows of the patch.
    const Host::Body body = Built("COONS", {3,   2, 0, 0, 0, 0, 1, 0, 0.5, 2, 0, 1, 0, 2, 1, 1, 2,
                                            0.5, 2, 2, 0, 0, 0, 0, 0, 2,   1, 2, 0, 1, 2, 2, 0});
    EXPECT_EQ(body.vertices.size(), 6U);
    EXPECT_EQ(body.faces.size(), 4U);
    EXPECT_LT(Unevenness(body), 1e-12);
    for (const Host::Coordinate3D& vertex : body.vertices) {
        const double u = vertex.x / 2.0;
        const double v = vertex.y / 2.0;
        EXPECT_NEAR(vertex.z, u + v - 2.0 * u * v, 1e-12);
    }
    for (const Host::BodyFace& face : body.faces) {
        EXPECT_GT(DoubledArea(body, face).z, 0.0);
    }
    EXPECT_EQ(Refusal("COONS", Numbers(28, 2.0)), "pede 27 argumentos e tem 28");
}

TEST(Mesh, IsAGridOfHeights) {
    const Host::Body body = Built("MESH", {4, 2, 3, 2, 5, 1, 2, 3, 1, 2, 3});
    ExpectSolid(body, 4.0 * 2.0 * 2.0);
    EXPECT_EQ(body.faces.size(), 2U + 6U + 1U);
    EXPECT_EQ(EulerCharacteristic(body), 2);
    EXPECT_EQ(Extent(body), (Numbers{0, 0, 0, 4, 2, 3}));
    EXPECT_EQ(Built("MESH", {4, 2, 3, 2, 0, 1, 2, 3, 1, 2, 3}).faces.size(), 2U);
    EXPECT_EQ(Built("MESH", {4, 2, 3, 2, 4, 1, 2, 3, 1, 2, 3}).faces.size(), 8U);
    EXPECT_EQ(Built("MESH", {4, 2, 3, 2, 1, 1, 2, 3, 1, 2, 3}).faces.size(), 3U);
    ExpectSolid(Built("MESH", {4, 2, 3, 2, 5, -1, -2, -3, -1, -2, -3}), 16.0);
    const Host::Body rough = Built("MESH", {4, 2, 3, 2, 5, 1, 2, 3, 3, 1, 2});
    EXPECT_TRUE(IsClosed(rough));
    EXPECT_LT(Unevenness(rough), 1e-12);
    EXPECT_EQ(Refusal("MESH", {4, 2, 3, 2, 5, 1, 2, 3, 1, 2}), "pede 11 argumentos e tem 10");
    EXPECT_EQ(Refusal("MESH", {0, 2, 2, 2, 5, 1, 2, 3, 1}), "pede lados maiores do que zero");
}

TEST(Mesh, OfAHundredThousandPolygonsIsQuick) {
    Numbers numbers = {100, 100, 317, 317, 5};
    for (int i = 0; i < 317 * 317; ++i) {
        numbers.push_back(1.0 + std::sin(i * 0.37));
    }
    ModelBuild build = EmptyBuild();
    EXPECT_EQ(Build(build, "MESH", numbers), "");
    EXPECT_GT(build.shapeCount, 100'000U);
    build.shapeLimit = 50'000;
    build.shapeCount = 0;
    EXPECT_EQ(Build(build, "MESH", numbers), "o modelo passa do limite de faces");
}

TEST(WallShapes, AreRefused) {
    for (const char* const keyword : {"CWALL_", "BWALL_", "XWALL_"}) {
        EXPECT_TRUE(IsModelShape(keyword));
        EXPECT_EQ(Refusal(keyword, {}), "este corpo não é desenhado aqui");
    }
}

} // namespace
} // namespace Merivane::Workbench
