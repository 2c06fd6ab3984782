#include "Gdl/GeneratedBlock.hpp"

#include <algorithm>
#include <cstddef>

namespace Merivane::Photometry {

namespace {

constexpr std::string_view LineEnd = "\r\n";

/// The place behind the line end that stands at `place`, if one does.
std::size_t SkipLineEnd(std::string_view text, std::size_t place) {
    for (const char c : LineEnd) {
        if (place < text.size() && text[place] == c) {
            ++place;
        }
    }
    return place;
}

} // namespace

std::string RemoveGeneratedBlock(std::string_view script) {
    std::string text(script);
    std::size_t from = 0;
    while (true) {
        const std::size_t start = text.find(BlockStartMarker, from);
        const std::size_t end =
            start == std::string::npos ? start : text.find(BlockEndMarker, start);
        if (end == std::string::npos) {
            return text;
        }
        text.erase(start, SkipLineEnd(text, end + BlockEndMarker.size()) - start);
        // What now meets at the seam may be a marker too, which begins at most its length ahead.
        from = start - std::min(start, BlockStartMarker.size());
    }
}

std::string WithGeneratedBlock(std::string_view lines, std::string_view script) {
    std::string text(BlockStartMarker);
    text += LineEnd;
    text += lines;
    text += BlockEndMarker;
    text += LineEnd;
    return text += RemoveGeneratedBlock(script);
}

} // namespace Merivane::Photometry
