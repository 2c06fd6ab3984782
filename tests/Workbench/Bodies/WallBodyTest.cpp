#include <cmath>
#include <numbers>
#include <random>
#include <vector>

#include <gtest/gtest.h>

#include "BodyChecks.hpp"
#include "Workbench/Bodies/PolygonRings.hpp"
#include "Workbench/Bodies/WallBody.hpp"

namespace Merivane::Workbench {
namespace {

using namespace Merivane::Tests;

// Surfaces: 1 left, 2 right, 3 edges; 4 frames, 5 panes.
WallGeometry Wall(double length = 5.0, double bend = 0.0) {
    return {{1.0, 2.0}, {1.0 + length, 2.0}, bend, 0.2, 0.1, 2.8, {1}, {2}, {3}};
}

OpeningGeometry Window(double along, double width, double sill, double height) {
    OpeningGeometry opening;
    opening.along = along;
    opening.width = width;
    opening.sill = sill;
    opening.height = height;
    opening.frameSurface = {4};
    opening.paneSurface = {5};
    return opening;
}

/// Volume of a bent wall whose chords stand for these angles: each is a trapezium in plan.
double ChordVolume(double radius, double thickness, double height, int chords, double bend) {
    return chords * std::sin(std::abs(bend) / chords) * radius * thickness * height;
}

TEST(WallBody, IsABoxWithoutOpenings) {
    const Host::Body body = Unplaced(BuildWallBody(Wall(), {}));
    EXPECT_TRUE(IsClosed(body));
    EXPECT_EQ(body.vertices.size(), 8U);
    EXPECT_EQ(body.edges.size(), 12U);
    EXPECT_EQ(body.faces.size(), 6U);
    EXPECT_NEAR(Volume(body), 5.0 * 0.2 * 2.8, 1e-12);
    EXPECT_NEAR(SurfaceArea(body, 1), 5.0 * 2.8, 1e-12);
    EXPECT_NEAR(SurfaceArea(body, 2), 5.0 * 2.8, 1e-12);
    EXPECT_NEAR(SurfaceArea(body, 3), 2.0 * 0.2 * (5.0 + 2.8), 1e-12);
}

TEST(WallBody, HasItsLeftSurfaceOnTheLeftOfItsLine) {
    const Host::Body body = Unplaced(BuildWallBody(Wall(), {}));
    for (const Host::BodyFace& face : body.faces) {
        const double y = FaceContours(body, face)[0][0].y;
        const double normal = DoubledArea(body, face).y;
        if (face.surface == 1) {
            EXPECT_DOUBLE_EQ(y, 2.1);
            EXPECT_GT(normal, 0.0);
        } else if (face.surface == 2) {
            EXPECT_DOUBLE_EQ(y, 1.9);
            EXPECT_LT(normal, 0.0);
        }
    }
}

TEST(WallBody, StandsFromItsBottomUp) {
    for (const Host::Coordinate3D& vertex : BuildWallBody(Wall(), {}).vertices) {
        EXPECT_TRUE(vertex.z == 0.1 || vertex.z == 0.1 + 2.8) << vertex.z;
    }
}

TEST(WallBody, HasAHoleInItsFacesWhereAWindowLiesInside) {
    const Host::Body body = Unplaced(BuildWallBody(Wall(), {Window(2.0, 1.2, 0.9, 1.1)}));
    EXPECT_TRUE(IsClosed(body));
    EXPECT_EQ(body.faces.size(), 10U);
    EXPECT_NEAR(Volume(body), (5.0 * 2.8 - 1.2 * 1.1) * 0.2, 1e-12);
    EXPECT_NEAR(SurfaceArea(body, 1), 5.0 * 2.8 - 1.2 * 1.1, 1e-12);
    EXPECT_NEAR(SurfaceArea(body, 3), 2.0 * 0.2 * (5.0 + 2.8 + 1.2 + 1.1), 1e-12);
    for (const Host::BodyFace& face : body.faces) {
        EXPECT_EQ(FaceContours(body, face).size(), face.surface == 3 ? 1U : 2U);
    }
}

TEST(WallBody, HasAnOutlineCutOutWhereADoorReachesItsBottom) {
    const Host::Body body = Unplaced(BuildWallBody(Wall(), {Window(2.0, 0.9, 0.0, 2.1)}));
    EXPECT_TRUE(IsClosed(body));
    EXPECT_NEAR(Volume(body), (5.0 * 2.8 - 0.9 * 2.1) * 0.2, 1e-12);
    for (const Host::BodyFace& face : body.faces) {
        const auto contours = FaceContours(body, face);
        EXPECT_EQ(contours.size(), 1U);
        EXPECT_EQ(contours[0].size(), face.surface == 3 ? 4U : 8U);
    }
}

TEST(WallBody, FallsInTwoWhereAnOpeningGoesFromBottomToTop) {
    const Host::Body body = Unplaced(BuildWallBody(Wall(), {Window(2.0, 1.0, -0.5, 9.0)}));
    EXPECT_TRUE(IsClosed(body));
    EXPECT_EQ(body.faces.size(), 12U);
    EXPECT_NEAR(Volume(body), 4.0 * 2.8 * 0.2, 1e-12);
}

TEST(WallBody, IgnoresWhatLiesOutsideOfIt) {
    const Host::Body whole = Unplaced(BuildWallBody(Wall(), {}));
    for (const OpeningGeometry& opening :
         {Window(-1.0, 1.0, 0.9, 1.0), Window(6.0, 1.0, 0.9, 1.0), Window(2.0, 1.0, 2.8, 1.0),
          Window(2.0, 1.0, -1.0, 1.0), Window(2.0, 0.0, 1.0, 1.0), Window(2.0, -1.0, 1.0, 1.0)}) {
        EXPECT_EQ(Unplaced(BuildWallBody(Wall(), {opening})), whole);
    }
}

TEST(WallBody, CutsOpeningsThatOverlapOrTouchOnce) {
    struct Case {
        std::vector<OpeningGeometry> openings;
        double cut; // m2
    };
    const Case cases[] = {
        {{Window(2.0, 1.0, 1.0, 1.0), Window(2.5, 1.0, 1.0, 1.0)}, 1.5}, // overlap
        {{Window(2.0, 1.0, 1.0, 1.0), Window(3.0, 1.0, 1.0, 1.0)}, 2.0}, // a side in common
        {{Window(1.0, 1.0, 0.5, 0.5), Window(2.0, 1.0, 1.0, 0.5)}, 1.0}, // a corner in common
        {{Window(0.5, 1.0, 1.0, 1.0)}, 1.0},                             // at the begin
        {{Window(4.9, 1.0, 1.0, 3.0)}, 0.6 * 1.8},                       // over end and top
        {{Window(2.0, 2.0, 0.5, 1.5), Window(2.0, 1.0, 1.0, 0.5)}, 3.0}, // one inside the other
        {{Window(1.5, 1.0, 0.0, 1.0), Window(2.5, 1.0, 1.0, 1.8)}, 2.8}, // wall cut by a corner
    };
    for (const Case& c : cases) {
        const Host::Body body = Unplaced(BuildWallBody(Wall(), c.openings));
        EXPECT_TRUE(IsClosed(body));
        EXPECT_NEAR(Volume(body), (5.0 * 2.8 - c.cut) * 0.2, 1e-12);
        EXPECT_NEAR(SurfaceArea(body, 1), 5.0 * 2.8 - c.cut, 1e-12);
        EXPECT_NEAR(SurfaceArea(body, 2), 5.0 * 2.8 - c.cut, 1e-12);
    }
}

TEST(WallBody, KeepsOpeningsThatTouchByACornerTwoHoles) {
    const Host::Body body =
        Unplaced(BuildWallBody(Wall(), {Window(1.0, 1.0, 0.5, 0.5), Window(2.0, 1.0, 1.0, 0.5)}));
    for (const Host::BodyFace& face : body.faces) {
        EXPECT_EQ(FaceContours(body, face).size(), face.surface == 3 ? 1U : 3U);
    }
}

TEST(WallBody, FollowsAnArcInChords) {
    for (const double bend : {0.5, -0.5, 2.0, std::numbers::pi, -5.0}) {
        SCOPED_TRACE(bend);
        const WallGeometry wall = Wall(4.0, bend);
        const double radius = 2.0 / std::sin(std::abs(bend) / 2.0);
        const Host::Body body = Unplaced(BuildWallBody(wall, {}));
        const int chords = ChordCount(bend);
        EXPECT_TRUE(IsClosed(body));
        EXPECT_LT(Unevenness(body), 1e-9);
        EXPECT_EQ(FaceCount(body, 1), chords);
        EXPECT_EQ(FaceCount(body, 2), chords);
        EXPECT_NEAR(Volume(body), ChordVolume(radius, 0.2, 2.8, chords, bend), 1e-9);
        EXPECT_NEAR(WallLength(wall), radius * std::abs(bend), 1e-12);
    }
}

TEST(WallBody, BulgesToTheRightOfItsChordForACounterClockwiseBend) {
    // A half circle from (1, 2) to (5, 2): counter-clockwise it runs below.
    double lowest = 2.0;
    double highest = 2.0;
    for (const auto& vertex : BuildWallBody(Wall(4.0, std::numbers::pi), {}).vertices) {
        lowest = std::min(lowest, vertex.y);
        highest = std::max(highest, vertex.y);
    }
    EXPECT_NEAR(lowest, 2.0 - 2.1, 1e-12);
    EXPECT_NEAR(highest, 2.0, 1e-9);
}

TEST(WallBody, CutsAnArcAlongItsLength) {
    const double bend = 1.0;
    const WallGeometry wall = Wall(4.0, bend);
    const double length = WallLength(wall);
    const Host::Body whole = Unplaced(BuildWallBody(wall, {}));
    const Host::Body body = Unplaced(BuildWallBody(wall, {Window(length / 2.0, 1.5, 0.9, 1.0)}));
    EXPECT_TRUE(IsClosed(body));
    EXPECT_LT(Unevenness(body), 1e-9);
    // Chords shorten lengths by less than a thousandth.
    EXPECT_NEAR(Volume(whole) - Volume(body), 1.5 * 1.0 * 0.2, 0.001);
}

TEST(WallBody, IsEmptyWhereNothingCanStand) {
    WallGeometry thin = Wall();
    thin.thickness = 0.0;
    WallGeometry flat = Wall();
    flat.height = -1.0;
    WallGeometry round = Wall(4.0, 2.0 * std::numbers::pi);
    WallGeometry folded = Wall(0.1, std::numbers::pi);
    for (const WallGeometry& wall : {Wall(0.0), thin, flat, round, folded}) {
        EXPECT_FALSE(IsSoundWall(wall));
        EXPECT_TRUE(BuildWallBody(wall, {}).faces.empty());
    }
}

TEST(WallBody, IsClosedWhateverIsCutOut) {
    std::mt19937 random(7);
    const auto between = [&](double low, double high) {
        return std::uniform_real_distribution<double>(low, high)(random);
    };
    for (int round = 0; round < 300; ++round) {
        WallGeometry wall = Wall(between(1.0, 9.0), round % 2 == 0 ? 0.0 : between(-3.0, 3.0));
        std::vector<OpeningGeometry> openings;
        openings.reserve(7);
        for (int i = 0; i < round % 7; ++i) {
            // Steps of a quarter make sides and corners meet.
            openings.push_back(Window(std::floor(between(-1.0, 10.0) * 4.0) / 4.0,
                                      std::floor(between(0.0, 3.0) * 4.0) / 4.0,
                                      std::floor(between(-1.0, 3.0) * 4.0) / 4.0,
                                      std::floor(between(0.0, 3.0) * 4.0) / 4.0));
        }
        const FacedBody faced = BuildWallBody(wall, openings);
        if (faced.faces.empty()) {
            continue;
        }
        const Host::Body body = Unplaced(faced);
        EXPECT_TRUE(IsClosed(body)) << round;
        EXPECT_LT(Unevenness(body), 1e-9) << round;
        EXPECT_GT(Volume(body), 0.0) << round;
        if (wall.bend == 0.0) {
            EXPECT_NEAR(Volume(body), SurfaceArea(body, 1) * 0.2, 1e-9) << round;
        }
    }
}

TEST(OpeningBody, IsAFrameAroundAPaneOfTwoFaces) {
    const Host::Body body = Unplaced(BuildOpeningBody(Wall(), Window(2.0, 1.2, 0.9, 1.1)));
    EXPECT_TRUE(IsClosed(body));
    EXPECT_NEAR(Volume(body), 1.2 * 1.1 * 0.05, 1e-12);
    EXPECT_EQ(FaceCount(body, 5), 2);
    EXPECT_NEAR(SurfaceArea(body, 5), 2.0 * 1.1 * 1.0, 1e-12);
    EXPECT_EQ(FaceCount(body, 4), 6);
    EXPECT_NEAR(SurfaceArea(body, 4), 2.0 * (1.2 * 1.1 - 1.1 * 1.0) + 2.0 * 0.05 * (1.2 + 1.1),
                1e-12);
}

TEST(OpeningBody, StandsInTheMiddleOfTheWall) {
    const Host::Body body = Unplaced(BuildOpeningBody(Wall(), Window(2.0, 1.2, 0.9, 1.1)));
    for (const Host::Coordinate3D& vertex : body.vertices) {
        EXPECT_NEAR(std::abs(vertex.y - 2.0), 0.025, 1e-12);
        EXPECT_GE(vertex.x, 1.0 + 2.0 - 0.6 - 1e-12);
        EXPECT_LE(vertex.x, 1.0 + 2.0 + 0.6 + 1e-12);
        EXPECT_GE(vertex.z, 0.1 + 0.9 - 1e-12);
        EXPECT_LE(vertex.z, 0.1 + 2.0 + 1e-12);
    }
}

TEST(OpeningBody, HasNoFrameMemberAtTheWallsBottom) {
    const Host::Body body = Unplaced(BuildOpeningBody(Wall(), Window(2.0, 0.9, 0.0, 2.1)));
    EXPECT_TRUE(IsClosed(body));
    EXPECT_NEAR(SurfaceArea(body, 5), 2.0 * 0.8 * 2.05, 1e-12);
}

TEST(OpeningBody, IsAllPaneWithoutAFrameAndAllFrameWithoutRoomForAPane) {
    OpeningGeometry opening = Window(2.0, 1.0, 1.0, 1.0);
    opening.frame = 0.0;
    EXPECT_NEAR(SurfaceArea(Unplaced(BuildOpeningBody(Wall(), opening)), 5), 2.0, 1e-12);
    opening.frame = 0.5;
    const Host::Body frame = Unplaced(BuildOpeningBody(Wall(), opening));
    EXPECT_TRUE(IsClosed(frame));
    EXPECT_EQ(FaceCount(frame, 5), 0);
    EXPECT_EQ(frame.faces.size(), 6U);
}

TEST(OpeningBody, IsNothingForAnEmptyOpening) {
    OpeningGeometry opening = Window(2.0, 1.0, 1.0, 1.0);
    opening.open = true;
    EXPECT_TRUE(BuildOpeningBody(Wall(), opening).faces.empty());
    EXPECT_FALSE(BuildOpeningRoom(Wall(), opening).faces.empty());
    EXPECT_TRUE(BuildOpeningBody(Wall(), Window(9.0, 1.0, 1.0, 1.0)).faces.empty());
    EXPECT_TRUE(BuildOpeningRoom(Wall(), Window(9.0, 1.0, 1.0, 1.0)).faces.empty());
}

TEST(OpeningBody, FollowsTheChordsOfABentWall) {
    const WallGeometry wall = Wall(4.0, -1.5);
    const Host::Body body =
        Unplaced(BuildOpeningBody(wall, Window(WallLength(wall) / 2.0, 2.0, 0.9, 1.0)));
    EXPECT_TRUE(IsClosed(body));
    EXPECT_LT(Unevenness(body), 1e-9);
    EXPECT_EQ(FaceCount(body, 5) % 2, 0);
    EXPECT_NEAR(Volume(body), 2.0 * 1.0 * 0.05, 0.001);
}

TEST(OpeningBody, FillsTheHoleOfItsWall) {
    for (const double bend : {0.0, 1.0}) {
        const WallGeometry wall = Wall(4.0, bend);
        OpeningGeometry opening = Window(2.0, 1.0, 1.0, 1.0);
        opening.depth = wall.thickness;
        const double whole = Volume(Unplaced(BuildWallBody(wall, {})));
        const double cut = Volume(Unplaced(BuildWallBody(wall, {opening})));
        EXPECT_NEAR(Volume(Unplaced(BuildOpeningRoom(wall, opening))), whole - cut, 1e-3);
        EXPECT_NEAR(Volume(Unplaced(BuildOpeningBody(wall, opening))), whole - cut, 1e-3);
    }
}

} // namespace
} // namespace Merivane::Workbench
