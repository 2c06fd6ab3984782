#include <cstdint>
#include <limits>

#include <gtest/gtest.h>

#include "Simulation/RoomReflectances.hpp"

namespace Merivane::Simulation {
namespace {

constexpr std::int32_t White = 0; // 0.8
constexpr std::int32_t Gray = 1;  // 0.4
constexpr std::int32_t Glass = 2;
constexpr std::int32_t Colour = 3; // 0.5, 0.3, 0.1

/// 4 m x 4 m, floor at 1 m, 3 m high.
const ZoneSpace Room = {
    .name = "Sala",
    .polygon = {.outer = {{0, 0}, {4, 0}, {4, 4}, {0, 4}}, .holes = {}},
    .floorLevel = 1.0,
    .height = 3.0,
};

Scene Surfaces(std::vector<SceneSurface> surfaces) {
    Scene scene;
    scene.materials = {{.name = "branco", .red = 0.8, .green = 0.8, .blue = 0.8},
                       {.name = "cinza", .red = 0.4, .green = 0.4, .blue = 0.4},
                       {.name = "vidro", .red = 0.9, .green = 0.9, .blue = 0.9, .isGlass = true},
                       {.name = "cor", .red = 0.5, .green = 0.3, .blue = 0.1}};
    scene.surfaces = std::move(surfaces);
    return scene;
}

/// A level square of side 2 * `half` around (x, y, z).
SceneSurface Level(std::int32_t material, Point3D middle, double half = 1.0) {
    return {.materialIndex = material,
            .vertices = {{middle.x - half, middle.y - half, middle.z},
                         {middle.x + half, middle.y - half, middle.z},
                         {middle.x + half, middle.y + half, middle.z},
                         {middle.x - half, middle.y + half, middle.z}}};
}

/// A square of 1 m2 in the middle of the room whose normal has this vertical part.
SceneSurface Leaning(double levelness) {
    const double half = 0.5;
    const double run = half * levelness; // along x
    const double rise = half * std::sqrt(1.0 - levelness * levelness);
    return {.materialIndex = White,
            .vertices = {{2 - run, 2 - half, 2.5 - rise},
                         {2 + run, 2 - half, 2.5 + rise},
                         {2 + run, 2 + half, 2.5 + rise},
                         {2 - run, 2 + half, 2.5 - rise}}};
}

TEST(MeanSurfaceReflectances, TellsCeilingWallsAndFloorApart) {
    const SceneSurface wall = {.materialIndex = Colour,
                               .vertices = {{0, 0, 1}, {4, 0, 1}, {4, 0, 4}, {0, 0, 4}}};
    const RoomReflectances means = MeanSurfaceReflectances(
        Surfaces({Level(White, {2, 2, 4}), wall, Level(Gray, {2, 2, 1})}), Room, 0.75);
    EXPECT_DOUBLE_EQ(means.ceiling, 0.8);
    EXPECT_DOUBLE_EQ(means.walls, 0.265 * 0.5 + 0.67 * 0.3 + 0.065 * 0.1);
    EXPECT_DOUBLE_EQ(means.floor, 0.4);
}

TEST(MeanSurfaceReflectances, LeavesWhatIsNotThereUnknown) {
    const RoomReflectances means = MeanSurfaceReflectances(Scene{}, Room, 0.75);
    EXPECT_EQ(means.ceiling, -1.0);
    EXPECT_EQ(means.walls, -1.0);
    EXPECT_EQ(means.floor, -1.0);
}

TEST(MeanSurfaceReflectances, WeighsByArea) {
    const RoomReflectances means = MeanSurfaceReflectances(
        Surfaces({Level(White, {2, 2, 1}, 1.5), Level(Gray, {2, 2, 1}, 0.5)}), Room, 0.75);
    EXPECT_DOUBLE_EQ(means.floor, (9 * 0.8 + 1 * 0.4) / 10); // 9 m2 and 1 m2
}

TEST(MeanSurfaceReflectances, WeighsByAreaFarFromTheOriginToo) {
    const double far = 100000.0;
    ZoneSpace room = Room;
    room.polygon.outer = {{far, far}, {far + 4, far}, {far + 4, far + 4}, {far, far + 4}};
    const double side = 0.03; // small walls across x and across y, 3 to 1
    const double z = 2.0;
    const SceneSurface acrossX = {.materialIndex = White,
                                  .vertices = {{far + 2, far + 2, z},
                                               {far + 2, far + 2 + 3 * side, z},
                                               {far + 2, far + 2 + 3 * side, z + side},
                                               {far + 2, far + 2, z + side}}};
    const SceneSurface acrossY = {.materialIndex = Gray,
                                  .vertices = {{far + 2, far + 2, z},
                                               {far + 2 + side, far + 2, z},
                                               {far + 2 + side, far + 2, z + side},
                                               {far + 2, far + 2, z + side}}};
    const RoomReflectances means = MeanSurfaceReflectances(
        Surfaces({Level(White, {far + 2, far + 2, 1}, 0.015),
                  Level(Gray, {far + 2, far + 2, 1}, 0.005), acrossX, acrossY}),
        room, 0.75);
    EXPECT_NEAR(means.walls, 0.7, 1e-9);
    EXPECT_NEAR(means.floor, 0.76, 1e-6);
}

TEST(MeanSurfaceReflectances, LeavesOutGlassAndWhatIsNoPolygon) {
    SceneSurface stretched = Level(White, {2, 2, 1});
    stretched.vertices[2].x = std::numeric_limits<double>::infinity();
    const SceneSurface line = {.materialIndex = White,
                               .vertices = {{1, 1, 1}, {2, 1, 1}, {3, 1, 1}}};
    const SceneSurface pair = {.materialIndex = White, .vertices = {{1, 1, 1}, {2, 2, 1}}};
    const RoomReflectances means = MeanSurfaceReflectances(
        Surfaces({Level(Glass, {2, 2, 1}), Level(-1, {2, 2, 1}), Level(4, {2, 2, 1}), line, pair,
                  stretched, Level(Gray, {2, 2, 1})}),
        Room, 0.75);
    EXPECT_DOUBLE_EQ(means.floor, 0.4);
    EXPECT_EQ(means.walls, -1.0);
}

TEST(MeanSurfaceReflectances, SplitsFloorFromCeilingAtTheSplitHeightAboveTheFloor) {
    struct Case {
        double z; // of the floor at 1 m, split 0.75 m above it
        bool isFloor;
    };
    const Case cases[] = {{1.0, true}, {1.749, true}, {1.75, false}, {1.751, false}, {4.0, false}};
    for (const Case& c : cases) {
        SCOPED_TRACE(c.z);
        const RoomReflectances means =
            MeanSurfaceReflectances(Surfaces({Level(White, {2, 2, c.z})}), Room, 0.75);
        EXPECT_EQ(means.floor > 0.0, c.isFloor);
        EXPECT_EQ(means.ceiling > 0.0, !c.isFloor);
    }
}

TEST(MeanSurfaceReflectances, CountsOnlyFacesWhoseMiddleIsInTheGrownBox) {
    struct Case {
        Point3D middle;
        bool counts;
    };
    const Case cases[] = {
        {{-0.3, 2, 1}, true}, {{-0.301, 2, 1}, false}, {{4.3, 2, 1}, true}, {{4.301, 2, 1}, false},
        {{2, -0.3, 1}, true}, {{2, -0.301, 1}, false}, {{2, 4.3, 1}, true}, {{2, 4.301, 1}, false},
        {{2, 2, 0.7}, true},  {{2, 2, 0.699}, false},  {{2, 2, 4.3}, true}, {{2, 2, 4.301}, false},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::Message() << c.middle.x << " " << c.middle.y << " " << c.middle.z);
        const SceneSurface surface = {.materialIndex = White,
                                      .vertices = {{c.middle.x, c.middle.y - 1, c.middle.z},
                                                   {c.middle.x + 1, c.middle.y, c.middle.z},
                                                   {c.middle.x, c.middle.y + 1, c.middle.z},
                                                   {c.middle.x - 1, c.middle.y, c.middle.z}}};
        const RoomReflectances means = MeanSurfaceReflectances(Surfaces({surface}), Room, 0.75);
        EXPECT_EQ(means.floor > 0.0 || means.ceiling > 0.0, c.counts);
    }
}

TEST(MeanSurfaceReflectances, TakesTheBoxOfTheZoneNotItsOutline) {
    ZoneSpace corner = Room;
    corner.polygon.outer = {{0, 0}, {4, 0}, {4, 1}, {1, 1}, {1, 4}, {0, 4}};
    const RoomReflectances means =
        MeanSurfaceReflectances(Surfaces({Level(Gray, {3, 3, 1}, 0.5)}), corner, 0.75);
    EXPECT_DOUBLE_EQ(means.floor, 0.4);
}

TEST(MeanSurfaceReflectances, CountsSlopingFacesForNothing) {
    struct Case {
        double levelness;
        bool isWall, isCeiling;
    };
    const Case cases[] = {
        {0.0, true, false},       {0.299999, true, false}, {0.300001, false, false},
        {0.699999, false, false}, {0.700001, false, true}, {1.0, false, true},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.levelness);
        const RoomReflectances means =
            MeanSurfaceReflectances(Surfaces({Leaning(c.levelness)}), Room, 0.75);
        EXPECT_EQ(means.walls > 0.0, c.isWall);
        EXPECT_EQ(means.ceiling > 0.0, c.isCeiling);
        EXPECT_EQ(means.floor, -1.0);
    }
}

TEST(MeanSurfaceReflectances, ReadsAFaceTheSameFromBothSides) {
    SceneSurface surface = Level(White, {2, 2, 4});
    std::swap(surface.vertices[1], surface.vertices[3]);
    EXPECT_DOUBLE_EQ(MeanSurfaceReflectances(Surfaces({surface}), Room, 0.75).ceiling, 0.8);
}

} // namespace
} // namespace Merivane::Simulation
