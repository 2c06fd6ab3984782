#include "Workbench/Project/TextLimits.hpp"

namespace Merivane::Workbench {

namespace {

bool IsContinuation(char c) {
    return (static_cast<unsigned char>(c) & 0xC0U) == 0x80U;
}

} // namespace

std::size_t CountUtf16(std::string_view text) {
    std::size_t units = 0;
    for (const char c : text) {
        const bool pair = static_cast<unsigned char>(c) >= 0xF0U; // beyond the first plane
        units += IsContinuation(c) ? 0U : (pair ? 2U : 1U);
    }
    return units;
}

std::size_t CountCharacters(std::string_view text) {
    std::size_t characters = 0;
    for (const char c : text) {
        characters += IsContinuation(c) ? 0U : 1U;
    }
    return characters;
}

} // namespace Merivane::Workbench
