#include "Document/TextColumns.hpp"

#include <algorithm>

#include "Text/Number.hpp"

namespace Merivane::Document {

namespace {

std::string Blanks(std::string_view text, std::size_t width) {
    std::string blanks(width - std::min(width, CharacterCount(text)), ' ');
    return blanks;
}

} // namespace

std::size_t CharacterCount(std::string_view text) {
    return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), [](char c) {
        return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U;
    }));
}

std::string PadLeft(std::string_view text, std::size_t width) {
    return Blanks(text, width).append(text);
}

std::string PadRight(std::string_view text, std::size_t width) {
    return std::string(text).append(Blanks(text, width));
}

std::string FormatSignificant(double value) {
    std::string text = Text::FormatGeneral(value + 0.0); // + 0.0: nobody prints minus zero
    std::replace(text.begin(), text.end(), '.', ',');
    return text;
}

std::string TableCell(std::string_view text) {
    if (text.find_first_of(";\"\r\n") == std::string_view::npos) {
        return std::string(text);
    }
    std::string cell = "\"";
    for (const char c : text) {
        cell += c == '"' ? "\"\"" : std::string(1, c);
    }
    return cell + '"';
}

} // namespace Merivane::Document
