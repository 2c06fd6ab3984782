#pragma once

#include <vector>

#include "Drawing/DisplayList.hpp"
#include "Drawing/TextSize.hpp"

namespace Merivane::Document {

/// A straight line on the paper [mm].
struct PaperLine {
    Drawing::Point start;
    Drawing::Point end;
};

/// What already stands on the paper, for whoever looks for a place for a text.
struct TextSpace {
    std::vector<Drawing::Box> texts;   ///< never to be covered
    std::vector<PaperLine> walls;      ///< not to be crossed where it can be helped
    std::vector<Drawing::Box> symbols; ///< better not covered
    std::vector<PaperLine> limits;     ///< better not crossed
};

/// True when a text in `box` would cover no other text, nor come nearer than 0.8 mm.
bool IsFreeOfTexts(const TextSpace& space, const Drawing::Box& box);

/// True when it would cover no text and cross no wall.
bool IsFreeOfWalls(const TextSpace& space, const Drawing::Box& box);

/// True when it would cover nothing at all.
bool IsClear(const TextSpace& space, const Drawing::Box& box);

/// Moves `text` to the first of `places` at which it covers nothing, else to the first that is free
/// of texts and walls, else to the first that is free of texts, and enters it into `space`. False,
/// with nothing entered, where there is none.
bool PlaceText(TextSpace& space, Drawing::TextRun& text, const std::vector<Drawing::Point>& places);

} // namespace Merivane::Document
