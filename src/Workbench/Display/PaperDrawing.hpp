#pragma once

#include <string>
#include <utility>
#include <vector>

#include "Drawing/DisplayList.hpp"
#include "Host/Types.hpp"

/// A drawing while it is being made: on endless paper, right in its scale, the project's origin at
/// (0, 0).
namespace Merivane::Workbench {

/// What lies on a drawing, the lowest first.
struct PaperDrawing {
    double scale = 100.0;                ///< denominator
    std::vector<Drawing::Element> fills; ///< drawn hatches
    std::vector<Drawing::Element> below; ///< the model as it is seen below the cut
    std::vector<Drawing::Element> cut;   ///< the model as it is cut
    std::vector<Drawing::Element> above; ///< what hangs over the cut
    std::vector<Drawing::Element> curves;
    std::vector<Drawing::Element> texts;
};

/// Millimetres of paper for a metre of the model.
double MillimetresPerMetre(const PaperDrawing& drawing);

/// Places of the model on the paper [mm].
Drawing::Point PaperPoint(const PaperDrawing& drawing, const Host::Coordinate& place);
std::vector<Drawing::Point> PaperPoints(const PaperDrawing& drawing,
                                        const std::vector<Host::Coordinate>& places);

/// How far flattened curves may lie off the real ones [mm on paper].
inline constexpr double CurveTolerance = 0.004;

/// The drawing in the middle of a sheet: the smallest of A4 to A0, upright or across, that holds it
/// with its margins, else one made to measure. The title and the scale stand in the lower margin.
/// An empty drawing is an empty A4 across.
Drawing::DisplayList FinishSheet(PaperDrawing drawing, const std::string& title);

} // namespace Merivane::Workbench
