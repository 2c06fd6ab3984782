#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "Drawing/DisplayList.hpp"

namespace Merivane::Document {

/// Grey of what explains: headings of tables, units, notes.
inline constexpr Drawing::Color Muted{0.36, 0.36, 0.38, 1.0};

/// A text with its start on the base line at (`x`, `y`) [mm].
Drawing::TextRun SheetText(std::string_view text, double x, double y, double height,
                           Drawing::TextWeight weight = Drawing::TextWeight::Normal);

/// Breaks a text into lines of at most `width` mm: at blanks, inside a word where the word alone
/// is wider. Blanks at a break are dropped, all others stay. At least one line.
std::vector<std::string> WrapText(std::string_view text, double width, double height,
                                  Drawing::TextWeight weight = Drawing::TextWeight::Normal);

/// Heights between which a text may be chosen [mm].
struct TextHeights {
    double largest = 0.0;
    double least = 0.0;
};

/// A text that is at most `width` mm wide, as high as that allows; where even the least height is
/// too wide its end is cut off and told by "…".
Drawing::TextRun FittingText(std::string_view text, double x, double y, double width,
                             const TextHeights& heights,
                             Drawing::TextWeight weight = Drawing::TextWeight::Normal);

} // namespace Merivane::Document
