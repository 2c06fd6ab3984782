#include <gtest/gtest.h>

#include "Radiance/SceneText.hpp"

namespace Merivane::Radiance {
namespace {

using Simulation::CalculationGrid;
using Simulation::Scene;
using Simulation::SceneMaterial;
using Simulation::SceneSurface;
using Simulation::SensorPlane;

SceneMaterial Opaque(const std::string& name) {
    return {.name = name, .red = 0.5, .green = 0.25, .blue = 0.125};
}

SceneMaterial Glass(const std::string& name, double inside, double outside) {
    return {.name = name,
            .red = 0.9,
            .green = 0.8,
            .blue = 0.7,
            .isGlass = true,
            .reflectanceInside = inside,
            .reflectanceOutside = outside};
}

SceneSurface Triangle(std::int32_t material, bool exterior = false) {
    return {.materialIndex = material,
            .vertices = {{0, 0, 0}, {1, 0, 0}, {0, 1.5, -0.0}},
            .exteriorFace = exterior};
}

// Two by two nodes at (1, 2), step 0.5, the last one inactive.
CalculationGrid SmallGrid() {
    CalculationGrid grid;
    grid.originX = 1.0;
    grid.originY = 2.0;
    grid.stepX = 0.5;
    grid.stepY = 0.5;
    grid.columns = 2;
    grid.rows = 2;
    grid.z = 0.75;
    grid.active = {true, true, true, false};
    grid.task = {false, false, false, false};
    return grid;
}

TEST(SanitizeName, KeepsAsciiLettersAndDigitsAndNothingElse) {
    struct Case {
        std::string text;
        std::string name;
    };
    const Case cases[] = {
        {"Tinta01", "Tinta01"},
        {"Tinta branca / fosca", "Tinta_branca___fosca"},
        {"áé", "____"}, // one for each byte of UTF-8
        {"", "x"},
        {"_", "_"},
        {"az AZ 09", "az_AZ_09"},
        {"@[`{/:", "______"}, // the neighbours of the three ranges
        {std::string("a\0b", 3), "a_b"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.text);
        EXPECT_EQ(SanitizeName(c.text), c.name);
    }
}

TEST(MaterialsText, OfAnEmptySceneIsItsFirstLine) {
    EXPECT_EQ(MaterialsText({}),
              "# Vantoro: superficies difusas (plastic sem especular) e vidros (glass)\n");
}

TEST(MaterialsText, WritesPlasticGlassAndReflectingGlass) {
    Scene scene;
    scene.materials = {Opaque("Parede clara"), Glass("", -1.0, -1.0),
                       Glass("Refletivo", 0.12, 0.34567)};
    EXPECT_EQ(MaterialsText(scene),
              "# Vantoro: superficies difusas (plastic sem especular) e vidros (glass)\n"
              "void plastic m0_Parede_clara\n0\n0\n5 0.5000 0.2500 0.1250 0 0\n\n"
              "void glass m1_x\n0\n0\n3 0.9000 0.8000 0.7000\n\n"
              "void BRTDfunc m2_Refletivo\n"
              "10 if(Rdot,0.1200,0) if(Rdot,0.1200,0) if(Rdot,0.1200,0) 0.9000 0.8000 0.7000 "
              "0 0 0 .\n0\n9 0 0 0 0 0 0 0 0 0\n\n"
              "void BRTDfunc m2_Refletivo_ext\n"
              "10 if(Rdot,0.3457,0) if(Rdot,0.3457,0) if(Rdot,0.3457,0) 0.9000 0.8000 0.7000 "
              "0 0 0 .\n0\n9 0 0 0 0 0 0 0 0 0\n\n");
}

TEST(MaterialsText, TakesAnInsideReflectanceOfZeroForReflectingGlass) {
    Scene scene;
    scene.materials = {Glass("v", 0.0, 0.0)};
    EXPECT_NE(MaterialsText(scene).find("void BRTDfunc m0_v\n10 if(Rdot,0.0000,0) "),
              std::string::npos);
}

TEST(MaterialsText, LooksAtReflectancesOfGlassOnly) {
    Scene scene;
    scene.materials = {Opaque("p")};
    scene.materials[0].reflectanceInside = 0.5;
    EXPECT_NE(MaterialsText(scene).find("void plastic m0_p\n"), std::string::npos);
}

TEST(GeometryText, OfAnEmptySceneIsItsFirstLine) {
    EXPECT_EQ(GeometryText({}), "# Vantoro: geometria do ambiente\n");
}

TEST(GeometryText, WritesOnePolygonASurface) {
    Scene scene;
    scene.materials = {Opaque("A"), Opaque("B b")};
    scene.surfaces = {Triangle(1)};
    scene.surfaces[0].vertices.push_back({-1.25, 1e-7, 12.3456789});
    EXPECT_EQ(GeometryText(scene), "# Vantoro: geometria do ambiente\n"
                                   "m1_B_b polygon p0\n0\n0\n12\n"
                                   "\t0.000000 0.000000 0.000000\n"
                                   "\t1.000000 0.000000 0.000000\n"
                                   "\t0.000000 1.500000 0.000000\n"
                                   "\t-1.250000 0.000000 12.345679\n\n");
}

TEST(GeometryText, LeavesBadSurfacesOutAndCountsThem) {
    Scene scene;
    scene.materials = {Opaque("A")};
    scene.surfaces = {Triangle(-1), Triangle(0), Triangle(1), Triangle(0), Triangle(0)};
    scene.surfaces[3].vertices.resize(2);
    const std::string polygon = "0\n0\n9\n\t0.000000 0.000000 0.000000\n\t1.000000 0.000000 "
                                "0.000000\n\t0.000000 1.500000 0.000000\n\n";
    EXPECT_EQ(GeometryText(scene), "# Vantoro: geometria do ambiente\nm0_A polygon p1\n" + polygon +
                                       "m0_A polygon p4\n" + polygon);
}

TEST(GeometryText, GivesTheOutdoorsItsReflectanceOfReflectingGlassOnly) {
    struct Case {
        SceneMaterial material;
        bool exterior;
        std::string modifier;
    };
    const Case cases[] = {
        {Glass("v", 0.1, 0.3), true, "m0_v_ext polygon p0\n"},
        {Glass("v", 0.1, 0.3), false, "m0_v polygon p0\n"},
        {Glass("v", -1.0, 0.3), true, "m0_v polygon p0\n"},
        {Glass("v", 0.0, 0.0), true, "m0_v_ext polygon p0\n"},
        {Opaque("v"), true, "m0_v polygon p0\n"},
    };
    for (const Case& c : cases) {
        Scene scene;
        scene.materials = {c.material};
        scene.surfaces = {Triangle(0, c.exterior)};
        EXPECT_EQ(GeometryText(scene).find(c.modifier),
                  std::string("# Vantoro: geometria do ambiente\n").size())
            << GeometryText(scene);
    }
}

TEST(SensorsText, WritesActivePointsOfHorizontalPlanesUpAndDown) {
    Scene scene;
    scene.sensorPlanes.resize(2);
    scene.sensorPlanes[0].grid = SmallGrid();
    scene.sensorPlanes[1].grid = SmallGrid();
    scene.sensorPlanes[1].grid.z = 2.69;
    scene.sensorPlanes[1].facesDown = true;
    EXPECT_EQ(SensorsText(scene), "1.000000 2.000000 0.750000 0 0 1\n"
                                  "1.500000 2.000000 0.750000 0 0 1\n"
                                  "1.000000 2.500000 0.750000 0 0 1\n"
                                  "1.000000 2.000000 2.690000 0 0 -1\n"
                                  "1.500000 2.000000 2.690000 0 0 -1\n"
                                  "1.000000 2.500000 2.690000 0 0 -1\n");
}

TEST(SensorsText, WritesVerticalPlanesAlongTheirWall) {
    Scene scene;
    SensorPlane plane;
    plane.grid = SmallGrid();
    plane.vertical = true;
    plane.originX = 10.0;
    plane.originY = 20.0;
    plane.directionX = 0.6;
    plane.directionY = 0.8;
    plane.normalX = -0.8;
    plane.normalY = 0.6;
    scene.sensorPlanes = {plane};
    EXPECT_EQ(SensorsText(scene), "10.600000 20.800000 2.000000 -0.800000 0.600000 0\n"
                                  "10.900000 21.200000 2.000000 -0.800000 0.600000 0\n"
                                  "10.600000 20.800000 2.500000 -0.800000 0.600000 0\n");
}

TEST(SensorsText, GetsNothingFromAPlaneWithoutActivePoints) {
    Scene scene;
    scene.sensorPlanes.resize(1);
    scene.sensorPlanes[0].grid = SmallGrid();
    scene.sensorPlanes[0].grid.active.assign(4, false);
    EXPECT_EQ(SensorsText(scene), "");
}

TEST(PointsText, WritesSixNumbersAPoint) {
    Scene scene;
    scene.points = {{1, 2, 3, 0, -1, -0.0}, {0.5, 0, 1.2, 1, 0, 0}};
    EXPECT_EQ(PointsText(scene), "1.000000 2.000000 3.000000 0.000000 -1.000000 0.000000\n"
                                 "0.500000 0.000000 1.200000 1.000000 0.000000 0.000000\n");
}

} // namespace
} // namespace Merivane::Radiance
