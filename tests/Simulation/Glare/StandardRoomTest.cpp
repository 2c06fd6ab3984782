#include <array>
#include <cmath>
#include <numbers>
#include <utility>

#include <gtest/gtest.h>

#include "Simulation/Glare/StandardRoom.hpp"
#include "Simulation/PlacedLuminaire.hpp"

namespace Merivane::Simulation {
namespace {

SceneLuminaire Luminaire() {
    SceneLuminaire luminaire;
    luminaire.photometry.verticalAngles = {0, 90};
    luminaire.photometry.horizontalAngles = {0, 90};
    luminaire.photometry.candela = {{100, 50}, {100, 10}};
    luminaire.photometry.width = 0.3;
    luminaire.photometry.length = 1.2;
    return luminaire;
}

UgrRoom Room(double x, double y, double height) {
    UgrRoom room;
    room.lengthX = x;
    room.lengthY = y;
    room.height = height;
    room.ceilingReflectance = 0.7;
    room.wallReflectance = 0.5;
    room.floorReflectance = 0.2;
    return room;
}

Point3D Newell(const std::vector<Point3D>& ring) {
    Point3D normal;
    for (std::size_t i = 0; i < ring.size(); ++i) {
        const Point3D& a = ring[i];
        const Point3D& b = ring[(i + 1) % ring.size()];
        normal.x += (a.y - b.y) * (a.z + b.z) / 2;
        normal.y += (a.z - b.z) * (a.x + b.x) / 2;
        normal.z += (a.x - b.x) * (a.y + b.y) / 2;
    }
    return normal;
}

TEST(BuildStandardRoom, ClosesTheRoomWithFacesThatLookInwards) {
    const Scene scene = BuildStandardRoom(Luminaire(), Room(4, 8, 1.5)).scene;
    struct Case {
        std::string material;
        Point3D normal; // as long as the face has area
    };
    const Case cases[] = {{"piso", {0, 0, 32}},         {"teto", {0, 0, -32}},
                          {"paredes", {0, 4 * 2.7, 0}}, {"paredes", {0, -4 * 2.7, 0}},
                          {"paredes", {8 * 2.7, 0, 0}}, {"paredes", {-8 * 2.7, 0, 0}}};
    ASSERT_EQ(scene.surfaces.size(), 6U);
    for (std::size_t i = 0; i < 6; ++i) {
        const SceneSurface& face = scene.surfaces[i];
        EXPECT_EQ(scene.materials[static_cast<std::size_t>(face.materialIndex)].name,
                  cases[i].material);
        const Point3D normal = Newell(face.vertices);
        EXPECT_NEAR(normal.x, cases[i].normal.x, 1e-12);
        EXPECT_NEAR(normal.y, cases[i].normal.y, 1e-12);
        EXPECT_NEAR(normal.z, cases[i].normal.z, 1e-12);
        Point3D middle; // the way to the middle of the room is the normal's
        for (const Point3D& vertex : face.vertices) {
            middle.x += vertex.x / 4;
            middle.y += vertex.y / 4;
            middle.z += vertex.z / 4;
        }
        EXPECT_GT((2 - middle.x) * normal.x + (4 - middle.y) * normal.y +
                      (1.35 - middle.z) * normal.z,
                  0.0);
    }
}

TEST(BuildStandardRoom, PaintsItGrey) {
    const Scene scene = BuildStandardRoom(Luminaire(), Room(4, 8, 1.5)).scene;
    ASSERT_EQ(scene.materials.size(), 3U);
    const std::array<std::pair<const char*, double>, 3> expected = {
        {{"teto", 0.7}, {"paredes", 0.5}, {"piso", 0.2}}};
    for (std::size_t i = 0; i < 3; ++i) {
        EXPECT_EQ(scene.materials[i].name, expected[i].first);
        EXPECT_EQ(scene.materials[i].red, expected[i].second);
        EXPECT_EQ(scene.materials[i].green, expected[i].second);
        EXPECT_EQ(scene.materials[i].blue, expected[i].second);
        EXPECT_FALSE(scene.materials[i].isGlass);
    }
}

TEST(BuildStandardRoom, SpacesTheGridByAboutAQuarterOfTheHeight) {
    struct Case {
        double x;
        double y;
        double height;
        std::int32_t countX;
        std::int32_t countY;
    };
    const Case cases[] = {
        {4, 8, 2, 8, 16},        {24, 16, 2, 48, 32}, {0.2, 0.1, 2, 1, 1}, // never less than one
        {1.2499, 1.25, 2, 2, 3}, // 2.4998 and 2.5 steps: halves go up
        {1, 1, 0, 1, 1},         // no height, no step
    };
    for (const Case& c : cases) {
        const Scene scene = BuildStandardRoom(Luminaire(), Room(c.x, c.y, c.height)).scene;
        ASSERT_EQ(scene.luminaires.size(), 1U);
        const SceneLuminaire& grid = scene.luminaires[0];
        EXPECT_EQ(grid.arrayCountX, c.countX);
        EXPECT_EQ(grid.arrayCountY, c.countY);
        EXPECT_DOUBLE_EQ(grid.arrayStepX, c.x / c.countX);
        EXPECT_DOUBLE_EQ(grid.arrayStepY, c.y / c.countY);
    }
}

TEST(BuildStandardRoom, HangsTheCopiesInTheCeilingXFirst) {
    const Scene scene = BuildStandardRoom(Luminaire(), Room(2, 3, 2)).scene;
    const std::vector<PlacedLuminaire> placed = PlaceLuminaires(scene.luminaires);
    ASSERT_EQ(placed.size(), 24U);
    for (std::size_t i = 0; i < 4; ++i) {
        for (std::size_t j = 0; j < 6; ++j) {
            const Point3D& center = placed[i * 6 + j].center;
            EXPECT_NEAR(center.x, (static_cast<double>(i) + 0.5) * 0.5, 1e-12);
            EXPECT_NEAR(center.y, (static_cast<double>(j) + 0.5) * 0.5, 1e-12);
            EXPECT_DOUBLE_EQ(center.z, 3.2);
        }
    }
}

TEST(BuildStandardRoom, ForgetsHowTheLuminaireIsPlacedInTheProject) {
    SceneLuminaire luminaire = Luminaire();
    luminaire.contract.centerX = 1;
    luminaire.contract.centerY = 2;
    luminaire.contract.centerZ = 3;
    luminaire.contract.c0Rotation = 10;
    luminaire.contract.tiltAngle = 20;
    luminaire.contract.tiltDirection = 30;
    luminaire.dimming = 0.3;
    luminaire.mirrored = true;
    luminaire.rotation = 1;
    luminaire.x = luminaire.y = luminaire.z = 100;
    luminaire.lengthScale = 0.5; // a property of the model
    for (const bool crosswise : {false, true}) {
        UgrRoom room = Room(4, 4, 2);
        room.crosswise = crosswise;
        const StandardRoom built = BuildStandardRoom(luminaire, room);
        const PlacedLuminaire first = PlaceLuminaires(built.scene.luminaires)[0];
        const Photometry::RotationMatrix along = {1, 0, 0, 0, 1, 0, 0, 0, 1};
        const Photometry::RotationMatrix across = {0, -1, 0, 1, 0, 0, 0, 0, 1};
        for (std::size_t k = 0; k < 9; ++k) {
            EXPECT_NEAR(first.frame[k], (crosswise ? across : along)[k], 1e-15);
        }
        EXPECT_DOUBLE_EQ(first.center.x, 0.25);
        EXPECT_DOUBLE_EQ(first.center.y, 0.25);
        EXPECT_DOUBLE_EQ(first.center.z, 3.2);
        EXPECT_DOUBLE_EQ(first.outputFactor, 0.5);
    }
}

TEST(BuildStandardRoom, PutsFourObserversAtMidWall) {
    UgrRoom room = Room(4, 8, 2);
    room.eyeHeight = 1.3;
    const StandardRoom built = BuildStandardRoom(Luminaire(), room);
    const UgrObserver expected[] = {
        {2, 0.01, 1.3, 0, 1, "meio da parede y = 0, olhando ao longo de Y"},
        {2, 7.99, 1.3, 0, -1, "meio da parede y = Y, olhando ao longo de Y"},
        {0.01, 4, 1.3, 1, 0, "meio da parede x = 0, olhando ao longo de X"},
        {3.99, 4, 1.3, -1, 0, "meio da parede x = X, olhando ao longo de X"}};
    for (std::size_t i = 0; i < 4; ++i) {
        const UgrObserver& observer = built.observers[i];
        EXPECT_DOUBLE_EQ(observer.x, expected[i].x);
        EXPECT_DOUBLE_EQ(observer.y, expected[i].y);
        EXPECT_EQ(observer.z, expected[i].z);
        EXPECT_EQ(observer.dx, expected[i].dx);
        EXPECT_EQ(observer.dy, expected[i].dy);
        EXPECT_EQ(observer.label, expected[i].label);
    }
    EXPECT_DOUBLE_EQ(built.scene.luminaires[0].z, 3.3);
}

TEST(StandardRooms, AreThoseOfTheTablesInTheirOrder) {
    const std::array<std::pair<double, double>, 19> expected = {{{2, 2},
                                                                 {2, 3},
                                                                 {2, 4},
                                                                 {2, 6},
                                                                 {2, 8},
                                                                 {2, 12},
                                                                 {4, 2},
                                                                 {4, 3},
                                                                 {4, 4},
                                                                 {4, 6},
                                                                 {4, 8},
                                                                 {4, 12},
                                                                 {8, 4},
                                                                 {8, 6},
                                                                 {8, 8},
                                                                 {8, 12},
                                                                 {12, 4},
                                                                 {12, 6},
                                                                 {12, 8}}};
    for (std::size_t i = 0; i < expected.size(); ++i) {
        EXPECT_EQ(std::pair(StandardRooms[i].x, StandardRooms[i].y), expected[i]) << i;
    }
}

TEST(ReflectanceSets, AreThoseOfTheTablesInTheirOrder) {
    const double expected[5][3] = {
        {0.7, 0.5, 0.2}, {0.7, 0.3, 0.2}, {0.5, 0.5, 0.2}, {0.5, 0.3, 0.2}, {0.3, 0.3, 0.2}};
    for (std::size_t i = 0; i < ReflectanceSets.size(); ++i) {
        EXPECT_EQ(ReflectanceSets[i].ceiling, expected[i][0]) << i;
        EXPECT_EQ(ReflectanceSets[i].walls, expected[i][1]) << i;
        EXPECT_EQ(ReflectanceSets[i].floor, expected[i][2]) << i;
    }
}

TEST(TableRoom, TakesItsSidesInMultiplesOfTheHeight) {
    const UgrRoom room = TableRoom({2, 12}, {0.5, 0.3, 0.1}, 1.5, true);
    EXPECT_EQ(room.lengthX, 3.0);
    EXPECT_EQ(room.lengthY, 18.0);
    EXPECT_EQ(room.height, 1.5);
    EXPECT_EQ(room.eyeHeight, 1.2);
    EXPECT_EQ(room.ceilingReflectance, 0.5);
    EXPECT_EQ(room.wallReflectance, 0.3);
    EXPECT_EQ(room.floorReflectance, 0.1);
    EXPECT_TRUE(room.crosswise);
}

TEST(ReferenceRoom, IsFourByEightAndBright) {
    const UgrRoom room = ReferenceRoom(2, false);
    EXPECT_EQ(room.lengthX, 8.0);
    EXPECT_EQ(room.lengthY, 16.0);
    EXPECT_EQ(room.height, 2.0);
    EXPECT_EQ(room.ceilingReflectance, 0.7);
    EXPECT_EQ(room.wallReflectance, 0.5);
    EXPECT_EQ(room.floorReflectance, 0.2);
    EXPECT_FALSE(room.crosswise);
    EXPECT_TRUE(ReferenceRoom(2, true).crosswise);
}

} // namespace
} // namespace Merivane::Simulation
