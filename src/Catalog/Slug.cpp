#include "Catalog/Slug.hpp"

#include <algorithm>
#include <array>

#include "Text/Ascii.hpp"

namespace Merivane::Catalog {

namespace {

// U+00C0 to U+00FF. Texts are compared with letters folded one to one (`Text::FoldAccents`), but
// addresses were published with these, and must never change.
constexpr std::array<std::string_view, 64> LatinLetters = {
    "a", "a", "a", "a", "a", "a", "ae", "c", "e", "e", "e", "e", "i", "i", "i",  "i",
    "d", "n", "o", "o", "o", "o", "o",  "",  "o", "u", "u", "u", "u", "y", "th", "ss",
    "a", "a", "a", "a", "a", "a", "ae", "c", "e", "e", "e", "e", "i", "i", "i",  "i",
    "d", "n", "o", "o", "o", "o", "o",  "",  "o", "u", "u", "u", "u", "y", "th", "y"};

constexpr unsigned char FirstContinuation = 0x80;
constexpr unsigned char LastContinuation = 0xBF;

/// Bytes that a sequence announces by its first one.
std::size_t SequenceLength(unsigned char lead) {
    if (lead >= 0xC0 && lead < 0xE0) {
        return 2;
    }
    if (lead >= 0xE0 && lead < 0xF0) {
        return 3;
    }
    return lead >= 0xF0 && lead < 0xF8 ? 4 : 1;
}

/// What a sequence of bytes of 128 and above folds to; empty when it separates words.
std::string_view FoldSequence(std::string_view sequence) {
    if (sequence.size() != 2 || sequence[0] != '\xC3') {
        return {};
    }
    const auto next = static_cast<unsigned char>(sequence[1]);
    const bool isLetter = next >= FirstContinuation && next <= LastContinuation;
    return isLetter ? LatinLetters[next - FirstContinuation] : std::string_view();
}

bool IsAsciiWord(char c) {
    return Text::IsDigit(c) || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

} // namespace

std::string Slugify(std::string_view text, std::size_t maximumBytes) {
    std::string slug;
    bool pendingDash = false;
    while (!text.empty()) {
        const auto lead = static_cast<unsigned char>(text.front());
        const std::string_view sequence = text.substr(0, SequenceLength(lead));
        text.remove_prefix(sequence.size());
        const std::string_view letters =
            IsAsciiWord(sequence.front()) ? sequence : FoldSequence(sequence);
        if (letters.empty()) {
            pendingDash = true;
            continue;
        }
        if (pendingDash && !slug.empty()) {
            slug += '-';
        }
        pendingDash = false;
        slug += letters;
    }
    slug = Text::ToLower(slug.substr(0, maximumBytes));
    while (slug.ends_with('-')) {
        slug.pop_back();
    }
    return slug;
}

} // namespace Merivane::Catalog
