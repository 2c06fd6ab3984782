#pragma once

#include <string_view>

#include "Drawing/DisplayList.hpp"

namespace Merivane::Drawing {

/// Space that one line of text takes [mm].
struct TextSize {
    double width = 0.0; ///< from its start to where the next letter would stand
    double above = 0.0; ///< ink above the base line
    double below = 0.0; ///< ink below the base line
};

/// An upright rectangle on the paper [mm].
struct Box {
    double left = 0.0;
    double bottom = 0.0;
    double right = 0.0;
    double top = 0.0;
};

/// Size of a text in the font that every writer uses (DejaVu Sans, DejaVu Sans Mono), its capitals
/// `height` mm high.
TextSize MeasureText(std::string_view text, double height, TextWeight weight = TextWeight::Normal,
                     TextFace face = TextFace::Proportional);

/// Where the base line of a text begins, its anchor and its rotation applied [mm].
Point TextOrigin(const TextRun& text, const TextSize& size);

/// The upright rectangle around a text, its rotation applied, without the halo [mm].
Box TextBounds(const TextRun& text);

/// True when the two rectangles come nearer to each other than `gap` mm.
bool BoxesMeet(const Box& a, const Box& b, double gap = 0.0);

} // namespace Merivane::Drawing
