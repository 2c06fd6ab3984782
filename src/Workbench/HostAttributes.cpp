#include "Host/Attributes.hpp"

#include <utility>

#include "Workbench/Project/AttributeRules.hpp"
#include "Workbench/Session.hpp"

namespace Merivane::Host {

namespace {

using Workbench::AttributeTable;
using Workbench::CurrentSession;
using Workbench::Project;

// Calls `use` with the project's table of a type; false for a type that there is not.
template <typename Use> bool WithTable(const Project& project, AttributeType type, const Use& use) {
    switch (type) {
    case AttributeType::Layer:
        use(project.layers);
        return true;
    case AttributeType::LineType:
        use(project.lineTypes);
        return true;
    case AttributeType::Fill:
        use(project.fills);
        return true;
    case AttributeType::Surface:
        use(project.surfaces);
        return true;
    case AttributeType::LayerCombination:
        use(project.combinations);
        return true;
    }
    return false;
}

template <typename Record>
ErrorCode GiveAttribute(std::string_view operation, const AttributeTable<Record>& table,
                        AttributeIndex index, Record& record) {
    if (const ErrorCode code = Workbench::CountProjectCall(operation)) {
        return code;
    }
    if (const ErrorCode code = Workbench::CheckAttributeIndex(table, index)) {
        return code;
    }
    record = table.at(index.value);
    return NoError;
}

template <typename Record>
ErrorCode AddAttribute(AttributeTable<Record>& table, const Record& record, AttributeIndex& index) {
    if (const std::int32_t existing = Workbench::FindAttributeName(table, record.name)) {
        index = {existing};
        return AttributeExists;
    }
    index = {Workbench::NextAttributeIndex(table)};
    table.emplace(index.value, record);
    CurrentSession().projectChanged = true;
    return NoError;
}

// What every change of an attribute is checked for, its own rules aside.
template <typename Record>
ErrorCode CheckChange(const AttributeTable<Record>& table, AttributeIndex index,
                      const Record& record) {
    if (const ErrorCode code = Workbench::CheckAttributeIndex(table, index)) {
        return code;
    }
    if (const ErrorCode code = Workbench::CheckAttributeName(record.name)) {
        return code;
    }
    const std::int32_t namesake = Workbench::FindAttributeName(table, record.name);
    return namesake != 0 && namesake != index.value ? NameInUse : NoError;
}

template <typename Record>
void StoreAttribute(AttributeTable<Record>& table, AttributeIndex index, const Record& record) {
    Record& stored = table.at(index.value);
    CurrentSession().projectChanged = CurrentSession().projectChanged || !(stored == record);
    stored = record;
}

} // namespace

ErrorCode ListAttributes(AttributeType type, std::vector<AttributeIndex>& indices) {
    if (const ErrorCode code = Workbench::CountProjectCall("ListAttributes")) {
        return code;
    }
    std::vector<AttributeIndex> listed;
    const bool known = WithTable(CurrentSession().project, type, [&listed](const auto& table) {
        for (const auto& entry : table) {
            listed.push_back({entry.first});
        }
    });
    if (!known) {
        return BadParameters;
    }
    indices = std::move(listed);
    return NoError;
}

ErrorCode FindAttribute(AttributeType type, std::string_view name, AttributeIndex& index) {
    if (const ErrorCode code = Workbench::CountProjectCall("FindAttribute")) {
        return code;
    }
    std::int32_t found = 0;
    const bool known = WithTable(CurrentSession().project, type, [&found, name](const auto& table) {
        found = Workbench::FindAttributeName(table, name);
    });
    if (!known) {
        return BadParameters;
    }
    if (found == 0) {
        return BadName;
    }
    index = {found};
    return NoError;
}

ErrorCode GetLayer(AttributeIndex index, Layer& layer) {
    return GiveAttribute("GetLayer", CurrentSession().project.layers, index, layer);
}

ErrorCode CreateLayer(const Layer& layer, AttributeIndex& index) {
    if (const ErrorCode code = Workbench::CountStructureCall("CreateLayer")) {
        return code;
    }
    if (const ErrorCode code = Workbench::CheckAttributeName(layer.name)) {
        return code;
    }
    Project& project = CurrentSession().project;
    const ErrorCode code = AddAttribute(project.layers, layer, index);
    if (code == NoError) {
        Workbench::ShowInCombinations(project, index);
    }
    return code;
}

ErrorCode ChangeLayer(AttributeIndex index, const Layer& layer) {
    if (const ErrorCode code = Workbench::CountStructureCall("ChangeLayer")) {
        return code;
    }
    auto& layers = CurrentSession().project.layers;
    if (const ErrorCode code = CheckChange(layers, index, layer)) {
        return code;
    }
    if (index.value == Workbench::FirstLayer &&
        (layer.hidden || layer.locked || layer.name != layers.at(index.value).name)) {
        return RefusedParameters;
    }
    StoreAttribute(layers, index, layer);
    return NoError;
}

ErrorCode GetLineType(AttributeIndex index, LineType& lineType) {
    return GiveAttribute("GetLineType", CurrentSession().project.lineTypes, index, lineType);
}

ErrorCode CreateLineType(const LineType& lineType, AttributeIndex& index) {
    if (const ErrorCode code = Workbench::CountStructureCall("CreateLineType")) {
        return code;
    }
    if (const ErrorCode code = Workbench::CheckAttributeName(lineType.name)) {
        return code;
    }
    if (const ErrorCode code = Workbench::CheckLineType(lineType)) {
        return code;
    }
    return AddAttribute(CurrentSession().project.lineTypes, lineType, index);
}

ErrorCode ChangeLineType(AttributeIndex index, const LineType& lineType) {
    if (const ErrorCode code = Workbench::CountStructureCall("ChangeLineType")) {
        return code;
    }
    auto& lineTypes = CurrentSession().project.lineTypes;
    if (const ErrorCode code = CheckChange(lineTypes, index, lineType)) {
        return code;
    }
    if (const ErrorCode code = Workbench::CheckLineType(lineType)) {
        return code;
    }
    StoreAttribute(lineTypes, index, lineType);
    return NoError;
}

ErrorCode GetFill(AttributeIndex index, Fill& fill) {
    return GiveAttribute("GetFill", CurrentSession().project.fills, index, fill);
}

ErrorCode GetSurface(AttributeIndex index, ModelSurface& surface) {
    return GiveAttribute("GetSurface", CurrentSession().project.surfaces, index, surface);
}

ErrorCode CreateSurface(const ModelSurface& surface, AttributeIndex& index) {
    if (const ErrorCode code = Workbench::CountStructureCall("CreateSurface")) {
        return code;
    }
    if (const ErrorCode code = Workbench::CheckAttributeName(surface.name)) {
        return code;
    }
    if (const ErrorCode code = Workbench::CheckSurface(surface)) {
        return code;
    }
    return AddAttribute(CurrentSession().project.surfaces, surface, index);
}

ErrorCode GetLayerCombination(AttributeIndex index, LayerCombination& combination) {
    return GiveAttribute("GetLayerCombination", CurrentSession().project.combinations, index,
                         combination);
}

ErrorCode CreateLayerCombination(const LayerCombination& combination, AttributeIndex& index) {
    if (const ErrorCode code = Workbench::CountStructureCall("CreateLayerCombination")) {
        return code;
    }
    if (const ErrorCode code = Workbench::CheckAttributeName(combination.name)) {
        return code;
    }
    Project& project = CurrentSession().project;
    if (const ErrorCode code = Workbench::CheckCombination(project, combination)) {
        return code;
    }
    return AddAttribute(project.combinations, combination, index);
}

ErrorCode ChangeLayerCombination(AttributeIndex index, const LayerCombination& combination) {
    if (const ErrorCode code = Workbench::CountStructureCall("ChangeLayerCombination")) {
        return code;
    }
    Project& project = CurrentSession().project;
    if (const ErrorCode code = CheckChange(project.combinations, index, combination)) {
        return code;
    }
    if (const ErrorCode code = Workbench::CheckCombination(project, combination)) {
        return code;
    }
    Workbench::RenameInViews(project, project.combinations.at(index.value).name, combination.name);
    StoreAttribute(project.combinations, index, combination);
    return NoError;
}

} // namespace Merivane::Host
