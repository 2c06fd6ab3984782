#include <cmath>

#include <gtest/gtest.h>

#include "DisplaySample.hpp"
#include "Workbench/Bodies/GivenBodies.hpp"
#include "Workbench/Display/SeenOutlines.hpp"

namespace Merivane::Workbench {
namespace {

using namespace Tests;

ViewBody BoxView(Host::Coordinate3D low, Host::Coordinate3D high) {
    const FacedBody faced =
        BuildGivenBody(PlainBox(low, high), [](std::string_view) { return -1; });
    return MakeViewBody(MakeBody(faced, UnmovedBody), FrameFromAbove());
}

double SeenLength(const std::vector<ViewBody>& bodies, double nearest = HUGE_VAL) {
    double total = 0.0;
    for (const auto& [from, to] : SeenOutlines(bodies, nearest)) {
        total += std::hypot(to.x - from.x, to.y - from.y);
    }
    return total;
}

TEST(SeenOutlines, OfABoxAreItsRectangleOnce) {
    EXPECT_EQ(SeenOutlines({BoxView({0, 0, 0}, {3, 2, 1})}, HUGE_VAL).size(), 4U);
    EXPECT_NEAR(SeenLength({BoxView({0, 0, 0}, {3, 2, 1})}), 10.0, 1e-9);
}

TEST(SeenOutlines, LeaveOutWhatATopCovers) {
    const ViewBody top = BoxView({0, 0, 1}, {3, 2, 1.1});
    EXPECT_NEAR(SeenLength({top, BoxView({1, 0.5, 0}, {2, 1.5, 1})}), 10.0, 1e-9);
    // Half of it sticks out.
    EXPECT_NEAR(SeenLength({top, BoxView({2, 0.5, 0}, {4, 1.5, 0.5})}), 10.0 + 3.0, 1e-9);
}

TEST(SeenOutlines, ShowWhatStandsOnATop) {
    EXPECT_NEAR(SeenLength({BoxView({0, 0, 0}, {3, 2, 1}), BoxView({1, 0.5, 1}, {2, 1.5, 1.2})}),
                10.0 + 4.0, 1e-9);
}

TEST(SeenOutlines, LookUnderWhatIsTakenAway) {
    const std::vector<ViewBody> bodies = {BoxView({0, 0, 2}, {3, 2, 2.1}),
                                          BoxView({1, 0.5, 0}, {2, 1.5, 1})};
    EXPECT_NEAR(SeenLength(bodies), 10.0, 1e-9);
    EXPECT_NEAR(SeenLength(bodies, 1.5), 4.0, 1e-9);
    EXPECT_NEAR(SeenLength(bodies, 0.5), 0.0, 1e-9); // its top is taken away too
}

TEST(SeenOutlines, OfAFaceWithAHoleShowTheHole) {
    FacedBody plate;
    plate.vertices = {{0, 0, 0}, {4, 0, 0}, {4, 4, 0}, {0, 4, 0},
                      {1, 1, 0}, {1, 2, 0}, {2, 2, 0}, {2, 1, 0}};
    plate.faces = {{{{0, 1, 2, 3}, {4, 5, 6, 7}}, 1}};
    const ViewBody view = MakeViewBody(MakeBody(plate, UnmovedBody), FrameFromAbove());
    EXPECT_NEAR(SeenLength({view}), 16.0 + 4.0, 1e-9);
    // What lies in the hole is seen, what lies beside it is not.
    EXPECT_NEAR(SeenLength({view, BoxView({1.2, 1.2, -2}, {1.7, 1.7, -1})}), 20.0 + 2.0, 1e-9);
    EXPECT_NEAR(SeenLength({view, BoxView({2.2, 2.2, -2}, {2.7, 2.7, -1})}), 20.0, 1e-9);
}

} // namespace
} // namespace Merivane::Workbench
