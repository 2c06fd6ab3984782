// Real photometric files, from file to lux.

#include <algorithm>
#include <map>

#include <gtest/gtest.h>

#include "Photometry/CandelaLookup.hpp"
#include "Photometry/IesReader.hpp"
#include "RunScenes.hpp"
#include "Simulation/Run/RunSimulation.hpp"
#include "Support/Places.hpp"

namespace Merivane::Simulation {
namespace {

using namespace Merivane::Tests;

constexpr int TypeC = 1;

std::vector<std::filesystem::path> IesFiles() {
    std::vector<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::directory_iterator(FieldDataFolder() / "ies")) {
        if (entry.path().extension() == ".ies" || entry.path().extension() == ".IES") {
            files.push_back(entry.path());
        }
    }
    std::sort(files.begin(), files.end());
    return files;
}

// A luminaire 3 m over points under it and round it, and points over it that look down on it.
Scene AroundTheLuminaire(const Photometry::IesFile& photometry) {
    Scene scene;
    scene.luminaires = {PlacedLuminaire(photometry, {0, 0, 3})};
    for (const double z : {0.0, 6.0}) {
        const double look = z < 3.0 ? 1.0 : -1.0;
        for (int row = -2; row <= 2; ++row) {
            for (int column = -2; column <= 2; ++column) {
                scene.points.push_back({1.5 * column, 1.5 * row, z, 0, 0, look});
            }
        }
    }
    return scene;
}

TEST(FieldFiles, EverySoundTypeCFileGoesFromFileToLux) {
    if (FieldDataFolder().empty()) {
        GTEST_SKIP() << "the build was not told of field data";
    }
    std::map<std::string, std::string> refused;
    int lit = 0;
    for (const std::filesystem::path& path : IesFiles()) {
        SCOPED_TRACE(path.filename().string());
        Photometry::IesFile photometry;
        const Photometry::IesReadResult read = Photometry::ReadIes(ReadBytes(path), photometry);
        if (!read.ok || photometry.photometricType != TypeC) {
            refused[path.filename().string()] =
                read.ok ? "fotometria tipo A/B" : "leitura: " + read.error;
            continue;
        }
        const TemporaryFolder folder;
        SimulationOptions options = RunOptions(folder.Path());
        options.engine.bounces = 0;
        const Scene scene = AroundTheLuminaire(photometry);
        const SimulationResult result = RunSimulation(scene, options, {}, {}, {});
        EXPECT_TRUE(result.success) << result.error;
        if (!result.success) {
            refused[path.filename().string()] = "calculo: " + result.error;
            continue;
        }
        const std::vector<double>& values = result.pointDirectIlluminance;
        const double largest = *std::max_element(values.begin(), values.end());
        EXPECT_TRUE(std::all_of(values.begin(), values.end(),
                                [](double lux) { return std::isfinite(lux) && lux >= 0.0; }));
        EXPECT_GT(largest, 0.0);
        lit += largest > 0.0 ? 1 : 0;
    }
    for (const auto& [name, reason] : refused) {
        std::printf("not calculated: %s: %s\n", name.c_str(), reason.c_str());
    }
    std::printf("%d field files reach lux, %zu do not\n", lit, refused.size());
    EXPECT_GT(lit, 60);
}

// Where the source is small and the table smooth, the light under it is I / d2.
TEST(FieldFiles, LightUnderASmallSourceIsItsIntensity) {
    if (FieldDataFolder().empty()) {
        GTEST_SKIP() << "the build was not told of field data";
    }
    int compared = 0;
    for (const std::filesystem::path& path : IesFiles()) {
        SCOPED_TRACE(path.filename().string());
        Photometry::IesFile photometry;
        if (!Photometry::ReadIes(ReadBytes(path), photometry).ok ||
            photometry.photometricType != TypeC || photometry.tiltMode != 0 ||
            Photometry::CandelaAt(photometry, 0, 0) <= 0.0) {
            continue;
        }
        const TemporaryFolder folder;
        SimulationOptions options = RunOptions(folder.Path());
        options.engine.bounces = 0;
        Scene scene;
        scene.luminaires = {PlacedLuminaire(photometry, {0, 0, 100})}; // far: a point
        scene.points = {{0, 0, 0, 0, 0, 1}};
        const SimulationResult result = RunSimulation(scene, options, {}, {}, {});
        ASSERT_TRUE(result.success) << result.error;
        const double distance = 100.0 - LoweringOf(photometry);
        const double exact = Photometry::CandelaAt(photometry, 0, 0) * photometry.ballastFactor /
                             (distance * distance);
        EXPECT_NEAR(result.pointDirectIlluminance[0] / exact, 1.0, 0.02);
        ++compared;
    }
    EXPECT_GT(compared, 40);
}

} // namespace
} // namespace Merivane::Simulation
