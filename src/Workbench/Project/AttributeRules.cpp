#include "Workbench/Project/AttributeRules.hpp"

#include <algorithm>
#include <cmath>
#include <set>

#include "Text/Utf8.hpp"
#include "Workbench/Project/TextLimits.hpp"

namespace Merivane::Workbench {

Host::ErrorCode CheckAttributeName(std::string_view name) {
    const bool good = !name.empty() && name.size() <= LongestAttributeName &&
                      name.find('\0') == std::string_view::npos && Text::IsUtf8(name);
    return good ? Host::NoError : Host::BadParameters;
}

Host::ErrorCode CheckLineType(const Host::LineType& lineType) {
    const auto& dashes = lineType.dashes;
    const bool isLength = std::all_of(dashes.begin(), dashes.end(), [](double length) {
        return std::isfinite(length) && length >= 0.0;
    });
    const bool goesOn = dashes.empty() || std::any_of(dashes.begin(), dashes.end(),
                                                      [](double length) { return length > 0.0; });
    return isLength && goesOn && dashes.size() % 2 == 0 ? Host::NoError : Host::BadParameters;
}

Host::ErrorCode CheckSurface(const Host::ModelSurface& surface) {
    for (const double share : {surface.colour.red, surface.colour.green, surface.colour.blue,
                               surface.diffuse, surface.transparency}) {
        if (!(share >= 0.0 && share <= 1.0)) {
            return Host::BadParameters;
        }
    }
    return Host::NoError;
}

Host::ErrorCode CheckCombination(const Project& project,
                                 const Host::LayerCombination& combination) {
    std::set<Host::AttributeIndex> seen;
    for (const Host::LayerState& state : combination.states) {
        if (!project.layers.contains(state.layer.value) || !seen.insert(state.layer).second) {
            return Host::BadParameters;
        }
    }
    if (seen.size() != project.layers.size()) {
        return Host::BadParameters;
    }
    const bool refused = std::any_of(
        combination.states.begin(), combination.states.end(), [](const Host::LayerState& state) {
            return state.layer.value == FirstLayer && (state.hidden || state.locked);
        });
    return refused ? Host::RefusedParameters : Host::NoError;
}

void ShowInCombinations(Project& project, Host::AttributeIndex layer) {
    for (auto& [index, combination] : project.combinations) {
        combination.states.push_back({layer, false, false});
    }
}

void RenameInViews(Project& project, std::string_view oldName, const std::string& newName) {
    for (ProjectView& view : project.views) {
        if (view.layerCombination == oldName) {
            view.layerCombination = newName;
        }
    }
}

} // namespace Merivane::Workbench
