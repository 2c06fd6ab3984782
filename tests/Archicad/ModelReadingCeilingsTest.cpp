#include <random>

#include <gtest/gtest.h>

#include "Archicad/ModelReadingCeilings.hpp"

namespace Merivane::Archicad {
namespace {

using Lines = std::vector<std::string>;
using Surfaces = std::vector<Simulation::SceneSurface>;

/// A room of 10 m x 4 m on level 3.00, 3.00 m high by its Zone.
ZoneRecord Room(double minX = 0.0) {
    ZoneRecord zone;
    zone.name = "Sala 1";
    zone.baseLevel = 3.0;
    zone.height = 3.0;
    zone.outline = {{minX, 0}, {minX + 10, 0}, {minX + 10, 4}, {minX, 4}};
    zone.minX = minX;
    zone.maxX = minX + 10;
    zone.maxY = 4;
    return zone;
}

/// A level face over the room's first metres, `height` above its floor.
Simulation::SceneSurface Roof(double metres, double height, double minX = 0.0) {
    const double z = 3.0 + height;
    return {0, {{minX, 0, z}, {minX + metres, 0, z}, {minX + metres, 4, z}, {minX, 4, z}}, false};
}

struct Outcome {
    double height = 0.0;
    Lines lines;
};

Outcome Detect(ZoneRecord zone, const Surfaces& surfaces, bool logRequested = true) {
    std::vector<ZoneRecord> zones = {std::move(zone)};
    Outcome outcome;
    DetectCeilings(zones, surfaces, logRequested, outcome.lines);
    outcome.height = zones[0].height;
    return outcome;
}

const Lines NotFound = {
    "Zona Sala 1: forro nao detectado, paredes e teto usam a altura da Zona (3,00)"};

TEST(DetectCeilings, FollowsARoofOverSixtyPercentOfTheZone) {
    const Outcome outcome = Detect(Room(), {Roof(6.0, 2.6)});
    EXPECT_NEAR(outcome.height, 2.6, 1e-9);
    EXPECT_EQ(outcome.lines, (Lines{"Zona Sala 1: forro a 2,60 m do piso (58% da area), altura da "
                                    "Zona 3,00 m: paredes e teto seguem o forro"}));
}

TEST(DetectCeilings, KeepsTheZonesHeightUnderARoofOverFortyPercent) {
    const Outcome outcome = Detect(Room(), {Roof(4.0, 2.6)});
    EXPECT_EQ(outcome.height, 3.0);
    EXPECT_EQ(outcome.lines, NotFound);
}

TEST(DetectCeilings, FollowsARoofOverExactlyHalfOfTheZone) {
    const Outcome outcome = Detect(Room(), {Roof(5.0, 2.6)});
    EXPECT_NEAR(outcome.height, 2.6, 1e-9);
    EXPECT_EQ(outcome.lines, (Lines{"Zona Sala 1: forro a 2,60 m do piso (50% da area), altura da "
                                    "Zona 3,00 m: paredes e teto seguem o forro"}));
}

TEST(DetectCeilings, FollowsACeilingAboveTheZoneToo) {
    EXPECT_NEAR(Detect(Room(), {Roof(10.0, 3.4)}).height, 3.4, 1e-9);
}

TEST(DetectCeilings, LeavesDifferencesUnderFiveMillimetres) {
    const Outcome near = Detect(Room(), {Roof(10.0, 2.9951)});
    EXPECT_EQ(near.height, 3.0);
    EXPECT_TRUE(near.lines.empty());
    for (const double height : {2.995, 3.005}) {
        const Outcome outcome = Detect(Room(), {Roof(10.0, height)});
        EXPECT_NEAR(outcome.height, height, 1e-9);
        EXPECT_EQ(outcome.lines.size(), 1U);
    }
}

TEST(DetectCeilings, TellsWhereNothingIsFound) {
    const Outcome outcome = Detect(Room(), {});
    EXPECT_EQ(outcome.height, 3.0);
    EXPECT_EQ(outcome.lines, NotFound);
}

TEST(DetectCeilings, WritesNoLinesUnlessAsked) {
    EXPECT_TRUE(Detect(Room(), {}, false).lines.empty());
    const Outcome outcome = Detect(Room(), {Roof(10.0, 2.6)}, false);
    EXPECT_TRUE(outcome.lines.empty());
    EXPECT_NEAR(outcome.height, 2.6, 1e-9);
}

TEST(DetectCeilings, LeavesHolesOfTheZoneOut) {
    ZoneRecord zone = Room();
    zone.holes = {{{4, 0.1}, {9.9, 0.1}, {9.9, 3.9}, {4, 3.9}}};
    EXPECT_NEAR(Detect(zone, {Roof(4.0, 2.6)}).height, 2.6, 1e-9);
}

TEST(DetectCeilings, ChangesNothingButTheHeight) {
    ZoneRecord expected = Room();
    std::vector<ZoneRecord> zones = {expected};
    Lines lines;
    DetectCeilings(zones, {Roof(10.0, 2.6)}, true, lines);
    expected.height = zones[0].height;
    EXPECT_EQ(zones[0], expected);
}

TEST(DetectCeilings, FindsEveryCeilingOfALargeFloor) {
    std::vector<ZoneRecord> zones;
    Surfaces surfaces;
    for (int i = 0; i < 60; ++i) {
        zones.push_back(Room(12.0 * i));
        surfaces.push_back(Roof(10.0, 2.5 + 0.01 * i, 12.0 * i));
    }
    std::mt19937 random(11);
    std::uniform_real_distribution<double> place(0.0, 720.0);
    while (surfaces.size() < 200000) { // small faces above the ceilings, as of services
        surfaces.push_back(Roof(0.2, 3.2, place(random)));
    }
    Lines lines;
    DetectCeilings(zones, surfaces, true, lines);
    EXPECT_EQ(lines.size(), 59U); // one ceiling is as high as its Zone
    for (int i = 0; i < 60; ++i) {
        EXPECT_NEAR(zones[static_cast<std::size_t>(i)].height, 2.5 + 0.01 * i, 1e-9);
    }
}

} // namespace
} // namespace Merivane::Archicad
