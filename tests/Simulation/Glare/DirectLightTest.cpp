#include "Simulation/Glare/DirectLight.hpp"

#include <cmath>

#include <gtest/gtest.h>

#include "Photometry/PhotometricQuantities.hpp"
#include "Simulation/Glare/GlareSamples.hpp"
#include "Simulation/Glare/RoomSamples.hpp"
#include "Support/PlainRadiosity/PlainRadiosity.hpp"

namespace Merivane::Simulation {
namespace {

using Tests::RoomOf;

// A room with everything that its direct light hangs on.
struct LitRoom {
    LitRoom(const SceneLuminaire& luminaire, const UgrRoom& room)
        : built(BuildStandardRoom(luminaire, room)),
          transport(BuildRoomTransport(CutRoom(room), built.observers, RoomViews::All)),
          grid(BuildLuminaireGrid(built)) {}

    OffsetLight Tabulated(int mostX, int mostY) const {
        return BuildOffsetLight(transport.cut, grid, mostX, mostY);
    }

    StandardRoom built;
    RoomTransport transport;
    LuminaireGrid grid;
};

void ExpectSame(const MirrorParts& a, const MirrorParts& b) {
    for (std::size_t part = 0; part < MirrorPartCount; ++part) {
        ASSERT_EQ(a[part].size(), b[part].size());
        for (std::size_t i = 0; i < a[part].size(); ++i) {
            EXPECT_NEAR(a[part][i], b[part][i], 1e-9 * a[EvenPart][i] + 1e-9) << part << " " << i;
        }
    }
}

TEST(SummedTable, GivesTheSumOverAnyRectangle) {
    const SummedTable table = BuildSummedTable(3, 4, [](int r, int c) { return 10 * r + c; });
    EXPECT_EQ(SumOver(table, 0, 3, 0, 4), 138);
    EXPECT_EQ(SumOver(table, 2, 1, 3, 1), 23);
    EXPECT_EQ(SumOver(table, 1, 2, 1, 2), 11 + 12 + 21 + 22);
    EXPECT_EQ(SumOver(table, 1, 0, 1, 2), 0);
}

TEST(LuminaireGrid, HangsInTheCeilingAQuarterOfHApart) {
    const LitRoom room(Tests::EvenLuminaire(), RoomOf(4, 6, 2));
    EXPECT_EQ(room.grid.nx, 8);
    EXPECT_EQ(room.grid.ny, 12);
    EXPECT_DOUBLE_EQ(room.grid.stepX, 0.5);
    EXPECT_EQ(room.grid.first.center, (Point3D{0.25, 0.25, 3.2}));
    EXPECT_NEAR(room.grid.flux, 96 * Photometry::TotalFlux(Tests::EvenLuminaire().photometry),
                1e-9);
}

// 100 cd all round, 3 m over the middle of a patch of 1 m: 9 g is 18 m2, so far is from 4.24 m.
TEST(LightOnPatch, TakesTheMiddleOrNinePoints) {
    SceneLuminaire luminaire = Tests::UniformLuminaire(100, 1, 1);
    PlacedLuminaire placed = PlaceLuminaires({luminaire}).front();
    placed.luminaire = &luminaire;
    Patch patch = {{0, 0, -std::sqrt(18.0) - 1e-9}, {0, 0, 1}, {0.5, 0, 0}, {0, 0.5, 0}, 1};
    EXPECT_NEAR(LightOnPatch(placed, patch), 100 / 18.0, 1e-8);
    patch.center.z = -3;
    const auto point = [](double side2) { return 100 * 3 / std::pow(9 + side2, 1.5); };
    const double third = 1.0 / 9; // of an edge, squared
    EXPECT_NEAR(LightOnPatch(placed, patch),
                (point(0) + 4 * point(third) + 4 * point(2 * third)) / 9, 1e-12);
    patch.normal.z = -1;
    EXPECT_EQ(LightOnPatch(placed, patch), 0.0);
}

TEST(LightOnPatch, IsNothingWhereTheLuminaireTouches) {
    SceneLuminaire luminaire = Tests::UniformLuminaire(100, 1, 1);
    PlacedLuminaire placed = PlaceLuminaires({luminaire}).front();
    placed.luminaire = &luminaire;
    const Patch tiny = {{0, 0, -1e-7}, {0, 0, 1}, {1e-8, 0, 0}, {0, 1e-8, 0}, 4e-16};
    EXPECT_EQ(LightOnPatch(placed, tiny), 0.0);
}

TEST(DirectIrradiance, IsTheSameFromTheTablesAsLuminaireByLuminaire) {
    for (const bool crosswise : {false, true}) {
        for (const auto& [x, y] : {std::pair(2.0, 3.0), std::pair(2.5, 1.5), std::pair(2.0, 0.2)}) {
            const LitRoom room(Tests::SkewLuminaire(), RoomOf(x, y, 1, crosswise));
            const OffsetLight light = room.Tabulated(room.grid.nx, room.grid.ny);
            const OffsetLight larger = room.Tabulated(room.grid.nx + 5, room.grid.ny + 2);
            ASSERT_TRUE(ServesGrid(light, room.transport.cut, room.grid)) << x << " " << y;
            const MirrorParts single = DirectIrradiance(room.transport, room.grid, {});
            ExpectSame(DirectIrradiance(room.transport, room.grid, light), single);
            ExpectSame(DirectIrradiance(room.transport, room.grid, larger), single);
        }
    }
}

TEST(DirectIrradiance, IsTabulatedOnlyWhereTheGridFitsThePatches) {
    const LitRoom room(Tests::SkewLuminaire(), RoomOf(3.3, 2.6, 1.3)); // 10 luminaires, 6 patches
    const OffsetLight light = room.Tabulated(10, 10);
    EXPECT_EQ(light.acrossX, 0);
    EXPECT_FALSE(ServesGrid(light, room.transport.cut, room.grid));
}

TEST(OffsetLight, ServesOnlyRoomsWithTheSameSteps) {
    const LitRoom room(Tests::SkewLuminaire(), RoomOf(2, 3, 1));
    const OffsetLight light = room.Tabulated(8, 16);
    const auto serves = [&](const UgrRoom& other) {
        const LitRoom lit(Tests::SkewLuminaire(), other);
        return ServesGrid(light, lit.transport.cut, lit.grid);
    };
    EXPECT_TRUE(serves(RoomOf(1, 4, 1)));
    EXPECT_FALSE(serves(RoomOf(2, 4.5, 1))); // 18 luminaires
    EXPECT_FALSE(serves(RoomOf(2.5, 3, 1))); // 10
    EXPECT_FALSE(serves(RoomOf(2, 3, 1.01)));
    EXPECT_FALSE(serves(RoomOf(1.9, 3, 1))); // as many luminaires and patches, nearer together
    EXPECT_FALSE(serves(RoomOf(2, 2.9, 1)));
    UgrRoom higher = RoomOf(2, 3, 1);
    higher.eyeHeight = 1.3;
    EXPECT_FALSE(serves(higher));
}

TEST(DirectIrradiance, LandsAllOfTheFlux) {
    for (const SceneLuminaire& luminaire : {Tests::EvenLuminaire(), Tests::SkewLuminaire()}) {
        const LitRoom room(luminaire, RoomOf(2.5, 3.5, 1));
        const MirrorParts irradiance =
            DirectIrradiance(room.transport, room.grid, room.Tabulated(20, 20));
        double flux = 0.0;
        for (std::size_t i = 0; i < room.transport.orbits.size(); ++i) {
            const PatchOrbit& orbit = room.transport.orbits[i];
            flux += orbit.images * orbit.area * irradiance[EvenPart][i];
        }
        const double expected = 10 * 14 * Photometry::TotalFlux(luminaire.photometry);
        EXPECT_NEAR(flux / expected, 1.0, 1e-12);
    }
}

TEST(DirectIrradiance, IsNotScaledWhereTheFluxIsUnknown) {
    SceneLuminaire typeB = Tests::EvenLuminaire();
    typeB.photometry.photometricType = 2;
    const LitRoom room(typeB, RoomOf(2, 2, 1));
    const MirrorParts irradiance =
        DirectIrradiance(room.transport, room.grid, room.Tabulated(8, 8));
    EXPECT_EQ(irradiance[EvenPart], std::vector<double>(room.transport.orbits.size(), 0.0));
}

} // namespace
} // namespace Merivane::Simulation
