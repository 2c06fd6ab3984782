#include "Host/Library.hpp"

#include <algorithm>
#include <cstddef>

#include "Workbench/PartLibraries.hpp"
#include "Workbench/Parts/BuiltInSubtypes.hpp"
#include "Workbench/Session.hpp"

namespace Merivane::Host {

namespace {

using Workbench::CurrentSession;
using Workbench::PartSource;
using Workbench::ProjectPart;

const ProjectPart* FindPart(std::int32_t index) {
    const std::int32_t place = Workbench::LibraryPlaceOf(index);
    return place < 0 ? nullptr : &CurrentSession().project.parts[static_cast<std::size_t>(place)];
}

/// What a part derives from; of one without a file by the tool that places it.
Guid ParentOf(const ProjectPart& part) {
    if (part.document) {
        return part.document->ancestry.empty() ? Guid() : part.document->ancestry.back();
    }
    return Workbench::Parts::BuiltInSubtype(part.isLamp ? Workbench::Parts::LightSubtype
                                                        : Workbench::Parts::ModelElementSubtype);
}

LibraryPart DescribePart(std::int32_t index, const ProjectPart& found) {
    LibraryPart part;
    part.index = index;
    part.name = found.name;
    part.mainGuid = found.mainGuid;
    part.isLamp = found.isLamp;
    part.type = found.isLamp ? PartType::Lamp : PartType::Object;
    part.path = found.path;
    part.parentId = Workbench::Parts::UniqueId(ParentOf(found));
    if (found.document) {
        part.type = found.document->type;
        part.revision = found.document->revision;
        part.isPlaceable = found.document->isPlaceable;
    }
    return part;
}

/// The part of an index, where its file is there.
ErrorCode FindDefinedPart(std::int32_t index, const ProjectPart*& part) {
    part = FindPart(index);
    if (!part) {
        return BadIndex;
    }
    return part->source == PartSource::Missing ? MissingDefinition : NoError;
}

} // namespace

ErrorCode ListLibraryParts(std::vector<std::int32_t>& indices) {
    if (const ErrorCode code = Workbench::CountProjectCall("ListLibraryParts")) {
        return code;
    }
    indices.clear();
    const auto& parts = CurrentSession().project.parts;
    for (std::size_t place = 0; place < parts.size(); ++place) {
        if (parts[place].source != PartSource::Missing) {
            indices.push_back(Workbench::LibraryIndexOf(place));
        }
    }
    return NoError;
}

ErrorCode GetLibraryPart(std::int32_t index, LibraryPart& part) {
    if (const ErrorCode code = Workbench::CountProjectCall("GetLibraryPart")) {
        return code;
    }
    const ProjectPart* const found = FindPart(index);
    if (!found) {
        return BadIndex;
    }
    if (found->source == PartSource::Missing) {
        part = {};
        part.index = index;
        part.name = found->name;
        return MissingDefinition;
    }
    part = DescribePart(index, *found);
    return NoError;
}

ErrorCode FindLibraryPart(std::string_view name, LibraryPart& part) {
    if (const ErrorCode code = Workbench::CountProjectCall("FindLibraryPart")) {
        return code;
    }
    const auto& parts = CurrentSession().project.parts;
    const auto found = std::find_if(parts.begin(), parts.end(), [name](const ProjectPart& p) {
        return p.name == name && p.source != PartSource::Missing;
    });
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
    const ProjectPart* found = nullptr;
    if (const ErrorCode code = FindDefinedPart(index, found)) {
        return code;
    }
    sizeA = found->sizeA;
    sizeB = found->sizeB;
    parameters = found->parameters;
    return NoError;
}

ErrorCode GetPartDetails(std::int32_t index, std::string& details) {
    if (const ErrorCode code = Workbench::CountProjectCall("GetPartDetails")) {
        return code;
    }
    const ProjectPart* found = nullptr;
    if (const ErrorCode code = FindDefinedPart(index, found)) {
        return code;
    }
    details = found->document ? found->document->parameters.header : std::string();
    return NoError;
}

ErrorCode GetBuiltInPart(std::int32_t number, Guid& guid) {
    if (const ErrorCode code = Workbench::CountCall("GetBuiltInPart")) {
        return code;
    }
    guid = Workbench::Parts::BuiltInSubtype(number);
    return NoError;
}

} // namespace Merivane::Host
