#pragma once

#include <cstddef>
#include <unordered_map>
#include <vector>

#include "Host/Types.hpp"
#include "Workbench/Project/Project.hpp"

/// Finding elements by their identity without walking through the project.
namespace Merivane::Workbench {

/// Where a part of a hierarchical element stands.
struct PartPlace {
    std::size_t element = 0; ///< in `Project::elements`
    std::size_t part = 0;    ///< in its `parts`
};

struct ElementIndex {
    ElementPlaces places;
    std::unordered_map<Host::Guid, PartPlace, GuidHash> parts;
    /// Windows and doors by their wall, skylights by their roof, in order of creation. May name
    /// openings that were deleted since.
    std::unordered_map<Host::Guid, std::vector<Host::Guid>, GuidHash> openings;
};

/// The index of these elements; places without a guid are skipped.
ElementIndex BuildElementIndex(const std::vector<ProjectElement>& elements);

/// Adds the element at `place`, the last one.
void IndexElement(ElementIndex& index, const ProjectElement& element, std::size_t place);

/// The element of this guid, null when there is none.
const ProjectElement* FindElement(const Project& project, const ElementIndex& index,
                                  const Host::Guid& guid);

/// The part of this guid with the element that it belongs to, nulls when there is none.
struct FoundPart {
    const ProjectElement* owner = nullptr;
    const ElementPart* part = nullptr;
};
FoundPart FindElementPart(const Project& project, const ElementIndex& index,
                          const Host::Guid& guid);

/// The windows and doors of a wall, the skylights of a roof, in order of creation.
std::vector<Host::Guid> FindOpenings(const ElementIndex& index, const Host::Guid& guid);

} // namespace Merivane::Workbench
