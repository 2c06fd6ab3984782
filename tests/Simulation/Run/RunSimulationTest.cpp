#include <algorithm>
#include <numeric>
#include <thread>

#include <gtest/gtest.h>

#include "RunScenes.hpp"
#include "Simulation/Run/RunSimulation.hpp"
#include "Support/Places.hpp"
#include "Text/NativePath.hpp"

namespace Merivane::Simulation {
namespace {

namespace fs = std::filesystem;
using namespace Merivane::Tests;

SimulationResult Calculate(const Scene& scene, const SimulationOptions& options) {
    SimulationResult result = RunSimulation(scene, options, {}, {}, {});
    EXPECT_TRUE(result.success) << result.error;
    EXPECT_EQ(result.error, "");
    EXPECT_FALSE(result.cancelled);
    return result;
}

double Mean(const std::vector<double>& values) {
    return std::accumulate(values.begin(), values.end(), 0.0) / static_cast<double>(values.size());
}

// The numbers of `ies2rad` on intensities [cd] and metres alone; a room without walls is enough
// where only direct light counts.
Scene OpenScene(const SceneLuminaire& luminaire) {
    Scene scene;
    scene.luminaires = {luminaire};
    scene.points = {{luminaire.x, luminaire.y, 0.0, 0.0, 0.0, 1.0}};
    return scene;
}

TEST(RunSimulation, LightsARoom) {
    const TemporaryFolder folder;
    const Scene scene = SmallRoom(0.5);
    const SimulationResult result = Calculate(scene, RunOptions(folder.Path()));
    ASSERT_EQ(result.zones.size(), 1u);
    const ZoneResult& zone = result.zones[0];
    EXPECT_EQ(zone.name, "Sala");
    EXPECT_EQ(zone.illuminance.size(), ActiveNodeCount(scene.sensorPlanes[0].grid));
    EXPECT_EQ(zone.statistics, TaskStatistics(scene.sensorPlanes[0].grid, zone.illuminance));
    // 500 cos cd are 1571 lm over 12 m2; half of them and more reach the plane.
    EXPECT_GT(zone.statistics.mean, 50.0);
    EXPECT_LT(zone.statistics.maximum, 200.0);
    EXPECT_GT(zone.statistics.minimum, 10.0);
    EXPECT_TRUE(result.pointIlluminance.empty());
    EXPECT_TRUE(result.pointDirectIlluminance.empty());
}

TEST(RunSimulation, LogsEveryStepAndHandsTheLinesOn) {
    const TemporaryFolder folder;
    Scene scene = SmallRoom(1.0);
    scene.points = {{1, 1, 1, 0, 0, 1}};
    std::vector<std::string> lines;
    const SimulationResult result =
        RunSimulation(scene, RunOptions(folder.Path()), {},
                      [&](const std::string& line) { lines.push_back(line); }, {});
    EXPECT_EQ(lines, result.log);
    const unsigned cores = std::thread::hardware_concurrency();
    const std::string count = std::to_string(ActiveNodeCount(scene.sensorPlanes[0].grid) + 1);
    EXPECT_EQ(result.log,
              (std::vector<std::string>{
                  "cena: 6 superficie(s), 1 material(is), 1 luminaria(s)",
                  "1 luminaria(s) convertida(s) e posicionada(s)",
                  "octree montado; calculando " + count + " ponto(s)",
                  "rtrace em 1 processo(s)" +
                      (cores > 0 ? " (" + std::to_string(cores) + " nucleos logicos)" : ""),
                  "1 ponto(s) avulso(s) calculado(s)", "calculo concluido"}));
}

TEST(RunSimulation, SharesOneConversionBetweenEqualLuminaires) {
    const TemporaryFolder folder;
    Scene scene = SmallRoom(1.0);
    scene.luminaires.push_back(scene.luminaires[0]);
    scene.luminaires[1].x = 1.0;
    scene.luminaires[1].displayName = "outra";
    scene.luminaires.push_back(scene.luminaires[0]);
    scene.luminaires[2].dimming = 0.5;
    Calculate(scene, RunOptions(folder.Path()));
    EXPECT_TRUE(fs::exists(folder.Path() / "lum1.ies"));
    EXPECT_FALSE(fs::exists(folder.Path() / "lum2.ies"));
    EXPECT_FALSE(fs::exists(folder.Path() / "lum2.rad"));
    EXPECT_TRUE(fs::exists(folder.Path() / "lum3.ies")); // dimmed: a source of its own
    for (const char* placed : {"lum1_placed.rad", "lum2_placed.rad", "lum3_placed.rad"}) {
        EXPECT_TRUE(fs::exists(folder.Path() / placed)) << placed;
    }
    const std::string second = ReadBytes(folder.Path() / "lum2_placed.rad");
    EXPECT_NE(second.find("lum1.dat"), std::string::npos);
}

TEST(RunSimulation, LeavesItsFilesAndNoOthersInTheWorkFolder) {
    const TemporaryFolder folder;
    Calculate(SmallRoom(1.0), RunOptions(folder.Path()));
    std::vector<std::string> names;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder.Path())) {
        names.push_back(entry.path().filename().string());
    }
    std::sort(names.begin(), names.end());
    // In one process there is no ambient file.
    EXPECT_EQ(names,
              (std::vector<std::string>{"geometry.rad", "illuminance.txt", "lamp.tab", "lum1.dat",
                                        "lum1.ies", "lum1.rad", "lum1_placed.rad", "materials.rad",
                                        "scene.oct", "sensors.pts", "vantoro.lock"}));
}

