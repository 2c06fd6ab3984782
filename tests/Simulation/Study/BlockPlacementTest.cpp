#include <cmath>
#include <random>

#include <gtest/gtest.h>

#include "Simulation/Study/BlockPlacement.hpp"

namespace Merivane::Simulation {
namespace {

using Boxes = std::vector<Bounds2D>;

Bounds2D BoxOf(const BlockRequest& block, Point2D corner) {
    return {{corner.x, corner.y - block.height}, {corner.x + block.width, corner.y}};
}

double Apart(double aLow, double aHigh, double bLow, double bHigh) {
    return std::max(bLow - aHigh, aLow - bHigh);
}

// How far two boxes are apart along the axis where they are furthest apart [m]; negative where
// they cover each other.
double Clearance(const Bounds2D& a, const Bounds2D& b) {
    return std::max(Apart(a.minimum.x, a.maximum.x, b.minimum.x, b.maximum.x),
                    Apart(a.minimum.y, a.maximum.y, b.minimum.y, b.maximum.y));
}

void ExpectClear(const std::vector<BlockRequest>& blocks, const Boxes& occupied, double gap) {
    constexpr double Rounding = 1e-6;
    const std::vector<Point2D> corners = PlaceBlocks(blocks, occupied, gap);
    ASSERT_EQ(corners.size(), blocks.size());
    for (std::size_t i = 0; i < blocks.size(); ++i) {
        const Bounds2D box = BoxOf(blocks[i], corners[i]);
        ASSERT_TRUE(std::isfinite(corners[i].x) && std::isfinite(corners[i].y));
        ASSERT_GE(Clearance(box, blocks[i].owner), gap - Rounding);
        for (const Bounds2D& other : occupied) {
            ASSERT_GE(Clearance(box, other), gap - Rounding);
        }
        for (std::size_t j = 0; j < i; ++j) {
            ASSERT_GE(Clearance(box, BoxOf(blocks[j], corners[j])), gap - Rounding);
        }
    }
}

const Bounds2D Room = {{0.0, 0.0}, {4.0, 3.0}};

TEST(PlaceBlocks, PutsABlockToTheRightLevelWithItsOwner) {
    EXPECT_EQ(PlaceBlocks({{Room, 2.0, 1.0}}, {Room}, 0.5), (std::vector<Point2D>{{4.5, 3.0}}));
}

TEST(PlaceBlocks, TakesTheNextSideWhenOneIsTaken) {
    // Right, left, below, above, each as near as any other.
    const std::vector<BlockRequest> blocks(4, {Room, 4.0, 3.0});
    EXPECT_EQ(PlaceBlocks(blocks, {Room}, 0.5),
              (std::vector<Point2D>{{4.5, 3.0}, {-4.5, 3.0}, {0.0, -0.5}, {0.0, 6.5}}));
}

TEST(PlaceBlocks, StandsBesideTheWholeBuildingNotInItsGaps) {
    const Boxes occupied = {Room, {{4.2, 0.0}, {4.3, 9.0}}, {{4.0, 8.8}, {20.0, 9.0}}};
    // The corner between the two walls is free, but inside the building.
    EXPECT_EQ(PlaceBlocks({{Room, 2.0, 1.0}}, occupied, 0.5)[0], (Point2D{-2.5, 3.0}));
}

TEST(PlaceBlocks, IsNotDrivenAwayByWhatStandsFarOff) {
    const Boxes occupied = {Room, {{500.0, 0.0}, {501.0, 1.0}}};
    EXPECT_EQ(PlaceBlocks({{Room, 2.0, 1.0}}, occupied, 0.5)[0], (Point2D{4.5, 3.0}));
}

TEST(PlaceBlocks, SlidesPastAnObstacleBesideTheBuilding) {
    // A text of another floor in the way, too far off to be part of the building.
    const Boxes occupied = {Room, {{5.5, 2.0}, {6.0, 4.0}}, {{-9.0, -9.0}, {-1.0, 9.0}}};
    EXPECT_EQ(PlaceBlocks({{Room, 2.0, 1.0}}, occupied, 0.5)[0], (Point2D{0.0, -0.5}));
    const Boxes walled = {Room,
                          {{5.5, 2.0}, {6.0, 4.0}},
                          {{-9.0, -9.0}, {-1.0, 9.0}},
                          {{-9.0, -9.0}, {4.9, -0.6}},
                          {{-9.0, 3.6}, {4.9, 9.0}}};
    EXPECT_EQ(PlaceBlocks({{Room, 2.0, 1.0}}, walled, 0.5)[0], (Point2D{4.5, 1.5}));
}

TEST(PlaceBlocks, KeepsOtherZonesFree) {
    const Bounds2D next = {{4.2, 0.0}, {8.0, 3.0}};
    const std::vector<Point2D> corners = PlaceBlocks({{Room, 2.0, 1.0}, {next, 2.0, 1.0}}, {}, 0.5);
    EXPECT_EQ(corners[0], (Point2D{-2.5, 3.0}));
    EXPECT_EQ(corners[1], (Point2D{8.5, 3.0}));
}

TEST(PlaceBlocks, DoesNotJoinTwoBuildingsByTheLegendOfBoth) {
    const Bounds2D other = {{50.0, 0.0}, {54.0, 3.0}};
    const Bounds2D both = {{0.0, 0.0}, {54.0, 3.0}};
    const std::vector<Point2D> corners =
        PlaceBlocks({{Room, 2.0, 1.0}, {other, 2.0, 1.0}, {both, 1.0, 1.0}}, {Room, other}, 0.5);
    EXPECT_EQ(corners[0], (Point2D{4.5, 3.0}));
    EXPECT_EQ(corners[1], (Point2D{54.5, 3.0}));
    EXPECT_EQ(corners[2], (Point2D{-1.5, 3.0}));
}

TEST(PlaceBlocks, TakesANegativeGapForNone) {
    EXPECT_EQ(PlaceBlocks({{Room, 2.0, 1.0}}, {Room}, -1.0)[0], (Point2D{4.0, 3.0}));
}

TEST(PlaceBlocks, PlacesNothingForNoBlocks) {
    EXPECT_TRUE(PlaceBlocks({}, {Room}, 0.5).empty());
}

Bounds2D RandomBox(std::mt19937& random, double extent, double size) {
    std::uniform_real_distribution<double> place(0.0, extent);
    std::uniform_real_distribution<double> length(0.0, size);
    const Point2D low = {place(random), place(random)};
    return {low, {low.x + length(random), low.y + length(random)}};
}

TEST(PlaceBlocks, NeverCoversAnythingWhateverItIsGiven) {
    std::mt19937 random(17);
    std::uniform_real_distribution<double> part(0.0, 1.0);
    for (int round = 0; round < 300; ++round) {
        SCOPED_TRACE(round);
        const double size = 0.1 + 12.0 * part(random);
        Boxes occupied;
        for (int i = static_cast<int>(60.0 * part(random)); i > 0; --i) {
            occupied.push_back(RandomBox(random, 60.0, size));
        }
        std::vector<BlockRequest> blocks;
        for (int i = static_cast<int>(20.0 * part(random)); i >= 0; --i) {
            blocks.push_back(
                {RandomBox(random, 60.0, 8.0), 0.1 + 9.0 * part(random), 0.1 + 9.0 * part(random)});
        }
        ExpectClear(blocks, occupied, part(random) < 0.2 ? 0.0 : part(random));
        if (HasFatalFailure()) {
            return;
        }
    }
}

TEST(PlaceBlocks, GivesTheSamePlacesTwice) {
    std::mt19937 random(3);
    Boxes occupied;
    std::vector<BlockRequest> blocks;
    for (int i = 0; i < 30; ++i) {
        occupied.push_back(RandomBox(random, 40.0, 5.0));
        blocks.push_back({RandomBox(random, 40.0, 5.0), 6.0, 4.0});
    }
    EXPECT_EQ(PlaceBlocks(blocks, occupied, 0.3), PlaceBlocks(blocks, occupied, 0.3));
}

TEST(PlaceBlocks, HoldsOnALargeFloor) {
    std::mt19937 random(5);
    for (const double size : {0.5, 3.0}) { // scattered, and grown together
        Boxes occupied;
        for (int i = 0; i < 5000; ++i) {
            occupied.push_back(RandomBox(random, 100.0, size));
        }
        std::vector<BlockRequest> blocks;
        for (int i = 0; i < 60; ++i) {
            const double x = 10.0 * (i % 10);
            const double y = 10.0 * std::floor(i / 10.0);
            blocks.push_back({{{x, y}, {x + 9.0, y + 9.0}}, 12.0, 15.0});
        }
        ExpectClear(blocks, occupied, 0.3);
    }
}

} // namespace
} // namespace Merivane::Simulation
