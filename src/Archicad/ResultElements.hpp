#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "Host/Elements.hpp"
#include "Host/Types.hpp"
#include "Simulation/ColorScale.hpp"
#include "Simulation/ContourRecords.hpp"
#include "Simulation/Geometry.hpp"
#include "Simulation/Study/ZoneSummary.hpp"

/// The elements that results are drawn with. All are made in the current database, in an undo step.
/// What the host refuses is counted, and the drawing goes on.
namespace Merivane::Archicad {

/// Pens of the host's table.
inline constexpr std::int32_t ResultPen = 1;
inline constexpr std::int32_t MetPen = 2;    ///< of "ATENDE"
inline constexpr std::int32_t NotMetPen = 3; ///< of "NÃO ATENDE"

/// Metres of the model that a millimetre of paper stands for.
inline double PaperMillimetre(double scale) {
    return scale / 1000.0;
}

/// The floor that is drawn on.
struct ResultSheet {
    std::int16_t floorIndex = 0;
    std::int32_t refused = 0; ///< elements that the host did not make
};

/// Text at a place of the plan.
struct PlacedText {
    std::string text;
    Simulation::Point2D position; ///< [m]
    double height = 2.0;          ///< of capitals [mm on paper]
    Host::TextAnchor anchor = Host::TextAnchor::LeftBottom;
    bool opaque = false; ///< stands on lines or colours
};

/// An area of one colour, without contour.
bool DrawFill(ResultSheet& sheet, Host::AttributeIndex layer, Host::AttributeIndex solidFill,
              const Simulation::RgbColor& color, const Simulation::Polygon2D& area);

/// A curve as one polyline; a line type of 0 is the solid one.
bool DrawCurve(ResultSheet& sheet, Host::AttributeIndex layer, Host::AttributeIndex lineType,
               const Simulation::IsoCurve& curve);

/// A text of one line.
bool DrawText(ResultSheet& sheet, Host::AttributeIndex layer, const PlacedText& text);

/// A summary as one text with its upper left corner at `corner` [m].
bool DrawSummary(ResultSheet& sheet, Host::AttributeIndex layer, Simulation::Point2D corner,
                 const std::vector<Simulation::SummaryParagraph>& paragraphs);

} // namespace Merivane::Archicad