TEST(RunSimulation, CalculatesLoosePointsAlone) {
    const TemporaryFolder folder;
    Scene scene = SmallRoom(1.0);
    scene.sensorPlanes.clear();
    scene.points = {{2, 1.5, 0.75, 0, 0, 1}, {2, 1.5, 0.75, 0, 0, -1}, {0.5, 0.5, 1.2, 1, 0, 0}};
    const SimulationResult result = Calculate(scene, RunOptions(folder.Path()));
    EXPECT_TRUE(result.zones.empty());
    ASSERT_EQ(result.pointIlluminance.size(), 3u);
    ASSERT_EQ(result.pointDirectIlluminance.size(), 3u);
    EXPECT_GT(result.pointDirectIlluminance[0], 100.0);
    EXPECT_GT(result.pointIlluminance[0], result.pointDirectIlluminance[0]);
    EXPECT_EQ(result.pointDirectIlluminance[1], 0.0); // looks away from the only source
    EXPECT_GT(result.pointIlluminance[1], 0.0);
    EXPECT_FALSE(fs::exists(folder.Path() / "illuminance.txt"));
    EXPECT_TRUE(fs::exists(folder.Path() / "points_direct.txt"));
}

TEST(RunSimulation, GivesAPlaneWithoutPointsItsPlaceInTheResult) {
    const TemporaryFolder folder;
    Scene scene = SmallRoom(1.0);
    SensorPlane empty = scene.sensorPlanes[0];
    empty.name = "vazia";
    empty.grid.active.assign(empty.grid.active.size(), false);
    SensorPlane low = scene.sensorPlanes[0];
    low.name = "baixa";
    low.grid.z = 0.1;
    scene.sensorPlanes = {empty, scene.sensorPlanes[0], empty, low};
    const SimulationResult result = Calculate(scene, RunOptions(folder.Path()));
    ASSERT_EQ(result.zones.size(), 4u);
    EXPECT_EQ(result.zones[0].name, "vazia");
    EXPECT_TRUE(result.zones[0].illuminance.empty());
    EXPECT_EQ(result.zones[0].statistics, PointStatistics{});
    EXPECT_EQ(result.zones[3].name, "baixa");
    EXPECT_LT(result.zones[3].statistics.mean, result.zones[1].statistics.mean);
}

TEST(RunSimulation, TakesLoosePointsBesidePlanesWithoutPoints) {
    const TemporaryFolder folder;
    Scene scene = SmallRoom(1.0);
    std::vector<bool>& active = scene.sensorPlanes[0].grid.active;
    active.assign(active.size(), false);
    scene.points = {{2, 1.5, 0.75, 0, 0, 1}};
    const SimulationResult result = Calculate(scene, RunOptions(folder.Path()));
    ASSERT_EQ(result.zones.size(), 1u);
    EXPECT_TRUE(result.zones[0].illuminance.empty());
    EXPECT_EQ(result.pointIlluminance.size(), 1u);
    ASSERT_EQ(result.log.size(), 6u);
    EXPECT_EQ(result.log[2], "octree montado; calculando 1 ponto(s)");
    EXPECT_EQ(result.log[3].substr(0, 23), "rtrace em 1 processo(s)");
    EXPECT_FALSE(fs::exists(folder.Path() / "illuminance.txt"));
}

