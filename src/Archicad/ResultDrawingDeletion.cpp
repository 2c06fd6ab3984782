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

/// What goes: that which can be changed, and that which a lock of layer or element holds.
struct OldResults {
    std::vector<Guid> editable;
    std::vector<Guid> held;
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
        if (onFloor && Contains(ListLayers(layers), header.layer)) {
            (isEditable.contains(guid) ? results.editable : results.held).push_back(guid);
        }
    }
    return Host::NoError;
}

ErrorCode Delete(const std::vector<Guid>& guids, std::int32_t& count) {
    if (guids.empty()) {
        return Host::NoError;
    }
    const ErrorCode code = Host::DeleteElements(guids);
    count += code == Host::NoError ? static_cast<std::int32_t>(guids.size()) : 0;
    return code;
}

} // namespace

ErrorCode DeleteResultElements(const ResultLayers& layers, const std::vector<std::int32_t>& floors,
                               std::int32_t& count) {
    count = 0;
    OldResults results;
    for (const ElementType type : DrawnTypes) {
        if (const ErrorCode code = CollectOldResults(type, layers, floors, results)) {
            return code;
        }
    }
    if (const ErrorCode code = Delete(results.editable, count)) {
        return code;
    }
    return Delete(results.held, count); // the host names the lock
}

} // namespace Merivane::Archicad
