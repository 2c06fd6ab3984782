#include <algorithm>
#include <cmath>
#include <cstddef>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "Simulation/PolygonGeometry.hpp"
#include "Simulation/ZoneSurfaces.hpp"

namespace Merivane::Simulation {
namespace {

const Polygon2D Room{{{0, 0}, {6, 0}, {6, 4}, {0, 4}}, {}};
const Polygon2D RoomWithColumn{{{0, 0}, {6, 0}, {6, 4}, {0, 4}},
                               {{{2, 1}, {3, 1}, {3, 2}, {2, 2}}}};

TEST(BuildZoneSurfaces, IsEmptyWithoutARoom) {
    EXPECT_TRUE(BuildZoneSurfaces({{{0, 0}, {6, 0}}, {}}, 0, 3).empty());
    EXPECT_TRUE(BuildZoneSurfaces(Room, 0, 0).empty());
    EXPECT_TRUE(BuildZoneSurfaces(Room, 0, -1).empty());
    EXPECT_TRUE(BuildZoneSurfaces(Room, 0, std::nan("")).empty());
    EXPECT_EQ(BuildZoneSurfaces(Room, 0, 1e-6).size(), 6U);
}

TEST(BuildZoneSurfaces, MakesAWallOfEachEdgeThenCeilingAndFloor) {
    const std::vector<ZoneSurface> surfaces = BuildZoneSurfaces(Room, 3.0, 2.8);
    ASSERT_EQ(surfaces.size(), 6U);

    const ZoneSurface& wall = surfaces[1]; // from (6, 0) to (6, 4)
    EXPECT_EQ(wall.kind, ZoneSurfaceKind::Wall);
    EXPECT_EQ(wall.index, 2);
    EXPECT_TRUE(wall.vertical);
    EXPECT_FALSE(wall.facesDown);
    EXPECT_EQ(wall.directionX, 0.0);
    EXPECT_EQ(wall.directionY, 1.0);
    EXPECT_EQ(wall.normalX, -1.0);
    EXPECT_EQ(wall.normalY, 0.0);
    EXPECT_DOUBLE_EQ(wall.pointOriginX, 5.99);
    EXPECT_EQ(wall.pointOriginY, 0.0);
    EXPECT_EQ(wall.wallStart, (Point2D{6, 0}));
    EXPECT_EQ(wall.wallEnd, (Point2D{6, 4}));
    EXPECT_EQ(wall.wallNormalX, wall.normalX);
    EXPECT_EQ(wall.wallNormalY, wall.normalY);
    EXPECT_EQ(wall.z, 0.0);
    EXPECT_EQ(wall.polygon.outer, (std::vector<Point2D>{{0, 3}, {4, 3}, {4, 5.8}, {0, 5.8}}));
    EXPECT_TRUE(wall.polygon.holes.empty());

    const ZoneSurface& ceiling = surfaces[4];
    EXPECT_EQ(ceiling.kind, ZoneSurfaceKind::Ceiling);
    EXPECT_EQ(ceiling.index, 0);
    EXPECT_FALSE(ceiling.vertical);
    EXPECT_TRUE(ceiling.facesDown);
    EXPECT_DOUBLE_EQ(ceiling.z, 5.79);
    EXPECT_EQ(ceiling.polygon, Room);

    const ZoneSurface& floor = surfaces[5];
    EXPECT_EQ(floor.kind, ZoneSurfaceKind::Floor);
    EXPECT_EQ(floor.index, 0);
    EXPECT_FALSE(floor.facesDown);
    EXPECT_DOUBLE_EQ(floor.z, 3.01);
    EXPECT_EQ(floor.polygon, Room);
}

TEST(BuildZoneSurfaces, KeepsTheNumbersOfTheKinds) {
    EXPECT_EQ(static_cast<int>(ZoneSurfaceKind::Wall), 0);
    EXPECT_EQ(static_cast<int>(ZoneSurfaceKind::Ceiling), 1);
    EXPECT_EQ(static_cast<int>(ZoneSurfaceKind::Reveal), 2);
    EXPECT_EQ(static_cast<int>(ZoneSurfaceKind::Floor), 3);
}

TEST(BuildZoneSurfaces, TurnsEveryNormalIntoTheRoomWhateverTheOrientation) {
    for (const bool outerTurned : {false, true}) {
        for (const bool holeTurned : {false, true}) {
            Polygon2D zone = RoomWithColumn;
            if (outerTurned) {
                std::reverse(zone.outer.begin(), zone.outer.end());
            }
            if (holeTurned) {
                std::reverse(zone.holes[0].begin(), zone.holes[0].end());
            }
            const std::vector<ZoneSurface> surfaces = BuildZoneSurfaces(zone, 0, 3);
            ASSERT_EQ(surfaces.size(), 10U);
            for (std::size_t k = 0; k < 8; ++k) {
                const ZoneSurface& wall = surfaces[k];
                EXPECT_EQ(wall.index, static_cast<int>(k) + 1);
                const Point2D beside{0.5 * (wall.wallStart.x + wall.wallEnd.x) + 0.3 * wall.normalX,
                                     0.5 * (wall.wallStart.y + wall.wallEnd.y) +
                                         0.3 * wall.normalY};
                EXPECT_TRUE(IsInsidePolygon(zone, beside)) << "wall " << wall.index;
            }
        }
    }
}

TEST(BuildZoneSurfaces, AsksForTheRoomTwoCentimetresBesideTheWall) {
    struct Case {
        double width;
        double normalY;
    };
    const Case cases[] = {
        {0.021, 1.0},  // the room reaches farther
        {0.019, -1.0}, // it does not: the normal turns away
    };
    for (const Case& c : cases) {
        const Polygon2D strip{{{0, 0}, {3, 0}, {3, c.width}, {0, c.width}}, {}};
        const std::vector<ZoneSurface> surfaces = BuildZoneSurfaces(strip, 0, 3);
        ASSERT_EQ(surfaces.size(), 4U);
        EXPECT_EQ(surfaces[0].normalY, c.normalY) << c.width;
    }
}

TEST(BuildZoneSurfaces, LeavesShortEdgesOutAndNumbersTheRest) {
    const Polygon2D zone{{{0, 0}, {5, 0}, {5.1, 0.1}, {5.1, 0.4}, {5.1, 4}, {0, 4}}, {}};
    const std::vector<ZoneSurface> surfaces = BuildZoneSurfaces(zone, 0, 3);
    ASSERT_EQ(surfaces.size(), 7U);
    EXPECT_EQ(surfaces[1].wallStart, (Point2D{5.1, 0.1})); // the chamfer of 0.14 m is left out
    EXPECT_EQ(surfaces[1].index, 2);
    EXPECT_EQ(surfaces[4].index, 5);
}

TEST(BuildZoneSurfaces, TakesAnEdgeOfExactlyTheShortestLength) {
    const Polygon2D zone{{{0, 0}, {0.2, 0}, {0.2, 4}, {0, 4}}, {}};
    EXPECT_EQ(BuildZoneSurfaces(zone, 0, 3).size(), 6U);
    const Polygon2D thinner{{{0, 0}, {0.1999, 0}, {0.1999, 4}, {0, 4}}, {}};
    EXPECT_EQ(BuildZoneSurfaces(thinner, 0, 3).size(), 4U);
}

TEST(BuildZoneSurfaces, MakesNoWallsOfAHoleOfTwoVertices) {
    Polygon2D zone = Room;
    zone.holes.push_back({{2, 1}, {3, 1}});
    EXPECT_EQ(BuildZoneSurfaces(zone, 0, 3).size(), 6U);
}

ZoneSurface SurfaceOf(ZoneSurfaceKind kind, double width, double height) {
    ZoneSurface surface;
    surface.kind = kind;
    surface.vertical = kind == ZoneSurfaceKind::Wall || kind == ZoneSurfaceKind::Reveal;
    surface.polygon.outer = {{0, 0}, {width, 0}, {width, height}, {0, height}};
    return surface;
}

TEST(SurfaceGridSettings, SpaceByTheBoxOfTheSurface) {
    struct Case {
        ZoneSurfaceKind kind;
        double width;
        double height;
        double spacing;
    };
    const Case cases[] = {
        {ZoneSurfaceKind::Wall, 4, 3, 0.2},         // 12 m2 exactly
        {ZoneSurfaceKind::Wall, 4, 2.9, 0.2},       //
        {ZoneSurfaceKind::Wall, 9, 3, 0.3},         // 27 m2
        {ZoneSurfaceKind::Wall, 25, 3, 0.5},        // 75 m2 exactly
        {ZoneSurfaceKind::Wall, 50, 3, 0.5},        //
        {ZoneSurfaceKind::Ceiling, 9, 3, 0.3},      //
        {ZoneSurfaceKind::Floor, 9, 3, 0.3},        //
        {ZoneSurfaceKind::Reveal, 0.1, 0.16, 0.02}, // 0.016 m2 exactly
        {ZoneSurfaceKind::Reveal, 0.1, 0.1, 0.02},  //
        {ZoneSurfaceKind::Reveal, 0.1, 1, 0.05},    // 0.1 m2
        {ZoneSurfaceKind::Reveal, 0.4, 1, 0.1},     // 0.4 m2 exactly
        {ZoneSurfaceKind::Reveal, 2, 1, 0.1},       //
        {ZoneSurfaceKind::Wall, 0, 3, 0.2},         // no area
    };
    for (const Case& c : cases) {
        const GridSettings settings =
            SurfaceGridSettings(SurfaceOf(c.kind, c.width, c.height), 0.05);
        EXPECT_NEAR(settings.spacing, c.spacing, 1e-15) << c.width << " x " << c.height;
        EXPECT_EQ(settings.workPlaneHeight, 0.0);
        EXPECT_EQ(settings.borderBand, 0.0);
        EXPECT_EQ(settings.wallOffset, c.kind == ZoneSurfaceKind::Reveal ? 0.01 : 0.05);
    }
    EXPECT_EQ(SurfaceGridSettings(SurfaceOf(ZoneSurfaceKind::Reveal, 1, 1), 0.002).wallOffset,
              0.002);
}

TEST(BuildSurfaceGrid, LaysWallsInTheirOwnCoordinates) {
    const std::vector<ZoneSurface> surfaces = BuildZoneSurfaces(Room, 3.0, 2.8);
    const SurfaceResult wall = BuildSurfaceGrid(surfaces[1], 0.05); // 4 x 2.8 m
    EXPECT_EQ(wall.grid.z, 0.0);
    EXPECT_EQ(wall.grid.originX, 0.05);
    EXPECT_DOUBLE_EQ(wall.grid.originY, 3.05);
    EXPECT_EQ(wall.grid.columns, 21); // 3.9 m in steps of at most 0.2
    EXPECT_EQ(wall.grid.rows, 15);    // 2.7 m
    EXPECT_EQ(ActiveNodeCount(wall.grid), 315U);
    EXPECT_EQ(wall.grid.task, wall.grid.active);
    EXPECT_TRUE(wall.values.empty());
    EXPECT_EQ(wall.surface.index, 2);
}

TEST(BuildSurfaceGrid, LaysCeilingAndFloorAtTheirHeight) {
    const std::vector<ZoneSurface> surfaces = BuildZoneSurfaces(RoomWithColumn, 3.0, 2.8);
    EXPECT_DOUBLE_EQ(BuildSurfaceGrid(surfaces[8], 0.05).grid.z, 5.79);
    EXPECT_DOUBLE_EQ(BuildSurfaceGrid(surfaces[9], 0.05).grid.z, 3.01);
}

TEST(BuildSurfaceGrid, TakesNoHeightOfAVerticalSurface) {
    for (const ZoneSurfaceKind kind : {ZoneSurfaceKind::Wall, ZoneSurfaceKind::Reveal}) {
        ZoneSurface surface = SurfaceOf(kind, 2, 1);
        surface.z = 5.0;
        EXPECT_EQ(BuildSurfaceGrid(surface, 0.05).grid.z, 0.0);
    }
}

TEST(SurfaceWorldPoint, StandsOnTheRealSurface) {
    const std::vector<ZoneSurface> surfaces = BuildZoneSurfaces(Room, 3.0, 2.8);
    EXPECT_EQ(SurfaceWorldPoint(surfaces[1], {1.5, 4.25}), (Point3D{6, 1.5, 4.25}));
    EXPECT_EQ(SurfaceNormal(surfaces[1]), (Point3D{-1, 0, 0}));
    const Point3D ceiling = SurfaceWorldPoint(surfaces[4], {1, 2});
    EXPECT_EQ(ceiling.x, 1);
    EXPECT_EQ(ceiling.y, 2);
    EXPECT_NEAR(ceiling.z, 5.8, 1e-12);
    EXPECT_EQ(SurfaceNormal(surfaces[4]), (Point3D{0, 0, -1}));
    EXPECT_NEAR(SurfaceWorldPoint(surfaces[5], {1, 2}).z, 3.0, 1e-12);
    EXPECT_EQ(SurfaceNormal(surfaces[5]), (Point3D{0, 0, 1}));
}

TEST(SurfaceSensorPlane, StandsOffTheSurfaceAndLooksIntoTheRoom) {
    const std::vector<ZoneSurface> surfaces = BuildZoneSurfaces(Room, 3.0, 2.8);
    const SensorPlane wall =
        SurfaceSensorPlane(BuildSurfaceGrid(surfaces[1], 0.05), "Sala parede 2");
    EXPECT_EQ(wall.name, "Sala parede 2");
    EXPECT_TRUE(wall.vertical);
    EXPECT_FALSE(wall.facesDown);
    EXPECT_DOUBLE_EQ(wall.originX, 5.99);
    EXPECT_EQ(wall.originY, 0.0);
    EXPECT_EQ(wall.directionY, 1.0);
    EXPECT_EQ(wall.normalX, -1.0);
    EXPECT_EQ(ActiveNodeCount(wall.grid), 315U);
    const SensorPlane ceiling =
        SurfaceSensorPlane(BuildSurfaceGrid(surfaces[4], 0.05), "Sala teto");
    EXPECT_FALSE(ceiling.vertical);
    EXPECT_TRUE(ceiling.facesDown);
    EXPECT_DOUBLE_EQ(ceiling.grid.z, 5.79);
}

TEST(SurfaceSensorPlane, TakesDirectionAndNormalOfAnObliqueWall) {
    const Polygon2D triangle{{{0, 0}, {4, 0}, {4, 3}}, {}}; // its third wall runs from (4, 3) down
    const std::vector<ZoneSurface> surfaces = BuildZoneSurfaces(triangle, 3.0, 2.8);
    const SensorPlane plane = SurfaceSensorPlane(BuildSurfaceGrid(surfaces[2], 0.05), "");
    EXPECT_DOUBLE_EQ(plane.directionX, -0.8);
    EXPECT_DOUBLE_EQ(plane.directionY, -0.6);
    EXPECT_DOUBLE_EQ(plane.normalX, 0.6);
    EXPECT_DOUBLE_EQ(plane.normalY, -0.8);
    EXPECT_DOUBLE_EQ(plane.originX, 4.006);
    EXPECT_DOUBLE_EQ(plane.originY, 2.992);
}

} // namespace
} // namespace Merivane::Simulation
