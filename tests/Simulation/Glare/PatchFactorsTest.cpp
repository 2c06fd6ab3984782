#include "Simulation/Glare/PatchFactors.hpp"

#include <iostream>

#include <gtest/gtest.h>

#include "Simulation/Glare/RoomSamples.hpp"
#include "Support/PlainRadiosity/PlainRadiosity.hpp"

namespace Merivane::Simulation {
namespace {

std::vector<PatchPlace> AllPlaces(const RoomCut& cut) {
    std::vector<PatchPlace> places;
    for (const RoomSide side : {RoomSide::Floor, RoomSide::Ceiling, RoomSide::WallY0,
                                RoomSide::WallY, RoomSide::WallX0, RoomSide::WallX}) {
        const bool level = side == RoomSide::Floor || side == RoomSide::Ceiling;
        const bool wallX = side == RoomSide::WallX0 || side == RoomSide::WallX;
        for (int v = 0; v < (level ? cut.ny : cut.nz); ++v) {
            for (int u = 0; u < (wallX ? cut.ny : cut.nx); ++u) {
                places.push_back({side, u, v});
            }
        }
    }
    return places;
}

// Form factor from one side of a unit cube to another, each cut 8 x 8.
double SideToSide(RoomSide a, RoomSide b) {
    const RoomCut cut = {1, 1, 1, 8, 8, 8};
    const PatchFactors factors = BuildPatchFactors(cut);
    double sum = 0.0;
    for (const PatchPlace& from : AllPlaces(cut)) {
        for (const PatchPlace& to : AllPlaces(cut)) {
            sum += from.side == a && to.side == b ? FactorBetween(factors, from, to) : 0.0;
        }
    }
    return sum;
}

TEST(PatchFactors, OfUnitSquaresAreWithinAHundredthOfTheExactOnes) {
    const double opposite = SideToSide(RoomSide::Floor, RoomSide::Ceiling);
    const double adjacent = SideToSide(RoomSide::Floor, RoomSide::WallX0);
    std::cout << "opposite " << opposite << " (exact 0.199825), with a common edge " << adjacent
              << " (exact 0.200044)\n";
    EXPECT_NEAR(opposite, 0.199825, 0.01 * 0.199825);
    EXPECT_NEAR(adjacent, 0.200044, 0.01 * 0.200044);
    EXPECT_NEAR(SideToSide(RoomSide::WallY, RoomSide::WallX), adjacent, 1e-12);
    EXPECT_NEAR(SideToSide(RoomSide::WallY, RoomSide::WallY0), opposite, 1e-12);
}

TEST(PatchFactors, AreThoseOfEveryPairTakenForItself) {
    const UgrRoom room = Tests::RoomOf(1.7, 1.1, 0.8);
    const PatchFactors factors = BuildPatchFactors(CutRoom(room));
    const std::vector<PatchPlace> places = AllPlaces(factors.cut);
    const std::vector<Tests::PlainPatch> patches = Tests::PlainPatches(room);
    ASSERT_EQ(places.size(), patches.size());
    for (std::size_t i = 0; i < places.size(); ++i) {
        for (std::size_t j = 0; j < places.size(); ++j) {
            const Tests::PlainPatch& a = patches[i];
            const Tests::PlainPatch& b = patches[j];
            const double mean = i == j
                                    ? 0.0
                                    : (a.area * Tests::PlainPointToPatch(a.center, a.normal, b) +
                                       b.area * Tests::PlainPointToPatch(b.center, b.normal, a)) /
                                          2;
            EXPECT_NEAR(FactorBetween(factors, places[i], places[j]), mean, 1e-12) << i << " " << j;
        }
    }
}

} // namespace
} // namespace Merivane::Simulation
