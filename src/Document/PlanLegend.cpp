#include "Document/PlanLegend.hpp"

#include <algorithm>

#include "Document/SheetText.hpp"
#include "Drawing/TextSize.hpp"
#include "Simulation/ColorScale.hpp"

namespace Merivane::Document {
namespace {

constexpr double TitleDrop = 3.5; // from the head to the title's base line
constexpr double RowsDrop = 5.5;  // from the head to the first row
constexpr double RowPitch = 5.0;
constexpr double SwatchWidth = 8.0;
constexpr double SwatchHeight = 4.0;
constexpr double TextLeft = 10.0;
constexpr double LegendWidth = 36.0; // at least, for the title

void AppendRow(SheetBlock& block, double head, const Drawing::Color& color,
               const std::string& range) {
    const std::vector<Drawing::Point> swatch = {{0.0, head - SwatchHeight},
                                                {SwatchWidth, head - SwatchHeight},
                                                {SwatchWidth, head},
                                                {0.0, head}};
    block.elements.emplace_back(Drawing::Area{{swatch}, color, 0.0});
    block.elements.emplace_back(Drawing::Polyline{swatch, true, {0.13, Muted, {}}});
    Drawing::TextRun text = SheetText(range, TextLeft, head - 0.5 * SwatchHeight, 2.0);
    text.vertical = Drawing::VerticalAnchor::Middle;
    block.width = std::max(block.width, Drawing::TextBounds(text).right);
    block.elements.emplace_back(text);
}

} // namespace

Drawing::Color PlanBandColor(const Simulation::LevelList& levels, std::uint32_t colorScale,
                             std::size_t band) {
    const Simulation::RgbColor color = Simulation::BandColor(colorScale, band, levels.size() + 1);
    return {color.red, color.green, color.blue, 1.0};
}

SheetBlock BuildLegendBlock(const Simulation::LevelList& levels, std::uint32_t colorScale) {
    SheetBlock block;
    block.width = LegendWidth;
    block.elements.emplace_back(
        SheetText(Simulation::LegendTitle, 0.0, -TitleDrop, 2.5, Drawing::TextWeight::Bold));
    double head = -RowsDrop;
    for (std::size_t band = levels.size() + 1; band-- > 0;) {
        AppendRow(block, head, PlanBandColor(levels, colorScale, band),
                  Simulation::BandText(levels, band));
        head -= RowPitch;
    }
    block.height = -head - RowPitch + SwatchHeight;
    return block;
}

} // namespace Merivane::Document
