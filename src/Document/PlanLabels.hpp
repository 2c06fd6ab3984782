#pragma once

#include <vector>

#include "Document/PlanSheet.hpp"
#include "Document/ResultPlan.hpp"
#include "Document/TextSpace.hpp"
#include "Simulation/ContourRecords.hpp"

namespace Merivane::Document {

/// Writes values at grid nodes, with 0 decimals, centred in the grid. Columns and rows stand as far
/// apart as the style asks for, farther where the texts would touch at the sheet's scale. A value
/// that would cover one of a neighbouring Zone is left out.
void AppendValues(Drawing::Layer& layer, TextSpace& space, const PlanSheet& sheet,
                  const PlanZone& zone, const PlanStyle& style);

/// Writes "Limite da área de tarefa" just over the topmost point of the outline. Where something
/// stands there, the nearest place along the outline that is clear and within the Zone.
void AppendOutlineLabel(Drawing::Layer& layer, TextSpace& space, const PlanSheet& sheet,
                        const PlanZone& zone, const std::vector<Simulation::IsoCurve>& outline);

/// Writes the Zone's name into the Zone, as low as there is room for it.
void AppendZoneName(Drawing::Layer& layer, TextSpace& space, const PlanSheet& sheet,
                    const PlanZone& zone);

/// Writes the level of each curve on it, at the place that `PlaceCurveLabels` chooses, or at the
/// nearest point of the curve from there that is clear of what stands on the plan. A curve without
/// such a point stays without a label.
void AppendCurveLabels(Drawing::Layer& layer, TextSpace& space, const PlanSheet& sheet,
                       const std::vector<Simulation::IsoCurve>& curves);

} // namespace Merivane::Document