TEST(RunSimulation, InFourProcessesGivesTheLightOfOne) {
    const TemporaryFolder folder;
    const Scene scene = SmallRoom(0.2);
    SimulationOptions options = RunOptions(folder.Path() / "um");
    options.engine = ProfileSettings(1);
    options.repeatable = true; // no seed from the clock: the test sees the same values every day
    const SimulationResult one = Calculate(scene, options);
    options.workFolder = Text::WidePath(folder.Path() / "quatro");
    options.processCount = 4;
    const SimulationResult four = Calculate(scene, options);

    const std::vector<double>& expected = one.zones[0].illuminance;
    const std::vector<double>& values = four.zones[0].illuminance;
    ASSERT_EQ(values.size(), expected.size());
    double largest = 0.0;
    for (std::size_t i = 0; i < values.size(); ++i) {
        largest = std::max(largest, std::abs(values[i] / expected[i] - 1.0));
    }
    EXPECT_LT(largest, 0.02);
    EXPECT_NEAR(Mean(values) / Mean(expected), 1.0, 0.001);
    RecordProperty("largestDifference", std::to_string(largest));

    const fs::path work = folder.Path() / "quatro";
    EXPECT_EQ(LinesOf(work / "illuminance.txt").size(), values.size());
    EXPECT_EQ(LinesOf(work / "seed.pts").size(), LinesOf(work / "seed.txt").size());
    std::string all;
    for (const std::string k : {"1", "2", "3", "4"}) {
        all += ReadBytes(work / ("sensors_" + k + ".pts"));
        EXPECT_GT(fs::file_size(work / ("ambient_" + k + ".amb")),
                  fs::file_size(work / "ambient.amb"));
    }
    EXPECT_EQ(all, ReadBytes(work / "sensors.pts"));
    EXPECT_FALSE(fs::exists(work / "sensors_5.pts"));
}

TEST(RunSimulation, TakesTheNumberOfProcessesFromTheSettings) {
    const TemporaryFolder folder;
    SimulationOptions options = RunOptions(folder.Path());
    options.processCount = 0;
    options.engine.maxProcesses = 3;
    const SimulationResult result = Calculate(SmallRoom(0.5), options);
    EXPECT_EQ(result.log[3].substr(0, 23), "rtrace em 3 processo(s)");
    EXPECT_EQ(result.log[4], "rtrace: semente da luz refletida");
    options.engine.maxProcesses = 0; // too few points for a second process
    EXPECT_EQ(Calculate(SmallRoom(0.5), options).log[3].substr(0, 23), "rtrace em 1 processo(s)");
    options.processCount = 2;
    options.engine.maxProcesses = 7;
    EXPECT_EQ(Calculate(SmallRoom(0.5), options).log[3].substr(0, 23), "rtrace em 2 processo(s)");
    options.processCount = 0;
    options.useEngineSettings = false; // the settings are not looked at
    options.quality = 0;
    EXPECT_EQ(Calculate(SmallRoom(0.5), options).log[3].substr(0, 23), "rtrace em 1 processo(s)");
}

TEST(RunSimulation, RunsMoreProcessesThanPoints) {
    const TemporaryFolder folder;
    Scene scene = SmallRoom(3.0);
    SimulationOptions options = RunOptions(folder.Path());
    options.processCount = 12;
    EXPECT_EQ(Calculate(scene, options).zones[0].illuminance.size(),
              ActiveNodeCount(scene.sensorPlanes[0].grid));
    EXPECT_LT(ActiveNodeCount(scene.sensorPlanes[0].grid), 12u);
}

TEST(RunSimulation, RepeatsByteForByteWhenAsked) {
    const TemporaryFolder folder;
    Scene scene = SmallRoom(0.4);
    scene.points = {{1, 1, 1, 0, 0, 1}};
    SimulationOptions options = RunOptions(folder.Path() / "a");
    options.repeatable = true;
    Calculate(scene, options);
    options.workFolder = Text::WidePath(folder.Path() / "b");
    Calculate(scene, options);
    for (const char* name : {"illuminance.txt", "points.txt", "points_direct.txt"}) {
        EXPECT_EQ(ReadBytes(folder.Path() / "a" / name), ReadBytes(folder.Path() / "b" / name));
    }
}

TEST(RunSimulation, ClearsWhatAnEarlierRunLeftAndNothingElse) {
    const TemporaryFolder folder;
    const char* leftOver[] = {
        "lum7.ies",    "lum7.rad",      "lum7.dat",      "lum7_placed.rad",   "lum12%.dat",
        "ambient.amb", "ambient_3.amb", "sensors_2.pts", "illuminance_2.txt", "seed.pts",
        "seed.txt",    "points.pts",    "points.txt",    "points_direct.txt", "luminaires.rad"};
    const char* foreign[] = {"lum.ies",  "luma.rad",      "lum1_placed.rad.txt", "notas.txt",
                             "Lum1.rad", "ambient_x.amb", "cena.json",           "xlum1.rad"};
    for (const char* name : leftOver) {
        WriteBytes(folder.Path() / name, "velho");
    }
    for (const char* name : foreign) {
        WriteBytes(folder.Path() / name, "do usuario");
    }
    Calculate(SmallRoom(1.0), RunOptions(folder.Path()));
    for (const char* name : leftOver) {
        EXPECT_FALSE(fs::exists(folder.Path() / name)) << name;
    }
    for (const char* name : foreign) {
        EXPECT_EQ(ReadBytes(folder.Path() / name), "do usuario") << name;
    }
}

