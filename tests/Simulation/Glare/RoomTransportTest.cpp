#include "Simulation/Glare/RoomTransport.hpp"

#include <gtest/gtest.h>

#include "Simulation/Glare/RoomSamples.hpp"
#include "Simulation/Glare/StandardRoom.hpp"
#include "Support/PlainRadiosity/PlainRadiosity.hpp"

namespace Merivane::Simulation {
namespace {

RoomTransport TransportOf(const UgrRoom& room, RoomViews views = RoomViews::All) {
    return BuildRoomTransport(CutRoom(room), BuildStandardRoom({}, room).observers, views);
}

TEST(RoomTransport, LosesNoLight) {
    for (const UgrRoom& room : {Tests::RoomOf(4, 8, 2), Tests::RoomOf(2.5, 3.5, 1)}) {
        const RoomTransport transport = TransportOf(room);
        const std::size_t n = transport.orbits.size();
        for (std::size_t i = 0; i < n; ++i) {
            double sum = 0.0;
            for (std::size_t j = 0; j < n; ++j) {
                sum += transport.blocks[EvenPart][i * n + j];
            }
            EXPECT_NEAR(sum, 1.0, 2e-6) << i;
        }
    }
}

// Where the middle patches of an odd lattice are their own image a part that is odd there is 0, and
// nothing comes from it.
TEST(RoomTransport, HasNoOddPartOnTheMirrorPlane) {
    const RoomTransport transport = TransportOf(Tests::RoomOf(2.5, 3.5, 1));
    const std::size_t n = transport.orbits.size();
    int onPlane = 0;
    for (std::size_t j = 0; j < n; ++j) {
        if (MirroredPlace(transport.cut, transport.orbits[j].place, MirrorInY).v !=
                transport.orbits[j].place.v ||
            transport.orbits[j].place.side != RoomSide::Floor) {
            continue;
        }
        ++onPlane;
        for (std::size_t i = 0; i < n; ++i) {
            EXPECT_EQ(transport.blocks[OddInYPart][i * n + j], 0.0F);
            EXPECT_EQ(transport.blocks[OddInYPart][j * n + i], 0.0F);
        }
    }
    EXPECT_EQ(onPlane, 3); // of 5 patches across, half
}

TEST(RoomTransport, LeavesOutWhatNobodyAskedFor) {
    const RoomTransport all = TransportOf(Tests::RoomOf(2, 3, 1));
    const RoomTransport alongY = TransportOf(Tests::RoomOf(2, 3, 1), RoomViews::AlongY);
    EXPECT_EQ(alongY.blocks[EvenPart], all.blocks[EvenPart]);
    EXPECT_EQ(alongY.blocks[OddInYPart], all.blocks[OddInYPart]);
    EXPECT_TRUE(alongY.blocks[OddInXPart].empty());
    EXPECT_TRUE(alongY.alongX.even.empty());
}

// Ceiling brighter towards the origin: what the eyes get, patch by patch and by the parts.
TEST(LightOnObservers, IsTheSumOverAllPatches) {
    const UgrRoom room = Tests::RoomOf(2.5, 3.0, 1);
    const RoomTransport transport = TransportOf(room);
    const auto emits = [](const Point3D& p) { return 10.0 + p.z - 2 * p.x * p.x - 0.7 * p.y; };
    MirrorParts parts;
    for (const PatchOrbit& orbit : transport.orbits) {
        std::array<double, MirrorPartCount> sums{};
        for (int image = 0; image < MirrorImages; ++image) {
            const PatchPlace place = MirroredPlace(transport.cut, orbit.place, image);
            const double value = emits(PatchAt(transport.cut, place).center);
            for (const MirrorPart part : {EvenPart, OddInYPart, OddInXPart}) {
                sums[part] += MirrorSign(part, image) * value / MirrorImages;
            }
        }
        for (const MirrorPart part : {EvenPart, OddInYPart, OddInXPart}) {
            parts[part].push_back(sums[part]);
        }
    }
    const std::array<double, 4> light = LightOnObservers(transport, parts);
    const StandardRoom built = BuildStandardRoom({}, room);
    for (std::size_t k = 0; k < 4; ++k) {
        const UgrObserver& eye = built.observers[k];
        double sum = 0.0;
        for (const Tests::PlainPatch& patch : Tests::PlainPatches(room)) {
            sum += Tests::PlainPointToPatch({eye.x, eye.y, eye.z}, {eye.dx, eye.dy, 0}, patch) *
                   emits(patch.center);
        }
        EXPECT_NEAR(light[k], sum, 1e-10) << k;
    }
}

} // namespace
} // namespace Merivane::Simulation
