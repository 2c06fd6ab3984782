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

Numbers operator+(Numbers a, const Numbers& b) {
    a.insert(a.end(), b.begin(), b.end());
    return a;
}

const Numbers ClosedSquare = {0, 0, 0, 2, 0, 0, 2, 2, 0, 0, 2, 0, 0, 0, -1};
const Numbers OpenSquare = {0, 0, 0, 2, 0, 0, 2, 2, 0, 0, 2, 0};
const Numbers HoledSquare = {0, 0, 0, 4, 0, 0, 4, 4, 0, 0, 4, 0, 0, 0, -1,
                             1, 1, 0, 3, 1, 0, 3, 3, 0, 1, 3, 0, 1, 1, -1};

TEST(Extrusion, IsAnObliquePrism) {
    for (const double height : {3.0, -3.0}) {
        const Host::Body body =
            Built("EXTRUDE", Numbers{5, 1, 0.5, height, 1 + 2 + 16 + 32} + ClosedSquare);
        ExpectSolid(body, 12.0);
        EXPECT_EQ(EulerCharacteristic(body), 2);
    }
    ExpectSolid(Built("EXTRUDE", Numbers{10, 0, 0, 1, 3} + HoledSquare), 12.0);
    EXPECT_EQ(Refusal("EXTRUDE", Numbers{5, 0, 0, 0, 3} + ClosedSquare), "");
}

TEST(Extrusion, KeepsTheFacesOfItsMask) {
    const auto faces = [](double mask, const Numbers& rows) {
        const std::size_t count = rows.size() / 3; // x, y, status
        return Built("EXTRUDE", Numbers{static_cast<double>(count), 0, 0, 1, mask} + rows)
            .faces.size();
    };
    EXPECT_EQ(faces(7, OpenSquare), 6U);
    EXPECT_EQ(faces(3, OpenSquare), 5U);
    EXPECT_EQ(faces(4, OpenSquare), 4U);
    EXPECT_EQ(faces(1, OpenSquare), 4U);
    EXPECT_EQ(faces(0, OpenSquare), 3U);
    EXPECT_EQ(faces(0, ClosedSquare), 4U);
    ExpectSolid(Built("EXTRUDE", Numbers{4, 0, 0, 1, 7} + OpenSquare), 4.0);
    // Whichever way the line runs, what is there looks outside.
    const Host::Body open =
        Built("EXTRUDE", Numbers{4, 0, 0, 1, 2, 0, 2, 0, 2, 2, 0, 2, 0, 0, 0, 0, 0});
    for (const Host::BodyFace& face : open.faces) {
        const Host::Coordinate3D area = DoubledArea(open, face);
        const Host::Coordinate3D place = FaceContours(open, face)[0][0];
        EXPECT_GE(area.x * (place.x - 1.0) + area.y * (place.y - 1.0) + area.z, 0.0);
    }
    const Host::Body strip = Built("EXTRUDE", {2, 0, 0, 1, 0, 0, 0, 0, 2, 0, 0});
    ASSERT_EQ(strip.faces.size(), 1U);
    EXPECT_NEAR(FaceArea(strip, strip.faces[0]), 2.0, 1e-12);
}

TEST(Pyramid, HasOnePeak) {
    for (const double height : {3.0, -3.0}) {
        const Host::Body body = Built("PYRAMID", Numbers{5, height, 1 + 4} + ClosedSquare);
        ExpectSolid(body, 4.0);
        EXPECT_EQ(body.vertices.size(), 5U);
        EXPECT_EQ(body.faces.size(), 5U);
        EXPECT_EQ(EulerCharacteristic(body), 2);
    }
    EXPECT_EQ(Built("PYRAMID", Numbers{5, 3, 0} + ClosedSquare).faces.size(), 4U);
    EXPECT_EQ(Built("PYRAMID", Numbers{4, 3, 0} + OpenSquare).faces.size(), 3U);
    const Host::Body flat = Built("PYRAMID", Numbers{5, 0, 1} + ClosedSquare);
    ASSERT_EQ(flat.faces.size(), 1U);
    EXPECT_GT(DoubledArea(flat, flat.faces[0]).z, 0.0);
    ExpectSolid(Built("PYRAMID", Numbers{10, 3, 1} + HoledSquare), 12.0);
}

