#include "Document/PlanVerification.hpp"

#include <algorithm>
#include <array>
#include <string_view>

#include "Document/BlockText.hpp"
#include "Document/SheetText.hpp"
#include "Simulation/Study/SummaryTexts.hpp"

namespace Merivane::Document {
namespace {

using Drawing::TextWeight;
using Simulation::VerificationKind;
using Simulation::VerificationRow;

constexpr double RowHeight = 2.4;
constexpr double RowPitch = 3.9;
constexpr double LeastHeight = 1.4; // of a cell that is too long for its column
constexpr Drawing::Color Met{0.05, 0.45, 0.15, 1.0};
constexpr Drawing::Color Failed{0.75, 0.08, 0.08, 1.0};

struct TabStop {
    double left;
    double width;
};

// Wide enough for the longest criterion, "12345 cd/m²", "≤ 1000 cd/m²" and a bold "NÃO ATENDE".
constexpr std::array<TabStop, 4> Stops = {{{0.0, 36.0}, {37.5, 22.0}, {60.5, 23.0}, {86.0, 24.0}}};

using Cells = std::array<std::string_view, 4>;

void AppendCells(SheetBlock& block, const Cells& cells, TextWeight weight,
                 const Drawing::Color& lastColor) {
    block.height += RowPitch;
    for (std::size_t i = 0; i < cells.size(); ++i) {
        Drawing::TextRun run = FittingText(cells[i], Stops[i].left, -block.height, Stops[i].width,
                                           {RowHeight, LeastHeight}, weight);
        run.color = i + 1 == cells.size() ? lastColor : Drawing::Black;
        block.elements.emplace_back(run);
    }
}

void AppendTable(SheetBlock& block, const std::string& heading,
                 const std::vector<VerificationRow>& rows) {
    block.height += 1.0;
    AppendParagraph(block, heading, {RowHeight, RowPitch, TextWeight::Bold, Drawing::Black});
    Cells head;
    std::copy(Simulation::CriteriaColumns.begin(), Simulation::CriteriaColumns.end(), head.begin());
    AppendCells(block, head, TextWeight::Bold, Drawing::Black);
    AppendRule(block);
    for (const VerificationRow& row : rows) {
        const std::string state = Simulation::RowState(row);
        AppendCells(block, {row.criterion, row.calculated, row.required, state}, TextWeight::Normal,
                    StateColor(row));
    }
    AppendRule(block);
}

// The overall result stands below the states.
void AppendResult(SheetBlock& block, bool passes) {
    block.height += RowPitch + 0.6;
    block.elements.emplace_back(SheetText(Simulation::ResultLabel, Stops.front().left,
                                          -block.height, RowHeight, TextWeight::Bold));
    Drawing::TextRun state =
        FittingText(passes ? "ATENDE" : "NÃO ATENDE", Stops.back().left, -block.height,
                    Stops.back().width, {RowHeight, LeastHeight}, TextWeight::Bold);
    state.color = passes ? Met : Failed;
    block.elements.emplace_back(state);
}

} // namespace

Drawing::Color StateColor(const VerificationRow& row) {
    if (!row.hasData) {
        return Drawing::Black;
    }
    return row.passes ? Met : Failed;
}

void AppendVerification(SheetBlock& block, const PlanVerdict& verdict) {
    if (verdict.rows.empty()) {
        return;
    }
    const bool passes = Simulation::VerificationPasses(verdict.rows);
    AppendTable(block, Simulation::VerificationHeading(verdict.standard),
                Simulation::RowsOfKind(verdict.rows, VerificationKind::Requirement));
    AppendResult(block, passes);
    if (Simulation::PassesWithMissingData(verdict.rows)) {
        AppendParagraph(block, Simulation::MissingDataText, {1.8, 3.2, TextWeight::Normal, Muted});
    }
}

void AppendRecommendations(SheetBlock& block, const PlanVerdict& verdict) {
    const std::vector<VerificationRow> rows =
        Simulation::RowsOfKind(verdict.rows, VerificationKind::Recommendation);
    if (!rows.empty()) {
        block.height += 1.0;
        AppendTable(block, Simulation::RecommendationsHeading, rows);
    }
}

void AppendSurfaces(SheetBlock& block, const PlanVerdict& verdict) {
    if (!verdict.surfaces.empty()) {
        block.height += 1.0;
        AppendTable(block, Simulation::SurfacesHeading, verdict.surfaces);
    }
}

} // namespace Merivane::Document
