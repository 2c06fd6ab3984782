#include <gtest/gtest.h>

#include "Simulation/Study/CeilingDetection.hpp"

namespace Merivane::Simulation {
namespace {

/// A level rectangle from (x0, 0) to (x1, 4) at `z`.
SceneSurface Slab(double x0, double x1, double z) {
    return {0, {{x0, 0, z}, {x1, 0, z}, {x1, 4, z}, {x0, 4, z}}, false};
}

/// A room of 10 m x 4 m; every tenth of its length is 2.4 columns of the lattice.
const Polygon2D Room = {{{0, 0}, {10, 0}, {10, 4}, {0, 4}}, {}};

std::optional<DetectedCeiling> Detect(const std::vector<SceneSurface>& surfaces,
                                      double floorLevel = 0.0, const Polygon2D& room = Room) {
    return DetectCeiling(room, floorLevel, CollectLevelFaces(surfaces));
}

TEST(CollectLevelFaces, TakesFacesThatAreLevelWithinTwoMillimetres) {
    const auto tilted = [](double by) {
        SceneSurface slab = Slab(0, 1, 2.6);
        slab.vertices[2].z += by;
        return slab;
    };
    EXPECT_EQ(CollectLevelFaces({tilted(0.002)}).size(), 1U);
    EXPECT_EQ(CollectLevelFaces({tilted(-0.002)}).size(), 1U);
    EXPECT_TRUE(CollectLevelFaces({tilted(0.0021)}).empty());
    EXPECT_TRUE(CollectLevelFaces({tilted(-0.0021)}).empty());
    EXPECT_DOUBLE_EQ(CollectLevelFaces({tilted(0.002)})[0].z, 2.6);
}

TEST(CollectLevelFaces, TakesTrianglesAndNothingLess) {
    EXPECT_EQ(CollectLevelFaces({{0, {{0, 0, 2}, {1, 0, 2}, {0, 1, 2}}, false}}).size(), 1U);
    EXPECT_TRUE(CollectLevelFaces({{0, {{0, 0, 2}, {1, 0, 2}}, false}, {}}).empty());
}

TEST(CollectLevelFaces, AscendsInHeight) {
    const std::vector<LevelFace> faces = CollectLevelFaces({Slab(0, 1, 3.0), Slab(0, 1, 2.0)});
    ASSERT_EQ(faces.size(), 2U);
    EXPECT_DOUBLE_EQ(faces[0].z, 2.0);
}

TEST(DetectCeiling, FindsACeilingOverTheWholeRoom) {
    const auto ceiling = Detect({Slab(-1, 11, 5.603)}, 3.0);
    ASSERT_TRUE(ceiling);
    EXPECT_NEAR(ceiling->height, 2.603, 1e-12);
    EXPECT_DOUBLE_EQ(ceiling->share, 1.0);
}

TEST(DetectCeiling, WantsHalfOfTheRoom) {
    // 12 of 24 columns, then 11.
    const auto half = Detect({Slab(0, 5, 2.6)});
    ASSERT_TRUE(half);
    EXPECT_DOUBLE_EQ(half->share, 0.5);
    EXPECT_FALSE(Detect({Slab(0, 4.7, 2.6)}));
    EXPECT_FALSE(Detect({}));
}

TEST(DetectCeiling, MeasuresTheShareAgainstTheRoomNotItsBox) {
    const Polygon2D corner = {{{0, 0}, {10, 0}, {10, 2}, {5, 2}, {5, 4}, {0, 4}}, {}};
    const auto ceiling = Detect({Slab(0, 5, 2.6)}, 0.0, corner); // 12 x 24 of 12 x 24 + 12 x 12
    ASSERT_TRUE(ceiling);
    EXPECT_NEAR(ceiling->share, 2.0 / 3.0, 1e-12);
}

TEST(DetectCeiling, LeavesOutHolesOfTheRoom) {
    Polygon2D court = Room;
    court.holes = {{{5, -0.5}, {11, -0.5}, {11, 4.5}, {5, 4.5}}};
    const auto ceiling = Detect({Slab(0, 5, 2.6)}, 0.0, court);
    ASSERT_TRUE(ceiling);
    EXPECT_DOUBLE_EQ(ceiling->share, 1.0);
}

TEST(DetectCeiling, SeesOnlyTheLowestFaceOverAPlace) {
    const auto ceiling = Detect({Slab(0, 10, 3.2), Slab(0, 10, 3.0), Slab(0, 6, 2.6)});
    ASSERT_TRUE(ceiling);
    EXPECT_DOUBLE_EQ(ceiling->height, 2.6);
    EXPECT_NEAR(ceiling->share, 14.0 / 24.0, 1e-12);
}

TEST(DetectCeiling, TakesTheLowestOfEquals) {
    EXPECT_DOUBLE_EQ(Detect({Slab(5, 10, 2.4), Slab(0, 5, 2.7)})->height, 2.4);
    EXPECT_DOUBLE_EQ(Detect({Slab(5, 10, 2.7), Slab(0, 5, 2.4)})->height, 2.4);
}

TEST(DetectCeiling, CountsAWholeCentimetreAsOneHeight) {
    // 2.601 and 2.604 share a centimetre, 2.606 does not.
    const auto ceiling = Detect({Slab(0, 3, 2.604), Slab(3, 6, 2.601), Slab(6, 10, 2.606)});
    ASSERT_TRUE(ceiling);
    EXPECT_DOUBLE_EQ(ceiling->height, 2.601);
    EXPECT_NEAR(ceiling->share, 14.0 / 24.0, 1e-12);
}

TEST(DetectCeiling, BeginsAtOneMetreEighty) {
    for (const double floorLevel : {0.0, 3.1, -2.7}) {
        EXPECT_TRUE(Detect({Slab(0, 10, floorLevel + 1.8)}, floorLevel)) << floorLevel;
        EXPECT_FALSE(Detect({Slab(0, 10, floorLevel + 1.799)}, floorLevel)) << floorLevel;
    }
    EXPECT_TRUE(Detect({Slab(0, 10, 4.9)}, 3.1));
}

TEST(DetectCeiling, LooksPastFurniture) {
    EXPECT_DOUBLE_EQ(Detect({Slab(0, 10, 0.75), Slab(0, 10, 2.6)})->height, 2.6);
}

TEST(DetectCeiling, PutsTrianglesTogether) {
    const auto ceiling = Detect({{0, {{0, 0, 2.6}, {10, 0, 2.6}, {10, 4, 2.6}}, false},
                                 {0, {{0, 0, 2.6}, {10, 4, 2.6}, {0, 4, 2.6}}, false}});
    ASSERT_TRUE(ceiling);
    EXPECT_DOUBLE_EQ(ceiling->share, 1.0);
}

TEST(DetectCeiling, FindsNothingOverARoomWithoutOutline) {
    EXPECT_FALSE(Detect({Slab(0, 10, 2.6)}, 0.0, {}));
}

} // namespace
} // namespace Merivane::Simulation