TEST(Revolved, IsACylinderOfItsProfile) {
    const double disc = 18.0 * std::sin(Pi / 18.0);
    for (const Numbers& profile : {Numbers{0, 1, 2, 3, 1, 2}, {3, 1, 2, 0, 1, 2}}) {
        const Host::Body body = Built("REVOLVE", Numbers{2, 360, 3} + profile);
        ExpectSolid(body, 3.0 * disc);
        EXPECT_EQ(Built("REVOLVE", Numbers{2, 360, 0} + profile).faces.size(), 36U);
    }
    for (const double angle : {90.0, -90.0}) {
        const Host::Body quarter = Built("REVOLVE", {2, angle, 15, 0, 1, 2, 3, 1, 2});
        ExpectSolid(quarter, 3.0 * disc / 4.0);
        EXPECT_EQ(EulerCharacteristic(quarter), 2);
        const Numbers extent = Extent(quarter);
        EXPECT_NEAR(extent[2], std::min(0.0, angle / 90.0), 1e-12);
        EXPECT_NEAR(extent[5], std::max(0.0, angle / 90.0), 1e-12);
    }
}

TEST(Revolved, KeepsTheFacesOfItsMask) {
    // A quarter of a frustum: 9 sides; each bit adds one face, of a known place.
    const auto sidesAt = [](double mask, double x) {
        const Host::Body body = Built("REVOLVE", {2, 90, mask, 0, 2, 2, 3, 1, 2});
        int count = 0;
        for (const Host::BodyFace& face : body.faces) {
            bool all = true;
            const auto contours = FaceContours(body, face);
            for (const Host::Coordinate3D& place : contours[0]) {
                all = all && place.x == x;
            }
            count += all ? 1 : 0;
        }
        return count;
    };
    EXPECT_EQ(Built("REVOLVE", {2, 90, 0, 0, 2, 2, 3, 1, 2}).faces.size(), 9U);
    EXPECT_EQ(sidesAt(1, 0.0), 9);
    EXPECT_EQ(sidesAt(1, 3.0), 0);
    EXPECT_EQ(sidesAt(2, 0.0), 0);
    EXPECT_EQ(sidesAt(2, 3.0), 9);
    EXPECT_EQ(Built("REVOLVE", {2, 90, 4, 0, 2, 2, 3, 1, 2}).faces.size(), 10U);
    EXPECT_EQ(Built("REVOLVE", {2, 90, 12, 0, 2, 2, 3, 1, 2}).faces.size(), 11U);
    // What is there looks away from the axis.
    const Host::Body open = Built("REVOLVE", {2, 360, 0, 3, 1, 2, 0, 2, 2});
    for (const Host::BodyFace& face : open.faces) {
        const Host::Coordinate3D area = DoubledArea(open, face);
        const Host::Coordinate3D place = FaceContours(open, face)[0][0];
        EXPECT_GT(area.y * place.y + area.z * place.z, 0.0);
    }
}

TEST(Revolved, HasOneVertexWhereItMeetsTheAxis) {
    const Host::Body cone = Built("REVOLVE", {3, 360, 0, 0, 0, 2, 2, 1, 2, 4, 0, 2});
    EXPECT_TRUE(IsClosed(cone));
    EXPECT_EQ(cone.vertices.size(), 38U);
    EXPECT_EQ(EulerCharacteristic(cone), 2);
    EXPECT_EQ(Refusal("REVOLVE", {2, 360, 3, 0, -1, 2, 3, 1, 2}),
              "os pontos devem ficar no eixo x ou acima dele");
    EXPECT_EQ(Refusal("REVOLVE", {2, 0, 3, 0, 1, 2, 3, 1, 2}), "");
    EXPECT_EQ(Refusal("REVOLVE", {2, 360, 3, 0, 0, 2, 3, 0, 2}), "");
    const Numbers holed = {0, 1, 2, 4, 1, 2, 4, 5, 2, 0, 1, -1,
                           2, 2, 2, 3, 2, 2, 3, 3, 2, 2, 2, -1};
    EXPECT_EQ(Refusal("REVOLVE", Numbers{8, 360, 3} + holed), "o perfil não pode ter furos");
}

TEST(Revolved, IsARingOfAClosedProfile) {
    const Numbers square = {0, 1, 0, 1, 1, 0, 1, 2, 0, 0, 2, 0, 0, 1, -1};
    const double disc = 18.0 * std::sin(Pi / 18.0);
    const Host::Body ring = Built("REVOLVE", Numbers{5, 360, 0} + square);
    ExpectSolid(ring, 3.0 * disc);
    EXPECT_EQ(EulerCharacteristic(ring), 0);
    ExpectSolid(Built("REVOLVE", Numbers{5, 180, 12} + square), 1.5 * disc);
}

