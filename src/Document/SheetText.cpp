#include "Document/SheetText.hpp"

#include <algorithm>

#include "Drawing/TextSize.hpp"

namespace Merivane::Document {
namespace {

bool Fits(std::string_view text, double width, double height, Drawing::TextWeight weight) {
    return Drawing::MeasureText(text, height, weight).width <= width;
}

// How many bytes of `text` fit into a line, whole letters only; at least one letter.
std::size_t FittingLetters(std::string_view text, double width, double height,
                           Drawing::TextWeight weight) {
    std::size_t letters = 0;
    for (std::size_t k = 1; k <= text.size(); ++k) {
        const bool insideLetter =
            k < text.size() && (static_cast<unsigned char>(text[k]) & 0xC0U) == 0x80U;
        if (insideLetter) {
            continue;
        }
        if (letters > 0 && !Fits(text.substr(0, k), width, height, weight)) {
            break;
        }
        letters = k;
    }
    return letters;
}

// How much of `text` fits into a line: up to a blank or to the end, or a piece of its first word.
std::size_t LineLength(std::string_view text, double width, double height,
                       Drawing::TextWeight weight) {
    std::size_t fitting = 0;
    std::size_t end = 0;
    while (end < text.size()) {
        end = std::min(text.find(' ', text.find_first_not_of(' ', end)), text.size());
        if (!Fits(text.substr(0, end), width, height, weight)) {
            break;
        }
        fitting = end;
    }
    return fitting > 0 ? fitting : FittingLetters(text.substr(0, end), width, height, weight);
}

} // namespace

Drawing::TextRun SheetText(std::string_view text, double x, double y, double height,
                           Drawing::TextWeight weight) {
    Drawing::TextRun run;
    run.text = text;
    run.position = {x, y};
    run.height = height;
    run.weight = weight;
    return run;
}

std::vector<std::string> WrapText(std::string_view text, double width, double height,
                                  Drawing::TextWeight weight) {
    if (Fits(text, width, height, weight)) { // most texts of a table: one measurement does
        return {std::string(text)};
    }
    std::vector<std::string> lines;
    while (!text.empty()) {
        const std::size_t length = LineLength(text, width, height, weight);
        lines.emplace_back(text.substr(0, length));
        text.remove_prefix(length);
        text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    }
    if (lines.empty()) {
        lines.emplace_back();
    }
    return lines;
}

Drawing::TextRun FittingText(std::string_view text, double x, double y, double width,
                             const TextHeights& heights, Drawing::TextWeight weight) {
    const double measured = Drawing::MeasureText(text, heights.largest, weight).width;
    if (measured <= width) {
        return SheetText(text, x, y, heights.largest, weight);
    }
    const double height = heights.largest * width / measured;
    if (height >= heights.least) {
        return SheetText(text, x, y, height, weight);
    }
    const std::string_view mark = "…";
    const double left = width - Drawing::MeasureText(mark, heights.least, weight).width;
    const std::size_t kept = FittingLetters(text, left, heights.least, weight);
    return SheetText(std::string(text.substr(0, kept)).append(mark), x, y, heights.least, weight);
}

} // namespace Merivane::Document
