#pragma once

#include <optional>
#include <string>

#include "Host/Library.hpp"
#include "Workbench/Parts/PartDocument.hpp"

namespace Merivane::Workbench {

/// The library part between `CreatePart` and `SavePart`.
struct PartInMaking {
    Host::NewLibraryPart part;
    std::wstring file; ///< full path
    Parts::PartDocument document;
    std::optional<Host::PartSection> section; ///< that is begun
    std::string bytes;                        ///< of that section so far
};

} // namespace Merivane::Workbench
