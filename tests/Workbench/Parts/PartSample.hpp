#pragma once

#include <cstdint>
#include <string>

#include "Workbench/Parts/PartDocument.hpp"

namespace Merivane::Workbench::Parts {

/// A guid that ends in this number.
Host::Guid NumberedGuid(std::uint8_t number);

/// A luminaire with a section of every kind, its texts full of what XML has to escape.
PartDocument MakeFullPart();

/// A part out of random sections and parameters, the same for the same seed; its texts hold
/// whatever can stand in them.
PartDocument MakeRandomPart(std::uint32_t seed);

/// What `WritePartXml` wrote, read; a failure of the test where it can't be.
PartDocument ReadBack(const std::string& xml);

} // namespace Merivane::Workbench::Parts
