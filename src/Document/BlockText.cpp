#include "Document/BlockText.hpp"

#include "Document/SheetText.hpp"

namespace Merivane::Document {

void AppendParagraph(SheetBlock& block, std::string_view text, const ParagraphStyle& style) {
    for (const std::string& line : WrapText(text, block.width, style.height, style.weight)) {
        block.height += style.pitch;
        Drawing::TextRun run = SheetText(line, 0.0, -block.height, style.height, style.weight);
        run.color = style.color;
        block.elements.emplace_back(run);
    }
}

void AppendRule(SheetBlock& block) {
    block.height += 1.6;
    block.elements.emplace_back(Drawing::Polyline{
        {{0.0, -block.height}, {block.width, -block.height}}, false, {0.18, Muted, {}}});
    block.height += 0.4;
}

} // namespace Merivane::Document
