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
constexpr double Degree = Pi / 180.0;

using Numbers = std::vector<double>;

Numbers operator+(Numbers a, const Numbers& b) {
    a.insert(a.end(), b.begin(), b.end());
    return a;
}

/// A square of 4 m with a hole of 2 m, one as the other counter-clockwise.
const Numbers HoledSquare = {0, 0, 15, 4, 0, 15, 4, 4, 15, 0, 4, 15, 0, 0, -1,
                             1, 1, 15, 3, 1, 15, 3, 3, 15, 1, 3, 15, 1, 1, -1};

TEST(Prism, StandsOverItsPolygonUpwardsAndDownwards) {
    const Numbers triangle = {0, 0, 3, 0, 0, 2};
    const Numbers clockwise = {0, 0, 0, 2, 3, 0};
    for (const Numbers& polygon : {triangle, clockwise}) {
        for (const double height : {2.0, -2.0}) {
            const Host::Body body = Built("PRISM", Numbers{3, height} + polygon);
            ExpectSolid(body, 6.0);
            EXPECT_EQ(EulerCharacteristic(body), 2);
            EXPECT_EQ(body.faces.size(), 5U);
            EXPECT_EQ(Extent(body),
                      (Numbers{0, 0, std::min(0.0, height), 3, 2, std::max(0.0, height)}));
        }
    }
}

TEST(Prism, HasHolesHoweverTheyAreWalked) {
    for (const double height : {0.5, -0.5}) {
        const Host::Body body = Built("PRISM_", Numbers{10, height} + HoledSquare);
        ExpectSolid(body, 12.0 * 0.5);
        EXPECT_EQ(body.faces.size(), 10U);
        EXPECT_EQ(EulerCharacteristic(body), 2); // a hole through, two faces with holes
    }
}

TEST(Prism, LeavesOutTheSidesThatTheirStatusDoes) {
    // The side from (4, 0) to (4, 4) is not there, whichever way the polygon runs.
    const Host::Body body = Built("PRISM_", {4, 1, 0, 0, 15, 4, 0, 7, 4, 4, 15, 0, 4, 15});
    EXPECT_EQ(body.faces.size(), 5U);
    const Host::Body turned = Built("PRISM_", {4, -1, 0, 4, 15, 4, 4, 7, 4, 0, 15, 0, 0, 15});
    EXPECT_EQ(turned.faces.size(), 5U);
    for (const Host::Body& open : {body, turned}) {
        double sides = 0.0;
        for (const Host::BodyFace& face : open.faces) {
            const Host::Coordinate3D area = DoubledArea(open, face);
            EXPECT_LE(area.x, 0.0); // nothing looks along +x
            sides += std::hypot(area.x, area.y) / 2.0;
        }
        EXPECT_NEAR(sides, 12.0, 1e-12);
    }
}

TEST(Prism, FollowsArcsAndWholeCircles) {
    const double disc = 18.0 * std::sin(Pi / 18.0);
    const Host::Body circle = Built("PRISM_", {2, 2, 1, 1, 915, 0.5, 360, 4015});
    ExpectSolid(circle, 2.0 * 0.25 * disc);
    EXPECT_EQ(circle.faces.size(), 38U);
    const Host::Body half = Built("PRISM_", {3, 2, 1, 0, 15, 0, 0, 915, 0, 180, 4015});
    ExpectSolid(half, 2.0 * disc / 2.0);
}

TEST(Prism, IsAPolygonWithoutHeightAndNothingWithoutArea) {
    const Host::Body flat = Built("CPRISM_", Numbers{1, 2, 3, 10, 0} + HoledSquare);
    ASSERT_EQ(flat.faces.size(), 1U);
    EXPECT_DOUBLE_EQ(DoubledArea(flat, flat.faces[0]).z, 2.0 * 12.0);
    EXPECT_EQ(flat.faces[0].surface, 1);
    EXPECT_EQ(Refusal("PRISM", {3, 1, 0, 0, 1, 0, 2, 0}), "");
    EXPECT_EQ(Refusal("PRISM_", {3, 1, 0, 0, 15, 1, 1, 15, 0, 0, -1}), "");
    EXPECT_EQ(Refusal("PRISM", {4, 1, 0, 0, 1, 1, 1, 0, 0, 1}), ""); // a bow without area
}

