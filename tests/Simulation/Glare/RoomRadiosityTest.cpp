#include "Simulation/Glare/RoomRadiosity.hpp"

#include <iostream>

#include <gtest/gtest.h>

#include "Simulation/Glare/DirectLight.hpp"
#include "Simulation/Glare/RoomSamples.hpp"

namespace Merivane::Simulation {
namespace {

using Tests::RoomOf;

struct Solved {
    RoomTransport transport;
    MirrorParts direct;
    std::vector<MirrorParts> radiosity;
    double flux = 0.0;
};

Solved Solve(const UgrRoom& room, const SceneLuminaire& luminaire,
             const std::vector<ReflectanceSet>& sets) {
    const StandardRoom built = BuildStandardRoom(luminaire, room);
    const LuminaireGrid grid = BuildLuminaireGrid(built);
    Solved solved;
    solved.transport = BuildRoomTransport(CutRoom(room), built.observers, RoomViews::All);
    solved.direct = DirectIrradiance(
        solved.transport, grid, BuildOffsetLight(solved.transport.cut, grid, grid.nx, grid.ny));
    solved.flux = grid.flux;
    std::vector<RadiosityCase> cases;
    cases.reserve(sets.size());
    for (const ReflectanceSet& set : sets) {
        cases.push_back({solved.direct, set});
    }
    solved.radiosity = SolveRadiosity(solved.transport, cases);
    return solved;
}

// Sum over all patches of the room of `value(i)` times area.
template <class Value> double OverRoom(const RoomTransport& transport, Value value) {
    double sum = 0.0;
    for (std::size_t i = 0; i < transport.orbits.size(); ++i) {
        sum += transport.orbits[i].images * transport.orbits[i].area * value(i);
    }
    return sum;
}

TEST(RoomRadiosity, OfUniformRoomsIsTheGeometricSeries) {
    for (const UgrRoom& room : {RoomOf(4, 8, 2), RoomOf(16, 24, 2), RoomOf(2.5, 3.5, 1)}) {
        for (const double reflectance : {0.2, 0.5, 0.8}) {
            const Solved solved =
                Solve(room, Tests::SkewLuminaire(), {{reflectance, reflectance, reflectance}});
            const double surface = OverRoom(solved.transport, [](std::size_t) { return 1.0; });
            const double reflected = OverRoom(solved.transport, [&](std::size_t i) {
                return solved.radiosity[0][EvenPart][i] / reflectance - solved.direct[EvenPart][i];
            });
            const double expected =
                solved.flux / surface * reflectance / (1 - reflectance); // lux, over the room
            std::cout << room.lengthX << " x " << room.lengthY << " m, reflectance " << reflectance
                      << ": " << reflected / surface << " lux, closed form " << expected << '\n';
            EXPECT_NEAR(reflected / surface / expected, 1.0, 1e-3);
        }
    }
}

TEST(RoomRadiosity, BalancesTheFluxThatIsAbsorbed) {
    for (const SceneLuminaire& luminaire : {Tests::EvenLuminaire(), Tests::SkewLuminaire()}) {
        for (const ReflectanceSet& set : ReflectanceSets) {
            const Solved solved = Solve(RoomOf(4, 6, 2), luminaire, {set});
            const double absorbed = OverRoom(solved.transport, [&](std::size_t i) {
                const RoomSide side = solved.transport.orbits[i].place.side;
                const double reflectance = side == RoomSide::Floor     ? set.floor
                                           : side == RoomSide::Ceiling ? set.ceiling
                                                                       : set.walls;
                return solved.radiosity[0][EvenPart][i] / reflectance * (1 - reflectance);
            });
            EXPECT_NEAR(absorbed / solved.flux, 1.0, 1e-3) << set.ceiling << " " << set.walls;
        }
    }
}

// Any number of cases: two, ten and what is left are solved by different loops.
TEST(RoomRadiosity, IsTheSameForManyCasesAtOnceAsForEachAlone) {
    const std::vector<ReflectanceSet> base(ReflectanceSets.begin(), ReflectanceSets.end());
    for (const std::size_t count : {1U, 2U, 3U, 10U, 11U, 12U, 13U}) {
        std::vector<ReflectanceSet> sets;
        for (std::size_t k = 0; k < count; ++k) {
            sets.push_back(base[k % base.size()]);
        }
        const Solved together = Solve(RoomOf(2, 3, 1), Tests::SkewLuminaire(), sets);
        ASSERT_EQ(together.radiosity.size(), count);
        for (std::size_t k = 0; k < count; ++k) {
            const Solved alone = Solve(RoomOf(2, 3, 1), Tests::SkewLuminaire(), {sets[k]});
            for (std::size_t part = 0; part < MirrorPartCount; ++part) {
                ASSERT_EQ(together.radiosity[k][part].size(), alone.radiosity[0][part].size());
                for (std::size_t i = 0; i < alone.radiosity[0][part].size(); ++i) {
                    EXPECT_NEAR(together.radiosity[k][part][i], alone.radiosity[0][part][i],
                                1e-5 * alone.radiosity[0][EvenPart][i]);
                }
            }
        }
    }
}

TEST(RoomRadiosity, OfABlackRoomIsNothing) {
    const Solved solved = Solve(RoomOf(2, 3, 1), Tests::SkewLuminaire(), {{0, 0, 0}});
    for (const std::vector<double>& part : solved.radiosity[0]) {
        EXPECT_EQ(part, std::vector<double>(solved.transport.orbits.size(), 0.0));
    }
}

} // namespace
} // namespace Merivane::Simulation
