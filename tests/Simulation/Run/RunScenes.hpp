#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "Simulation/Scene.hpp"
#include "Simulation/SimulationRecords.hpp"

namespace Merivane::Tests {

/// Folder of the real Radiance programs that the set-up lays beside the build.
std::filesystem::path RadianceBinFolder();
std::filesystem::path RadianceLibFolder();

/// Options of a quick run in one process with the real programs.
Simulation::SimulationOptions RunOptions(const std::filesystem::path& workFolder);

/// A type C photometry in metres, the same in all horizontal directions, from its intensity [cd]
/// over the vertical angle [deg], in steps of `step` degrees up to `lastAngle`.
Photometry::IesFile RotationalPhotometry(const std::function<double(double vertical)>& intensity,
                                         double lastAngle, double step);

/// 1000 lm in all directions from a sphere of 1 mm.
Photometry::IesFile IsotropicPhotometry();

/// A luminaire at a place [m] that looks down, dimming and maintenance 1.
Simulation::SceneLuminaire PlacedLuminaire(const Photometry::IesFile& photometry,
                                           Simulation::Point3D place);

/// How far placing lowers the photometric centre under the luminaire's origin [m].
double LoweringOf(const Photometry::IesFile& photometry);

/// The six faces of a box from (0, 0, 0) to (x, y, z) [m], looking inwards, of one grey material.
Simulation::Scene Room(double x, double y, double z, double reflectance);

/// A horizontal plane over a rectangle [m], points `spacing` apart.
Simulation::SensorPlane WorkPlane(const std::string& name, double x, double y, double height,
                                  double spacing);

/// A room of 4 x 3 x 2.8 m with one downlight and a plane of points.
Simulation::Scene SmallRoom(double spacing);

/// Radiance's own programs as links in a folder, some of them replaced by shell scripts, so that a
/// test can make a program fail in any way. `lib` stands beside it.
class ProgramFolder {
public:
    explicit ProgramFolder(const std::filesystem::path& folder);

    /// Replaces a program by a script for /bin/sh; "$REAL" in it is the real program.
    void Replace(const std::string& tool, const std::string& script) const;

    /// Takes a program away.
    void Remove(const std::string& tool) const;

    const std::filesystem::path& Path() const { return bin; }

private:
    std::filesystem::path bin;
};

/// The whole text of a file as lines.
std::vector<std::string> LinesOf(const std::filesystem::path& path);

} // namespace Merivane::Tests