TEST(RunSimulation, WorksInFoldersOfAnyName) {
    const TemporaryFolder folder;
    const std::string deep =
        std::string(120, 'p') + "/" + std::string(120, 'q') + "/" + std::string(120, 'r');
    for (const std::string& name :
         {std::string("a:b"), std::string("com espaço e acentuação"), std::string("'aspas\" $x"),
          deep, std::string("bytes\xFF\xFEsoltos"), std::string("-m")}) {
        SCOPED_TRACE(name);
        const SimulationResult result = Calculate(SmallRoom(1.0), RunOptions(folder.Path() / name));
        ASSERT_EQ(result.zones.size(), 1u);
        EXPECT_GT(result.zones[0].statistics.minimum, 10.0);
        EXPECT_TRUE(fs::exists(folder.Path() / name / "scene.oct"));
    }
}

TEST(RunSimulation, TakesAWorkFolderRelativeToThisProcess) {
    const TemporaryFolder folder;
    const fs::path before = fs::current_path();
    fs::current_path(folder.Path());
    const SimulationResult result = Calculate(SmallRoom(1.0), RunOptions("saida/trabalho"));
    fs::current_path(before);
    EXPECT_TRUE(fs::exists(folder.Path() / "saida" / "trabalho" / "scene.oct"));
}

TEST(RunSimulation, PlacesMoreLuminairesThanOconvTakesFiles) {
    const TemporaryFolder folder;
    Scene scene = SmallRoom(3.0);
    const SceneLuminaire luminaire = scene.luminaires[0];
    scene.luminaires.clear();
    SimulationOptions options = RunOptions(folder.Path());
    options.engine.bounces = 0;
    options.repeatable = true;
    for (int i = 0; i < 260; ++i) { // small, so that none shades another
        scene.luminaires.push_back(luminaire);
        scene.luminaires.back().photometry.width = 0.01;
        scene.luminaires.back().photometry.length = 0.01;
        const int row = i / 20;
        scene.luminaires.back().x = 1.0 + 0.1 * (i - 20 * row);
        scene.luminaires.back().y = 0.9 + 0.1 * row;
        scene.luminaires.back().dimming = 1.0 / 260;
    }
    const SimulationResult many = Calculate(scene, options);
    EXPECT_TRUE(fs::exists(folder.Path() / "luminaires.rad"));
    EXPECT_EQ(many.log[1], "260 luminaria(s) convertida(s) e posicionada(s)");
    // 260 dim lights spread over the middle of the ceiling are about one bright one.
    scene.luminaires = {luminaire};
    const SimulationResult one = Calculate(scene, options);
    EXPECT_FALSE(fs::exists(folder.Path() / "luminaires.rad"));
    EXPECT_NEAR(Mean(many.zones[0].illuminance) / Mean(one.zones[0].illuminance), 1.0, 0.05);
}

TEST(RunSimulation, KeepsTheLightOfALampThatRadianceKnows) {
    const TemporaryFolder folder;
    SceneLuminaire luminaire = PlacedLuminaire(IsotropicPhotometry(), {0, 0, 3});
    const double plain =
        Calculate(OpenScene(luminaire), RunOptions(folder.Path())).pointDirectIlluminance.at(0);
    luminaire.photometry.keywords = {
        {"LAMP", "metal halide 150 W"}, {"LAMPCAT", "halogen"}, {"OTHER", "high pressure sodium"}};
    luminaire.photometry.otherLines = {"clear metal halide", "TILT=velho.tlt"};
    const double named =
        Calculate(OpenScene(luminaire), RunOptions(folder.Path())).pointDirectIlluminance.at(0);
    EXPECT_DOUBLE_EQ(named, plain);
}

TEST(RunSimulation, TakesTiltFactorsThatStandInTheFile) {
    const TemporaryFolder folder;
    SceneLuminaire luminaire = PlacedLuminaire(IsotropicPhotometry(), {0, 0, 3});
    const double plain =
        Calculate(OpenScene(luminaire), RunOptions(folder.Path())).pointDirectIlluminance.at(0);
    luminaire.photometry.tiltMode = 1;
    luminaire.photometry.tiltGeometry = 1;
    luminaire.photometry.tiltAngles = {0, 90};
    luminaire.photometry.tiltFactors = {1.0, 0.5};
    const double tilted =
        Calculate(OpenScene(luminaire), RunOptions(folder.Path())).pointDirectIlluminance.at(0);
    EXPECT_NEAR(tilted / plain, 1.0, 1e-4); // straight down the factor is 1
}

