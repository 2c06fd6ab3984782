#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "Archicad/ModelReadingZones.hpp"
#include "Host/Types.hpp"

/// Zones of the open project, as the command line names them.
namespace Merivane::Program {

/// A Zone with what it can be called.
struct NamedZone {
    Host::Guid guid;
    std::string name;
    std::string number; ///< may be empty
};

/// The Zones in their order, with their numbers.
std::vector<NamedZone> NameZones(const std::vector<Archicad::ZoneRecord>& zones);

/// Finds the one Zone that `text` means: by its name, by its number or by both ("01 Sala"), without
/// regard to accents and case. Returns false with one Portuguese sentence that lists `zones` where
/// none is meant, and those that are meant where there are several.
bool FindZone(const std::vector<NamedZone>& zones, const std::string& text, std::size_t& index,
              std::string& error);

/// Selects the named Zones of the open project, "*" all of them; leaves the selection where no
/// names are given. Returns false with one Portuguese sentence.
bool SelectZones(const std::vector<std::string>& names, std::string& error);

} // namespace Merivane::Program