TEST(Prism, MayCrossItself) {
    const Host::Body body = Built("PRISM", {4, 1, 0, 0, 2, 2, 2, 0, 0, 1});
    EXPECT_TRUE(IsClosed(body));
    EXPECT_GT(Volume(body), 0.0);
}

TEST(Prism, TellsWhatItsRowsLack) {
    EXPECT_EQ(Refusal("PRISM", {4, 1, 0, 0, 1, 0, 1, 1}), "pede 10 argumentos e tem 8");
    EXPECT_EQ(Refusal("PRISM", {2, 1, 0, 0, 1, 0, 1, 1}),
              "o número de pontos deve ser inteiro e pelo menos 3");
    EXPECT_EQ(Refusal("PRISM", {3.5, 1, 0, 0, 1, 0, 1, 1}),
              "o número de pontos deve ser inteiro e pelo menos 3");
    EXPECT_EQ(Refusal("PRISM", {1e300, 1, 0, 0, 1, 0, 1, 1}), "pede 2000000002 argumentos e tem 8");
    EXPECT_EQ(Refusal("PRISM_", {3, 1, 0, 0, 15, 1, 0, 15}), "pede 11 argumentos e tem 8");
    EXPECT_EQ(Refusal("PRISM_", {3, 1, 0, 0, 15, 1, 0, 515, 1, 1, 15}),
              "o código de estado 515 não existe");
    EXPECT_EQ(Refusal("PRISM_", {3, 1}), "pede pelo menos 8 argumentos e tem 2");
}

TEST(SurfacePrism, HasThreeSurfaces) {
    const Host::Body body = Built("CPRISM_", Numbers{1, 2, 3, 10, 2} + HoledSquare);
    ExpectSolid(body, 24.0);
    EXPECT_NEAR(SurfaceArea(body, 1), 12.0, 1e-12);
    EXPECT_NEAR(SurfaceArea(body, 2), 12.0, 1e-12);
    EXPECT_NEAR(SurfaceArea(body, 3), 2.0 * 24.0, 1e-12);
}

TEST(SurfacePrism, TakesTheSurfacesOfTheScriptsToo) {
    ModelBuild build = EmptyBuild();
    build.model.surfaces.resize(2);
    EXPECT_EQ(Build(build, "CPRISM_", {0, -2, 1000000, 3, 2, 0, 0, 15, 1, 0, 15, 0, 1, 15}), "");
    const Host::Body body = OnlyBody(build);
    EXPECT_EQ(FaceCount(body, -1), 1); // the colour of the pen
    EXPECT_EQ(FaceCount(body, Host::FirstScriptSurface + 1), 1);
    EXPECT_EQ(FaceCount(body, Host::FirstScriptSurface), 3);
    build.model.bodies.clear();
    EXPECT_EQ(Build(build, "CPRISM_", {-3, 1000002, -1e9, 3, 2, 0, 0, 15, 1, 0, 15, 0, 1, 15}), "");
    EXPECT_EQ(FaceCount(OnlyBody(build), -1), 5); // what is not defined
}

TEST(SurfacePrism, IsNamedByItsOwnEnds) {
    // Downwards the polygon of the statement, at z = 0, keeps the bottom's surface.
    const Host::Body body = Built("CPRISM_", {1, 2, 3, 3, -2, 0, 0, 15, 1, 0, 15, 0, 1, 15});
    for (const Host::BodyFace& face : body.faces) {
        if (face.surface == 2) {
            EXPECT_GT(DoubledArea(body, face).z, 0.0);
        }
    }
}

