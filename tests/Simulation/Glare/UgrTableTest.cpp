#include "Simulation/Glare/UgrTable.hpp"

#include <algorithm>
#include <cmath>
#include <limits>

#include <gtest/gtest.h>

#include "Simulation/Glare/GlareSamples.hpp"
#include "Simulation/Glare/RoomSamples.hpp"
#include "Support/PlainRadiosity/PlainRadiosity.hpp"

namespace Merivane::Simulation {
namespace {

using Tests::EvenLuminaire;
using Tests::RoomOf;
using Tests::SkewLuminaire;

const GlareOptions Table{false, true};

double CaseValue(const SceneLuminaire& luminaire, const UgrRoom& room) {
    const auto results = EvaluateRoom(luminaire, room, Table);
    return std::max(results[0].ugr, results[1].ugr);
}

void ExpectSameResults(const SceneLuminaire& a, const SceneLuminaire& b) {
    const auto one = EvaluateRoom(a, RoomOf(2, 3, 1), Table);
    const auto other = EvaluateRoom(b, RoomOf(2, 3, 1), Table);
    for (std::size_t k = 0; k < 4; ++k) {
        EXPECT_TRUE(one[k].valid);
        EXPECT_GT(one[k].sources, 0);
        EXPECT_NEAR(one[k].ugr, other[k].ugr, 1e-12);
        EXPECT_NEAR(one[k].background / other[k].background, 1.0, 1e-12);
    }
}

TEST(UgrTable, HasTheValueOfEachRoomEvaluatedForItself) {
    const SceneLuminaire luminaire = SkewLuminaire();
    const UgrTableValues table = UgrTable(luminaire, 1.7, Table);
    for (const std::size_t row : {0U, 1U, 2U, 6U, 7U, 8U}) {
        for (const std::size_t set : {0U, 4U}) {
            for (const bool crosswise : {false, true}) {
                const UgrRoom room =
                    TableRoom(StandardRooms[row], ReflectanceSets[set], 1.7, crosswise);
                const auto& half = crosswise ? table.crosswise : table.lengthwise;
                EXPECT_NEAR(half[row][set], CaseValue(luminaire, room), 1e-5)
                    << row << " " << set << " " << crosswise;
            }
        }
    }
}

TEST(UgrTable, AgreesWithThePlainAlgorithmInASmallRoom) {
    const UgrTableValues table = UgrTable(SkewLuminaire(), 2.0, Table);
    for (const bool crosswise : {false, true}) {
        const UgrRoom room = TableRoom({2, 2}, ReflectanceSets[3], 2.0, crosswise);
        const auto plain = Tests::PlainEvaluateRoom(SkewLuminaire(), room, Table);
        EXPECT_NEAR((crosswise ? table.crosswise : table.lengthwise)[0][3],
                    std::max(plain[0].ugr, plain[1].ugr), 0.005);
    }
}

// Crosswise turns the luminaire by 90 degrees, and nothing else.
TEST(UgrTable, SwapsItsHalvesForALuminaireTurnedByAQuarter) {
    const UgrRoom lengthwise = RoomOf(2, 3, 1);
    const UgrRoom crosswise = RoomOf(2, 3, 1, true);
    const auto turned = EvaluateRoom(Tests::TurnedSkewLuminaire(1), lengthwise, Table);
    const auto across = EvaluateRoom(SkewLuminaire(), crosswise, Table);
    const auto along = EvaluateRoom(SkewLuminaire(), lengthwise, Table);
    for (std::size_t k = 0; k < 4; ++k) {
        EXPECT_NEAR(turned[k].ugr, across[k].ugr, 1e-9);
        EXPECT_GT(std::abs(along[k].ugr - across[k].ugr), 0.1);
    }
}

// Half a turn swaps the observers who face each other.
TEST(UgrTable, HasTheWorseOfBothEnds) {
    const auto ends = EvaluateRoom(SkewLuminaire(), RoomOf(4, 4, 2), Table);
    EXPECT_GT(std::abs(ends[0].ugr - ends[1].ugr), 0.1);
    const UgrTableValues one = UgrTable(SkewLuminaire(), 2.0, Table);
    const UgrTableValues other = UgrTable(Tests::TurnedSkewLuminaire(2), 2.0, Table);
    for (std::size_t row = 0; row < one.crosswise.size(); ++row) {
        EXPECT_NEAR(one.crosswise[row][0], other.crosswise[row][0], 1e-5) << row;
        EXPECT_NEAR(one.lengthwise[row][0], other.lengthwise[row][0], 1e-5) << row;
    }
    EXPECT_NEAR(one.lengthwise[0][0], std::max(ends[0].ugr, ends[1].ugr), 1e-5);
}

// A beam along C0: sight along C0-C180 looks into it.
TEST(UgrTable, LooksAlongC0InItsCrosswiseHalf) {
    SceneLuminaire luminaire = EvenLuminaire();
    luminaire.photometry.horizontalAngles = {0, 90};
    luminaire.photometry.candela.push_back(luminaire.photometry.candela[0]);
    for (double& candela : luminaire.photometry.candela[1]) {
        candela *= 0.1;
    }
    const UgrTableValues table = UgrTable(luminaire, 2.0, Table);
    for (std::size_t row = 0; row < table.crosswise.size(); ++row) {
        EXPECT_GT(table.crosswise[row][0], table.lengthwise[row][0] + 1) << row;
    }
}

TEST(UgrTable, RisesAsTheRoomDarkens) {
    const UgrTableValues table = UgrTable(EvenLuminaire(), 2.0, Table);
    for (const auto& row : table.lengthwise) {
        EXPECT_LT(row[0], row[1]); // 0.7/0.5 against 0.7/0.3
        EXPECT_LT(row[0], row[2]); // against 0.5/0.5
        EXPECT_LT(row[2], row[3]);
        EXPECT_LT(row[3], row[4]);
    }
    EXPECT_NEAR(table.crosswise[10][0], table.lengthwise[10][0], 1e-9); // same in all planes
}

TEST(UgrTable, IsAllZeroWithoutAHeightALightOrAnOpening) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const UgrTableValues none;
    for (const double height : {0.0, -1.0, nan, std::numeric_limits<double>::infinity()}) {
        const UgrTableValues table = UgrTable(EvenLuminaire(), height, Table);
        EXPECT_EQ(table.crosswise, none.crosswise) << height;
        EXPECT_EQ(table.lengthwise, none.lengthwise) << height;
    }
    EXPECT_EQ(UgrTable({}, 2.0, Table).crosswise, none.crosswise);
    EXPECT_EQ(UgrTable(Tests::UniformLuminaire(100, 0, 0), 2.0, Table).crosswise, none.crosswise);
}

TEST(EvaluateRoom, TakesTheModelWhateverItsPlaceAimAndDimming) {
    SceneLuminaire placed = SkewLuminaire();
    placed.dimming = 0.3;
    placed.x = 5;
    placed.rotation = 0.4;
    placed.mirrored = true;
    placed.arrayCountX = 7;
    placed.contract.maintenanceFactor = 0.5;
    placed.contract.tiltAngle = 30;
    placed.contract.tiltDirection = 10;
    placed.contract.c0Rotation = 45;
    placed.contract.centerZ = -0.2;
    ExpectSameResults(placed, SkewLuminaire());
}

TEST(EvaluateRoom, CountsTheCandelaMultiplierOnce) {
    SceneLuminaire multiplied = SkewLuminaire();
    multiplied.photometry.candelaMultiplier = 2.5;
    SceneLuminaire scaled = SkewLuminaire();
    for (std::vector<double>& row : scaled.photometry.candela) {
        for (double& candela : row) {
            candela *= 2.5;
        }
    }
    ExpectSameResults(multiplied, scaled);
}

// UGR grows by 8 log10 k with the flux, and by 8 log10 2 with half the opening.
TEST(EvaluateRoom, FollowsFluxAndOpeningByTheLogarithm) {
    const double base = CaseValue(EvenLuminaire(), RoomOf(4, 8, 2));
    SceneLuminaire brighter = EvenLuminaire();
    brighter.photometry.candelaMultiplier = 3;
    EXPECT_NEAR(CaseValue(brighter, RoomOf(4, 8, 2)), base + 8 * std::log10(3.0), 1e-9);
    SceneLuminaire smaller = EvenLuminaire();
    smaller.photometry.width /= 2;
    EXPECT_NEAR(CaseValue(smaller, RoomOf(4, 8, 2)), base + 8 * std::log10(2.0), 1e-9);
}

TEST(EvaluateRoom, HasNoValueInABlackRoomAndNoSourceWithoutAnOpening) {
    UgrRoom black = RoomOf(2, 2, 1);
    black.ceilingReflectance = black.wallReflectance = black.floorReflectance = 0.0;
    for (const GlareResult& result : EvaluateRoom(EvenLuminaire(), black, {})) {
        EXPECT_FALSE(result.valid);
        EXPECT_EQ(result.ugr, 0.0);
    }
    const SceneLuminaire bare = Tests::UniformLuminaire(100, 0, 0);
    for (const GlareResult& result : EvaluateRoom(bare, RoomOf(2, 2, 1), {})) {
        EXPECT_TRUE(result.valid);
        EXPECT_EQ(result.ugr, 0.0);
        EXPECT_EQ(result.sources, 0);
        EXPECT_EQ(result.withoutArea, 64); // none is behind an eye at the wall
    }
}

TEST(TabularForZone, KeepsTheWorstOfBothReadingsAndDirections) {
    const TabularUgr value = TabularForZone(SkewLuminaire(), 3, 6, 1.5, 0.7, 0.5, Table);
    double worst = 0.0;
    for (const UgrRoomSize size : {UgrRoomSize{2, 4}, UgrRoomSize{4, 2}}) {
        for (const bool crosswise : {false, true}) {
            const double own =
                CaseValue(SkewLuminaire(), TableRoom(size, ReflectanceSets[0], 1.5, crosswise));
            worst = std::max(worst, own);
            if (size.x == value.roomX && crosswise == value.crosswise) {
                EXPECT_NEAR(value.ugr, own, 1e-5);
            }
        }
    }
    EXPECT_NEAR(value.ugr, worst, 1e-5);
    EXPECT_EQ(value.roomX * value.roomY, 8);
    EXPECT_EQ(value.ratioX, value.roomX);
    EXPECT_EQ(value.ratioY, value.roomY);
    EXPECT_EQ(value.reflectanceSet, 0);
}

TEST(TabularForZone, IsTheSameEitherWayRound) {
    const TabularUgr one = TabularForZone(SkewLuminaire(), 3.1, 5.2, 1.5, 0.5, 0.3, Table);
    const TabularUgr other = TabularForZone(SkewLuminaire(), 5.2, 3.1, 1.5, 0.5, 0.3, Table);
    EXPECT_EQ(one.ugr, other.ugr);
    EXPECT_EQ(one.roomX, other.roomX);
    EXPECT_EQ(one.ratioX, other.ratioX);
    EXPECT_EQ(one.crosswise, other.crosswise);
    EXPECT_EQ(one.reflectanceSet, 3);
}

TEST(TabularForZone, IsTheCellOfTheTable) {
    const TabularUgr value = TabularForZone(EvenLuminaire(), 8.2, 7.9, 2, 0.31, 0.2, Table);
    const UgrTableValues table = UgrTable(EvenLuminaire(), 2, Table);
    EXPECT_EQ(std::pair(value.roomX, value.roomY), std::pair(4.0, 4.0));
    EXPECT_NEAR(value.ugr, std::max(table.crosswise[8][4], table.lengthwise[8][4]), 1e-5);
    EXPECT_EQ(value.ratioX, 8.2 / 2); // the first reading stands unless another is worse
    EXPECT_EQ(value.ratioY, 7.9 / 2);
    EXPECT_FALSE(value.crosswise);
    EXPECT_EQ(value.reflectanceSet, 4);
}

TEST(TabularForZone, IsAllZeroWithoutAHeight) {
    for (const double height : {0.0, -1.0, std::numeric_limits<double>::quiet_NaN()}) {
        const TabularUgr value = TabularForZone(EvenLuminaire(), 4, 4, height, 0.3, 0.3, Table);
        EXPECT_EQ(value.ugr, 0.0);
        EXPECT_EQ(value.roomX, 0.0);
        EXPECT_EQ(value.ratioY, 0.0);
        EXPECT_EQ(value.reflectanceSet, 0);
    }
}

TEST(TabularForZone, CountsRoomsWithoutABackgroundAsZero) {
    const TabularUgr value = TabularForZone({}, 3, 6, 1.5, 0.7, 0.5, Table);
    EXPECT_EQ(value.ugr, 0.0);
    EXPECT_EQ(std::pair(value.roomX, value.roomY), std::pair(2.0, 4.0));
    EXPECT_FALSE(value.crosswise);
}

TEST(TabularForZone, TakesTheSmallSourceTermWhereAsked) {
    SceneLuminaire small = EvenLuminaire();
    small.photometry.width = small.photometry.length = 0.05; // 0.0025 m2
    const TabularUgr plain = TabularForZone(small, 3, 6, 1.5, 0.7, 0.5, Table);
    const TabularUgr limited = TabularForZone(small, 3, 6, 1.5, 0.7, 0.5, {true, true});
    // Each source counts as 0.005 m2 over its cosine instead of 0.0025 m2 times it.
    EXPECT_LT(limited.ugr, plain.ugr - 8 * std::log10(2.0));
}

TEST(ReferenceRoomUgr, IsTheWorstOfFourObserversInBothDirections) {
    double worst = -1e9;
    for (const bool crosswise : {false, true}) {
        for (const GlareResult& result :
             EvaluateRoom(SkewLuminaire(), ReferenceRoom(1.5, crosswise), Table)) {
            worst = std::max(worst, result.ugr);
        }
    }
    EXPECT_EQ(ReferenceRoomUgr(SkewLuminaire(), 1.5, Table), worst);
    EXPECT_EQ(ReferenceRoomUgr({}, 1.5, Table), 0.0);
    EXPECT_EQ(ReferenceRoomUgr(SkewLuminaire(), 0.0, Table), 0.0);
}

} // namespace
} // namespace Merivane::Simulation
