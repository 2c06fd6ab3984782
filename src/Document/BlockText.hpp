#pragma once

#include <string_view>

#include "Document/PlanSheet.hpp"
#include "Drawing/DisplayList.hpp"

namespace Merivane::Document {

/// How a paragraph of a block is set [mm].
struct ParagraphStyle {
    double height = 2.4; ///< of a capital letter
    double pitch = 3.9;  ///< from line to line
    Drawing::TextWeight weight = Drawing::TextWeight::Normal;
    Drawing::Color color = Drawing::Black;
};

/// Adds a paragraph at the foot of a block, broken into lines of the block's width. Its first line
/// stands one pitch below the foot.
void AppendParagraph(SheetBlock& block, std::string_view text, const ParagraphStyle& style);

/// Adds a line across the block.
void AppendRule(SheetBlock& block);

} // namespace Merivane::Document