TEST(SlantedPrism, LeansByTheAngleOfEachSide) {
    const Numbers rows = {0, 0, 45, 15, 11, 4, 0, 0, 15, 12, 4, 4, 0, 15, 13, 0, 4, -45, 15, 14};
    const Host::Body body = Built("CPRISM_{2}", Numbers{1, 2, 3, 4, 1} + rows);
    // The front side leans inwards by 1 m, the left one outwards.
    ExpectSolid(body, 16.0 - 1.0 / 3.0); // (4 + t) (4 - t) at each height t
    for (const std::int32_t surface : {11, 12, 13, 14}) {
        EXPECT_EQ(FaceCount(body, surface), 1);
    }
    EXPECT_NEAR(SurfaceArea(body, 1), 5.0 * 3.0, 1e-12);
    EXPECT_NEAR(SurfaceArea(body, 2), 16.0, 1e-12);
    EXPECT_EQ(EulerCharacteristic(body), 2);
    for (const char* const masked : {"CPRISM_{3}", "CPRISM_{4}"}) {
        EXPECT_NEAR(Volume(Built(masked, Numbers{1, 2, 3, 0, 4, 1} + rows)), Volume(body), 1e-12);
    }
    const Numbers steep = {0, 0, 80, 15, 1, 4, 0, 80, 15, 1, 4, 4, 80, 15, 1, 0, 4, 80, 15, 1};
    EXPECT_EQ(Refusal("CPRISM_{2}", Numbers{1, 2, 3, 4, 1} + steep),
              "as faces inclinadas se cruzam");
    const Numbers flat = {0, 0, 90, 15, 1, 4, 0, 0, 15, 1, 4, 4, 0, 15, 1};
    EXPECT_EQ(Refusal("CPRISM_{2}", Numbers{1, 2, 3, 3, 1} + flat),
              "a inclinação deve ficar entre -90 e 90 graus");
}

TEST(SlantedPrism, IsAFrustumWithOneAngle) {
    const double angle = std::atan(0.5) / Degree;
    Numbers numbers = {1, 2, 3, 4, 2};
    for (const auto& [x, y] : {std::pair{0.0, 0.0}, {4.0, 0.0}, {4.0, 4.0}, {0.0, 4.0}}) {
        numbers = numbers + Numbers{x, y, angle, 15, 3};
    }
    ExpectSolid(Built("CPRISM_{2}", numbers), 2.0 / 3.0 * (16.0 + 4.0 + 8.0));
}

TEST(SlopedPrism, RisesToTheLeftOfItsLine) {
    const Numbers square = {0, 0, 15, 2, 0, 15, 2, 2, 15, 0, 2, 15};
    const Host::Body body = Built("SPRISM_", Numbers{1, 2, 3, 4, 0, 0, 1, 0, 1, 45} + square);
    ExpectSolid(body, 4.0 * 2.0);
    EXPECT_NEAR(SurfaceArea(body, 1), 4.0 * std::sqrt(2.0), 1e-12);
    // Down to the ground along one side: a wedge of five faces.
    const Host::Body wedge = Built("SPRISM_", Numbers{1, 2, 3, 4, 0, 0, 1, 0, 0, 45} + square);
    ExpectSolid(wedge, 4.0);
    EXPECT_EQ(wedge.faces.size(), 5U);
    EXPECT_EQ(EulerCharacteristic(wedge), 2);
    EXPECT_EQ(Refusal("SPRISM_", Numbers{1, 2, 3, 4, 0, 0, 1, 0, 1, -45} + square),
              "o topo do prisma fica abaixo da base");
    EXPECT_EQ(Refusal("SPRISM_", Numbers{1, 2, 3, 4, 0, 0, 0, 0, 1, 45} + square),
              "a linha de referência não tem comprimento");
    EXPECT_EQ(Refusal("SPRISM_", Numbers{1, 2, 3, 4, 0, 0, 1, 0, 1, 90} + square),
              "a inclinação deve ficar entre -90 e 90 graus");
}

