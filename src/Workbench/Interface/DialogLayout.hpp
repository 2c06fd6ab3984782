#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "Workbench/Interface/DialogState.hpp"

/// How texts stand in a dialog. All lengths are pixels at 100 % (96 to the inch).
namespace Merivane::Workbench {

/// Measures of a font.
struct FontMeasures {
    double capital = 0.0; ///< height of a capital
    double line = 0.0;    ///< from one line to the next
    bool bold = false;
};

FontMeasures MeasuresOf(const ItemResource& item);

/// Width of one line.
double TextWidth(std::string_view text, const FontMeasures& font);

/// Lines of a text, broken at "\n" and at blanks where a line would be wider; a word that is wider
/// stands on a line of its own.
std::vector<std::string> WrapText(std::string_view text, double width, const FontMeasures& font);

/// `text` where it fits, else its beginning with "…" behind.
std::string ShortenText(std::string_view text, double width, const FontMeasures& font);

/// Where an item's text stands inside the item; width and height 0 for kinds without one.
PixelBox TextBox(const DialogItem& item);

/// Numbers of the visible items whose text does not fit into them: texts, buttons, check boxes,
/// radio buttons and group boxes. Fields, pop-ups and lists scroll or shorten what they hold.
std::vector<std::int16_t> ItemsWithCutText(const Dialog& dialog);

/// One of two items that stand on the same place, or one that stands outside of the dialog.
struct Misplaced {
    std::int16_t item = 0;
    std::int16_t other = 0; ///< 0 = the edge of the dialog

    bool operator==(const Misplaced&) const = default;
};

/// Among the visible items. A group box may hold others.
std::vector<Misplaced> FindMisplaced(const Dialog& dialog);

} // namespace Merivane::Workbench
