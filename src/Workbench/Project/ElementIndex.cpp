#include "Workbench/Project/ElementIndex.hpp"

#include <cstdint>
#include <cstring>
#include <variant>

namespace Merivane::Workbench {

std::size_t GuidHash::operator()(const Host::Guid& guid) const {
    std::uint64_t first = 0;
    std::uint64_t second = 0;
    std::memcpy(&first, guid.bytes.data(), sizeof(first));
    std::memcpy(&second, guid.bytes.data() + sizeof(first), sizeof(second));
    // Guids that people wrote by hand differ in a few digits only: the product spreads them.
    return static_cast<std::size_t>((first * 31U + second) * 0x9E3779B97F4A7C15U >> 7U);
}

void IndexElement(ElementIndex& index, const ProjectElement& element, std::size_t place) {
    const Host::Guid& guid = element.element.header.guid;
    index.places.emplace(guid, place);
    for (std::size_t i = 0; i < element.parts.size(); ++i) {
        index.parts.emplace(element.parts[i].guid, PartPlace{place, i});
    }
    if (const auto* const opening = std::get_if<OpeningGeometry>(&element.geometry)) {
        index.openings[opening->wall].push_back(guid);
    }
}

ElementIndex BuildElementIndex(const std::vector<ProjectElement>& elements) {
    ElementIndex index;
    index.places.reserve(elements.size());
    for (std::size_t place = 0; place < elements.size(); ++place) {
        if (elements[place].element.header.guid != Host::Guid()) {
            IndexElement(index, elements[place], place);
        }
    }
    return index;
}

const ProjectElement* FindElement(const Project& project, const ElementIndex& index,
                                  const Host::Guid& guid) {
    const auto found = index.places.find(guid);
    return found == index.places.end() ? nullptr : &project.elements[found->second];
}

FoundPart FindElementPart(const Project& project, const ElementIndex& index,
                          const Host::Guid& guid) {
    const auto found = index.parts.find(guid);
    if (found == index.parts.end()) {
        return {};
    }
    const ProjectElement& owner = project.elements[found->second.element];
    return {&owner, &owner.parts[found->second.part]};
}

std::vector<Host::Guid> FindOpenings(const ElementIndex& index, const Host::Guid& guid) {
    std::vector<Host::Guid> openings;
    const auto found = index.openings.find(guid);
    if (found != index.openings.end()) {
        for (const Host::Guid& opening : found->second) {
            if (index.places.contains(opening)) {
                openings.push_back(opening);
            }
        }
    }
    return openings;
}

} // namespace Merivane::Workbench
