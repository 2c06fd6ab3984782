#pragma once

#include <vector>

#include "Document/ResultPlan.hpp"
#include "Drawing/DisplayList.hpp"
#include "Drawing/TextSize.hpp"

namespace Merivane::Document {

/// Width of a column of blocks where none is wider [mm].
inline constexpr double ColumnWidth = 70.0;

/// Drawing that stands in a column beside the plan, from its upper left corner: x to the right,
/// y upwards, so that everything lies between 0 and `width`, 0 and -`height` [mm].
struct SheetBlock {
    double width = ColumnWidth; ///< [mm]
    double height = 0.0;        ///< [mm]
    bool fillsGaps = false;     ///< may stand in a column to the left of those before it
    std::vector<Drawing::Element> elements;
};

/// A block and the place of its upper left corner [mm].
struct PlacedBlock {
    std::size_t block = 0; ///< index into the blocks given
    Drawing::Point corner;
};

/// Where everything stands on the sheet. All places and sizes in mm of paper.
struct PlanSheet {
    double width = 297.0;
    double height = 210.0;
    double scale = 50.0;   ///< denominator
    Drawing::Point origin; ///< where the model's (0, 0) stands
    Drawing::Box titleArea;
    Drawing::Box planArea;
    Drawing::Box footArea;
    std::vector<PlacedBlock> blocks;
};

/// A place of the model on the paper: a millimetre is `scale` / 1000 m.
Drawing::Point OnPaper(const PlanSheet& sheet, Simulation::Point2D place);

/// The place of the model that stands at a point of the paper; the inverse of `OnPaper`.
Simulation::Point2D InModel(const PlanSheet& sheet, Drawing::Point point);

/// Length of `metres` of the model on the paper [mm].
double PaperLength(const PlanSheet& sheet, double metres);

/// Chooses sheet and scale for a plan of the extent `bounds` [m] and the blocks beside it, and
/// places both. With `wantedScale` 0 or less: A4 where 1:75 or a larger scale fits, else the
/// largest scale down to 1:200 on A3, A4 where that gains nothing; then on the first larger sheet
/// that holds 1:200.
/// With a scale: the smallest sheet of the A series that holds it. Beyond A0 the sheet is made to
/// measure, and a scale that was not asked for goes on falling at 5 m of paper.
PlanSheet ArrangeSheet(const Drawing::Box& bounds, const std::vector<SheetBlock>& blocks,
                       double wantedScale);

} // namespace Merivane::Document
