#include "Photometry/LuminaireTypeKey.hpp"

#include <cstddef>

#include "Text/Ascii.hpp"

namespace Merivane::Photometry {

namespace {

constexpr char FieldSeparator = '\x1F'; // "unit separator": no text from a host or a file holds it
constexpr std::string_view LinearMark = "\nfita"; // no normalised field holds a line break

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
           std::string(isLinear ? LinearMark : "");
}

bool IsLinearTypeKey(std::string_view key) {
    return key.ends_with(LinearMark);
}

std::string TypeKeyName(std::string_view key) {
    const std::size_t codeEnd = key.find(FieldSeparator);
    const std::string_view code = key.substr(0, codeEnd);
    if (codeEnd == std::string_view::npos) {
        return std::string(code);
    }
    const std::string_view rest = key.substr(codeEnd + 1);
    const std::string_view name = rest.substr(0, rest.find(FieldSeparator));
    return std::string(name.empty() ? code : name);
}

} // namespace Merivane::Photometry
