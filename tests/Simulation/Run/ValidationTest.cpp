// What the calculation says against what photometry says in closed form.

#include <numbers>
#include <numeric>

#include <gtest/gtest.h>

#include "Radiance/ProcessRunner.hpp"
#include "Radiance/RtraceOutput.hpp"
#include "RunScenes.hpp"
#include "Simulation/Run/RadianceTool.hpp"
#include "Simulation/Run/RunSimulation.hpp"
#include "Support/Places.hpp"
#include "Text/NativePath.hpp"

namespace Merivane::Simulation {
namespace {

using namespace Merivane::Tests;

constexpr double Degree = std::numbers::pi / 180.0;

double Mean(const std::vector<double>& values) {
    return std::accumulate(values.begin(), values.end(), 0.0) / static_cast<double>(values.size());
}

SimulationResult Calculate(const Scene& scene, const SimulationOptions& options) {
    SimulationResult result = RunSimulation(scene, options, {}, {}, {});
    EXPECT_TRUE(result.success) << result.error;
    return result;
}

SimulationOptions DirectOnly(const TemporaryFolder& folder) {
    SimulationOptions options = RunOptions(folder.Path());
    options.engine.bounces = 0;
    return options;
}

TEST(Validation, PointSourceFollowsTheInverseSquareLaw) {
    const TemporaryFolder folder;
    const auto intensity = [](double angle) { return 200.0 + 5.0 * angle; }; // linear: as read
    SceneLuminaire luminaire = PlacedLuminaire(RotationalPhotometry(intensity, 90, 5), {0, 0, 2.5});
    Scene scene;
    scene.luminaires = {luminaire};
    for (int i = 0; i < 10; ++i) {
        scene.points.push_back({0.35 * i, 0.1 * i, 0.02 * i * i, 0, 0, 1});
    }
    const SimulationResult result = Calculate(scene, DirectOnly(folder));
    double largest = 0.0;
    for (std::size_t i = 0; i < scene.points.size(); ++i) {
        const ScenePoint& point = scene.points[i];
        const double height = luminaire.z - LoweringOf(luminaire.photometry) - point.z;
        const double cosine = height / std::hypot(point.x, point.y, height);
        ASSERT_GE(height / cosine, 1.0);
        const double exact =
            intensity(std::acos(cosine) / Degree) * cosine * cosine * cosine / (height * height);
        const double difference = std::abs(result.pointDirectIlluminance[i] / exact - 1.0);
        EXPECT_LT(difference, 0.001) << "point " << i << ", exact " << exact;
        largest = std::max(largest, difference);
    }
    std::printf("point source: largest difference %.4f %%\n", largest * 100.0);
}

// Illuminance under a square opening of `side` [m] at the origin, `distance` below it: every piece
// of it has its share of the intensity.
double PanelIlluminance(const Photometry::IesFile& photometry, double side, Point3D point) {
    constexpr int Pieces = 200;
    double sum = 0.0;
    for (int i = 0; i < Pieces; ++i) {
        for (int j = 0; j < Pieces; ++j) {
            const double x = point.x - side * ((i + 0.5) / Pieces - 0.5);
            const double y = point.y - side * ((j + 0.5) / Pieces - 0.5);
            const double distance = std::hypot(x, y, point.z);
            const double cosine = point.z / distance;
            const double angle = std::acos(cosine) / Degree;
            const std::vector<double>& row = photometry.candela[0];
            const auto cell = std::min(static_cast<std::size_t>(angle / 5.0), row.size() - 2);
            const double part = angle / 5.0 - static_cast<double>(cell);
            sum +=
                (row[cell] * (1.0 - part) + row[cell + 1] * part) * cosine / (distance * distance);
        }
    }
    return sum / (Pieces * Pieces);
}

TEST(Validation, PanelAgreesWithNumericIntegration) {
    const TemporaryFolder folder;
    Photometry::IesFile photometry =
        RotationalPhotometry([](double angle) { return 1000.0 * std::cos(angle * Degree); }, 90, 5);
    photometry.width = 0.6;
    photometry.length = 0.6;
    Scene scene;
    scene.luminaires = {PlacedLuminaire(photometry, {0, 0, 2.0})};
    for (int i = 0; i < 8; ++i) {
        scene.points.push_back({0.3 * i, 0.15 * i, 0.0, 0, 0, 1});
    }
    const SimulationResult result = Calculate(scene, DirectOnly(folder));
    double largest = 0.0;
    for (std::size_t i = 0; i < scene.points.size(); ++i) {
        // The lower face of the opening stands 0.25 mm under its middle.
        const double height = 2.0 - LoweringOf(photometry) - 0.00025;
        const double exact =
            PanelIlluminance(photometry, 0.6, {scene.points[i].x, scene.points[i].y, height});
        const double difference = std::abs(result.pointDirectIlluminance[i] / exact - 1.0);
        EXPECT_LT(difference, 0.02) << "point " << i << ", exact " << exact;
        largest = std::max(largest, difference);
    }
    std::printf("panel: largest difference %.3f %%\n", largest * 100.0);
}

constexpr double CubeSide = 4.0;
constexpr double CubeSurface = 6.0 * CubeSide * CubeSide;
constexpr double CubeFlux = 1000.0;

// A closed cube with an isotropic source in its middle and n x n points on each face, just off it.
Scene Cube(double reflectance, int n) {
    Scene scene = Room(CubeSide, CubeSide, CubeSide, reflectance);
    scene.luminaires = {PlacedLuminaire(IsotropicPhotometry(), {2, 2, 2.0005})};
    constexpr double Gap = 0.001;
    for (int axis = 0; axis < 3; ++axis) {
        for (const double sign : {1.0, -1.0}) {
            for (int k = 0; k < n * n; ++k) {
                const auto a = static_cast<std::size_t>(axis);
                std::array<double, 3> place{};
                std::array<double, 3> direction{};
                place[a] = sign > 0 ? Gap : CubeSide - Gap;
                const int row = k / n;
                place[(a + 1) % 3] = CubeSide * (k - n * row + 0.5) / n;
                place[(a + 2) % 3] = CubeSide * (row + 0.5) / n;
                direction[a] = sign;
                scene.points.push_back(
                    {place[0], place[1], place[2], direction[0], direction[1], direction[2]});
            }
        }
    }
    return scene;
}

// The reflected light on a wall of a closed room: flux / surface * rho / (1 - rho).
double ExactReflected(double reflectance) {
    return CubeFlux / CubeSurface * reflectance / (1.0 - reflectance);
}

// Eight reflections, the least limit and the rest as fine as a test can wait for.
EngineSettings EightReflections() {
    return NormaliseSettings({.profile = 3,
                              .bounces = 8,
                              .divisions = 512,
                              .supersamples = 128,
                              .resolution = 64,
                              .accuracy = 0.2,
                              .limitWeight = 0.0001});
}

TEST(Validation, ClosedCubeReflectsWhatItShouldThroughTheProductsOptions) {
    for (const double reflectance : {0.2, 0.5}) {
        const TemporaryFolder folder;
        SimulationOptions options = RunOptions(folder.Path());
        options.engine = EightReflections();
        options.repeatable = true;
        const SimulationResult result = Calculate(Cube(reflectance, 10), options);
        const double reflected =
            Mean(result.pointIlluminance) - Mean(result.pointDirectIlluminance);
        const double exact = ExactReflected(reflectance);
        EXPECT_NEAR(reflected / exact, 1.0, 0.015) << reflected << " lux, exact " << exact;
        std::printf("cube, product's options, reflectance %.1f: %+.2f %%\n", reflectance,
                    (reflected / exact - 1.0) * 100.0);
    }
}

// Mean illuminance of the loose points under options of the test's own, on the run's own octree.
double MeanWith(const SimulationOptions& options, const std::vector<std::string>& arguments) {
    ProcessTarget target;
    SimulationResult result;
    target.radianceBinFolder = options.radianceBinFolder;
    target.workFolder = options.workFolder;
    target.rayPath = RayPathOf(options.workFolder, options.radianceLibFolder);
    target.result = &result;
    std::string error;
    EXPECT_TRUE(RunRadianceTool(target, "rtrace", arguments, "points.pts", "teste.txt", error))
        << error;
    const std::string text = ReadBytes(Text::NativePath(options.workFolder) / "teste.txt");
    std::vector<double> values;
    EXPECT_TRUE(Radiance::ParseIlluminance(
        text, static_cast<std::uint64_t>(std::count(text.begin(), text.end(), '\n')), values));
    return Mean(values);
}

// Shows that what a white room misses is the limit of eight reflections and nothing else.
TEST(Validation, ClosedCubeReflectsWhatItShouldWithoutALimitOfReflections) {
    for (const double reflectance : {0.2, 0.5, 0.8}) {
        const TemporaryFolder folder;
        const SimulationOptions options = DirectOnly(folder); // builds the octree
        const SimulationResult direct = Calculate(Cube(reflectance, 10), options);
        const double total =
            MeanWith(options, {"-h", "-I+", "-dj", "0", "-u-", "-lr", "-40", "-ab", "30", "-aa",
                               "0", "-ad", "64", "-as", "0", "-lw", "1e-6", "scene.oct"});
        const double reflected = total - Mean(direct.pointDirectIlluminance);
        const double exact = ExactReflected(reflectance);
        EXPECT_NEAR(reflected / exact, 1.0, 0.01) << reflected << " lux, exact " << exact;
        std::printf("cube, no limit, reflectance %.1f: %+.2f %%\n", reflectance,
                    (reflected / exact - 1.0) * 100.0);
    }
}

} // namespace
} // namespace Merivane::Simulation
