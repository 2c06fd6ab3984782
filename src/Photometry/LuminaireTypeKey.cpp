#include "Photometry/LuminaireTypeKey.hpp"

#include "Text/Ascii.hpp"

namespace Merivane::Photometry {

namespace {

constexpr char FieldSeparator = '\x1F'; // "unit separator": no text from a host or a file holds it

/// White space trimmed at the ends, every run of it inside one blank.
std::string NormaliseWhiteSpace(std::string_view text) {
    std::string normal;
    for (const char c : Text::Trim(text)) {
        if (!Text::IsWhiteSpace(c)) {
            normal += c;
        } else if (normal.back() != ' ') {
            normal += ' ';
        }
    }
    return normal;
}

} // namespace

std::string LuminaireTypeKey(std::string_view code, std::string_view name, std::string_view lamp,
                             std::string_view iesFileName, bool isLinear) {
    const std::string normalCode = NormaliseWhiteSpace(code);
    std::string normalName = NormaliseWhiteSpace(name);
    if (normalCode.empty() && normalName.empty()) {
        normalName = NormaliseWhiteSpace(iesFileName);
    }
    return normalCode + FieldSeparator + normalName + FieldSeparator + NormaliseWhiteSpace(lamp) +
           (isLinear ? "\nfita" : "");
}

} // namespace Merivane::Photometry
