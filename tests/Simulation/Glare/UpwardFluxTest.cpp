#include <cmath>

#include <gtest/gtest.h>

#include "Simulation/Glare/GlareSamples.hpp"
#include "Simulation/Glare/UpwardFlux.hpp"

namespace Merivane::Simulation {
namespace {

Photometry::IesFile Table(const std::vector<double>& verticals, const std::vector<double>& values) {
    Photometry::IesFile file;
    file.verticalAngles = verticals;
    file.horizontalAngles = {0};
    file.candela = {values};
    return file;
}

TEST(UpwardFluxFraction, OfASphereIsHalf) {
    EXPECT_NEAR(UpwardFluxFraction(Tests::UniformLuminaire(1000, 0, 0).photometry), 0.5, 1e-12);
}

TEST(UpwardFluxFraction, OfLightThatOnlyFallsIsNothing) {
    EXPECT_EQ(UpwardFluxFraction(Table({0, 90}, {100, 100})), 0.0);
    EXPECT_NEAR(UpwardFluxFraction(Table({90.4, 180}, {100, 100})), 1.0, 1e-12);
}

TEST(UpwardFluxFraction, IsThatOfTheFlux) {
    // 1 cd below, 3 cd above, with a step at 90 degrees: three quarters.
    EXPECT_NEAR(UpwardFluxFraction(Table({0, 89.9999, 90.0001, 180}, {1, 1, 3, 3})), 0.75, 1e-9);
    // Straight lines in the angle: 0 at the bottom, 2 at the top. The integral of x sin x from
    // pi / 2 to pi is pi - 1, the whole is pi.
    EXPECT_NEAR(UpwardFluxFraction(Table({0, 180}, {0, 2})), 1 - 1 / std::acos(-1.0), 1e-4);
}

TEST(UpwardFluxFraction, WeighsAllPlanes) {
    // Light upwards in a quarter of the planes at most: it falls off linearly to both sides.
    Photometry::IesFile file;
    file.verticalAngles = {0, 89.9999, 90.0001, 180};
    file.horizontalAngles = {0, 90, 180, 270, 360};
    file.candela = {{1, 1, 1, 1}, {1, 1, 0, 0}, {1, 1, 0, 0}, {1, 1, 0, 0}, {1, 1, 1, 1}};
    EXPECT_NEAR(UpwardFluxFraction(file), 0.2, 1e-9); // 1/4 to 1
}

TEST(UpwardFluxFraction, WithoutLightIsNothing) {
    EXPECT_EQ(UpwardFluxFraction(Table({0, 180}, {0, 0})), 0.0);
    EXPECT_EQ(UpwardFluxFraction({}), 0.0);
    Photometry::IesFile typeB = Table({0, 180}, {5, 5});
    typeB.photometricType = 2;
    EXPECT_EQ(UpwardFluxFraction(typeB), 0.0);
}

TEST(UpwardFluxFraction, DoesNotDependOnTheMultiplier) {
    Photometry::IesFile file = Table({0, 180}, {1, 2});
    const double plain = UpwardFluxFraction(file);
    file.candelaMultiplier = 2.5;
    EXPECT_NEAR(UpwardFluxFraction(file), plain, 1e-12);
}

} // namespace
} // namespace Merivane::Simulation
