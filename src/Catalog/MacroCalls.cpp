#include "Catalog/MacroCalls.hpp"

#include <algorithm>
#include <cstddef>

#include "Text/Ascii.hpp"

namespace Merivane::Catalog {

namespace {

bool StartsWord(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_' || c == '~';
}

/// Where the run of characters that hold a condition ends.
template <typename Condition>
std::size_t EndOfRun(std::string_view text, std::size_t start, Condition holds) {
    while (start < text.size() && holds(text[start])) {
        ++start;
    }
    return start;
}

void AppendNew(std::string_view name, std::vector<std::string>& names) {
    if (!name.empty() && std::find(names.begin(), names.end(), name) == names.end()) {
        names.emplace_back(name);
    }
}

} // namespace

std::vector<std::string> ExtractMacroCalls(std::string_view script) {
    std::vector<std::string> names;
    bool afterCall = false;
    for (std::size_t at = 0; at < script.size();) {
        const char c = script[at];
        if (c == '!') { // a comment, also between `call` and its name
            at = EndOfRun(script, at, [](char other) { return other != '\r' && other != '\n'; });
        } else if (c == '"' || c == '\'' || c == '`') {
            const std::size_t end = std::min(script.find(c, at + 1), script.size());
            if (afterCall) {
                AppendNew(Text::Trim(script.substr(at + 1, end - at - 1)), names);
            }
            afterCall = false;
            at = end + 1;
        } else if (StartsWord(c)) {
            const std::size_t end = EndOfRun(
                script, at, [](char other) { return StartsWord(other) || Text::IsDigit(other); });
            afterCall = Text::ToLower(script.substr(at, end - at)) == "call";
            at = end;
        } else {
            afterCall = afterCall && Text::IsWhiteSpace(c);
            ++at;
        }
    }
    return names;
}

} // namespace Merivane::Catalog
