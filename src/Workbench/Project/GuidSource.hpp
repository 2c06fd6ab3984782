#pragma once

#include <cstdint>

#include "Host/Types.hpp"

/// Fresh identities for elements and databases.
namespace Merivane::Workbench {

struct GuidSource {
    std::uint64_t state = 0;
};

/// A source that gives the same guids for the same seed; 0 = unlike any other.
GuidSource MakeGuidSource(std::uint64_t seed);

/// The next random guid (RFC 4122, version 4).
Host::Guid NextGuid(GuidSource& source);

} // namespace Merivane::Workbench