TEST(SlopedPrism, HasABottomOfItsOwnToo) {
    const Numbers rows = {0, 0, 15, 11, 2, 0, 15, 12, 2, 2, 15, 13, 0, 2, 15, 14};
    const Numbers planes = {0, 0, 1, 0, 3, 45, 0, 0, 1, 0, -1, 45};
    const Host::Body body = Built("SPRISM_{2}", Numbers{1, 2, 3, 4} + planes + rows);
    ExpectSolid(body, 16.0);
    for (const std::int32_t surface : {1, 2, 11, 12, 13, 14}) {
        EXPECT_EQ(FaceCount(body, surface), 1);
    }
    ExpectSolid(Built("SPRISM_{3}", Numbers{1, 2, 3, 0, 4} + planes + rows), 16.0);
}

TEST(Slab, HasUprightSidesUnderASlope) {
    const Numbers places = {0, 0, 1, 4, 0, 3, 4, 2, 3, 0, 2, 1};
    for (const double height : {0.5, -0.5}) {
        const Host::Body body = Built("SLAB", Numbers{4, height} + places);
        ExpectSolid(body, 8.0 * 0.5);
        const double edge = std::min(0.0, height);
        EXPECT_EQ(Extent(body), (Numbers{0, 0, 1 + edge, 4, 2, 3.5 + edge}));
    }
    const Numbers rows = {0, 0, 1, 15, 4, 0, 3, 7, 4, 2, 3, 15, 0, 2, 1, 15};
    EXPECT_EQ(Built("SLAB_", Numbers{4, 0.5} + rows).faces.size(), 5U);
    const Host::Body body = Built("CSLAB_", Numbers{1, 2, 3, 4, 0.5} + rows);
    EXPECT_EQ(FaceCount(body, 1), 1);
    EXPECT_EQ(FaceCount(body, 2), 1);
    EXPECT_EQ(FaceCount(body, 3), 3);
}

TEST(Slab, IsCutIntoTrianglesWhereItsPlacesAreNotPlane) {
    const Host::Body body = Built("SLAB", {4, 1, 0, 0, 0, 2, 0, 0, 2, 2, 1, 0, 2, 0});
    EXPECT_TRUE(IsClosed(body));
    EXPECT_LT(Unevenness(body), 1e-12);
    EXPECT_EQ(body.faces.size(), 8U);
    EXPECT_NEAR(Volume(body), 4.0, 1e-12);
}

TEST(HillPrism, LeansInwardsAtItsTop) {
    const Numbers square = {0, 0, 15, 4, 0, 15, 4, 4, 15, 0, 4, 15};
    // Upright for 1 m, then a frustum of 1 m, from 4 m to 2 m wide.
    const double volume = 16.0 + (16.0 + 4.0 + 8.0) / 3.0;
    const Host::Body body = Built("FPRISM_", Numbers{1, 2, 3, 4, 4, 2, 45, 1} + square);
    ExpectSolid(body, volume);
    EXPECT_NEAR(SurfaceArea(body, 1), 4.0, 1e-12);
    EXPECT_NEAR(SurfaceArea(body, 4), 12.0 * std::sqrt(2.0), 1e-9);
    ExpectSolid(Built("HPRISM_", Numbers{1, 2, 3, 4, 4, 2, 45, 1, 1} + square), volume);
    const Host::Body round = Built("FPRISM_", Numbers{1, 2, 3, 4, 4, 2, 0, 1} + square);
    EXPECT_TRUE(IsClosed(round));
    EXPECT_EQ(FaceCount(round, 4), 36);
    EXPECT_NEAR(SurfaceArea(round, 1), 4.0, 1e-9);
    ExpectSolid(Built("FPRISM_", Numbers{1, 2, 3, 4, 4, 2, 45, 0} + square), 32.0);
    EXPECT_EQ(Refusal("FPRISM_", Numbers{1, 2, 3, 4, 4, 5, 45, 3} + square),
              "a borda inclinada é mais larga do que o polígono");
    EXPECT_EQ(Refusal("FPRISM_", Numbers{1, 2, 3, 4, 4, 2, 45, 2} + square),
              "a altura da borda deve ser menor do que a espessura");
    EXPECT_EQ(Refusal("FPRISM_", Numbers{1, 2, 3, 4, 4, 2, 90, 1} + square),
              "a inclinação da borda deve ficar entre 0 e 90 graus");
}

