#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "Host/LibraryParameter.hpp"
#include "Host/Types.hpp"

/// Library parts as commands meet them on placed elements. Defined by whichever host is linked;
/// nothing throws. Called on the main thread only.
namespace Merivane::Host {

/// A library part of the open project.
struct LibraryPart {
    std::int32_t index = 0; ///< of this session, until the list of libraries changes
    std::string name;       ///< UTF-8, without extension
    Guid mainGuid;          ///< what the part is, through all its revisions
    bool isLamp = false;    ///< placed by the Lamp tool, else by the Object tool
};

/// Reads a part by its index. BadIndex, also for one of before a change of the libraries.
ErrorCode GetLibraryPart(std::int32_t index, LibraryPart& part);

/// Finds a part by its name. BadName.
ErrorCode FindLibraryPart(std::string_view name, LibraryPart& part);

/// The default sizes [m] and parameters of a part. BadIndex.
ErrorCode GetPartParameters(std::int32_t index, double& sizeA, double& sizeB,
                            std::vector<LibraryParameter>& parameters);

} // namespace Merivane::Host
