#include <gtest/gtest.h>

#include "RunScenes.hpp"
#include "Simulation/Run/ReflectionEstimate.hpp"

namespace Merivane::Simulation {
namespace {

using namespace Merivane::Tests;

SimulationOptions Reflections(std::int32_t count) {
    SimulationOptions options;
    options.engine.bounces = count;
    return options;
}

TEST(MeanReflectance, WeighsSurfacesByArea) {
    Scene scene = Room(4, 4, 4, 0.5);
    EXPECT_NEAR(MeanReflectance(scene), 0.5, 1e-12);
    scene.materials.push_back({.name = "teto", .red = 0.8, .green = 0.8, .blue = 0.8});
    scene.surfaces[1].materialIndex = 1;
    EXPECT_NEAR(MeanReflectance(scene), (5 * 0.5 + 0.8) / 6.0, 1e-12);
    scene = Room(10, 1, 1, 0.0); // 42 m2, of which the floor is 10
    scene.materials.push_back({.name = "piso", .red = 0.42, .green = 0.42, .blue = 0.42});
    scene.surfaces[0].materialIndex = 1;
    EXPECT_NEAR(MeanReflectance(scene), 0.1, 1e-12);
}

TEST(MeanReflectance, WeighsColoursByLuminance) {
    Scene scene = Room(1, 1, 1, 0.0);
    scene.materials[0].red = 1.0;
    EXPECT_NEAR(MeanReflectance(scene), 0.265, 1e-12);
    scene.materials[0] = {.name = "", .red = 0.0, .green = 1.0, .blue = 0.0};
    EXPECT_NEAR(MeanReflectance(scene), 0.67, 1e-12);
    scene.materials[0] = {.name = "", .red = 0.0, .green = 0.0, .blue = 1.0};
    EXPECT_NEAR(MeanReflectance(scene), 0.065, 1e-12);
}

TEST(MeanReflectance, TakesOfGlassWhatItMirrors) {
    Scene scene = Room(1, 1, 1, 0.9);
    scene.materials[0].isGlass = true;
    EXPECT_NEAR(MeanReflectance(scene), 0.08, 1e-12);
    scene.materials[0].reflectanceInside = 0.2;
    scene.materials[0].reflectanceOutside = 0.5;
    EXPECT_NEAR(MeanReflectance(scene), 0.2, 1e-12);
    for (int i = 0; i < 3; ++i) {
        scene.surfaces[static_cast<std::size_t>(i)].exteriorFace = true;
    }
    EXPECT_NEAR(MeanReflectance(scene), 0.35, 1e-12);
}

TEST(MeanReflectance, LeavesOutWhatNoFileGets) {
    Scene scene = Room(1, 1, 1, 0.3);
    scene.surfaces[0].materialIndex = -1;
    scene.surfaces[1].materialIndex = 1;
    scene.surfaces[2].vertices.resize(2);
    EXPECT_NEAR(MeanReflectance(scene), 0.3, 1e-12);
    scene.surfaces.clear();
    EXPECT_EQ(MeanReflectance(scene), 0.0);
    EXPECT_EQ(MeanReflectance({}), 0.0);
}

TEST(OmittedReflection, IsAPowerOfTheMeanReflectance) {
    EXPECT_DOUBLE_EQ(OmittedReflection(0.5, 0), 0.5);
    EXPECT_DOUBLE_EQ(OmittedReflection(0.5, 2), 0.125);
    EXPECT_DOUBLE_EQ(OmittedReflection(0.0, 2), 0.0);
    EXPECT_NEAR(OmittedReflection(0.8, 8), 0.134, 0.001);
}

TEST(ReflectionWarning, SpeaksAboveFivePercentOnly) {
    const double edge = std::cbrt(0.05); // two reflections leave out exactly 5 %
    EXPECT_EQ(ReflectionWarning(Room(4, 4, 4, edge - 1e-6), Reflections(2)), "");
    EXPECT_EQ(ReflectionWarning(Room(4, 4, 4, edge + 1e-6), Reflections(2)),
              "Com 2 reflexões, cerca de 5 % da luz refletida fica de fora do cálculo (refletância "
              "média da cena: 37 %).");
    EXPECT_EQ(ReflectionWarning(Room(4, 4, 4, 0.5), Reflections(1)),
              "Com 1 reflexão, cerca de 25 % da luz refletida fica de fora do cálculo (refletância "
              "média da cena: 50 %).");
    EXPECT_EQ(ReflectionWarning(Room(4, 4, 4, 0.5), Reflections(0)),
              "Sem reflexões, cerca de 50 % da luz refletida fica de fora do cálculo (refletância "
              "média da cena: 50 %).");
    EXPECT_EQ(ReflectionWarning(Room(4, 4, 4, 0.5), Reflections(4)), "");
    EXPECT_EQ(ReflectionWarning({}, Reflections(0)), "");
}

TEST(ReflectionWarning, CountsWhatRtraceIsTold) {
    SimulationOptions options = Reflections(8);
    options.useEngineSettings = false;
    options.quality = 0;
    EXPECT_EQ(ReflectionWarning(Room(4, 4, 4, 0.5), options).substr(0, 16), "Com 1 reflexão,");
}

} // namespace
} // namespace Merivane::Simulation