TEST(HillPrism, LeansAwayFromItsHoles) {
    const Host::Body body = Built("FPRISM_", Numbers{1, 2, 3, 4, 10, 1, 45, 0.25} + HoledSquare);
    EXPECT_TRUE(IsClosed(body));
    EXPECT_NEAR(SurfaceArea(body, 1), 3.5 * 3.5 - 2.5 * 2.5, 1e-9);
    EXPECT_EQ(Refusal("FPRISM_", Numbers{1, 2, 3, 4, 10, 2, 45, 2.0 - 1e-3} + HoledSquare),
              "a borda inclinada é mais larga do que o polígono");
}

TEST(BentPrism, LiesAroundACylinder) {
    const Numbers square = {-1, 0, 15, 1, 0, 15, 1, 2, 15, -1, 2, 15};
    for (const double radius : {3.0, -3.0}) {
        const Host::Body body = Built("BPRISM_", Numbers{1, 2, 3, 4, 0.5, radius} + square);
        EXPECT_TRUE(IsClosed(body));
        EXPECT_LT(Unevenness(body), 1e-9);
        const double outer = std::abs(radius + 0.5);
        const double sector = std::abs(outer * outer - 9.0) / 2.0 * (2.0 / 3.0) * 2.0;
        EXPECT_NEAR(Volume(body), sector, 0.01 * sector);
        for (const Host::Coordinate3D& vertex : body.vertices) {
            const double distance = std::hypot(vertex.x, vertex.z + radius);
            EXPECT_NEAR(std::min(std::abs(distance - 3.0), std::abs(distance - outer)), 0.0, 1e-9);
            EXPECT_EQ(vertex.z > -0.4 || radius > 0.0, true);
        }
        EXPECT_GE(FaceCount(body, 1), 4);
    }
    EXPECT_EQ(Refusal("BPRISM_", Numbers{1, 2, 3, 4, 0.5, -0.5} + square),
              "a altura do prisma passa do raio da curva");
    EXPECT_EQ(Refusal("BPRISM_", Numbers{1, 2, 3, 4, 0.5, 0.0} + square),
              "a altura do prisma passa do raio da curva");
    EXPECT_EQ(Refusal("BPRISM_", Numbers{1, 2, 3, 4, 0.5, 0.1} + square),
              "o prisma dá mais de uma volta no cilindro");
}

TEST(BentPrism, LeavesOutSidesAndHasHoles) {
    const Numbers open = {-1, 0, 15, 1, 0, 7, 1, 2, 15, -1, 2, 15};
    const Host::Body body = Built("BPRISM_", Numbers{1, 2, 3, 4, 0.5, 3.0} + open);
    for (const Host::BodyFace& face : body.faces) {
        if (face.surface == 1) {
            EXPECT_GT(DoubledArea(body, face).z, 0.0);
        }
    }
    const Host::Body holed = Built("BPRISM_", Numbers{1, 2, 3, 10, 0.5, 3.0} + HoledSquare);
    EXPECT_TRUE(IsClosed(holed));
    EXPECT_NEAR(Volume(holed), 12.0 * 0.5 * 3.25 / 3.0, 0.1);
}

} // namespace
} // namespace Merivane::Workbench
