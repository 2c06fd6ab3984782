#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "Drawing/DisplayList.hpp"
#include "Simulation/CalculationGrid.hpp"
#include "Simulation/Geometry.hpp"
#include "Simulation/LevelList.hpp"
#include "Simulation/PointStatistics.hpp"
#include "Simulation/Verification/Verification.hpp"

namespace Merivane::Document {

/// What the standard says of a Zone.
struct PlanVerdict {
    std::string activity; ///< empty: the Zone has none and is not verified
    std::string standard; ///< name of the edition
    std::vector<Simulation::VerificationRow> rows;
    std::vector<std::string> notes;                    ///< on glare and screens, a paragraph each
    std::vector<Simulation::VerificationRow> surfaces; ///< against their reference
};

/// One Zone of a floor with the values calculated on its work plane.
struct PlanZone {
    std::string name;
    Simulation::Polygon2D polygon; ///< footprint [m]
    Simulation::CalculationGrid grid;
    std::vector<double> values;             ///< [lux], in `ActivePoints` order
    Simulation::PointStatistics statistics; ///< over the task area
    double workPlaneHeight = 0.75;          ///< above the Zone's floor [m]
    double borderBand = 0.5;                ///< width of the band out of the statistics [m]
    PlanVerdict verdict;
};

/// A luminaire as its luminous opening stands in plan.
struct PlanLuminaire {
    Simulation::Point2D center; ///< of the opening [m]
    double rotation = 0.0;      ///< of the plane C0, counter-clockwise from x [rad]
    double length = 0.0;        ///< along C0 [m]
    double width = 0.0;         ///< along C90 [m]
    bool round = false;         ///< an ellipse of `length` x `width` instead of a rectangle
};

/// What the plan cuts through.
enum class PlanSegmentKind { Wall, Glass };

/// The line along which an upright surface is cut, in plan [m].
struct PlanSegment {
    PlanSegmentKind kind = PlanSegmentKind::Wall;
    Simulation::Point2D start;
    Simulation::Point2D end;
};

/// Everything that stands on the plan of one floor.
struct PlanContents {
    std::string title; ///< of the sheet: the project
    std::string floor; ///< name of the floor, under the title; may be empty
    std::vector<PlanZone> zones;
    std::vector<PlanLuminaire> luminaires;
    std::vector<PlanSegment> segments;
    Simulation::LevelList levels;
    std::vector<std::string> notes; ///< one paragraph each, at the foot of the summaries
};

/// How the plan is drawn.
struct PlanStyle {
    double scale = 0.0;           ///< denominator (50 is 1:50); 0 or less = chosen to fill A4 or A3
    bool fills = true;            ///< colour bands
    std::uint32_t colorScale = 0; ///< palette, see `BandColor`
    bool legend = true;
    bool curves = true;
    bool curveLabels = true;
    bool values = false;
    double valueSpacingX = 0.5; ///< distance between written values [m]
    double valueSpacingY = 0.5;
};

/// Draws the plan of results of one floor on a sheet: title, colour bands, isolux curves with
/// their levels, limit of the task area, cut walls and glass, luminaires, written values, legend,
/// a summary for each Zone, scale bar. The sheet is A4 landscape; a larger one of the A series, or
/// beyond A0 one made to measure, where scale and contents need it.
///
/// The same contents and style give the same list.
Drawing::DisplayList BuildResultPlan(const PlanContents& contents, const PlanStyle& style);

} // namespace Merivane::Document
