#include <algorithm>
#include <cmath>
#include <numbers>
#include <string_view>

#include <gtest/gtest.h>

#include "BodyChecks.hpp"
#include "Workbench/Bodies/GivenBodies.hpp"

namespace Merivane::Workbench {
namespace {

using namespace Merivane::Tests;

/// A tetrahedron of 2 m3: 2 m along x, 3 m along y, 2 m up.
GivenBody Tetrahedron() {
    GivenBody body;
    body.vertices = {{0, 0, 0}, {2, 0, 0}, {0, 3, 0}, {0, 0, 2}};
    body.faces = {{{{0, 2, 1}}, {4}, ""},
                  {{{0, 1, 3}}, {}, "Difusor"},
                  {{{0, 3, 2}}, {}, ""},
                  {{{1, 2, 3}}, {}, "Nenhures"}};
    return body;
}

std::int32_t Number(std::string_view name) {
    return name == "Difusor" ? Host::FirstScriptSurface + 7 : -1;
}

ProjectPart Part() {
    ProjectPart part;
    part.sizeA = 2.0;
    part.sizeB = 3.0;
    part.bodies = {Tetrahedron()};
    return part;
}

TEST(GivenBody, KeepsItsFacesAndNumbersThePartsOwnSurfaces) {
    const Host::Body body = Unplaced(BuildGivenBody(Tetrahedron(), Number));
    EXPECT_TRUE(IsClosed(body));
    EXPECT_EQ(body.edges.size(), 6U);
    EXPECT_NEAR(Volume(body), 2.0, 1e-12);
    EXPECT_EQ(body.faces[0].surface, 4);
    EXPECT_EQ(body.faces[1].surface, 1'000'007);
    EXPECT_EQ(body.faces[2].surface, -1);
    EXPECT_EQ(body.faces[3].surface, -1);
}

TEST(GivenBody, LeavesOutFacesOfVerticesThatItDoesNotHave) {
    GivenBody given = Tetrahedron();
    given.faces[0].contours[0][1] = 4;
    given.faces[1].contours[0][1] = -1;
    EXPECT_EQ(BuildGivenBody(given, Number).faces.size(), 2U);
}

TEST(GivenBody, SharesAnEdgeBetweenTwoFacesOnlyEvenWhereFourMeet) {
    // Two tetrahedra that meet along one side.
    GivenBody given = Tetrahedron();
    given.vertices.push_back({0, -3, 0});
    given.vertices.push_back({-2, 0, 0});
    for (const auto& contour :
         {std::vector<std::int32_t>{0, 4, 5}, {0, 3, 4}, {0, 5, 3}, {5, 4, 3}}) {
        given.faces.push_back({{contour}, {}, ""});
    }
    const Host::Body body = Unplaced(BuildGivenBody(given, Number));
    EXPECT_TRUE(IsClosed(body));
    EXPECT_EQ(body.edges.size(), 12U);
    EXPECT_NEAR(Volume(body), 4.0, 1e-12);
}

TEST(MorphBody, IsLiftedByTheMorphAndTakesItsSurface) {
    Host::MorphBody morph;
    const GivenBody given = Tetrahedron();
    morph.vertices = given.vertices;
    for (const GivenFace& face : given.faces) {
        morph.faces.push_back({face.contours, face.surface});
    }
    const Host::Body body = Unplaced(BuildMorphBody({{9}, 1.5}, morph));
    EXPECT_TRUE(IsClosed(body));
    EXPECT_NEAR(Volume(body), 2.0, 1e-12);
    EXPECT_EQ(body.vertices[3], (Host::Coordinate3D{0, 0, 3.5}));
    EXPECT_EQ(body.faces[0].surface, 4);
    EXPECT_EQ(body.faces[1].surface, 9);
}

Host::Body Placed(const Host::ObjectData& object, double storyLevel) {
    FacedBody faced = BuildGivenBody(Tetrahedron(), Number);
    FitToObject(faced, Part(), object);
    return MakeBody(faced, PlaceObject(object, storyLevel));
}

TEST(ObjectBody, IsStretchedFromThePartsSizesToItsOwn) {
    Host::ObjectData object;
    object.sizeA = 1.0;
    object.sizeB = 6.0;
    const Host::Body body = Placed(object, 0.0);
    EXPECT_TRUE(IsClosed(body));
    EXPECT_EQ(body.vertices[1], (Host::Coordinate3D{1, 0, 0}));
    EXPECT_EQ(body.vertices[2], (Host::Coordinate3D{0, 6, 0}));
    EXPECT_EQ(body.vertices[3], (Host::Coordinate3D{0, 0, 2}));
    EXPECT_NEAR(Volume(body), 2.0, 1e-12);
}

TEST(ObjectBody, IsMirroredThenTurnedThenMoved) {
    Host::ObjectData object;
    object.sizeA = 2.0;
    object.sizeB = 3.0;
    object.mirrored = true;
    object.angle = std::numbers::pi / 2.0;
    object.position = {10.0, 20.0};
    object.level = 0.7;
    const Host::Body body = Placed(object, 3.0);
    EXPECT_TRUE(IsClosed(body));
    EXPECT_NEAR(Volume(body), 2.0, 1e-12);
    // (2, 0, 0) goes to (-2, 0, 0), then to (0, -2, 0).
    const Host::Coordinate3D place = TransformPlace(body.transform, body.vertices[1]);
    EXPECT_NEAR(place.x, 10.0, 1e-12);
    EXPECT_NEAR(place.y, 18.0, 1e-12);
    EXPECT_NEAR(place.z, 3.7, 1e-12);
}

TEST(ObjectBody, LooksOutsideHoweverItIsMirrored) {
    for (const bool mirrored : {false, true}) {
        for (const double sizeA : {2.0, -2.0}) {
            for (const double sizeB : {3.0, -3.0}) {
                Host::ObjectData object;
                object.mirrored = mirrored;
                object.sizeA = sizeA;
                object.sizeB = sizeB;
                const Host::Body body = Placed(object, 0.0);
                EXPECT_TRUE(IsClosed(body));
                EXPECT_NEAR(Volume(body), 2.0, 1e-12);
            }
        }
    }
}

TEST(ObjectBody, IsNotStretchedWhereItsPartHasNoSize) {
    ProjectPart part = Part();
    part.sizeA = 0.0;
    FacedBody faced = BuildGivenBody(Tetrahedron(), Number);
    Host::ObjectData object;
    object.sizeA = 5.0;
    object.sizeB = 3.0;
    FitToObject(faced, part, object);
    EXPECT_EQ(faced.vertices[1].x, 2.0);
}

} // namespace
} // namespace Merivane::Workbench
