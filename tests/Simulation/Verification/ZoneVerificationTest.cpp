#include <gtest/gtest.h>

#include "Simulation/Verification/ZoneVerification.hpp"

namespace Merivane::Simulation {
namespace {

using Lines = std::vector<std::string>;

/// 10 m x 10 m, floor at 0, 3 m high.
const ZoneSpace Room = {
    .name = "Sala",
    .polygon = {.outer = {{0, 0}, {10, 0}, {10, 10}, {0, 10}}, .holes = {}},
    .floorLevel = 0.0,
    .height = 3.0,
};

/// A downlight of `candela` in every direction under the ceiling at (x, y), opening 0.1 m2, flat.
SceneLuminaire Downlight(const std::string& name, double x, double y, double candela = 10.0) {
    SceneLuminaire luminaire;
    luminaire.id = "lum1";
    luminaire.displayName = name;
    luminaire.photometry.verticalAngles = {0, 180};
    luminaire.photometry.horizontalAngles = {0};
    luminaire.photometry.candela = {{candela, candela}};
    luminaire.photometry.width = 0.2;
    luminaire.photometry.length = 0.5;
    luminaire.contract.colourRendering = 90.0;
    luminaire.x = x;
    luminaire.y = y;
    luminaire.z = 2.9;
    return luminaire;
}

Scene Lit(std::vector<SceneLuminaire> luminaires) {
    Scene scene;
    scene.luminaires = std::move(luminaires);
    return scene;
}

/// 500 lx asked and met, no screens; UGRL 19, Ra 80.
ZoneResults Office() {
    ZoneResults results;
    results.requirement = {.taskId = "s22.2", .em = 500.0, .u0 = 0.7, .screens = ScreensNone};
    results.statistics = {
        .count = 100, .mean = 520.0, .minimum = 390.0, .maximum = 600.0, .uniformity = 0.75};
    return results;
}

ZoneResults OfficeWithScreens() {
    ZoneResults results = Office();
    results.requirement.screens = ScreensAutomatic;
    return results;
}

TEST(VerifyZoneOfScene, TakesTheResultsAndTheActivitysLimit) {
    ZoneResults results = Office();
    results.hasUgr = true;
    results.ugr = 20.0;
    const ZoneVerification verification =
        VerifyZoneOfScene(Room, Lit({Downlight("A", 5, 5)}), results);
    EXPECT_EQ(verification.input.requirement, results.requirement);
    EXPECT_EQ(verification.input.statistics, results.statistics);
    EXPECT_FALSE(verification.input.hasSurround);
    EXPECT_EQ(verification.input.ugrLimit, 19);
    EXPECT_FALSE(verification.passes);
    EXPECT_EQ(verification.log,
              (Lines{"  Iluminância Em: 520 lx / ≥ 500 lx - atende",
                     "  Uniformidade U0: 0,75 / ≥ 0,70 - atende",
                     "  Ofuscamento UGR: 20,0 / ≤ 19 - NAO ATENDE",
                     "  Reprodução Ra (IRC): 90 / ≥ 80 - atende",
                     "  (recomendacao) Fator de manutenção: 0,80 / ≥ 0,70 - atende"}));
    EXPECT_TRUE(verification.notes.empty());
}

TEST(VerifyZoneOfScene, AnActivityWithoutUgrlIsNotAskedForGlare) {
    ZoneResults results = Office();
    results.requirement.taskId = "s6.1";
    results.hasUgr = true;
    results.ugr = 30.0;
    const ZoneVerification verification = VerifyZoneOfScene(Room, Scene{}, results);
    EXPECT_EQ(verification.input.ugrLimit, 0);
    EXPECT_EQ(verification.rows.size(), 2U);
    EXPECT_TRUE(verification.passes);
}

TEST(VerifyZoneOfScene, AZoneWithoutActivityHasNoRowsAndPasses) {
    for (const char* id : {"", "s99.1"}) {
        ZoneResults results = Office();
        results.requirement.taskId = id;
        SceneLuminaire luminaire = Downlight("A", 5, 5);
        luminaire.contract.colourRendering = 0.0;
        const ZoneVerification verification = VerifyZoneOfScene(Room, Lit({luminaire}), results);
        EXPECT_TRUE(verification.rows.empty());
        EXPECT_TRUE(verification.passes);
        EXPECT_EQ(verification.log, Lines());
        EXPECT_EQ(verification.notes, Lines());
        EXPECT_EQ(verification.input.luminaireCount, 1);
    }
}

TEST(VerifyZoneOfScene, CountsTheLuminairesWhosePhotometricCentreIsOverTheZone) {
    SceneLuminaire reachesIn = Downlight("A", 11, 5);
    reachesIn.contract.centerX = -2.0;
    SceneLuminaire reachesOut = Downlight("A", 9, 5);
    reachesOut.contract.centerX = 2.0;
    SceneLuminaire onTheFloor = Downlight("A", 5, 5);
    onTheFloor.z = 0.0;
    SceneLuminaire inTheCeiling = Downlight("A", 5, 5);
    inTheCeiling.z = 3.49;
    SceneLuminaire aboveTheCeiling = Downlight("A", 5, 5);
    aboveTheCeiling.z = 3.5;
    const ZoneVerification verification = VerifyZoneOfScene(
        Room, Lit({reachesIn, reachesOut, onTheFloor, inTheCeiling, aboveTheCeiling}), Office());
    EXPECT_EQ(verification.input.luminaireCount, 2);
}

TEST(VerifyZoneOfScene, CountsEveryCopyOfAnArrayThatIsOverTheZone) {
    SceneLuminaire array = Downlight("A", 1, 1);
    array.arrayCountX = 3;
    array.arrayStepX = 4.0; // at 1, 5 and 9 m
    array.arrayCountY = 4;
    array.arrayStepY = 4.0; // at 1, 5, 9 and 13 m
    const ZoneVerification verification = VerifyZoneOfScene(Room, Lit({array}), Office());
    EXPECT_EQ(verification.input.luminaireCount, 9);
    EXPECT_EQ(verification.input.raCount, 9);
    EXPECT_EQ(verification.input.luminanceCount, 9);
}

TEST(VerifyZoneOfScene, TakesTheSmallestColourRenderingAndMaintenance) {
    SceneLuminaire a = Downlight("A", 1, 5);
    a.contract.colourRendering = 92.0;
    a.contract.maintenanceFactor = 0.7;
    SceneLuminaire b = Downlight("B", 5, 5);
    b.contract.colourRendering = 85.0;
    b.contract.maintenanceFactor = 0.6;
    SceneLuminaire outside = Downlight("C", 15, 5);
    outside.contract.colourRendering = 50.0;
    outside.contract.maintenanceFactor = 0.1;
    SceneLuminaire unknown = Downlight("D", 9, 5);
    unknown.contract.colourRendering = 0.0;
    const VerificationInput input =
        VerifyZoneOfScene(Room, Lit({a, b, outside, unknown}), Office()).input;
    EXPECT_EQ(input.luminaireCount, 3);
    EXPECT_EQ(input.raCount, 2);
    EXPECT_EQ(input.raMinimum, 85.0);
    EXPECT_EQ(input.maintenanceFactor, 0.6);
}

TEST(VerifyZoneOfScene, KnowsNothingOfLuminairesWhereThereAreNone) {
    const VerificationInput input = VerifyZoneOfScene(Room, Scene{}, Office()).input;
    EXPECT_EQ(input.luminaireCount, 0);
    EXPECT_EQ(input.maintenanceFactor, 0.0);
    EXPECT_EQ(input.ceilingReflectance, -1.0);
}

TEST(VerifyZoneOfScene, TellsOfLuminairesWithoutColourRendering) {
    SceneLuminaire unknown = Downlight("B", 3, 5);
    unknown.contract.colourRendering = 0.0;
    unknown.arrayCountX = 2;
    unknown.arrayStepX = 2.0;
    const std::string missing =
        "  Ra nao informado em 2 de 3 luminaria(s): o Ra e dado da luminaria "
        "- informe ao criar o bloco ou ao exportar para o catalogo";
    const ZoneVerification verification =
        VerifyZoneOfScene(Room, Lit({Downlight("A", 1, 5), unknown}), Office());
    EXPECT_EQ(verification.log,
              (Lines{"  Iluminância Em: 520 lx / ≥ 500 lx - atende",
                     "  Uniformidade U0: 0,75 / ≥ 0,70 - atende",
                     "  Reprodução Ra (IRC): 90* / ≥ 80 - atende",
                     "  (recomendacao) Fator de manutenção: 0,80 / ≥ 0,70 - atende", missing}));
    EXPECT_TRUE(verification.passes);
}

TEST(VerifyZoneOfScene, TellsTheLuminanceOfEachLuminaireWhereThereAreScreens) {
    SceneLuminaire array = Downlight("Painel", 1, 1, 8.0);
    array.arrayCountX = 3;
    array.arrayStepX = 2.0;
    SceneLuminaire nameless = Downlight("", 5, 5, 20.0);
    nameless.id = "lum7";
    SceneLuminaire closed = Downlight("Ponto", 7, 7);
    closed.photometry.width = 0.0;
    closed.arrayCountX = 2;
    closed.arrayStepX = 1.0;
    const ZoneVerification verification =
        VerifyZoneOfScene(Room, Lit({array, nameless, closed}), OfficeWithScreens());
    const std::string leftOut =
        "  luminancia para telas: 2 luminaria(s) sem abertura luminosa no IES ficaram fora";
    // 8 cd and 20 cd over 0.1 m2 at 85 degrees.
    EXPECT_EQ(verification.log,
              (Lines{"  Iluminância Em: 520 lx / ≥ 500 lx - atende",
                     "  Uniformidade U0: 0,75 / ≥ 0,70 - atende",
                     "  Reprodução Ra (IRC): 90 / ≥ 80 - atende",
                     "  Luminância (telas): 2295 cd/m² / ≤ 1000 cd/m² - NAO ATENDE",
                     "  (recomendacao) Fator de manutenção: 0,80 / ≥ 0,70 - atende",
                     "  luminancia para telas: a maior e de lum7 (gama 85, C 0)",
                     "    Painel (3 un.): 918 cd/m2", "    lum7: 2295 cd/m2", leftOut}));
    EXPECT_EQ(verification.notes, Lines{"Luminância para telas (limite 1000 cd/m²): a maior é de "
                                        "lum7 (gama 85, C 0)"});
    EXPECT_FALSE(verification.passes);
    EXPECT_EQ(verification.input.luminanceCount, 4);
}

TEST(VerifyZoneOfScene, TellsTheFirstOfTheWorst) {
    const ZoneVerification verification = VerifyZoneOfScene(
        Room, Lit({Downlight("A", 1, 1), Downlight("B", 2, 2, 30.0), Downlight("C", 2, 2, 30.0)}),
        OfficeWithScreens());
    EXPECT_EQ(verification.notes, Lines{"Luminância para telas (limite 1000 cd/m²): a maior é de B "
                                        "(gama 85, C 0)"});
}

TEST(VerifyZoneOfScene, NamesTheLimitOfScreensOfClass3) {
    ZoneResults results = Office();
    results.requirement.screens = ScreensClass3;
    EXPECT_EQ(VerifyZoneOfScene(Room, Lit({Downlight("A", 1, 1)}), results).notes,
              Lines{"Luminância para telas (limite 200 cd/m²): a maior é de A (gama 85, C 0)"});
}

TEST(VerifyZoneOfScene, SaysNothingOfScreensWithoutALuminance) {
    SceneLuminaire closed = Downlight("Ponto", 7, 7);
    closed.photometry.width = 0.0;
    const ZoneVerification verification =
        VerifyZoneOfScene(Room, Lit({closed}), OfficeWithScreens());
    EXPECT_EQ(verification.log,
              (Lines{"  Iluminância Em: 520 lx / ≥ 500 lx - atende",
                     "  Uniformidade U0: 0,75 / ≥ 0,70 - atende",
                     "  Reprodução Ra (IRC): 90 / ≥ 80 - atende",
                     "  Luminância (telas): - / ≤ 1000 cd/m² - SEM DADO",
                     "  (recomendacao) Fator de manutenção: 0,80 / ≥ 0,70 - atende"}));
    EXPECT_TRUE(verification.notes.empty());
    EXPECT_TRUE(verification.passes);
}

TEST(VerifyZoneOfScene, PartsFloorFromCeilingAtItsWorkPlane) {
    Scene scene;
    scene.materials = {{.name = "m", .red = 0.4, .green = 0.4, .blue = 0.4}};
    scene.surfaces = {{.materialIndex = 0, .vertices = {{1, 1, 1}, {2, 1, 1}, {2, 2, 1}}}};
    ZoneResults results = Office();
    results.workPlaneHeight = 1.01;
    EXPECT_DOUBLE_EQ(VerifyZoneOfScene(Room, scene, results).input.floorReflectance, 0.4);
    results.workPlaneHeight = 1.0;
    const VerificationInput input = VerifyZoneOfScene(Room, scene, results).input;
    EXPECT_DOUBLE_EQ(input.ceilingReflectance, 0.4);
    EXPECT_EQ(input.floorReflectance, -1.0);
    EXPECT_EQ(input.wallReflectance, -1.0);
}

TEST(VerifyZoneOfScene, RecommendsForTheSurfacesOfTheScene) {
    Scene scene;
    scene.materials = {{.name = "teto", .red = 0.5, .green = 0.5, .blue = 0.5},
                       {.name = "parede", .red = 0.7, .green = 0.7, .blue = 0.7},
                       {.name = "piso", .red = 0.3, .green = 0.3, .blue = 0.3}};
    scene.surfaces = {{.materialIndex = 0, .vertices = {{0, 0, 3}, {0, 9, 3}, {9, 9, 3}}},
                      {.materialIndex = 1, .vertices = {{0, 0, 0}, {9, 0, 0}, {9, 0, 3}}},
                      {.materialIndex = 2, .vertices = {{0, 0, 0}, {9, 0, 0}, {9, 9, 0}}}};
    const ZoneVerification verification = VerifyZoneOfScene(Room, scene, Office());
    EXPECT_EQ(verification.log,
              (Lines{"  Iluminância Em: 520 lx / ≥ 500 lx - atende",
                     "  Uniformidade U0: 0,75 / ≥ 0,70 - atende",
                     "  (recomendacao) Refletância teto: 0,50 / 0,60 a 0,90 - NAO ATENDE",
                     "  (recomendacao) Refletância paredes: 0,70 / 0,30 a 0,80 - atende",
                     "  (recomendacao) Refletância piso: 0,30 / 0,10 a 0,50 - atende"}));
    EXPECT_TRUE(verification.passes);
}

} // namespace
} // namespace Merivane::Simulation
