#include "Photometry/LuminaireIdentity.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <string>
#include <string_view>

#include "Photometry/IesText.hpp"
#include "Text/Ascii.hpp"
#include "Text/Number.hpp"

namespace Merivane::Photometry {

namespace {

constexpr std::string_view ColourRenderingKey = "_RA";
constexpr double HighestIndex = 100.0;

// Below this a number beside a tag tells something else than an index.
constexpr int LowestFoundIndex = 20;

unsigned char ByteAt(std::string_view text, std::size_t place) {
    return static_cast<unsigned char>(text[place]);
}

bool IsBeyondAscii(char c) {
    return static_cast<unsigned char>(c) >= 0x80;
}

// Lamps are called "pêra 60": the accented letter before "ra" makes it part of a word. Those of
// Latin-1 and Latin Extended-A and -B have two bytes with the leads C3 to C9; C3 also leads the
// signs of multiplication and division.
bool EndsInLetter(std::string_view utf8) {
    if (utf8.empty()) {
        return false;
    }
    if (!IsBeyondAscii(utf8.back())) {
        return utf8.back() >= 'a' && utf8.back() <= 'z'; // the text is in lower case
    }
    if (utf8.size() < 2) {
        return false;
    }
    const unsigned char lead = ByteAt(utf8, utf8.size() - 2);
    const unsigned char last = ByteAt(utf8, utf8.size() - 1);
    return lead >= 0xC3 && lead <= 0xC9 && !(lead == 0xC3 && (last == 0x97 || last == 0xB7));
}

bool IsBetweenTagAndNumber(char c) {
    return c == ' ' || c == '\t' || c == ':' || c == '=' || c == '>' || IsBeyondAscii(c);
}

/// The index at the start of what follows a tag; 0 without one.
int IndexBehindTag(std::string_view rest) {
    while (!rest.empty() && IsBetweenTagAndNumber(rest.front())) {
        rest.remove_prefix(1);
    }
    const std::size_t length = static_cast<std::size_t>(
        std::find_if_not(rest.begin(), rest.end(), Text::IsDigit) - rest.begin());
    if (length < 2 || length > 3) {
        return 0;
    }
    int number = 0;
    for (const char digit : rest.substr(0, length)) {
        number = number * 10 + (digit - '0');
    }
    return number >= LowestFoundIndex && number <= HighestIndex ? number : 0;
}

/// The first index that some occurrence of `tag` tells; 0 without one.
int IndexOfTag(std::string_view text, std::string_view tag) {
    for (std::size_t at = text.find(tag); at != std::string_view::npos;
         at = text.find(tag, at + 1)) {
        const int index =
            EndsInLetter(text.substr(0, at)) ? 0 : IndexBehindTag(text.substr(at + tag.size()));
        if (index > 0) {
            return index;
        }
    }
    return 0;
}

int IndexInText(const std::string& value) {
    const std::string text = Text::ToLower(NormaliseIesText(value));
    for (const std::string_view tag : {"cri", "irc", "ra"}) {
        const int index = IndexOfTag(text, tag);
        if (index > 0) {
            return index;
        }
    }
    return 0;
}

// The line breaks of a header and the blanks of hand-typed fields, and nothing else.
std::string_view TrimField(std::string_view text) {
    constexpr std::string_view around = " \t\r\n";
    const std::size_t first = text.find_first_not_of(around);
    if (first == std::string_view::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(around) - first + 1);
}

} // namespace

LuminaireIdentity IdentityFromIes(const IesFile& file) {
    LuminaireIdentity identity;
    identity.manufacturer = FindKeyword(file, "MANUFAC");
    identity.catalog = FindKeyword(file, "LUMCAT");
    identity.luminaire = FindKeyword(file, "LUMINAIRE");
    identity.lamp = FindKeyword(file, "LAMP");
    identity.colourRendering = ColourRenderingFromIes(file);
    return identity;
}

void ApplyIdentityToIes(const LuminaireIdentity& identity, IesFile& file) {
    SetKeyword(file, "MANUFAC", TrimField(identity.manufacturer));
    SetKeyword(file, "LUMCAT", TrimField(identity.catalog));
    SetKeyword(file, "LUMINAIRE", TrimField(identity.luminaire));
    SetKeyword(file, "LAMP", TrimField(identity.lamp));
    const double index = std::round(identity.colourRendering);
    if (index > 0.0 && index <= HighestIndex) {
        SetKeyword(file, ColourRenderingKey, std::to_string(static_cast<int>(index)));
        return;
    }
    std::erase_if(file.keywords,
                  [](const auto& entry) { return entry.first == ColourRenderingKey; });
}

double ColourRenderingFromIes(const IesFile& file) {
    double declared = 0.0;
    if (Text::ReadNumber(FindKeyword(file, ColourRenderingKey), declared) > 0 && declared > 0.0 &&
        declared <= HighestIndex) {
        return declared;
    }
    for (const auto& [key, value] : file.keywords) {
        const int index = IndexInText(value);
        if (index > 0) {
            return index;
        }
    }
    return 0.0;
}

} // namespace Merivane::Photometry
