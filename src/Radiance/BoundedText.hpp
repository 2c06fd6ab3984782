#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace Merivane::Radiance {

/// Beginning and end of a text that may be of any length: `HeadLimit` bytes of the one,
/// `TailLimit` bytes of the other. A program's first message tells what went wrong first, its
/// last one why it stopped.
struct BoundedText {
    static constexpr std::size_t HeadLimit = 49152;
    static constexpr std::size_t TailLimit = 16384;

    std::string head;
    std::string tail; ///< at most 2 * `TailLimit`, of which the end counts
    bool cut = false; ///< bytes between head and tail were dropped
};

/// Appends bytes, dropping what lies between the beginning and the end.
void Append(BoundedText& text, std::string_view bytes);

/// The text as a whole; where bytes were dropped, "\n[...]\n" stands in their place.
std::string JoinedText(const BoundedText& text);

} // namespace Merivane::Radiance
