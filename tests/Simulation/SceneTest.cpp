#include <cstddef>
#include <cstdint>

#include <gtest/gtest.h>

#include "Simulation/Scene.hpp"

namespace Merivane::Simulation {
namespace {

SensorPlane PlaneWithPoints(std::size_t count) {
    SensorPlane plane;
    plane.grid.columns = static_cast<std::int32_t>(count) + 1;
    plane.grid.rows = 1;
    plane.grid.active.assign(count, true);
    plane.grid.active.push_back(false);
    return plane;
}

TEST(PlanePointCount, SumsTheActivePointsOfAllPlanes) {
    Scene scene;
    EXPECT_EQ(PlanePointCount(scene), 0U);
    scene.sensorPlanes = {PlaneWithPoints(3), PlaneWithPoints(0), PlaneWithPoints(4)};
    scene.points.resize(5);
    EXPECT_EQ(PlanePointCount(scene), 7U);
}

TEST(TotalPointCount, TakesTheLoosePointsToo) {
    Scene scene;
    scene.sensorPlanes = {PlaneWithPoints(3)};
    scene.points.resize(5);
    EXPECT_EQ(TotalPointCount(scene), 8U);
}

TEST(Scene, BeginsWithTheDefaultsOfItsRecords) {
    const SceneMaterial material;
    EXPECT_EQ(material.red, 0.5);
    EXPECT_EQ(material.green, 0.5);
    EXPECT_EQ(material.blue, 0.5);
    EXPECT_FALSE(material.isGlass);
    EXPECT_EQ(material.reflectanceInside, -1.0);
    EXPECT_EQ(material.reflectanceOutside, -1.0);
    const SceneLuminaire luminaire;
    EXPECT_EQ(luminaire.dimming, 1.0);
    EXPECT_FALSE(luminaire.mirrored);
    EXPECT_LE(luminaire.arrayCountX, 1); // no copies
    EXPECT_LE(luminaire.arrayCountY, 1);
    EXPECT_EQ(luminaire.lengthScale, 1.0);
    EXPECT_EQ(luminaire.contract.maintenanceFactor, 0.8);
    EXPECT_FALSE(SceneSurface{}.exteriorFace);
    const SensorPlane plane;
    EXPECT_FALSE(plane.vertical);
    EXPECT_FALSE(plane.facesDown);
    EXPECT_EQ(plane.directionX, 1.0);
    EXPECT_EQ(plane.directionY, 0.0);
    EXPECT_EQ(plane.normalX, 0.0);
    EXPECT_EQ(plane.normalY, 1.0);
}

} // namespace
} // namespace Merivane::Simulation
