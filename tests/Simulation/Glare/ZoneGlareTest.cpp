#include <cmath>
#include <numbers>

#include <gtest/gtest.h>

#include "Photometry/LuminaireTypeKey.hpp"
#include "Simulation/Glare/GlareSamples.hpp"
#include "Simulation/Glare/ObserverGlare.hpp"
#include "Simulation/Glare/UgrTable.hpp"
#include "Simulation/Glare/ZoneGlare.hpp"
#include "Simulation/Glare/ZoneGlareTexts.hpp"

namespace Merivane::Simulation {
namespace {

using Lines = std::vector<std::string>;
using Tests::At;

constexpr double Pi = std::numbers::pi;

// 4 m x 6 m, its floor at 3 m.
ZoneSpace Room() {
    ZoneSpace zone;
    zone.name = "Sala";
    zone.polygon.outer = {{0, 0}, {4, 0}, {4, 6}, {0, 6}};
    zone.floorLevel = 3.0;
    zone.height = 2.8;
    return zone;
}

/// A luminaire of a Lambertian kind under the ceiling, 1.5 m above the eye.
SceneLuminaire Panel(const std::string& name, double width = 0.6, double length = 0.6) {
    SceneLuminaire luminaire = At(Tests::UniformLuminaire(1, width, length), 1, 1.5, 5.7);
    luminaire.photometry.verticalAngles = {0, 15, 30, 45, 60, 75, 90};
    luminaire.photometry.candela = {{1000, 960, 860, 700, 500, 250, 0}};
    luminaire.displayName = name;
    return luminaire;
}

ZoneGlare Analyse(const std::vector<SceneLuminaire>& luminaires,
                  const std::vector<RoomObserver>& observers = {}, std::int32_t ugrLimit = 19) {
    Scene scene;
    scene.luminaires = luminaires;
    return AnalyseZoneGlare(Room(), scene, observers, true, ugrLimit, true);
}

RoomObserver Watcher(const std::string& label, bool placed, double illuminance) {
    return {{2, 0.01, 4.2, 0, 1, label}, placed, illuminance};
}

GlareOptions Tables(bool smallSources) {
    return {.smallSourceTerm = smallSources, .tableFieldLimit = true};
}

TEST(AnalyseZoneGlare, OfAZoneWithoutLuminairesSaysSoAndStops) {
    SceneLuminaire outside = Panel("Fora");
    outside.x = 9;
    SceneLuminaire above = Panel("Acima");
    above.z = 6.3;
    const ZoneGlare glare = Analyse({outside, above}, {Watcher("w", false, 100)});
    EXPECT_FALSE(glare.hasUgr);
    EXPECT_EQ(glare.notes, Lines{"UGR: nenhuma luminária Vantoro sobre a Zona."});
    EXPECT_EQ(glare.log, Lines{"  UGR: nenhuma luminaria sobre a zona"});
    EXPECT_TRUE(glare.observers.empty());
    EXPECT_TRUE(glare.lights.empty());
    EXPECT_EQ(glare.maintenanceFactor, 1.0);
}

TEST(AnalyseZoneGlare, ReadsTheTableForItsModel) {
    const ZoneGlare glare = Analyse({Panel("Painel")});
    const TabularUgr tabular = TabularForZone(Panel(""), 4, 6, 1.5, 0.7, 0.5, Tables(false));
    const double reference = ReferenceRoomUgr(Panel(""), 1.5, Tables(false));
    ASSERT_TRUE(glare.hasUgr);
    EXPECT_GT(glare.ugr, 10.0);
    EXPECT_NEAR(glare.ugr, tabular.ugr, 1e-9);
    EXPECT_NEAR(glare.referenceUgr, reference, 1e-9);
    EXPECT_FALSE(glare.hasSmallSourceUgr);
    ASSERT_EQ(glare.models.size(), 1U);
    EXPECT_EQ(glare.models[0].tabular.roomX, tabular.roomX);
    EXPECT_FALSE(glare.models[0].isSmall);
    EXPECT_EQ(glare.models[0].upwardFlux, 0.0);
    EXPECT_EQ(glare.ceilingReflectance, 0.7); // no surfaces: the usual ones
    EXPECT_EQ(glare.wallReflectance, 0.5);
    EXPECT_TRUE(glare.warnings.empty());
}

TEST(AnalyseZoneGlare, TakesTheRoomsOwnReflectances) {
    Scene scene;
    scene.luminaires = {Panel("Painel")};
    scene.materials.resize(2);
    scene.materials[0].red = scene.materials[0].green = scene.materials[0].blue = 0.33;
    scene.materials[1].red = scene.materials[1].green = scene.materials[1].blue = 0.25;
    scene.surfaces = {{0, {{0, 0, 5.8}, {0, 6, 5.8}, {4, 6, 5.8}, {4, 0, 5.8}}, false},
                      {1, {{0, 0, 3}, {0, 0, 5.8}, {4, 0, 5.8}, {4, 0, 3}}, false},
                      // Half of the level faces from 0.30 m up, and none of those below.
                      {1, {{0, 0, 3.301}, {4, 0, 3.301}, {4, 6, 3.301}, {0, 6, 3.301}}, false},
                      {1, {{0, 0, 3.299}, {4, 0, 3.299}, {4, 6, 3.299}, {0, 6, 3.299}}, false}};
    const ZoneGlare glare = AnalyseZoneGlare(Room(), scene, {}, true, 19, false);
    EXPECT_NEAR(glare.ceilingReflectance, 0.29, 1e-12);
    EXPECT_NEAR(glare.wallReflectance, 0.25, 1e-12);
    EXPECT_EQ(glare.models[0].tabular.reflectanceSet, 4); // 30/30/20
    EXPECT_NE(glare.notes[0].find(", refletâncias 30/30/20 (as da sala: 29/25/20), "),
              std::string::npos);
}

TEST(AnalyseZoneGlare, LeavesOutWhatTheTableIsNotFor) {
    SceneLuminaire line = Panel("Perfil");
    line.lengthScale = 2.0;
    SceneLuminaire low = Panel("Arandela");
    low.z = 3 + 1.2 + 0.3 - 1e-6;
    SceneLuminaire closed = Panel("Ponto", 0, 0);
    struct Case {
        SceneLuminaire luminaire;
        TabularOmission omission;
        std::string log;
        std::string note;
    };
    const std::string notForLines = " - o método tabular (luminárias em grade) não se aplica; use "
                                    "os observadores (Inserir observador UGR)";
    const Case cases[] = {
        {line, TabularOmission::Linear, "Perfil: fita / linear contínua" + notForLines,
         "Fita / linear contínua" + notForLines},
        {low, TabularOmission::BelowEye,
         "Arandela: abaixo do olho (H0,30 m), fora do metodo tabular",
         "Arandela: abaixo do olho (H 0,30 m), fora do método tabular"},
        {closed, TabularOmission::NoOpening,
         "Ponto: o IES nao informa a abertura luminosa (largura x comprimento) - UGR sem "
         "luminancia",
         "Ponto: o IES não informa a abertura luminosa (largura x comprimento) - UGR sem "
         "luminância"},
    };
    for (const Case& c : cases) {
        const ZoneGlare glare = Analyse({c.luminaire});
        EXPECT_EQ(glare.models[0].omission, c.omission);
        EXPECT_FALSE(glare.hasUgr);
        EXPECT_EQ(glare.ugr, 0.0);
        EXPECT_EQ(glare.log, Lines{c.log});
        EXPECT_EQ(glare.notes, Lines{c.note});
    }
    low.z = 3 + 1.2 + 0.3 + 1e-6;
    EXPECT_TRUE(Analyse({low}).hasUgr);
}

TEST(AnalyseZoneGlare, ReadsTheTableFromThirtyCentimetresUpWhateverTheLastDigit) {
    SceneLuminaire low = Panel("Arandela");
    low.z = 4.5; // less the eye at 4.2 m: 0.29999999999999982
    ASSERT_LT(low.z - (3.0 + 1.2), 0.3);
    EXPECT_EQ(Analyse({low}).models[0].omission, TabularOmission::None);
}

TEST(AnalyseZoneGlare, ExcludesLinesBeforeItLooksAtHeightAndOpening) {
    SceneLuminaire luminaire = Panel("P", 0, 0);
    luminaire.z = 4;
    EXPECT_EQ(Analyse({luminaire}).models[0].omission, TabularOmission::BelowEye);
    luminaire.typeKey = Photometry::LuminaireTypeKey("", "Fita", "", "", true);
    EXPECT_EQ(Analyse({luminaire}).models[0].omission, TabularOmission::Linear);
}

TEST(AnalyseZoneGlare, TakesTheWorstOfItsModels) {
    SceneLuminaire small = Panel("Pequena", 0.2, 0.2);
    SceneLuminaire line = Panel("Perfil", 0.1, 0.1);
    line.lengthScale = 2.0;
    const ZoneGlare glare = Analyse({Panel("Grande"), line, small});
    const ZoneGlare reversed = Analyse({small, Panel("Grande")});
    ASSERT_EQ(glare.models.size(), 3U);
    EXPECT_GT(glare.models[2].tabular.ugr, glare.models[0].tabular.ugr + 1);
    EXPECT_EQ(glare.ugr, glare.models[2].tabular.ugr);
    EXPECT_EQ(glare.referenceUgr, glare.models[2].referenceUgr);
    EXPECT_EQ(reversed.ugr, glare.ugr);
    EXPECT_EQ(reversed.referenceUgr, glare.referenceUgr);
    // With several models every note says which it is about.
    EXPECT_TRUE(glare.notes[0].starts_with("Grande: tabela CIE 117 lida na sala-padrão "));
    EXPECT_TRUE(glare.notes[1].starts_with("Perfil: Fita / linear contínua - o método"));
    EXPECT_TRUE(glare.notes[2].starts_with("Pequena: tabela CIE 117 lida na sala-padrão "));
}

TEST(AnalyseZoneGlare, RatesSmallSourcesASecondTime) {
    struct Case {
        double area;
        bool small;
    };
    for (const Case& c : {Case{0.005 * (1 - 1e-9), true}, Case{0.005 * (1 + 1e-9), false}}) {
        const double side = std::sqrt(c.area);
        const ZoneGlare glare = Analyse({Panel("Spot", side, side)});
        EXPECT_EQ(glare.models[0].isSmall, c.small);
        EXPECT_EQ(glare.hasSmallSourceUgr, c.small);
        const bool told =
            glare.log.back().starts_with("  UGR pela CIE 147 (fonte pequena, informativo): ");
        EXPECT_EQ(told, c.small);
    }
    const SceneLuminaire spot = Panel("Spot", 0.03, 0.03);
    const ZoneGlare glare = Analyse({Panel("Painel"), spot});
    const double expected = TabularForZone(spot, 4, 6, 1.5, 0.7, 0.5, Tables(true)).ugr;
    EXPECT_NEAR(glare.smallSourceUgr, expected, 1e-9);
    EXPECT_LT(glare.smallSourceUgr, glare.ugr - 3); // the value that counts is the other
    EXPECT_EQ(glare.log.back(),
              "  UGR pela CIE 147 (fonte pequena, informativo): " + FormatUgr(expected));
}

TEST(AnalyseZoneGlare, TakesTheWorstOfItsSmallSources) {
    const SceneLuminaire dim = Panel("Fraco", 0.05, 0.05);
    SceneLuminaire bright = Panel("Forte", 0.05, 0.05);
    bright.photometry.candelaMultiplier = 4;
    const ZoneGlare glare = Analyse({dim, bright});
    EXPECT_GT(glare.models[1].smallSourceUgr, glare.models[0].smallSourceUgr + 1);
    EXPECT_EQ(glare.smallSourceUgr, glare.models[1].smallSourceUgr);
    EXPECT_EQ(Analyse({bright, dim}).smallSourceUgr, glare.smallSourceUgr);
}

TEST(AnalyseZoneGlare, KeepsAValueBelowZero) {
    SceneLuminaire faint = Panel("Balizador");
    faint.photometry.candelaMultiplier = 1e-3;
    const ZoneGlare glare = Analyse({faint});
    EXPECT_LT(glare.ugr, 0.0);
    EXPECT_EQ(glare.ugr, glare.models[0].tabular.ugr);
    EXPECT_LT(glare.referenceUgr, 0.0);
    EXPECT_TRUE(glare.hasUgr);
}

// What only lights the ceiling that it hangs in leaves a standard room dark.
TEST(AnalyseZoneGlare, OfLightThatOnlyGoesUpIsZeroAndWarns) {
    SceneLuminaire cloud = Panel("Nuvem");
    cloud.photometry.verticalAngles = {90.5, 180};
    cloud.photometry.candela = {{500, 500}};
    const ZoneGlare glare = Analyse({cloud});
    EXPECT_TRUE(glare.hasUgr);
    EXPECT_EQ(glare.ugr, 0.0);
    EXPECT_EQ(glare.referenceUgr, 0.0);
    EXPECT_EQ(glare.warnings,
              Lines{"Nuvem: 100% da luz para cima - o metodo UGR nao vale acima de 65%"});
}

TEST(AnalyseZoneGlare, WarnsOfLightThatGoesUp) {
    struct Case {
        double up; // candela above for 1000 below
        bool warns;
    };
    // The part is up / (up + 1000), but for the step of a degree at the horizontal.
    for (const Case& c : {Case{1850, false}, Case{1865, true}}) {
        SceneLuminaire luminaire = Panel("Nuvem");
        luminaire.photometry.verticalAngles = {0, 89.9999, 90.0001, 180};
        luminaire.photometry.candela = {{1000, 1000, c.up, c.up}};
        const ZoneGlare glare = Analyse({luminaire});
        const std::string warning =
            "Nuvem: 65% da luz para cima - o metodo UGR nao vale acima de 65%";
        EXPECT_EQ(glare.warnings, c.warns ? Lines{warning} : Lines{});
        ASSERT_EQ(glare.notes.size(), c.warns ? 2U : 1U);
        EXPECT_EQ(glare.notes.back() == warning, c.warns);
    }
    SceneLuminaire line = Panel("Perfil");
    line.photometry.verticalAngles = {90.5, 180};
    line.photometry.candela = {{1, 1}};
    line.lengthScale = 2;
    EXPECT_TRUE(Analyse({line}).warnings.empty()); // no value that could be wrong
    EXPECT_EQ(Analyse({line}).models[0].upwardFlux, 1.0);
}

TEST(AnalyseZoneGlare, SeesTheRealLayoutOverItsInitialLight) {
    SceneLuminaire first = Panel("A");
    first.contract.maintenanceFactor = 0.9;
    first.arrayCountX = 3;
    first.arrayStepX = 1.0;
    SceneLuminaire second = Panel("B");
    second.contract.maintenanceFactor = 0.5;
    second.dimming = 0.4;
    second.x = 3;
    second.y = 4;
    SceneLuminaire next = Panel("vizinha"); // in the next room, behind a wall
    next.y = 7;
    const RoomObserver watcher = Watcher("w", false, 240);
    const ZoneGlare glare = Analyse({next, first, second}, {watcher});
    EXPECT_NEAR(glare.maintenanceFactor, 0.8, 1e-12); // each light counts, 3 x 0.9 and 0.5
    ASSERT_EQ(glare.observers.size(), 1U);
    const GlareResult& result = glare.observers[0].result;
    EXPECT_NEAR(result.background, 300 / Pi, 1e-9);
    const std::vector<SceneLuminaire> over = {first, second};
    const GlareResult expected =
        ObserverGlare(watcher.observer, PlaceLuminaires(over), 300, Tables(false));
    EXPECT_NEAR(result.ugr, expected.ugr, 1e-9);
    EXPECT_EQ(result.sources, expected.sources);
    ASSERT_EQ(glare.lights.size(), 4U);
    EXPECT_EQ(glare.lights[0].luminaire, 1U);
    EXPECT_EQ(glare.lights[2].center, (Point3D{3, 1.5, 5.7}));
    EXPECT_EQ(glare.lights[3].luminaire, 2U);
    EXPECT_EQ(glare.observers[0].terms.size(), 4U);
}

TEST(AnalyseZoneGlare, NeverTakesAMaintenanceFactorUnderOneTwentieth) {
    for (const double factor : {0.0, 0.049, 0.05, 0.051}) {
        SceneLuminaire luminaire = Panel("A");
        luminaire.contract.maintenanceFactor = factor;
        EXPECT_NEAR(Analyse({luminaire}).maintenanceFactor, std::max(factor, 0.05), 1e-12);
    }
}

TEST(AnalyseZoneGlare, NeverTakesTheSmallSourceTermForRealPositions) {
    const ZoneGlare glare = Analyse({Panel("Spot", 0.03, 0.03)}, {Watcher("w", false, 100)});
    EXPECT_EQ(glare.observers[0].result.sources, 1);
    EXPECT_EQ(glare.observers[0].result.smallSources, 0);
}

TEST(AnalyseZoneGlare, KeepsTheTermsOnlyWhenAsked) {
    Scene scene;
    scene.luminaires = {Panel("A")};
    const std::vector<RoomObserver> observers = {Watcher("w", true, 100)};
    EXPECT_EQ(AnalyseZoneGlare(Room(), scene, observers, true, 19, true).observers[0].terms.size(),
              1U);
    EXPECT_TRUE(
        AnalyseZoneGlare(Room(), scene, observers, true, 19, false).observers[0].terms.empty());
}

TEST(AnalyseZoneGlare, PutsObserversAtMidWallFirst) {
    const ZoneGlare glare =
        Analyse({Panel("A")}, {Watcher("m1", true, 9), Watcher("p1", false, 9),
                               Watcher("m2", true, 9), Watcher("p2", false, 9)});
    Lines labels;
    for (const ObserverGlareRecord& record : glare.observers) {
        labels.push_back(record.observer.observer.label);
    }
    EXPECT_EQ(labels, (Lines{"p1", "p2", "m1", "m2"}));
}

TEST(AnalyseZoneGlare, TellsItsLogAndNotesInOrder) {
    const ZoneGlare glare =
        Analyse({Panel("Painel")}, {Watcher("Mesa 1", true, 80), Watcher("parede", false, 160)});
    const ModelGlare& model = glare.models[0];
    const std::string ugr = FormatUgr(glare.ugr);
    EXPECT_EQ(glare.log,
              (Lines{ModelLogLine(model, {0.7, 0.5, 0.2}), ObserverLogLine(glare.observers[0], 3.0),
                     ObserverLogLine(glare.observers[1], 3.0), LimitLogLine(glare.ugr, 19),
                     "  UGR sala de referencia 4H x 8H (comparar com a tabela do "
                     "fabricante): " +
                         FormatUgr(glare.referenceUgr)}));
    EXPECT_EQ(glare.notes,
              (Lines{ModelNote(model, {0.7, 0.5, 0.2}, false), PositionsNote(glare.observers)}));
}

TEST(AnalyseZoneGlare, SaysWhyThereIsNoLimit) {
    Scene scene;
    scene.luminaires = {Panel("Painel")};
    struct Case {
        bool hasTask;
        std::int32_t limit;
        std::string why;
    };
    const Case cases[] = {
        {true, 0, "a atividade não tem UGRL na norma"},
        {false, 0, "sem atividade definida na Zona: sem comparação com o UGRL"},
        {false, 19, "sem atividade definida na Zona: sem comparação com o UGRL"},
    };
    for (const Case& c : cases) {
        const ZoneGlare glare = AnalyseZoneGlare(Room(), scene, {}, c.hasTask, c.limit, false);
        const std::string compared = FormatUgr(glare.ugr) + " - " + c.why;
        ASSERT_EQ(glare.log.size(), 3U);
        EXPECT_EQ(glare.log[1], "  UGR da instalacao " + compared);
        EXPECT_EQ(glare.notes.back(), "UGR da instalação " + compared);
    }
    const ZoneGlare strict = AnalyseZoneGlare(Room(), scene, {}, true, 1, false);
    EXPECT_EQ(strict.log[1], LimitLogLine(strict.ugr, 1));
}

TEST(AnalyseZoneGlare, WithoutATabularValueComparesNothing) {
    const ZoneGlare glare = Analyse({Panel("Ponto", 0, 0)}, {Watcher("parede", false, 100)});
    ASSERT_EQ(glare.log.size(), 2U);
    EXPECT_TRUE(glare.log[1].starts_with("  UGR observador parede: UGR "));
    EXPECT_EQ(glare.notes.back(), "Posições reais (só informativo, leiaute real): 1 meio das "
                                  "paredes, máx. UGR < 10");
}

TEST(AnalyseZoneGlare, OfAHugeArrayKeepsOnlyWhatIsOverTheZone) {
    SceneLuminaire array = Panel("Painel");
    array.arrayCountX = array.arrayCountY = 1000;
    array.arrayStepX = array.arrayStepY = 2.0;
    const ZoneGlare glare = Analyse({array}, {Watcher("w", false, 100)});
    EXPECT_EQ(glare.lights.size(), 2U * 3U); // x = 1 and 3; y = 1.5, 3.5 and 5.5
    EXPECT_EQ(glare.models[0].count, 6U);
}

} // namespace
} // namespace Merivane::Simulation
