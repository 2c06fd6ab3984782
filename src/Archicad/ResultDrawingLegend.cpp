#include <algorithm>
#include <cstddef>
#include <string>

#include "Archicad/ResultDrawing.hpp"
#include "Archicad/ResultElements.hpp"
#include "Archicad/ResultLegend.hpp"
#include "Simulation/ColorScale.hpp"
#include "Simulation/Study/TextExtent.hpp"

// The legend of the colour bands, a row for each, the highest at the top. Lengths in millimetres of
// paper, downwards from its upper left corner.
namespace Merivane::Archicad {

namespace {

using Simulation::Point2D;

constexpr double TitleDrop = 3.5; // to the title's base line
constexpr double TitleHeight = 2.5;
constexpr double RowsDrop = 5.5; // to the head of the first row
constexpr double RowPitch = 5.0;
constexpr double SwatchWidth = 8.0;
constexpr double SwatchHeight = 4.0;
constexpr double TextLeft = 10.0;
constexpr double TextRise = 0.6; // from the swatch's foot to the base line
constexpr double TextHeight = 2.0;

std::size_t BandCount(const Simulation::LevelList& levels) {
    return levels.size() + 1;
}

Simulation::Polygon2D Rectangle(Point2D corner, double width, double height) {
    return {{corner,
             {corner.x + width, corner.y},
             {corner.x + width, corner.y + height},
             {corner.x, corner.y + height}},
            {}};
}

} // namespace

bool HasLegend(const DrawingOptions& options, const ResultStructure& structure) {
    return options.legend && !options.levels.empty() &&
           structure.solidFill != Host::AttributeIndex();
}

LegendExtent MeasureLegend(const Simulation::LevelList& levels) {
    double width = Simulation::EstimateTextWidth(Simulation::LegendTitle, TitleHeight);
    for (std::size_t band = 0; band < BandCount(levels); ++band) {
        width = std::max(width, TextLeft + Simulation::EstimateTextWidth(
                                               Simulation::BandText(levels, band), TextHeight));
    }
    const auto rows = static_cast<double>(BandCount(levels));
    return {width, RowsDrop + (rows - 1.0) * RowPitch + SwatchHeight};
}

void DrawLegend(std::int32_t floorIndex, Point2D corner, const DrawingOptions& options,
                const ResultStructure& structure, std::vector<std::string>& warnings) {
    if (!HasLegend(options, structure)) {
        return;
    }
    const double m = PaperMillimetre(structure.scale);
    const Host::AttributeIndex layer = structure.layers.legend;
    const std::size_t bands = BandCount(options.levels);
    ResultSheet sheet{static_cast<std::int16_t>(floorIndex), 0};
    DrawText(sheet, layer,
             {Simulation::LegendTitle, {corner.x, corner.y - TitleDrop * m}, TitleHeight});
    for (std::size_t row = 0; row < bands; ++row) {
        const std::size_t band = bands - 1 - row;
        const double foot =
            corner.y - RowsDrop * m - static_cast<double>(row) * RowPitch * m - SwatchHeight * m;
        DrawFill(sheet, layer, structure.solidFill,
                 Simulation::BandColor(options.colorScale, band, bands),
                 Rectangle({corner.x, foot}, SwatchWidth * m, SwatchHeight * m));
        DrawText(sheet, layer,
                 {Simulation::BandText(options.levels, band),
                  {corner.x + TextLeft * m, foot + TextRise * m},
                  TextHeight});
    }
    if (sheet.refused > 0) {
        warnings.push_back(std::to_string(sheet.refused) +
                           " elemento(s) da legenda nao puderam ser criados");
    }
}

} // namespace Merivane::Archicad
