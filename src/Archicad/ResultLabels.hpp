#pragma once

#include <optional>
#include <vector>

#include "Archicad/ResultDrawing.hpp"
#include "Archicad/ResultElements.hpp"
#include "Simulation/PolygonGeometry.hpp"
#include "Simulation/Study/ZoneDrawing.hpp"

/// Texts that stand in a Zone's drawing.
namespace Merivane::Archicad {

/// What the labels of curves should keep clear of.
struct LabelSpace {
    const Simulation::Polygon2D* zone =
        nullptr;                              ///< they stand inside it where they can; may be none
    std::vector<Simulation::Bounds2D> texts;  ///< never covered: other labels [m]
    std::vector<Simulation::Bounds2D> values; ///< covered where nothing else is left [m]
};

/// The levels of curves, each at its place on its curve.
struct CurveTexts {
    std::vector<PlacedText> texts;
    std::uint64_t unlabelled = 0; ///< curves without one
};

/// Labels keep clear of each other and of what `space` holds at the scale of which `millimetre` is
/// the paper's [m].
CurveTexts PlaceCurveTexts(const std::vector<Simulation::IsoCurve>& curves, const LabelSpace& space,
                           double millimetre);

/// The label of the task area's limit, over its topmost point; none without limit.
std::optional<PlacedText> PlaceOutlineText(const std::vector<Simulation::IsoCurve>& outline,
                                           double millimetre);

/// The values written in a mesh of about the distances that `options` want, which stands centred in
/// the grid; one at least, however wide the mesh.
std::vector<PlacedText> PlaceValueTexts(const Simulation::ZoneDrawing& drawing,
                                        const DrawingOptions& options);

/// What a Zone's curve labels keep clear of: the label of its limit, `others`, and its values where
/// they are written. `drawing` must outlive it.
LabelSpace LabelSpaceOf(const Simulation::ZoneDrawing& drawing,
                        const std::vector<Simulation::Bounds2D>& others,
                        const DrawingOptions& options, double millimetre);

/// Room that a text takes [m]; its width is an estimate on the safe side.
Simulation::Bounds2D TextBounds(const PlacedText& text, double millimetre);

} // namespace Merivane::Archicad
