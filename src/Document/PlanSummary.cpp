#include "Document/PlanSummary.hpp"

#include "Document/BlockText.hpp"
#include "Document/PlanVerification.hpp"
#include "Document/SheetText.hpp"
#include "Simulation/PrintedValue.hpp"
#include "Simulation/Study/SummaryTexts.hpp"

namespace Merivane::Document {
namespace {

using Drawing::TextWeight;
using Simulation::FormatDecimal;

constexpr ParagraphStyle Title = {3.2, 4.8, TextWeight::Bold, Drawing::Black};
constexpr ParagraphStyle Unverified = {2.8, 4.4, TextWeight::Normal, Drawing::Black};
constexpr ParagraphStyle Line = {2.4, 3.9, TextWeight::Normal, Drawing::Black};
constexpr ParagraphStyle Remark = {1.8, 3.2, TextWeight::Normal, Muted};
constexpr double Blank = 1.8;     // paragraph without text
constexpr double LinePitch = 4.2; // of the figures
constexpr double Between = 4.0;   // between the two halves of a line
constexpr double Descender = 0.7; // letters that reach below the last line

/// A figure beside its name.
struct Figure {
    std::string name;
    std::string value;
};

// The name at the left and the value at the right of the stretch from `left` to `right`.
void AppendFigure(SheetBlock& block, const Figure& figure, double left, double right) {
    Drawing::TextRun name = SheetText(figure.name, left, -block.height, Line.height);
    name.color = Muted;
    Drawing::TextRun value =
        SheetText(figure.value, right, -block.height, Line.height, TextWeight::Bold);
    value.horizontal = Drawing::HorizontalAnchor::Right;
    block.elements.emplace_back(name);
    block.elements.emplace_back(value);
}

void AppendPair(SheetBlock& block, const Figure& first, const Figure& second) {
    const double half = 0.5 * block.width;
    block.height += LinePitch;
    AppendFigure(block, first, 0.0, half - Between);
    AppendFigure(block, second, half, block.width);
}

// Figures with long names: a line each, two to a line where the block is wide enough.
void AppendLong(SheetBlock& block, const std::vector<Figure>& figures) {
    const std::size_t perLine = block.width > ColumnWidth ? 2 : 1;
    for (std::size_t i = 0; i < figures.size(); i += perLine) {
        if (perLine == 2 && i + 1 < figures.size()) {
            AppendPair(block, figures[i], figures[i + 1]);
        } else {
            block.height += LinePitch;
            AppendFigure(block, figures[i], 0.0,
                         perLine == 2 ? 0.5 * block.width - Between : block.width);
        }
    }
}

std::string Lux(double value) {
    return FormatDecimal(value, 0) + " lx";
}

std::string Metres(double value) {
    return FormatDecimal(value, 2) + " m";
}

void AppendTitle(SheetBlock& block, const PlanZone& zone) {
    block.height = -0.5 * Title.height; // the first line needs no space above it
    AppendParagraph(block, Simulation::ZoneTitle(zone.name, zone.verdict.activity), Title);
    block.height += Blank;
}

void AppendVerdict(SheetBlock& block, const PlanZone& zone) {
    AppendVerification(block, zone.verdict);
    if (zone.verdict.activity.empty()) {
        AppendParagraph(block,
                        zone.name + ":   Em " + Lux(zone.statistics.mean) + "   U0 " +
                            FormatDecimal(zone.statistics.uniformity, 2),
                        Unverified);
        AppendParagraph(block, Simulation::NotVerifiedText, Line);
    }
    AppendRecommendations(block, zone.verdict);
}

void AppendFigures(SheetBlock& block, const PlanZone& zone) {
    const Simulation::PointStatistics& statistics = zone.statistics;
    block.height += Blank;
    AppendPair(block, {"Em", Lux(statistics.mean)},
               {"U0", FormatDecimal(statistics.uniformity, 2)});
    AppendPair(block, {"Emin", Lux(statistics.minimum)}, {"Emax", Lux(statistics.maximum)});
    std::vector<Figure> figures = {{"Pontos", std::to_string(statistics.count)},
                                   {"Plano de trabalho", Metres(zone.workPlaneHeight)}};
    if (!zone.grid.narrow) {
        figures.push_back({"Faixa de borda", Metres(zone.borderBand)});
    }
    AppendLong(block, figures);
    if (zone.grid.narrow) {
        block.height += 1.0;
        AppendParagraph(block, Simulation::NarrowZoneText, Remark);
    }
}

void AppendNotes(SheetBlock& block, const PlanVerdict& verdict) {
    block.height += verdict.notes.empty() ? 0.0 : Blank;
    for (const std::string& note : verdict.notes) {
        AppendParagraph(block, note, Line);
    }
}

} // namespace

SheetBlock BuildSummaryBlock(const PlanZone& zone) {
    SheetBlock block;
    const bool hasTable = !zone.verdict.rows.empty() || !zone.verdict.surfaces.empty();
    block.width = hasTable ? VerificationWidth : ColumnWidth;
    AppendTitle(block, zone);
    AppendVerdict(block, zone);
    AppendFigures(block, zone);
    AppendNotes(block, zone.verdict);
    AppendSurfaces(block, zone.verdict);
    block.height += Descender;
    return block;
}

SheetBlock BuildNoteBlock(const std::string& note) {
    SheetBlock block;
    block.fillsGaps = true;
    AppendParagraph(block, note, Remark);
    block.height += Descender;
    return block;
}

} // namespace Merivane::Document
