#include <gtest/gtest.h>

#include "Simulation/Glare/RoomObservers.hpp"

namespace Merivane::Simulation {
namespace {

ZoneSpace Room(const std::vector<Point2D>& outer) {
    ZoneSpace zone;
    zone.polygon.outer = outer;
    zone.floorLevel = 3.0;
    zone.height = 2.8;
    return zone;
}

void ExpectObserver(const UgrObserver& observer, const UgrObserver& expected) {
    EXPECT_NEAR(observer.x, expected.x, 1e-9);
    EXPECT_NEAR(observer.y, expected.y, 1e-9);
    EXPECT_NEAR(observer.z, expected.z, 1e-9);
    EXPECT_EQ(observer.dx, expected.dx);
    EXPECT_EQ(observer.dy, expected.dy);
    EXPECT_EQ(observer.label, expected.label);
}

TEST(MidWallObservers, LookIntoTheRoomFromFourWalls) {
    const std::vector<UgrObserver> observers =
        MidWallObservers(Room({{2, 12.3}, {8, 12.3}, {8, 16.3}, {2, 16.3}}));
    ASSERT_EQ(observers.size(), 4U);
    ExpectObserver(observers[0],
                   {5, 12.31, 4.2, 0, 1, "meio da parede y = 12,30, olhando ao longo de Y"});
    ExpectObserver(observers[1],
                   {5, 16.29, 4.2, 0, -1, "meio da parede y = 16,30, olhando ao longo de Y"});
    ExpectObserver(observers[2],
                   {2.01, 14.3, 4.2, 1, 0, "meio da parede x = 2,00, olhando ao longo de X"});
    ExpectObserver(observers[3],
                   {7.99, 14.3, 4.2, -1, 0, "meio da parede x = 8,00, olhando ao longo de X"});
}

TEST(MidWallObservers, StandAtTheWallsOfAnyShape) {
    // An L: the line x = 3 leaves it at y = 2, the line y = 3 at x = 2.
    const std::vector<UgrObserver> observers =
        MidWallObservers(Room({{0, 0}, {6, 0}, {6, 2}, {2, 2}, {2, 6}, {0, 6}}));
    ASSERT_EQ(observers.size(), 4U);
    EXPECT_EQ(observers[1].label, "meio da parede y = 2,00, olhando ao longo de Y");
    EXPECT_NEAR(observers[1].y, 1.99, 1e-9);
    EXPECT_EQ(observers[3].label, "meio da parede x = 2,00, olhando ao longo de X");
    EXPECT_NEAR(observers[3].x, 1.99, 1e-9);
}

TEST(MidWallObservers, GoToTheFirstAndTheLastPlaceInside) {
    // A U open upwards: along X there are two legs, and the eyes look across the gap.
    const std::vector<UgrObserver> observers =
        MidWallObservers(Room({{0, 0}, {6, 0}, {6, 6}, {4, 6}, {4, 1}, {2, 1}, {2, 6}, {0, 6}}));
    ASSERT_EQ(observers.size(), 4U);
    EXPECT_NEAR(observers[1].y, 0.99, 1e-9);
    EXPECT_NEAR(observers[2].x, 0.01, 1e-9);
    EXPECT_NEAR(observers[3].x, 5.99, 1e-9);
}

TEST(MidWallObservers, AreNoneOnALineThatMissesTheRoom) {
    ZoneSpace zone = Room({{0, 0}, {6, 0}, {6, 6}, {0, 6}});
    // A hole that cuts the room in two along the line x = 3.
    zone.polygon.holes = {{{2, -1}, {4, -1}, {4, 7}, {2, 7}}};
    const std::vector<UgrObserver> observers = MidWallObservers(zone);
    ASSERT_EQ(observers.size(), 2U);
    EXPECT_EQ(observers[0].dx, 1.0);
    EXPECT_EQ(observers[1].dx, -1.0);
    EXPECT_TRUE(MidWallObservers(Room({})).empty());
}

TEST(MidWallObservers, NeedARoomHigherThanTheEye) {
    ZoneSpace zone = Room({{0, 0}, {6, 0}, {6, 6}, {0, 6}});
    zone.height = 1.2;
    EXPECT_TRUE(MidWallObservers(zone).empty());
    zone.height = 1.201;
    EXPECT_EQ(MidWallObservers(zone).size(), 4U);
}

TEST(MidWallObservers, StandInTheMiddleOfANarrowRecess) {
    const std::vector<UgrObserver> observers =
        MidWallObservers(Room({{0, 0}, {0.012, 0}, {0.012, 6}, {0, 6}}));
    ASSERT_EQ(observers.size(), 4U);
    EXPECT_NEAR(observers[2].x, 0.006, 1e-9);
    EXPECT_NEAR(observers[3].x, 0.006, 1e-9);
}

TEST(ObserverView, IsTheEyeWithALevelDirectionOfLengthOne) {
    const ScenePoint view = ObserverView({1, 2, 3, 0, -4, "x"});
    EXPECT_EQ(view.x, 1.0);
    EXPECT_EQ(view.y, 2.0);
    EXPECT_EQ(view.z, 3.0);
    EXPECT_EQ(view.directionX, 0.0);
    EXPECT_EQ(view.directionY, -1.0);
    EXPECT_EQ(view.directionZ, 0.0);
    EXPECT_DOUBLE_EQ(ObserverView({0, 0, 0, 3, 4, ""}).directionY, 0.8);
    EXPECT_EQ(ObserverView({0, 0, 0, 0, 0, ""}).directionX, 0.0);
}

TEST(HoldsObserver, FromTheFloorUpToBelowTheCeiling) {
    const ZoneSpace zone = Room({{0, 0}, {6, 0}, {6, 6}, {0, 6}});
    struct Case {
        double x;
        double z;
        bool holds;
    };
    const Case cases[] = {{3, 2.999, false},   {3, 3, true},     {3, 4.2, true}, {3, 5.799, true},
                          {3, 5.8, false},     {3, 5.9, false},  {0, 4.2, true}, {6, 4.2, true},
                          {-1e-6, 4.2, false}, {6.1, 4.2, false}};
    for (const Case& c : cases) {
        EXPECT_EQ(HoldsObserver(zone, {c.x, 3, c.z, 1, 0, ""}), c.holds) << c.x << ' ' << c.z;
    }
}

} // namespace
} // namespace Merivane::Simulation
