#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "Host/Stories.hpp"
#include "Host/Types.hpp"
#include "Simulation/Geometry.hpp"

/// The Zones of the open project as calculations see them. Nothing in the project is changed.
namespace Merivane::Archicad {

/// One Zone. Heights are absolute [m].
struct ZoneRecord {
    Host::Guid guid;
    std::string name; ///< UTF-8; the Zone's number where it has no name
    std::int32_t floorIndex = 0;
    double baseLevel = 0.0; ///< of its floor
    double height = 0.0;
    std::vector<Simulation::Point2D> outline; ///< corners; the closing one is not repeated
    std::vector<std::vector<Simulation::Point2D>> holes;
    double minX = 0.0; ///< extent of the outline
    double minY = 0.0;
    double maxX = 0.0;
    double maxY = 0.0;

    bool operator==(const ZoneRecord&) const = default;
};

/// Level of a story [m]. Returns false for one that is not among them.
bool FindStoryLevel(const std::vector<Host::Story>& stories, std::int32_t floorIndex,
                    double& level);

/// The Zones that are selected, each once, in the order of the selection. What a section shows of a
/// Zone stands for the Zone.
std::vector<Host::Guid> SelectedZones();

/// Reads one Zone. Returns false, leaving `zone` as it was, when there is none, or it has no
/// outline of 3 corners. Sides that are arcs count as straight.
bool ReadZone(const Host::Guid& guid, ZoneRecord& zone);

/// The selected Zones, or those of the floor on the plan when none is selected. Appends to `log`
/// what the user has to know.
std::vector<ZoneRecord> CollectZones(std::vector<std::string>& log);

/// All Zones of the project that can be read.
std::vector<ZoneRecord> ReadAllZones();

} // namespace Merivane::Archicad
