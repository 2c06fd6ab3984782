#include <gtest/gtest.h>

#include "Simulation/ZoneSpace.hpp"

namespace Merivane::Simulation {
namespace {

// An L of 6 m x 6 m, floor at 3 m, 2.8 m high: its notch is x and y above 2 m.
ZoneSpace Room() {
    ZoneSpace zone;
    zone.polygon.outer = {{0, 0}, {6, 0}, {6, 2}, {2, 2}, {2, 6}, {0, 6}};
    zone.floorLevel = 3.0;
    zone.height = 2.8;
    return zone;
}

TEST(HoldsLuminaire, StrictlyBetweenTheFloorAndHalfAMetreAboveTheCeiling) {
    struct Case {
        double z;
        bool holds;
    };
    const Case cases[] = {{2.999, false}, {3.0, false}, {3.0 + 1e-9, true}, {5.8, true},
                          {6.299, true},  {6.3, false}, {6.301, false}};
    for (const Case& c : cases) {
        EXPECT_EQ(HoldsLuminaire(Room(), {1, 1, c.z}), c.holds) << c.z;
    }
}

TEST(HoldsLuminaire, InsideThePolygonWithItsEdges) {
    struct Case {
        double x;
        double y;
        bool holds;
    };
    const Case cases[] = {{5, 1, true},      {1, 5, true},         {3, 3, false},
                          {2, 4, true},      {2 + 1e-6, 4, false}, {0, 0, true},
                          {-1e-6, 0, false}, {6, 1, true},         {6.1, 1, false}};
    for (const Case& c : cases) {
        EXPECT_EQ(HoldsLuminaire(Room(), {c.x, c.y, 5}), c.holds) << c.x << ' ' << c.y;
    }
}

TEST(HoldsLuminaire, NeverInAHole) {
    ZoneSpace zone = Room();
    zone.polygon.holes = {{{0.5, 0.5}, {1.5, 0.5}, {1.5, 1.5}, {0.5, 1.5}}};
    EXPECT_FALSE(HoldsLuminaire(zone, {1, 1, 5}));
    EXPECT_TRUE(HoldsLuminaire(zone, {0.4, 1, 5}));
}

} // namespace
} // namespace Merivane::Simulation
