#pragma once

#include <vector>

#include "Document/PlanSheet.hpp"
#include "Document/ResultPlan.hpp"
#include "Simulation/ContourRecords.hpp"

namespace Merivane::Document {

/// Colour bands of one Zone, each polygon an area whose colour runs a little over its edge.
void AppendBands(Drawing::Layer& layer, const PlanSheet& sheet,
                 const std::vector<Simulation::ColorBand>& bands,
                 const Simulation::LevelList& levels, std::uint32_t colorScale);

/// Isolux curves as thin lines.
void AppendCurves(Drawing::Layer& layer, const PlanSheet& sheet,
                  const std::vector<Simulation::IsoCurve>& curves);

/// The limit of the task area as dashed lines: 3 mm of line, 1.5 mm of gap.
void AppendTaskOutline(Drawing::Layer& layer, const PlanSheet& sheet,
                       const std::vector<Simulation::IsoCurve>& outline);

/// The footprint of a Zone: a fine line under the walls, a strong one where the plan has none.
void AppendFootprint(Drawing::Layer& layer, const PlanSheet& sheet,
                     const Simulation::Polygon2D& polygon, bool hasWalls);

/// What the plan cuts: walls as thick lines, glass as two thin ones.
void AppendSegments(Drawing::Layer& layer, const PlanSheet& sheet,
                    const std::vector<PlanSegment>& segments);

/// A luminaire: its opening with a cross and a mark on the side to which C0 points.
void AppendLuminaire(Drawing::Layer& layer, const PlanSheet& sheet, const PlanLuminaire& luminaire);

/// The upright rectangle around the symbol of a luminaire [mm].
Drawing::Box LuminaireBox(const PlanSheet& sheet, const PlanLuminaire& luminaire);

/// The scale bar of four fields with its lengths and the scale in words, from `corner` (its lower
/// left) on.
void AppendScaleBar(Drawing::Layer& layer, const PlanSheet& sheet, Drawing::Point corner);

/// "1:50"; a scale that is no whole number has a decimal comma.
std::string FormatScale(double scale);

} // namespace Merivane::Document
