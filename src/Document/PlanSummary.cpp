#include "Document/PlanSummary.hpp"

#include "Document/SheetText.hpp"
#include "Simulation/PrintedValue.hpp"

namespace Merivane::Document {
namespace {

using Drawing::TextWeight;
using Simulation::FormatDecimal;

constexpr double TitleHeight = 3.2;
constexpr double LineHeight = 2.4;
constexpr double RemarkHeight = 1.8;
constexpr double LinePitch = 4.4;
constexpr double Half = 0.5 * ColumnWidth;
constexpr double Between = 4.0; // between the two halves of a line

constexpr const char* NarrowRemark =
    "Zona estreita: sem faixa de borda, todos os pontos entram nas estatísticas  [2]";

// Adds lines of text from the foot of a block downwards, each `pitch` below the last.
void AppendLines(SheetBlock& block, const std::vector<std::string>& lines, double height,
                 double pitch, TextWeight weight, const Drawing::Color& color) {
    for (const std::string& line : lines) {
        block.height += pitch;
        Drawing::TextRun run = SheetText(line, 0.0, -block.height, height, weight);
        run.color = color;
        block.elements.emplace_back(run);
    }
}

// A name at the left and its value at the right of the stretch from `left` to `right`.
void AppendFigure(SheetBlock& block, const std::string& name, const std::string& value, double left,
                  double right) {
    Drawing::TextRun nameRun = SheetText(name, left, -block.height, LineHeight);
    nameRun.color = Muted;
    Drawing::TextRun valueRun =
        SheetText(value, right, -block.height, LineHeight, TextWeight::Bold);
    valueRun.horizontal = Drawing::HorizontalAnchor::Right;
    block.elements.emplace_back(nameRun);
    block.elements.emplace_back(valueRun);
}

void AppendRule(SheetBlock& block) {
    block.height += 1.8;
    block.elements.emplace_back(Drawing::Polyline{
        {{0.0, -block.height}, {ColumnWidth, -block.height}}, false, {0.18, Muted, {}}});
    block.height += 0.8;
}

std::string Lux(double value) {
    return FormatDecimal(value, 0) + " lx";
}

std::string Metres(double value) {
    return FormatDecimal(value, 2) + " m";
}

} // namespace

SheetBlock BuildSummaryBlock(const PlanZone& zone) {
    SheetBlock block;
    block.height = -0.5 * TitleHeight; // the first line needs no space above it
    AppendLines(block, WrapText(zone.name, ColumnWidth, TitleHeight, TextWeight::Bold), TitleHeight,
                1.5 * TitleHeight, TextWeight::Bold, Drawing::Black);
    AppendRule(block);

    const Simulation::PointStatistics& statistics = zone.statistics;
    block.height += LinePitch - 0.8;
    AppendFigure(block, "Em", Lux(statistics.mean), 0.0, Half - Between);
    AppendFigure(block, "U0", FormatDecimal(statistics.uniformity, 2), Half, ColumnWidth);
    block.height += LinePitch;
    AppendFigure(block, "Emin", Lux(statistics.minimum), 0.0, Half - Between);
    AppendFigure(block, "Emax", Lux(statistics.maximum), Half, ColumnWidth);
    block.height += LinePitch;
    AppendFigure(block, "Pontos", std::to_string(statistics.count), 0.0, ColumnWidth);
    block.height += LinePitch;
    AppendFigure(block, "Plano de trabalho", Metres(zone.workPlaneHeight), 0.0, ColumnWidth);
    if (zone.grid.narrow) {
        block.height += 1.0;
        AppendLines(block, WrapText(NarrowRemark, ColumnWidth, RemarkHeight), RemarkHeight,
                    1.75 * RemarkHeight, TextWeight::Normal, Muted);
    } else {
        block.height += LinePitch;
        AppendFigure(block, "Faixa de borda", Metres(zone.borderBand), 0.0, ColumnWidth);
    }
    block.height += 0.7; // letters that reach below the last line
    return block;
}

SheetBlock BuildNoteBlock(const std::string& note) {
    SheetBlock block;
    AppendLines(block, WrapText(note, ColumnWidth, RemarkHeight), RemarkHeight, 1.75 * RemarkHeight,
                TextWeight::Normal, Muted);
    block.height += 0.7; // letters that reach below the last line
    return block;
}

} // namespace Merivane::Document