TEST(RunSimulation, LogsWhatBecameOfAnOpeningThatRadianceDoesNotKnow) {
    const TemporaryFolder folder;
    SceneLuminaire luminaire = PlacedLuminaire(IsotropicPhotometry(), {0, 0, 3});
    luminaire.displayName = "Pendente P1";
    luminaire.photometry.width = -0.2; // an ellipse
    luminaire.photometry.length = 0.4;
    const SimulationResult result = Calculate(OpenScene(luminaire), RunOptions(folder.Path()));
    ASSERT_GE(result.log.size(), 2u);
    EXPECT_EQ(result.log[1].substr(0, 36), "Pendente P1: a abertura luminosa de ") << result.log[1];
    EXPECT_GT(result.pointIlluminance.at(0), 0.0);
}

TEST(RunSimulation, DimsAndMaintains) {
    const TemporaryFolder folder;
    SceneLuminaire luminaire = PlacedLuminaire(IsotropicPhotometry(), {0, 0, 3});
    const double full =
        Calculate(OpenScene(luminaire), RunOptions(folder.Path())).pointDirectIlluminance.at(0);
    luminaire.dimming = 0.5;
    luminaire.contract.maintenanceFactor = 0.8;
    EXPECT_NEAR(
        Calculate(OpenScene(luminaire), RunOptions(folder.Path())).pointDirectIlluminance.at(0),
        full * 0.4, full * 1e-5);
    luminaire.dimming = 0.0; // stays in the scene and emits nothing
    EXPECT_EQ(
        Calculate(OpenScene(luminaire), RunOptions(folder.Path())).pointDirectIlluminance.at(0),
        0.0);
}

TEST(RunSimulation, StretchesAPieceOfARunWithItsFlux) {
    const TemporaryFolder folder;
    SceneLuminaire luminaire = PlacedLuminaire(IsotropicPhotometry(), {0, 0, 3});
    Scene scene = OpenScene(luminaire);
    const double whole = Calculate(scene, RunOptions(folder.Path())).pointDirectIlluminance.at(0);
    scene.luminaires[0].lengthScale = 0.5;
    const double half = Calculate(scene, RunOptions(folder.Path())).pointDirectIlluminance.at(0);
    EXPECT_NEAR(half, whole / 2.0, whole * 1e-5);

    luminaire.x = 1.0; // the whole one beside the half: a source of its own
    scene.luminaires.push_back(luminaire);
    Calculate(scene, RunOptions(folder.Path()));
    EXPECT_TRUE(fs::exists(folder.Path() / "lum2.ies"));
}

TEST(RunSimulation, StandsALuminaireWhereItsArgumentsSay) {
    const TemporaryFolder folder;
    // One beam of 10 deg, tilted by 45 towards +y, so that it meets the floor 3 m north of it.
    SceneLuminaire luminaire = PlacedLuminaire(
        RotationalPhotometry([](double angle) { return angle <= 10.0 ? 1000.0 : 0.0; }, 90, 1),
        {1, 1, 3});
    luminaire.contract.tiltAngle = 45;
    luminaire.contract.tiltDirection = 90;
    Scene scene = OpenScene(luminaire);
    scene.points = {{1, 4, 0, 0, 0, 1}, {4, 1, 0, 0, 0, 1}, {1, 1, 0, 0, 0, 1}};
    const SimulationResult result = Calculate(scene, RunOptions(folder.Path()));
    EXPECT_NEAR(result.pointDirectIlluminance[0], 1000.0 * std::sqrt(0.5) / 18.0, 0.05);
    EXPECT_EQ(result.pointDirectIlluminance[1], 0.0);
    EXPECT_EQ(result.pointDirectIlluminance[2], 0.0);

    luminaire.arrayCountX = 2; // a second one 3 m to the east
    luminaire.arrayStepX = 3.0;
    scene.luminaires = {luminaire};
    scene.points = {{1, 4, 0, 0, 0, 1}, {4, 4, 0, 0, 0, 1}};
    const SimulationResult pair = Calculate(scene, RunOptions(folder.Path()));
    EXPECT_NEAR(pair.pointDirectIlluminance[1], pair.pointDirectIlluminance[0], 1e-3);
}

} // namespace
} // namespace Merivane::Simulation
