#include "Host/Library.hpp"

#include <algorithm>
#include <cstddef>

#include "Workbench/Session.hpp"

namespace Merivane::Host {

namespace {

using Workbench::CurrentSession;
using Workbench::ProjectPart;

const ProjectPart* FindPart(std::int32_t index) {
    const std::int32_t place = Workbench::LibraryPlaceOf(index);
    return place < 0 ? nullptr : &CurrentSession().project.parts[static_cast<std::size_t>(place)];
}

} // namespace

ErrorCode GetLibraryPart(std::int32_t index, LibraryPart& part) {
    if (const ErrorCode code = Workbench::CountProjectCall("GetLibraryPart")) {
        return code;
    }
    const ProjectPart* const found = FindPart(index);
    if (!found) {
        return BadIndex;
    }
    part = {index, found->name, found->mainGuid, found->isLamp};
    return NoError;
}

ErrorCode FindLibraryPart(std::string_view name, LibraryPart& part) {
    if (const ErrorCode code = Workbench::CountProjectCall("FindLibraryPart")) {
        return code;
    }
    const auto& parts = CurrentSession().project.parts;
    const auto found = std::find_if(parts.begin(), parts.end(),
                                    [name](const ProjectPart& p) { return p.name == name; });
    if (found == parts.end()) {
        return BadName;
    }
    part = {Workbench::LibraryIndexOf(static_cast<std::size_t>(found - parts.begin())), found->name,
            found->mainGuid, found->isLamp};
    return NoError;
}

ErrorCode GetPartParameters(std::int32_t index, double& sizeA, double& sizeB,
                            std::vector<LibraryParameter>& parameters) {
    if (const ErrorCode code = Workbench::CountProjectCall("GetPartParameters")) {
        return code;
    }
    const ProjectPart* const found = FindPart(index);
    if (!found) {
        return BadIndex;
    }
    sizeA = found->sizeA;
    sizeB = found->sizeB;
    parameters = found->parameters;
    return NoError;
}

} // namespace Merivane::Host
