#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "Archicad/ResultLayers.hpp"
#include "Host/Elements.hpp"
#include "Host/Types.hpp"
#include "Simulation/CalculationSettings.hpp"
#include "Simulation/LevelList.hpp"
#include "Simulation/PolygonGeometry.hpp"
#include "Simulation/Study/ZoneDrawing.hpp"

/// Results of a calculation as ordinary elements of the floor plan.
namespace Merivane::Archicad {

/// What is drawn, and how.
struct DrawingOptions {
    double scale = 0.0; ///< denominator; 0 or less = the host's, 100 where it has none
    bool fills = true;
    bool model3D = true;
    std::uint32_t colorScale = 0; ///< palette, see `BandColor`
    bool legend = true;
    bool curves = true;
    bool curveLabels = true;
    bool values = false;
    double valueSpacingX = 0.5; ///< [m]
    double valueSpacingY = 0.5;
    Simulation::LevelList levels;
};

/// The options that a calculation's settings ask for.
DrawingOptions DrawingOptionsOf(const Simulation::CalculationSettings& settings);

/// What drawing needs of the project beside elements. It is made before the undoable step, in which
/// the host refuses attributes.
struct ResultStructure {
    ResultLayers layers;
    Host::AttributeIndex solidFill;  ///< 0 = the project has none
    Host::AttributeIndex dashedLine; ///< 0 = could not be made
    double scale = 100.0;            ///< denominator of the drawing
};

/// Finds or creates the layers, shows those that must be seen, and the line type; asks the host for
/// the scale where `options` leave it open. Returns the host's error for a layer that can't be
/// made; the rest is told in `warnings` when it is missed.
Host::ErrorCode PrepareResultStructure(const DrawingOptions& options, ResultStructure& structure);

/// Deletes what earlier calculations drew on `floors` (none = on every floor): polylines, texts,
/// lines, fills and Morphs on the result layers, whoever put them there. `count` gets how many.
/// What can't be edited stays, as where the user locked its layer or the element; `held` gets how
/// many. Returns the host's error, all staying then. In an undo step.
Host::ErrorCode DeleteResultElements(const ResultLayers& layers,
                                     const std::vector<std::int32_t>& floors, std::int32_t& count,
                                     std::int32_t& held);

/// A Zone's result and where its summary stands.
struct ZonePlacement {
    const Simulation::ZoneDrawing* drawing = nullptr;
    std::int32_t floorIndex = 0;
    Simulation::Point2D summary; ///< upper left corner [m]
    /// Labels of other Zones, which those of this one's curves keep clear of [m].
    std::vector<Simulation::Bounds2D> otherLabels;
};

/// Where summaries and legends of one floor go, clear of the drawing and of each other at the
/// structure's scale. Reads the floor's elements; call it after `DeleteResultElements`.
struct FloorLayout {
    std::int32_t floorIndex = 0;
    std::vector<ZonePlacement> zones; ///< in the order of the drawings
    Simulation::Point2D legend;       ///< upper left corner [m]; without a legend (0, 0)
};
FloorLayout LayOutFloor(std::int32_t floorIndex,
                        const std::vector<const Simulation::ZoneDrawing*>& drawings,
                        const DrawingOptions& options, const ResultStructure& structure);

/// Draws one Zone in an undo step: bands, curves with labels, values, the limit of the task area,
/// the summary. What the host refuses is counted into one of `warnings`; the run goes on. What the
/// project lacks is told once in `warnings`: hand the same ones to every Zone.
void DrawZone(const ZonePlacement& zone, const DrawingOptions& options,
              const ResultStructure& structure, std::vector<std::string>& warnings);

/// Draws the legend of the colour bands with its upper left corner at `corner` [m], in an undo
/// step; nothing where `options` want none, without levels and without a solid fill. What the host
/// refuses is counted into one of `warnings`.
void DrawLegend(std::int32_t floorIndex, Simulation::Point2D corner, const DrawingOptions& options,
                const ResultStructure& structure, std::vector<std::string>& warnings);

} // namespace Merivane::Archicad
