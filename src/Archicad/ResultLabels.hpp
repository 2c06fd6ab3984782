#pragma once

#include <optional>
#include <vector>

#include "Archicad/ResultElements.hpp"
#include "Simulation/PolygonGeometry.hpp"
#include "Simulation/Study/ZoneDrawing.hpp"

/// Texts that stand in a Zone's drawing.
namespace Merivane::Archicad {

/// The levels of curves, each at its place on its curve.
struct CurveTexts {
    std::vector<PlacedText> texts;
    std::uint64_t unlabelled = 0; ///< curves without one
};

/// Labels keep clear of each other at the scale of which `millimetre` is the paper's [m].
CurveTexts PlaceCurveTexts(const std::vector<Simulation::IsoCurve>& curves, double millimetre);

/// The label of the task area's limit, over its topmost point; none without limit.
std::optional<PlacedText> PlaceOutlineText(const std::vector<Simulation::IsoCurve>& outline,
                                           double millimetre);

/// The values written in a mesh of about `spacingX` by `spacingY` [m] that stands centred in the
/// grid; one at least, however wide the mesh.
std::vector<PlacedText> PlaceValueTexts(const Simulation::ZoneDrawing& drawing, double spacingX,
                                        double spacingY);

/// Room that a text takes [m]; its width is an estimate on the safe side.
Simulation::Bounds2D TextBounds(const PlacedText& text, double millimetre);

} // namespace Merivane::Archicad
