#pragma once

#include <string_view>
#include <vector>

#include "Archicad/ResultLayers.hpp"
#include "Host/Attributes.hpp"

/// Layer combinations: which layers a view of the lighting study shows. No undo step may run. On
/// failure each gives the host's code.
namespace Merivane::Archicad {

inline constexpr std::string_view SimulationCombination = "Vantoro - Simulacao";
inline constexpr std::string_view ProjectCombination = "Vantoro - Projeto";

/// Makes the combination from the layers as they stand, with `hiddenLayers` hidden and
/// `visibleLayers` shown. One that stands, under this name or an earlier version's, is left as the
/// user has it; with `force` these layers of it are set and the others left.
Host::ErrorCode EnsureLayerCombination(std::string_view name,
                                       const std::vector<Host::AttributeIndex>& visibleLayers,
                                       const std::vector<Host::AttributeIndex>& hiddenLayers,
                                       bool force);

/// The combination of the simulation drawing, then that of the project drawing, which shows
/// `extraVisible` too.
Host::ErrorCode EnsureStandardCombinations(const ResultLayers& result, const ProjectLayers& project,
                                           const std::vector<Host::AttributeIndex>& extraVisible,
                                           bool force);

} // namespace Merivane::Archicad