TEST(RevolvedPolygon, HasSurfacesOfItsOwnAndHoles) {
    const Numbers rows = {0, 1, 2, 11, 4, 1, 2, 12, 4, 5, 2, 13, 0, 5, 2, 14, 0, 1, -1, 0,
                          1, 2, 2, 15, 3, 2, 2, 15, 3, 4, 2, 15, 1, 4, 2, 15, 1, 2, -1, 0};
    const Host::Body body = Built("REVOLVE{2}", Numbers{10, 45, 90, 12, 9} + rows);
    EXPECT_TRUE(IsClosed(body));
    for (const std::int32_t surface : {11, 12, 13, 14}) {
        EXPECT_EQ(FaceCount(body, surface), 9) << surface;
    }
    EXPECT_EQ(FaceCount(body, 15), 36);
    EXPECT_EQ(FaceCount(body, 9), 2);
    const double disc = 18.0 * std::sin(Pi / 18.0);
    EXPECT_NEAR(Volume(body), disc / 4.0 * (4.0 * 24.0 - 2.0 * 12.0), 1e-9);
    const Numbers extent = Extent(body);
    EXPECT_NEAR(extent[4], 5.0 * std::sqrt(0.5), 1e-12); // from 45 degrees on
    EXPECT_EQ(Built("REVOLVE{2}", Numbers{10, 45, 90, 0, 9} + rows).faces.size(), 72U);
}

TEST(Ruled, JoinsTwoLines) {
    // A square to the same square turned by 45 degrees: its sides are not plane.
    const double r = std::sqrt(2.0);
    const Numbers lines = {-1, -1, 0, 1, -1, 0, 1, 1, 0, -1, 1, 0, -1, -1, 0,
                           0,  -r, 1, r, 0,  1, 0, r, 1, -r, 0, 1, 0,  -r, 1};
    for (const char* const keyword : {"RULED", "RULED{2}"}) {
        const Host::Body body = Built(keyword, Numbers{5, 3} + lines);
        // Half way up it is a regular octagon with sides of 1 m.
        ExpectSolid(body, (4.0 + 4.0 * 2.0 * (1.0 + r) + 4.0) / 6.0);
        EXPECT_EQ(body.faces.size(), 10U);
    }
    EXPECT_EQ(Built("RULED", Numbers{5, 0} + lines).faces.size(), 8U);
    const Host::Body strip = Built("RULED", {2, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 1, 0, 1});
    ASSERT_EQ(strip.faces.size(), 1U);
    EXPECT_NEAR(FaceArea(strip, strip.faces[0]), 1.0, 1e-12);
    const Host::Body tent =
        Built("RULED", {3, 7, 0, 0, 0, 2, 0, 0, 2, 2, 0, 1, 1, 3, 1, 1, 3, 1, 1, 3});
    ExpectSolid(tent, 2.0);
    EXPECT_EQ(tent.faces.size(), 4U);
    EXPECT_EQ(Refusal("RULED", {2, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 1, 0}),
              "pede pelo menos 14 argumentos e tem 13");
}

TEST(Sweep, FollowsItsPath) {
    // Straight up it is a prism, wherever the path begins.
    ExpectSolid(
        Built("SWEEP", Numbers{5, 3, 0, 1, 3} + ClosedSquare + Numbers{0, 0, 5, 0, 0, 6, 0, 0, 8}),
        12.0);
    // Scaled by half at each place: a frustum of a pyramid.
    const Host::Body frustum =
        Built("SWEEP", Numbers{5, 2, 0, 0.5, 3} + ClosedSquare + Numbers{0, 0, 0, 0, 0, 3});
    ExpectSolid(frustum, 3.0 / 3.0 * (4.0 + 1.0 + 2.0));
    EXPECT_NEAR(Extent(frustum)[5], 3.0, 1e-12);
    // Turned by a quarter of a turn in many places.
    const Host::Body turned =
        Built("SWEEP", Numbers{5, 3, 45, 1, 3} + ClosedSquare + Numbers{0, 0, 0, 0, 0, 1, 0, 0, 2});
    EXPECT_TRUE(IsClosed(turned));
    EXPECT_LT(Unevenness(turned), 1e-9);
    EXPECT_EQ(turned.faces.size(), 2U + 16U);
    EXPECT_EQ(Built("SWEEP", Numbers{4, 2, 0, 1, 4} + OpenSquare + Numbers{0, 0, 0, 0, 0, 3})
                  .faces.size(),
              4U);
    EXPECT_EQ(Refusal("SWEEP", Numbers{5, 2, 0, 1, 3} + ClosedSquare + Numbers{0, 0, 0, 0, 0, 0}),
              "");
    EXPECT_EQ(Refusal("SWEEP", Numbers{5, 2, 0, 1, 3} + ClosedSquare + Numbers{0, 0, 0, 0, 0}),
              "pede 26 argumentos e tem 25");
}

