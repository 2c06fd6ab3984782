#include "Archicad/ModelReadingCeilings.hpp"

#include <cmath>
#include <optional>

#include "Simulation/PrintedValue.hpp"
#include "Simulation/Study/CeilingDetection.hpp"

namespace Merivane::Archicad {

namespace {

using Simulation::DetectedCeiling;
using Simulation::FormatDecimal;

constexpr double LeastDifference = 0.005 - 1e-9; // [m]: 5 mm, the rounding of a difference aside

std::string Metres(double value) {
    return FormatDecimal(value, 2);
}

std::string MissedLine(const ZoneRecord& zone) {
    return "Zona " + zone.name + ": forro nao detectado, paredes e teto usam a altura da Zona (" +
           Metres(zone.height) + ")";
}

std::string FoundLine(const ZoneRecord& zone, const DetectedCeiling& ceiling) {
    return "Zona " + zone.name + ": forro a " + Metres(ceiling.height) + " m do piso (" +
           FormatDecimal(100.0 * ceiling.share, 0) + "% da area), altura da Zona " +
           Metres(zone.height) + " m: paredes e teto seguem o forro";
}

/// Follows the ceiling; returns the line that tells it, empty where nothing changes.
std::string FollowCeiling(ZoneRecord& zone, const std::optional<DetectedCeiling>& ceiling) {
    if (!ceiling) {
        return MissedLine(zone);
    }
    if (std::abs(ceiling->height - zone.height) < LeastDifference) {
        return "";
    }
    std::string line = FoundLine(zone, *ceiling);
    zone.height = ceiling->height;
    return line;
}

} // namespace

std::vector<Simulation::ZoneCeiling>
DetectCeilings(std::vector<ZoneRecord>& zones,
               const std::vector<Simulation::SceneSurface>& surfaces, bool logRequested,
               std::vector<std::string>& logLines) {
    const std::vector<Simulation::LevelFace> faces = Simulation::CollectLevelFaces(surfaces);
    std::vector<Simulation::ZoneCeiling> ceilings;
    for (ZoneRecord& zone : zones) {
        ceilings.push_back({zone.height, Simulation::DetectCeiling({zone.outline, zone.holes},
                                                                   zone.baseLevel, faces)});
        const std::string line = FollowCeiling(zone, ceilings.back().detected);
        if (logRequested && !line.empty()) {
            logLines.push_back(line);
        }
    }
    return ceilings;
}

} // namespace Merivane::Archicad
