#include "Simulation/SurfaceGeometry.hpp"

#include <gtest/gtest.h>

namespace Merivane::Simulation {
namespace {

const std::vector<Point3D> Square = {{0, 0, 0}, {1, 0, 0}, {1, 1, 0}, {0, 1, 0}};

TEST(NewellNormal, IsAsLongAsTwiceTheArea) {
    EXPECT_EQ(NewellNormal(Square), (Point3D{0, 0, 2}));
    EXPECT_EQ(NewellNormal({{0, 0, 0}, {0, 0, 1}, {0, 2, 1}, {0, 2, 0}}), (Point3D{-4, 0, 0}));
    EXPECT_EQ(NewellNormal({{0, 0, 0}, {1, 0, 0}}), Point3D{});
    // A dent counts off.
    EXPECT_EQ(NewellNormal({{0, 0, 5}, {2, 0, 5}, {2, 2, 5}, {1, 1, 5}, {0, 2, 5}}),
              (Point3D{0, 0, 6}));
}

TEST(NewellNormal, LosesNoDigitsFarFromTheOrigin) {
    constexpr double far = 1e6;
    const Point3D normal = NewellNormal({{far, far, 0},
                                         {far + 0.125, far, 0},
                                         {far + 0.125, far + 0.125, 0},
                                         {far, far + 0.125, 0}});
    EXPECT_EQ(normal, (Point3D{0, 0, 2 * 0.125 * 0.125}));
}

TEST(GreyReflectance, WeighsTheChannelsAsRadianceDoes) {
    SceneMaterial material;
    material.red = 1.0;
    material.green = material.blue = 0.0;
    EXPECT_DOUBLE_EQ(GreyReflectance(material), 0.265);
    material.green = 0.5;
    EXPECT_DOUBLE_EQ(GreyReflectance(material), 0.6);
    material.blue = 1.0;
    EXPECT_DOUBLE_EQ(GreyReflectance(material), 0.665);
}

} // namespace
} // namespace Merivane::Simulation