TEST(Sweep, StandsSquareToTheWayItCame) {
    const Host::Body body =
        Built("SWEEP", Numbers{5, 3, 0, 1, 3} + ClosedSquare + Numbers{0, 0, 0, 0, 0, 5, 6, 0, 5});
    EXPECT_TRUE(IsClosed(body));
    int last = 0;
    for (const Host::Coordinate3D& vertex : body.vertices) {
        last += std::abs(vertex.x - 6.0) < 1e-12 ? 1 : 0;
    }
    EXPECT_EQ(last, 4);
}

TEST(Tube, KeepsItsSectionAroundCorners) {
    const Numbers profile = {-0.1, -0.1, 0,   0.1, -0.1, 0,    0.1, 0.1,
                             0,    -0.1, 0.1, 0,   -0.1, -0.1, -1};
    // Straight: the outer places only give the directions.
    const Host::Body bar =
        Built("TUBE", Numbers{5, 4, 3} + profile +
                          Numbers{-1, 0, 0, 0, 0, 0, 0, 0, 3, 0, 0, 0, 4, 0, 0, 0});
    ExpectSolid(bar, 0.04 * 3.0);
    const Numbers extent = Extent(bar);
    EXPECT_NEAR(extent[0], 0.0, 1e-12);
    EXPECT_NEAR(extent[3], 3.0, 1e-12);
    // An L has the volume of its middle line; so has one that goes up.
    const Host::Body corner =
        Built("TUBEA",
              Numbers{5, 5, 3} + profile + Numbers{-1, 0, 0, 0, 0, 0, 2, 0, 0, 2, 2, 0, 2, 3, 0});
    ExpectSolid(corner, 0.04 * 4.0);
    const Host::Body rising =
        Built("TUBEA",
              Numbers{5, 5, 3} + profile + Numbers{-1, 0, 0, 0, 0, 0, 2, 0, 0, 2, 0, 2, 2, 0, 3});
    ExpectSolid(rising, 0.04 * 4.0);
    // Directions at the ends cut them obliquely.
    const Host::Body oblique =
        Built("TUBEA", Numbers{5, 4, 3} + profile + Numbers{0, -1, 0, 0, 0, 0, 3, 0, 0, 4, 0, 0});
    ExpectSolid(oblique, 0.04 * 3.0);
    EXPECT_NEAR(Extent(oblique)[0], -0.1, 1e-12);
}

TEST(Tube, IsTurnedByItsAnglesAndHasItsProfileUpright) {
    const Numbers profile = {0, 0, 0, 0.5, 0, 0, 0.5, 1, 0, 0, 1, 0, 0, 0, -1};
    const Host::Body body =
        Built("TUBE", Numbers{5, 4, 3} + profile +
                          Numbers{-1, 0, 0, 0, 0, 0, 0, 0, 3, 0, 0, 0, 4, 0, 0, 0});
    const Numbers upright = {0, 0, 0, 3, 0.5, 1};
    const Numbers turned = {0, -1, 0, 3, 0, 0.5};
    for (std::size_t i = 0; i < upright.size(); ++i) {
        EXPECT_NEAR(Extent(body)[i], upright[i], 1e-12);
    }
    const Host::Body quarter =
        Built("TUBE", Numbers{5, 4, 3} + profile +
                          Numbers{-1, 0, 0, 90, 0, 0, 0, 90, 3, 0, 0, 90, 4, 0, 0, 90});
    for (std::size_t i = 0; i < turned.size(); ++i) {
        EXPECT_NEAR(Extent(quarter)[i], turned[i], 1e-12);
    }
    EXPECT_EQ(
        Built("TUBEA", Numbers{5, 4, 0} + profile + Numbers{-1, 0, 0, 0, 0, 0, 3, 0, 0, 4, 0, 0})
            .faces.size(),
        4U);
    EXPECT_EQ(Refusal("TUBEA", Numbers{5, 3, 0} + profile + Numbers{-1, 0, 0, 0, 0, 0, 3, 0, 0}),
              "");
    EXPECT_EQ(Refusal("TUBEA", Numbers{5, 2, 0} + profile + Numbers{-1, 0, 0, 0, 0, 0}),
              "o número de pontos deve ser inteiro e pelo menos 3");
}

} // namespace
} // namespace Merivane::Workbench
