#include <algorithm>
#include <array>
#include <set>

#include "Archicad/ResultDrawing.hpp"

// What earlier calculations drew, found by type, layer and floor alone.
namespace Merivane::Archicad {

namespace {

using Host::ElementFilter;
using Host::ElementType;
using Host::ErrorCode;
using Host::Guid;

constexpr std::array DrawnTypes = {ElementType::PolyLine, ElementType::Text, ElementType::Line,
                                   ElementType::Hatch, ElementType::Morph};

/// What goes, and how many a lock of layer or element holds.
struct OldResults {
    std::vector<Guid> editable;
    std::int32_t held = 0;
};

template <typename List, typename Value> bool Contains(const List& list, const Value& value) {
    return std::find(list.begin(), list.end(), value) != list.end();
}

ErrorCode CollectOldResults(ElementType type, const ResultLayers& layers,
                            const std::vector<std::int32_t>& floors, OldResults& results) {
    std::vector<Guid> all;
    std::vector<Guid> editable;
    if (const ErrorCode code = Host::ListElements(type, ElementFilter::None, all)) {
        return code;
    }
    if (const ErrorCode code = Host::ListElements(type, ElementFilter::Editable, editable)) {
        return code;
    }
    const std::set<Guid> isEditable(editable.begin(), editable.end());
    for (const Guid& guid : all) {
        Host::Element element;
        if (const ErrorCode code = Host::GetElement(guid, element)) {
            return code;
        }
        const Host::ElementHeader& header = element.header;
        const bool onFloor =
            floors.empty() || Contains(floors, static_cast<std::int32_t>(header.floorIndex));
        if (!onFloor || !Contains(ListLayers(layers), header.layer)) {
            continue;
        }
        if (isEditable.contains(guid)) {
            results.editable.push_back(guid);
        } else {
            ++results.held;
        }
    }
    return Host::NoError;
}

} // namespace

ErrorCode DeleteResultElements(const ResultLayers& layers, const std::vector<std::int32_t>& floors,
                               std::int32_t& count, std::int32_t& held) {
    count = held = 0;
    OldResults results;
    for (const ElementType type : DrawnTypes) {
        if (const ErrorCode code = CollectOldResults(type, layers, floors, results)) {
            return code;
        }
    }
    if (!results.editable.empty()) {
        if (const ErrorCode code = Host::DeleteElements(results.editable)) {
            return code;
        }
    }
    count = static_cast<std::int32_t>(results.editable.size());
    held = results.held;
    return Host::NoError;
}

} // namespace Merivane::Archicad
