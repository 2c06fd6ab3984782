#include "Archicad/LayerCombinations.hpp"

#include <algorithm>
#include <string>

#include "Archicad/OlderNames.hpp"

namespace Merivane::Archicad {

namespace {

using Host::AttributeIndex;
using Host::AttributeType;
using Host::ErrorCode;
using Host::LayerState;

using LayerList = std::vector<AttributeIndex>;

ErrorCode ReadState(AttributeIndex index, LayerState& state) {
    Host::Layer layer;
    const ErrorCode code = Host::GetLayer(index, layer);
    state = {index, layer.hidden, layer.locked};
    return code;
}

// A state for every layer of the project, each as the layer stands.
ErrorCode ReadStates(std::vector<LayerState>& states) {
    LayerList layers;
    if (const ErrorCode code = Host::ListAttributes(AttributeType::Layer, layers)) {
        return code;
    }
    for (const AttributeIndex layer : layers) {
        if (const ErrorCode code = ReadState(layer, states.emplace_back())) {
            return code;
        }
    }
    return Host::NoError;
}

ErrorCode SetHidden(std::vector<LayerState>& states, const LayerList& layers, bool hidden) {
    for (const AttributeIndex layer : layers) {
        auto state = std::find_if(states.begin(), states.end(), [layer](const LayerState& known) {
            return known.layer == layer;
        });
        if (state == states.end()) {
            state = states.insert(states.end(), LayerState());
            if (const ErrorCode code = ReadState(layer, *state)) {
                return code;
            }
        }
        state->hidden = hidden;
    }
    return Host::NoError;
}

} // namespace

ErrorCode EnsureLayerCombination(std::string_view name, const LayerList& visibleLayers,
                                 const LayerList& hiddenLayers, bool force) {
    RenameOlderAttribute(AttributeType::LayerCombination, name);
    Host::LayerCombination combination;
    combination.name = CutAttributeName(name);
    AttributeIndex index;
    const ErrorCode found =
        Host::FindAttribute(AttributeType::LayerCombination, combination.name, index);
    const bool isNew = found == Host::BadName;
    if (!isNew && (found != Host::NoError || !force)) {
        return found;
    }
    if (const ErrorCode code = isNew ? ReadStates(combination.states)
                                     : Host::GetLayerCombination(index, combination)) {
        return code;
    }
    if (const ErrorCode code = SetHidden(combination.states, hiddenLayers, true)) {
        return code;
    }
    if (const ErrorCode code = SetHidden(combination.states, visibleLayers, false)) {
        return code;
    }
    return isNew ? Host::CreateLayerCombination(combination, index)
                 : Host::ChangeLayerCombination(index, combination);
}

ErrorCode EnsureStandardCombinations(const ResultLayers& result, const ProjectLayers& project,
                                     const LayerList& extraVisible, bool force) {
    const auto resultLayers = ListLayers(result);
    const auto projectLayers = ListLayers(project);
    LayerList hidden(projectLayers.begin(), projectLayers.end());
    hidden.insert(hidden.end(), {result.values, result.falseColor3D, result.workPlane3D});
    if (const ErrorCode code = EnsureLayerCombination(
            SimulationCombination, {result.isolux, result.falseColor, result.legend}, hidden,
            force)) {
        return code;
    }
    LayerList visible(projectLayers.begin(), projectLayers.end());
    visible.insert(visible.end(), extraVisible.begin(), extraVisible.end());
    return EnsureLayerCombination(ProjectCombination, visible,
                                  {resultLayers.begin(), resultLayers.end()}, force);
}

} // namespace Merivane::Archicad
