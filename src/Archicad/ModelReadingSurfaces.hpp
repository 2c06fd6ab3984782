#pragma once

#include <cstdint>
#include <map>
#include <vector>

#include "Simulation/Reflectances.hpp"

namespace Merivane::Archicad {

/// The surfaces that faces of the model have, as records of the reflectance table. Each is read
/// once, also one that can't be.
struct SurfaceMapper {
    std::vector<Simulation::SurfaceReflectance>* reflectances = nullptr;
    std::map<std::int32_t, std::int32_t> attributes;     ///< record by attribute number
    std::map<std::int32_t, std::int32_t> scriptSurfaces; ///< record by number of a part's surface
};

/// Index of the record of a face's surface, added to the table where it is new; -1 for a face
/// without surface and for one that can't be read. Surfaces of one name share a record.
std::int32_t SurfaceRecord(SurfaceMapper& mapper, std::int32_t attributeIndex);

} // namespace Merivane::Archicad
