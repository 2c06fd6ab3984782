#include "Archicad/ZoneTaskStorage.hpp"

#include <cstdint>

#include "Host/GuidText.hpp"
#include "Host/Storage.hpp"
#include "Simulation/Verification/ZoneTasksText.hpp"

namespace Merivane::Archicad {

namespace {

constexpr std::int16_t TextVersion = 1;
constexpr std::uint16_t WindowsSign = 0x5757; // "WW"; the text is the same on every system

} // namespace

std::string ZoneKey(const Host::Guid& guid) {
    return Host::GuidText(guid);
}

Simulation::ZoneRequirementMap LoadZoneTasks(Simulation::ReferenceStandard& standard) {
    Host::ProjectData data;
    Simulation::ZoneRequirementMap map;
    standard = Simulation::ReferenceStandard::Brazilian;
    if (Host::GetProjectData(Simulation::ZoneTasksName, data) == Host::NoError) {
        Simulation::ParseZoneTasks(data.bytes, map,
                                   standard); // a corrupt text leaves both as above
    }
    return map;
}

Host::ErrorCode SaveZoneTasks(const Simulation::ZoneRequirementMap& map,
                              Simulation::ReferenceStandard standard) {
    return Host::StoreProjectData(
        Simulation::ZoneTasksName,
        {TextVersion, WindowsSign, Simulation::SerializeZoneTasks(map, standard)});
}

} // namespace Merivane::Archicad
