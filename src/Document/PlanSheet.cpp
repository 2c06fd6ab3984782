#include "Document/PlanSheet.hpp"

#include <algorithm>
#include <array>
#include <utility>

namespace Merivane::Document {
namespace {

using Drawing::Box;

constexpr double Margin = 10.0;
constexpr double TitleHeight = 14.0;
constexpr double FootHeight = 12.0;
constexpr double Gap = 7.0;      // between blocks, and between plan and columns
constexpr double PlanEdge = 4.0; // around the plan, for labels that stand over its edge
constexpr double LargestSide = 5000.0;

struct PaperSize {
    double width;
    double height;
};

// ISO 216, landscape, A4 upwards.
constexpr std::array<PaperSize, 5> PaperSizes = {
    {{297, 210}, {420, 297}, {594, 420}, {841, 594}, {1189, 841}}};

constexpr std::array<double, 8> PlanScales = {20, 25, 50, 75, 100, 125, 150, 200};
constexpr double SmallestScaleOnA4 = 75; // a smaller plan than 1:75 earns a larger sheet

double ColumnHeight(const PaperSize& paper) {
    return paper.height - 2.0 * Margin - TitleHeight - FootHeight;
}

// A column of blocks: its left edge, the width of its widest block, and how far down it is filled.
struct Column {
    double left = 0.0;
    double width = 0.0;
    double depth = 0.0;
};

// Blocks laid one below the other into columns, in order. Columns stand from x = 0 to the right,
// the head of each at y = 0.
struct Columns {
    std::vector<PlacedBlock> placed;
    std::vector<Column> columns;
};

double ColumnsWidth(const Columns& flow) {
    return flow.columns.empty() ? 0.0 : flow.columns.back().left + flow.columns.back().width;
}

bool HasRoom(const Column& column, const SheetBlock& block, double columnHeight) {
    return column.depth == 0.0 || column.depth + block.height <= columnHeight;
}

// The column that takes the block: the last one, for one that fills gaps the first that has room
// and is wide enough; none where a new one is to be begun.
Column* ColumnFor(Columns& flow, const SheetBlock& block, double columnHeight) {
    for (Column& column : flow.columns) {
        const bool isLast = &column == &flow.columns.back();
        const bool eligible = isLast || (block.fillsGaps && block.width <= column.width);
        if (eligible && HasRoom(column, block, columnHeight)) {
            return &column;
        }
    }
    return nullptr;
}

Columns FlowBlocks(const std::vector<SheetBlock>& blocks, double columnHeight) {
    Columns flow;
    for (std::size_t k = 0; k < blocks.size(); ++k) {
        Column* column = ColumnFor(flow, blocks[k], columnHeight);
        if (column == nullptr) {
            const double left = flow.columns.empty() ? 0.0 : ColumnsWidth(flow) + Gap;
            column = &flow.columns.emplace_back();
            column->left = left;
        }
        flow.placed.push_back({k, {column->left, -column->depth}});
        column->width = std::max(column->width, blocks[k].width);
        column->depth += blocks[k].height + Gap;
    }
    return flow;
}

double HighestBlock(const std::vector<SheetBlock>& blocks) {
    double highest = 0.0;
    for (const SheetBlock& block : blocks) {
        highest = std::max(highest, block.height);
    }
    return highest;
}

// What a sheet must at least hold for the plan at a scale, the blocks in columns as high as
// `paper` has them.
PaperSize NeededPaper(const Box& bounds, const std::vector<SheetBlock>& blocks, double scale,
                      const PaperSize& paper) {
    const double columns = ColumnsWidth(FlowBlocks(blocks, ColumnHeight(paper)));
    const double planWidth = (bounds.right - bounds.left) * 1000.0 / scale + 2.0 * PlanEdge;
    const double planHeight = (bounds.top - bounds.bottom) * 1000.0 / scale + 2.0 * PlanEdge;
    return {2.0 * Margin + planWidth + (columns > 0.0 ? Gap + columns : 0.0),
            2.0 * Margin + TitleHeight + FootHeight + std::max(planHeight, HighestBlock(blocks))};
}

bool Holds(const PaperSize& paper, const PaperSize& needed) {
    return needed.width <= paper.width + 1e-9 && needed.height <= paper.height + 1e-9;
}

struct Choice {
    PaperSize paper;
    double scale;
};

// The largest scale that fits a paper, or 0.
double LargestScale(const Box& bounds, const std::vector<SheetBlock>& blocks,
                    const PaperSize& paper) {
    for (double scale : PlanScales) {
        if (Holds(paper, NeededPaper(bounds, blocks, scale, paper))) {
            return scale;
        }
    }
    return 0.0;
}

// The smallest paper of the series at a scale, else one made to measure.
Choice SmallestPaper(const Box& bounds, const std::vector<SheetBlock>& blocks, double scale) {
    for (const PaperSize& paper : PaperSizes) {
        if (Holds(paper, NeededPaper(bounds, blocks, scale, paper))) {
            return {paper, scale};
        }
    }
    const PaperSize largest = PaperSizes.back();
    const PaperSize needed = NeededPaper(bounds, blocks, scale, largest);
    return {{std::max(largest.width, needed.width), std::max(largest.height, needed.height)},
            scale};
}

Choice ChoosePaper(const Box& bounds, const std::vector<SheetBlock>& blocks, double wantedScale) {
    if (wantedScale > 0.0) {
        return SmallestPaper(bounds, blocks, wantedScale);
    }
    const double onA4 = LargestScale(bounds, blocks, PaperSizes[0]);
    const double onA3 = LargestScale(bounds, blocks, PaperSizes[1]);
    if (onA4 > 0.0 && (onA4 <= SmallestScaleOnA4 || onA4 <= onA3)) {
        return {PaperSizes[0], onA4};
    }
    for (std::size_t k = 1; k < PaperSizes.size(); ++k) {
        const double scale = LargestScale(bounds, blocks, PaperSizes[k]);
        if (scale > 0.0) {
            return {PaperSizes[k], scale};
        }
    }
    Choice choice = SmallestPaper(bounds, blocks, PlanScales.back());
    while ((choice.paper.width > LargestSide || choice.paper.height > LargestSide) &&
           choice.scale < 1e9) {
        choice = SmallestPaper(bounds, blocks, choice.scale * 2.0);
    }
    return choice;
}

} // namespace

Drawing::Point OnPaper(const PlanSheet& sheet, Simulation::Point2D place) {
    return {sheet.origin.x + PaperLength(sheet, place.x),
            sheet.origin.y + PaperLength(sheet, place.y)};
}

Simulation::Point2D InModel(const PlanSheet& sheet, Drawing::Point point) {
    return {(point.x - sheet.origin.x) * sheet.scale / 1000.0,
            (point.y - sheet.origin.y) * sheet.scale / 1000.0};
}

double PaperLength(const PlanSheet& sheet, double metres) {
    return metres * 1000.0 / sheet.scale;
}

PlanSheet ArrangeSheet(const Box& bounds, const std::vector<SheetBlock>& blocks,
                       double wantedScale) {
    const Choice choice = ChoosePaper(bounds, blocks, wantedScale);
    PlanSheet sheet;
    sheet.width = choice.paper.width;
    sheet.height = choice.paper.height;
    sheet.scale = choice.scale;
    const double right = sheet.width - Margin;
    const double head = sheet.height - Margin - TitleHeight;
    sheet.titleArea = {Margin, head, right, sheet.height - Margin};
    sheet.footArea = {Margin, Margin, right, Margin + FootHeight};

    Columns flow = FlowBlocks(blocks, ColumnHeight(choice.paper));
    const double columns = ColumnsWidth(flow);
    sheet.blocks = std::move(flow.placed);
    for (PlacedBlock& placed : sheet.blocks) {
        placed.corner.x += right - columns;
        placed.corner.y += head;
    }
    sheet.planArea = {Margin, Margin + FootHeight, right - (columns > 0.0 ? columns + Gap : 0.0),
                      head};
    const Simulation::Point2D middle{0.5 * (bounds.left + bounds.right),
                                     0.5 * (bounds.bottom + bounds.top)};
    sheet.origin = {
        0.5 * (sheet.planArea.left + sheet.planArea.right) - PaperLength(sheet, middle.x),
        0.5 * (sheet.planArea.bottom + sheet.planArea.top) - PaperLength(sheet, middle.y)};
    return sheet;
}

} // namespace Merivane::Document
