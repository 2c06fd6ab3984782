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

LibraryPart DescribePart(std::int32_t index, const ProjectPart& found) {
    LibraryPart part;
    part.index = index;
    part.name = found.name;
    part.mainGuid = found.mainGuid;
    part.isLamp = found.isLamp;
    part.type = found.isLamp ? PartType::Lamp : PartType::Object;
    return part;
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
    part = DescribePart(index, *found);
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
    const auto place = static_cast<std::size_t>(found - parts.begin());
    part = DescribePart(Workbench::LibraryIndexOf(place), *found);
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
