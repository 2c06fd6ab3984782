#include <cmath>

#include <gtest/gtest.h>

#include "DisplaySample.hpp"
#include "Workbench/Bodies/GivenBodies.hpp"
#include "Workbench/Bodies/PolygonRings.hpp"
#include "Workbench/Bodies/SolidBodies.hpp"
#include "Workbench/Bodies/WallBody.hpp"
#include "Workbench/Display/BodyCut.hpp"

namespace Merivane::Workbench {
namespace {

using namespace Tests;

ViewBody View(const FacedBody& faced) {
    return MakeViewBody(MakeBody(faced, UnmovedBody), FrameFromAbove());
}

ViewBody BoxView(Host::Coordinate3D low, Host::Coordinate3D high) {
    return View(BuildGivenBody(PlainBox(low, high), [](std::string_view) { return -1; }));
}

double CutArea(const BodyCut& cut) {
    double largest = 0.0;
    double sum = 0.0;
    for (const auto& ring : cut.rings) {
        largest = std::max(largest, std::abs(SignedArea(ring)));
        sum += std::abs(SignedArea(ring));
    }
    return 2.0 * largest - sum;
}

TEST(BodyCut, OfABoxIsItsRectangle) {
    const ViewBody body = BoxView({1, 2, 0}, {4, 4, 3});
    EXPECT_TRUE(body.closed);
    const BodyCut cut = CutBody(body, 1.0);
    ASSERT_EQ(cut.rings.size(), 1U);
    EXPECT_EQ(cut.rings[0].size(), 4U);
    EXPECT_TRUE(cut.lines.empty());
    EXPECT_NEAR(CutArea(cut), 6.0, 1e-12);
}

TEST(BodyCut, TakesWhatTouchesFromBelowAndLeavesWhatStandsOnThePlane) {
    EXPECT_FALSE(CutBody(BoxView({0, 0, 0}, {1, 1, 1}), 1.0).IsEmpty());
    EXPECT_TRUE(CutBody(BoxView({0, 0, 1}, {1, 1, 2}), 1.0).IsEmpty());
    EXPECT_TRUE(CutBody(BoxView({0, 0, 0}, {1, 1, 1}), 1.001).IsEmpty());
}

TEST(BodyCut, OfAWallLeavesItsOpeningsOut) {
    const WallGeometry wall{{0, 0}, {5, 0}, 0.0, 0.2, 0.0, 3.0, {}, {}, {}};
    OpeningGeometry window;
    window.along = 2.0;
    window.width = 1.2;
    window.sill = 0.9;
    window.height = 1.2;
    const ViewBody body = View(BuildWallBody(wall, {window}));
    const BodyCut through = CutBody(body, 1.0);
    EXPECT_EQ(through.rings.size(), 2U);
    double area = 0.0;
    for (const auto& ring : through.rings) {
        area += std::abs(SignedArea(ring));
    }
    EXPECT_NEAR(area, (5.0 - 1.2) * 0.2, 1e-9);
    EXPECT_EQ(CutBody(body, 0.5).rings.size(), 1U); // under the sill
}

TEST(BodyCut, OfASlabOnEdgeHasItsHoleCutOut) {
    SlabGeometry slab;
    slab.polygon = {PlainRectangle(0, 0, 6, 4), PlainRectangle(2, 1, 1, 2)};
    slab.top = 1.1;
    EXPECT_NEAR(CutArea(CutBody(View(BuildSlabBody(slab)), 1.0)), 24.0 - 2.0, 1e-9);
}

TEST(BodyCut, OfAnOpenBodyIsALine) {
    GivenBody open = PlainBox({0, 0, 0}, {2, 1, 2});
    open.faces.erase(open.faces.begin() + 2); // the south side
    const ViewBody body = View(BuildGivenBody(open, [](std::string_view) { return -1; }));
    EXPECT_FALSE(body.closed);
    const BodyCut cut = CutBody(body, 1.0);
    EXPECT_TRUE(cut.rings.empty());
    ASSERT_EQ(cut.lines.size(), 1U);
    EXPECT_EQ(cut.lines[0].size(), 4U);
}

TEST(ViewFrames, KeepLengthsAndTurnRight) {
    const ViewFrame frames[] = {FrameFromAbove(), FrameAcrossLine({1, 2}, {4, 6}),
                                FrameFromAround(4.0, 0.6)};
    for (const ViewFrame& frame : frames) {
        const auto column = [&](std::size_t i) {
            return Host::Coordinate3D{frame[i], frame[4 + i], frame[8 + i]};
        };
        const auto x = column(0);
        const auto y = column(1);
        const auto z = column(2);
        EXPECT_NEAR(Dot(x, x), 1.0, 1e-12);
        EXPECT_NEAR(Dot(x, y), 0.0, 1e-12);
        const Host::Coordinate3D cross = {x.y * y.z - x.z * y.y, x.z * y.x - x.x * y.z,
                                          x.x * y.y - x.y * y.x};
        EXPECT_NEAR(Dot(cross, z), 1.0, 1e-12);
    }
}

TEST(ViewFrames, AcrossALineLookToItsLeft) {
    const ViewFrame frame = FrameAcrossLine({1, 2}, {5, 2});
    const Host::Coordinate3D place = TransformPlace(frame, {3, 7, 1.5}); // 5 m to the left
    EXPECT_NEAR(place.x, 2.0, 1e-12);
    EXPECT_NEAR(place.y, 1.5, 1e-12);
    EXPECT_NEAR(place.z, -5.0, 1e-12);
}

TEST(ViewFrames, FromAroundShowNorthUpForAViewerInTheSouth) {
    const ViewFrame frame = FrameFromAround(-1.5707963267948966, 0.5);
    const Host::Coordinate3D east = TransformPlace(frame, {1, 0, 0});
    EXPECT_NEAR(east.x, 1.0, 1e-12);
    const Host::Coordinate3D north = TransformPlace(frame, {0, 1, 0});
    EXPECT_NEAR(north.y, std::sin(0.5), 1e-12);
    EXPECT_NEAR(north.z, -std::cos(0.5), 1e-12);
    EXPECT_NEAR(TransformPlace(frame, {0, 0, 1}).y, std::cos(0.5), 1e-12);
}

} // namespace
} // namespace Merivane::Workbench
