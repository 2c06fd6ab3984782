#include "Document/TextSpace.hpp"

#include <algorithm>

namespace Merivane::Document {
namespace {

using Drawing::Box;
using Drawing::Point;

constexpr double TextGap = 0.8;   // mm, between texts: more than any halo
constexpr double FigureGap = 0.8; // mm, to what is drawn: more than any halo

// Cuts the stretch from `first` to `last` of a line down to where start + t * step lies between
// `low` and `high`; false when nothing is left (Liang and Barsky's clipping, one axis).
bool ClipAxis(double start, double step, double low, double high, double& first, double& last) {
    if (step == 0.0) {
        return start >= low && start <= high;
    }
    const double a = (low - start) / step;
    const double b = (high - start) / step;
    first = std::max(first, std::min(a, b));
    last = std::min(last, std::max(a, b));
    return first <= last;
}

bool Crosses(const PaperLine& line, const Box& box) {
    double first = 0.0;
    double last = 1.0;
    return ClipAxis(line.start.x, line.end.x - line.start.x, box.left, box.right, first, last) &&
           ClipAxis(line.start.y, line.end.y - line.start.y, box.bottom, box.top, first, last);
}

bool CrossesAny(const std::vector<PaperLine>& lines, const Box& box) {
    return std::any_of(lines.begin(), lines.end(),
                       [&box](const PaperLine& line) { return Crosses(line, box); });
}

Box Widened(const Box& box) {
    return {box.left - FigureGap, box.bottom - FigureGap, box.right + FigureGap,
            box.top + FigureGap};
}

Box Moved(const Box& box, const Point& by) {
    return {box.left + by.x, box.bottom + by.y, box.right + by.x, box.top + by.y};
}

} // namespace

bool IsFreeOfTexts(const TextSpace& space, const Box& box) {
    return std::none_of(space.texts.begin(), space.texts.end(),
                        [&box](const Box& text) { return Drawing::BoxesMeet(text, box, TextGap); });
}

bool IsFreeOfWalls(const TextSpace& space, const Box& box) {
    return IsFreeOfTexts(space, box) && !CrossesAny(space.walls, Widened(box));
}

bool IsClear(const TextSpace& space, const Box& box) {
    const Box wide = Widened(box);
    return IsFreeOfWalls(space, box) && !CrossesAny(space.limits, wide) &&
           std::none_of(space.symbols.begin(), space.symbols.end(),
                        [&wide](const Box& symbol) { return Drawing::BoxesMeet(symbol, wide); });
}

bool PlaceText(TextSpace& space, Drawing::TextRun& text, const std::vector<Point>& places) {
    text.position = {};
    const Box atOrigin = Drawing::TextBounds(text);
    for (const auto& fits : {IsClear, IsFreeOfWalls, IsFreeOfTexts}) {
        for (const Point& place : places) {
            const Box box = Moved(atOrigin, place);
            if (fits(space, box)) {
                text.position = place;
                space.texts.push_back(box);
                return true;
            }
        }
    }
    return false;
}

} // namespace Merivane::Document
