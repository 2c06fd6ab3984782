#include "Text/FoldAccents.hpp"

#include <cstddef>

#include "Text/Ascii.hpp"

namespace Merivane::Text {

namespace {

// What U+00C0 to U+00FF, two bytes each of which the first is 0xC3, fold to.
constexpr std::string_view LatinLetters =
    "aaaaaaaceeeeiiiidnooooo*ouuuuytsaaaaaaaceeeeiiiidnooooo/ouuuuyty";
static_assert(LatinLetters.size() == 64);

constexpr unsigned char FirstContinuation = 0x80;
constexpr unsigned char LastContinuation = 0xBF;

} // namespace

std::string FoldAccents(std::string_view text) {
    std::string folded;
    folded.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool isLead = text[i] == '\xC3' && i + 1 < text.size();
        const auto next = static_cast<unsigned char>(isLead ? text[i + 1] : '\0');
        if (next >= FirstContinuation && next <= LastContinuation) {
            folded += LatinLetters[next - FirstContinuation];
            ++i;
        } else {
            folded += text[i];
        }
    }
    return ToLower(folded);
}

} // namespace Merivane::Text
