#include "RunScenes.hpp"

#include <cmath>
#include <numbers>
#include <sstream>

#include "Photometry/PhotometricQuantities.hpp"
#include "Radiance/Installation.hpp"
#include "Support/Places.hpp"
#include "Text/NativePath.hpp"

namespace Merivane::Tests {

using Simulation::Point3D;
using Simulation::Scene;

std::filesystem::path RadianceBinFolder() {
    return BuildFolder() / "Vantoro Radiance" / "bin";
}

std::filesystem::path RadianceLibFolder() {
    return BuildFolder() / "Vantoro Radiance" / "lib";
}

Simulation::SimulationOptions RunOptions(const std::filesystem::path& workFolder) {
    Simulation::SimulationOptions options;
    options.workFolder = Text::WidePath(workFolder);
    options.radianceBinFolder = Text::WidePath(RadianceBinFolder());
    options.radianceLibFolder = Text::WidePath(RadianceLibFolder());
    options.processCount = 1;
    options.engine = Simulation::ProfileSettings(0);
    return options;
}

Photometry::IesFile RotationalPhotometry(const std::function<double(double vertical)>& intensity,
                                         double lastAngle, double step) {
    Photometry::IesFile file;
    file.horizontalAngles = {0.0};
    file.candela.emplace_back();
    const int last = static_cast<int>(std::lround(lastAngle / step));
    for (int i = 0; i <= last; ++i) {
        file.verticalAngles.push_back(i * step);
        file.candela[0].push_back(intensity(i * step));
    }
    return file;
}

Photometry::IesFile IsotropicPhotometry() {
    return RotationalPhotometry([](double) { return 1000.0 / (4.0 * std::numbers::pi); }, 180, 5);
}

Simulation::SceneLuminaire PlacedLuminaire(const Photometry::IesFile& photometry, Point3D place) {
    Simulation::SceneLuminaire luminaire;
    luminaire.displayName = "Luminária";
    luminaire.photometry = photometry;
    luminaire.contract.maintenanceFactor = 1.0;
    luminaire.x = place.x;
    luminaire.y = place.y;
    luminaire.z = place.z;
    return luminaire;
}

double LoweringOf(const Photometry::IesFile& photometry) {
    return Photometry::UnitsToMetres(photometry.unitsType) * std::abs(photometry.height) / 2.0 +
           0.0005;
}

Scene Room(double x, double y, double z, double reflectance) {
    Scene scene;
    scene.materials.push_back(
        {.name = "parede", .red = reflectance, .green = reflectance, .blue = reflectance});
    const auto add = [&](std::vector<Point3D> vertices) {
        scene.surfaces.push_back({.materialIndex = 0, .vertices = std::move(vertices)});
    };
    add({{0, 0, 0}, {x, 0, 0}, {x, y, 0}, {0, y, 0}});
    add({{0, 0, z}, {0, y, z}, {x, y, z}, {x, 0, z}});
    add({{0, 0, 0}, {0, 0, z}, {x, 0, z}, {x, 0, 0}});
    add({{0, y, 0}, {x, y, 0}, {x, y, z}, {0, y, z}});
    add({{0, 0, 0}, {0, y, 0}, {0, y, z}, {0, 0, z}});
    add({{x, 0, 0}, {x, 0, z}, {x, y, z}, {x, y, 0}});
    return scene;
}

Simulation::SensorPlane WorkPlane(const std::string& name, double x, double y, double height,
                                  double spacing) {
    Simulation::SensorPlane plane;
    plane.name = name;
    plane.grid = Simulation::BuildCalculationGrid(
        {.outer = {{0, 0}, {x, 0}, {x, y}, {0, y}}, .holes = {}}, 0.0,
        {.workPlaneHeight = height, .borderBand = 0.5, .wallOffset = 0.05, .spacing = spacing});
    return plane;
}

Scene SmallRoom(double spacing) {
    Scene scene = Room(4, 3, 2.8, 0.5);
    Photometry::IesFile photometry = RotationalPhotometry(
        [](double vertical) { return 500.0 * std::cos(vertical * std::numbers::pi / 180.0); }, 90,
        5);
    photometry.width = 0.2;
    photometry.length = 0.2;
    scene.luminaires.push_back(PlacedLuminaire(photometry, {2, 1.5, 2.79}));
    scene.sensorPlanes.push_back(WorkPlane("Sala", 4, 3, 0.75, spacing));
    return scene;
}

ProgramFolder::ProgramFolder(const std::filesystem::path& folder) : bin(folder / "bin") {
    std::filesystem::create_directories(bin);
    std::filesystem::create_directory_symlink(RadianceLibFolder(), folder / "lib");
    for (const std::string& tool : Radiance::RequiredTools()) {
        std::filesystem::create_symlink(RadianceBinFolder() / tool, bin / tool);
    }
}

void ProgramFolder::Replace(const std::string& tool, const std::string& script) const {
    Remove(tool);
    const std::string real = (RadianceBinFolder() / tool).string();
    WriteBytes(bin / tool, "#!/bin/sh\nREAL='" + real + "'\n" + script + "\n");
    std::filesystem::permissions(bin / tool, std::filesystem::perms::owner_all);
}

void ProgramFolder::Remove(const std::string& tool) const {
    std::filesystem::remove(bin / tool);
}

std::vector<std::string> LinesOf(const std::filesystem::path& path) {
    std::istringstream text(ReadBytes(path));
    std::vector<std::string> lines;
    for (std::string line; std::getline(text, line);) {
        lines.push_back(line);
    }
    return lines;
}

} // namespace Merivane::Tests
