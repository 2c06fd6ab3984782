#include "Text/ShownText.hpp"

#include <array>
#include <cstddef>

#include "Text/Ascii.hpp"
#include "Text/Utf8.hpp"

namespace Merivane::Text {

namespace {

enum class CharacterKind { Shown, Control, Malformed };

struct Character {
    CharacterKind kind = CharacterKind::Malformed;
    std::size_t length = 1; ///< bytes
};

std::size_t LengthByLead(unsigned char lead) {
    if (lead < 0x80) {
        return 1;
    }
    if (lead >= 0xC2 && lead <= 0xDF) {
        return 2;
    }
    if (lead >= 0xE0 && lead <= 0xEF) {
        return 3;
    }
    return lead >= 0xF0 && lead <= 0xF4 ? 4 : 0;
}

CharacterKind KindOf(char32_t code, std::size_t length) {
    // The smallest code point of each length: below it the form is overlong.
    constexpr std::array<char32_t, 5> smallest = {0, 0, 0x80, 0x800, 0x10000};
    const bool surrogate = code >= 0xD800 && code <= 0xDFFF;
    const bool nonCharacter = code == 0xFFFE || code == 0xFFFF;
    if (code < smallest[length] || code > 0x10FFFF || surrogate || nonCharacter) {
        return CharacterKind::Malformed;
    }
    const bool control = code < 0x20 || (code >= 0x7F && code <= 0x9F);
    return control ? CharacterKind::Control : CharacterKind::Shown;
}

/// The character at the start of a text that is not empty.
Character FirstCharacter(std::string_view text) {
    const auto lead = static_cast<unsigned char>(text[0]);
    const std::size_t length = LengthByLead(lead);
    if (length == 0 || length > text.size()) {
        return {};
    }
    char32_t code = length == 1 ? lead : lead & (0x7FU >> length);
    for (std::size_t i = 1; i < length; ++i) {
        const auto byte = static_cast<unsigned char>(text[i]);
        if ((byte & 0xC0U) != 0x80U) {
            return {};
        }
        code = (code << 6U) | (byte & 0x3FU);
    }
    const CharacterKind kind = KindOf(code, length);
    return {kind, kind == CharacterKind::Malformed ? 1 : length};
}

} // namespace

bool IsPlainText(std::string_view text) {
    while (!text.empty()) {
        const Character character = FirstCharacter(text);
        if (character.kind != CharacterKind::Shown) {
            return false;
        }
        text.remove_prefix(character.length);
    }
    return true;
}

std::string ShownText(std::string_view text) {
    std::string shown;
    shown.reserve(text.size());
    while (!text.empty()) {
        const Character character = FirstCharacter(text);
        if (character.kind == CharacterKind::Shown) {
            shown += text.substr(0, character.length);
        } else if (character.kind == CharacterKind::Control) {
            shown += ' ';
        } else {
            shown += "\xEF\xBF\xBD";
        }
        text.remove_prefix(character.length);
    }
    return std::string(Trim(shown));
}

std::string ShownLines(std::string_view text) {
    std::string lines;
    lines.reserve(text.size());
    while (!text.empty()) {
        const Character character = FirstCharacter(text);
        if (text.starts_with("\r\n")) {
            text.remove_prefix(1); // the LF follows
            continue;
        }
        if (character.kind == CharacterKind::Shown || text[0] == '\t' || text[0] == '\n') {
            lines += text.substr(0, character.length);
        } else if (character.kind == CharacterKind::Control) {
            lines += text[0] == '\r' ? '\n' : ' ';
        } else {
            lines += "\xEF\xBF\xBD";
        }
        text.remove_prefix(character.length);
    }
    return lines;
}

std::string QuotedText(std::string_view text) {
    constexpr std::size_t longest = 60;
    const std::string shown = ShownText(text);
    if (shown.size() <= longest) {
        return '"' + shown + '"';
    }
    return '"' + TruncateUtf8(shown, longest) + "...\"";
}

} // namespace Merivane::Text
