#include "Simulation/Run/SelfTest.hpp"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstddef>

namespace Merivane::Simulation {

namespace {

// An isotropic source of 1000 lm: 1000 / (4 pi) cd in every direction.
constexpr double Intensity = 79.5774715;

// The source hangs at 3 m; placing it sinks it by half its height and half a millimetre.
constexpr double SourceHeight = 3.0;
constexpr double SphereDiameter = 0.05;
constexpr double Distance = SourceHeight - SphereDiameter / 2.0 - 0.0005;

Photometry::IesFile IsotropicSphere() {
    Photometry::IesFile file;
    // A sphere has all three sides negative; `ies2rad` refuses a negative height alone.
    file.width = -SphereDiameter;
    file.length = -SphereDiameter;
    file.height = -SphereDiameter;
    file.horizontalAngles = {0.0};
    for (int angle = 0; angle <= 180; angle += 5) {
        file.verticalAngles.push_back(angle);
    }
    file.candela = {std::vector<double>(file.verticalAngles.size(), Intensity)};
    return file;
}

SensorPlane Strip() {
    const Polygon2D outline{.outer = {{0.0, 0.0}, {2.0, 0.0}, {2.0, 0.0001}, {0.0, 0.0001}},
                            .holes = {}};
    SensorPlane plane;
    plane.name = "piso";
    plane.grid = BuildCalculationGrid(
        outline, 0.0,
        {.workPlaneHeight = 0.0, .borderBand = 0.0, .wallOffset = 0.05, .spacing = 1.0});
    return plane;
}

Scene TestScene() {
    SceneLuminaire luminaire;
    luminaire.displayName = "teste";
    luminaire.photometry = IsotropicSphere();
    luminaire.contract.maintenanceFactor = 1.0;
    luminaire.z = SourceHeight;
    Scene scene;
    scene.luminaires.push_back(luminaire);
    scene.sensorPlanes.push_back(Strip());
    return scene;
}

SimulationOptions TestOptions(const Radiance::Installation& installation,
                              const std::wstring& workFolder) {
    SimulationOptions options;
    options.quality = 0;
    options.workFolder = workFolder;
    options.radianceBinFolder = installation.binFolder;
    options.radianceLibFolder = installation.libFolder;
    options.processCount = 1;
    options.useEngineSettings = false;
    return options;
}

// Illuminance of the floor at `offset` [m] along the strip: I cos(theta) / d2.
double ExactIlluminance(double offset) {
    const double squaredDistance = offset * offset + Distance * Distance;
    return Intensity * (Distance / std::sqrt(squaredDistance)) / squaredDistance;
}

void Compare(const std::vector<Point2D>& points, const std::vector<double>& values,
             SelfTestResult& test) {
    const std::size_t count = std::min(points.size(), values.size());
    for (std::size_t i = 0; i < count; ++i) {
        const double exact = ExactIlluminance(points[i].x);
        const double difference = std::abs(values[i] - exact) / exact;
        test.largestDifference = std::max(test.largestDifference, difference);
    }
    test.calculated = values.front();
    test.exact = ExactIlluminance(points.front().x);
    test.passed = test.largestDifference <= SelfTestTolerance;
}

} // namespace

SelfTestResult RadianceSelfTest(const Radiance::Installation& installation,
                                const std::wstring& workFolder, const CancelCallback& cancel) {
    SelfTestResult test;
    const auto start = std::chrono::steady_clock::now();
    const Scene scene = TestScene();
    const SimulationResult result =
        RunSimulation(scene, TestOptions(installation, workFolder), cancel, {}, {});
    test.seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();

    if (!result.success || result.zones.empty() || result.zones[0].illuminance.empty()) {
        test.message = result.error.empty() ? "o Radiance não devolveu resultados" : result.error;
        return test;
    }
    test.ran = true;
    Compare(ActivePoints(scene.sensorPlanes[0].grid), result.zones[0].illuminance, test);
    return test;
}

} // namespace Merivane::Simulation
