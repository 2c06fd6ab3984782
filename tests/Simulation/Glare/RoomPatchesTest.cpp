#include "Simulation/Glare/RoomPatches.hpp"

#include <cmath>
#include <limits>
#include <numbers>
#include <set>
#include <tuple>

#include <gtest/gtest.h>

#include "Simulation/Glare/RoomSamples.hpp"

namespace Merivane::Simulation {
namespace {

using Tests::RoomOf;

constexpr double Pi = std::numbers::pi;

constexpr RoomSide Sides[] = {RoomSide::Floor, RoomSide::Ceiling, RoomSide::WallY0,
                              RoomSide::WallY, RoomSide::WallX0,  RoomSide::WallX};

TEST(RoomPatches, AreAboutHalfOfHAndBetween1And32OnASide) {
    struct Case {
        double x, y, height;
        int nx, ny, nz;
    };
    const Case cases[] = {
        {4, 6, 2, 4, 6, 4},            // patches of 1 m, room 3.2 m high
        {4.001, 3.999, 2, 5, 4, 4},    // just above and below a whole number
        {8 * 0.7, 0.7, 0.7, 16, 2, 6}, // 8 H is 16 patches, whatever the last digit
        {12 * 1.3, 3 * 1.3, 1.3, 24, 6, 4},
        {1, 1, 0.1, 20, 20, 26},  // at H 0.1 half of it is the least patch, 0.05 m
        {1, 1, 0.02, 20, 20, 25}, // and stays so below
        {33, 32, 2, 32, 32, 4},   // no more than 32
        {0.3, 0.5, 2, 1, 1, 4},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.x);
        const RoomCut cut = CutRoom(RoomOf(c.x, c.y, c.height));
        EXPECT_EQ(std::tuple(cut.nx, cut.ny, cut.nz), std::tuple(c.nx, c.ny, c.nz));
        EXPECT_EQ(cut.z, c.height + 1.2);
    }
}

TEST(RoomPatches, AreNotCutOnceMoreForATraceAboveAWholeNumber) {
    EXPECT_EQ(CutRoom(RoomOf(4 * (1 + 2e-10), 4, 2)).nx, 4); // 0.8e-9 of a patch
    EXPECT_EQ(CutRoom(RoomOf(4 * (1 + 3e-10), 4, 2)).nx, 5); // 1.2e-9
}

TEST(RoomPatches, AreARoomWhereEverySideHasALength) {
    EXPECT_TRUE(IsRoom(CutRoom(RoomOf(1, 1, 1))));
    EXPECT_FALSE(IsRoom(CutRoom(RoomOf(0, 1, 1))));
    EXPECT_FALSE(IsRoom(CutRoom(RoomOf(1, -1, 1))));
    EXPECT_FALSE(IsRoom(CutRoom(RoomOf(1, 1, -1.2))));
    EXPECT_FALSE(IsRoom(CutRoom(RoomOf(1, 1, std::numeric_limits<double>::quiet_NaN()))));
    EXPECT_FALSE(IsRoom(CutRoom(RoomOf(1, std::numeric_limits<double>::infinity(), 1))));
}

TEST(RoomPatches, CoverTheRoomAndLookInwards) {
    const RoomCut cut = CutRoom(RoomOf(3.4, 2.3, 1.1));
    double area = 0.0;
    for (const RoomSide side : Sides) {
        const bool level = side == RoomSide::Floor || side == RoomSide::Ceiling;
        const bool wallX = side == RoomSide::WallX0 || side == RoomSide::WallX;
        for (int v = 0; v < (level ? cut.ny : cut.nz); ++v) {
            for (int u = 0; u < (wallX ? cut.ny : cut.nx); ++u) {
                const Patch patch = PatchAt(cut, {side, u, v});
                area += patch.area;
                const Point3D in = {cut.x / 2 - patch.center.x, cut.y / 2 - patch.center.y,
                                    cut.z / 2 - patch.center.z};
                EXPECT_GT(in.x * patch.normal.x + in.y * patch.normal.y + in.z * patch.normal.z, 0);
            }
        }
    }
    EXPECT_NEAR(area, 2 * (3.4 * 2.3 + 3.4 * 2.3 + 2.3 * 2.3), 1e-12); // it is 2.3 m high
}

TEST(RoomPatches, HaveMirrorImagesAcrossTheMiddlePlanes) {
    const RoomCut cut = CutRoom(RoomOf(3.4, 2.3, 1.1));
    for (const PatchOrbit& orbit : QuarterOfRoom(cut)) {
        const Patch patch = PatchAt(cut, orbit.place);
        for (int image = 0; image < MirrorImages; ++image) {
            const bool inX = image == 1 || image == 3;
            const bool inY = image >= 2;
            const Patch seen = PatchAt(cut, MirroredPlace(cut, orbit.place, image));
            EXPECT_NEAR(seen.center.x, inX ? cut.x - patch.center.x : patch.center.x, 1e-12);
            EXPECT_NEAR(seen.center.y, inY ? cut.y - patch.center.y : patch.center.y, 1e-12);
            EXPECT_EQ(seen.center.z, patch.center.z);
            EXPECT_EQ(seen.normal.x, inX ? -patch.normal.x : patch.normal.x);
            EXPECT_EQ(seen.normal.y, inY ? -patch.normal.y : patch.normal.y);
        }
    }
}

// Sides of 7 x 5 x 5 patches: the middle row and column are their own images.
TEST(RoomPatches, OfAQuarterStandForEachPatchOfTheRoomOnce) {
    const RoomCut cut = CutRoom(RoomOf(3.5, 2.5, 1.0));
    ASSERT_EQ(std::tuple(cut.nx, cut.ny, cut.nz), std::tuple(7, 5, 5));
    std::set<std::tuple<RoomSide, int, int>> seen;
    int images = 0;
    for (const PatchOrbit& orbit : QuarterOfRoom(cut)) {
        std::set<std::tuple<RoomSide, int, int>> own;
        for (int image = 0; image < MirrorImages; ++image) {
            const PatchPlace place = MirroredPlace(cut, orbit.place, image);
            own.insert({place.side, place.u, place.v});
        }
        EXPECT_EQ(own.size(), static_cast<std::size_t>(orbit.images));
        EXPECT_EQ(orbit.area, PatchAt(cut, orbit.place).area);
        seen.insert(own.begin(), own.end());
        images += orbit.images;
    }
    EXPECT_EQ(images, 2 * (7 * 5 + 7 * 5 + 5 * 5));
    EXPECT_EQ(seen.size(), static_cast<std::size_t>(images));
}

// A point under the middle of a far, small patch: cos cos A / (pi r2).
TEST(PointToPatch, OfAFarPatchIsThatOfItsMiddle) {
    const Patch patch = {{0, 0, 10}, {0, 0, -1}, {0.05, 0, 0}, {0, 0.05, 0}, 0.01};
    EXPECT_DOUBLE_EQ(PointToPatch({0, 0, 0}, {0, 0, 1}, patch), 0.01 / (Pi * 100));
    EXPECT_EQ(PointToPatch({0, 0, 0}, {0, 0, -1}, patch), 0.0);  // behind the point
    EXPECT_EQ(PointToPatch({0, 0, 11}, {0, 0, -1}, patch), 0.0); // behind the patch
}

// A parallel rectangle a x b over its corner at distance c: closed form; four of them make the
// patch over whose middle the point stands. 4 x 4 samples are 1.2 % above it.
TEST(PointToPatch, OfANearPatchIsCloseToTheClosedForm) {
    const double a = 0.5;
    const double root = std::sqrt(1 + a * a);
    const double corner = 1 / (2 * Pi) * 2 * a / root * std::atan(a / root);
    const Patch patch = {{0, 0, 1}, {0, 0, -1}, {a, 0, 0}, {0, a, 0}, 1};
    EXPECT_NEAR(PointToPatch({0, 0, 0}, {0, 0, 1}, patch), 4 * corner, 0.015 * 4 * corner);
}

// 16 (u2 + v2) = 8 for a unit square: at a distance of sqrt(8) it counts as far.
TEST(PointToPatch, TakesOneSampleFromTheLimitOutwards) {
    Patch patch = {{0, 0, std::sqrt(8.0) + 1e-9}, {0, 0, -1}, {0.5, 0, 0}, {0, 0.5, 0}, 1};
    const double square = patch.center.z * patch.center.z;
    EXPECT_DOUBLE_EQ(PointToPatch({0, 0, 0}, {0, 0, 1}, patch), 1 / (Pi * square));
    patch.center.z = std::sqrt(8.0) - 1e-9;
    EXPECT_LT(PointToPatch({0, 0, 0}, {0, 0, 1}, patch), 0.98 / (Pi * square));
}

} // namespace
} // namespace Merivane::Simulation
