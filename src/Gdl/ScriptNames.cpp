#include "Gdl/ScriptNames.hpp"

#include <array>
#include <cstddef>

#include "Text/Ascii.hpp"

namespace Merivane::Photometry {

namespace {

constexpr std::string_view LineEnds = "\r\n";

/// What may begin a text, and end it again; the curved marks end each other.
struct Quotation {
    std::string_view begin;
    std::string_view end;
};

constexpr std::array<Quotation, 6> Quotations = {{{"\"", "\""},
                                                  {"'", "'"},
                                                  {"`", "`"},
                                                  {"\xC2\xB4", "\xC2\xB4"},
                                                  {"\xE2\x80\x9C", "\xE2\x80\x9D"},
                                                  {"\xE2\x80\x98", "\xE2\x80\x99"}}};

bool IsWordLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || Text::IsDigit(c) || c == '_' ||
           c == '~';
}

/// Takes a comment or a text away from the start of `rest`, neither of which goes on over the end
/// of its line; false when there is none.
bool SkipNoCode(std::string_view& rest) {
    const std::size_t line = rest.substr(0, rest.find_first_of(LineEnds)).size();
    if (rest.front() == '!') {
        rest.remove_prefix(line);
        return true;
    }
    for (const Quotation& quotation : Quotations) {
        if (rest.starts_with(quotation.begin)) {
            const std::size_t end =
                rest.substr(0, line).find(quotation.end, quotation.begin.size());
            rest.remove_prefix(end == std::string_view::npos ? line : end + quotation.end.size());
            return true;
        }
    }
    return false;
}

} // namespace

bool ScriptNames(std::string_view script, std::string_view name) {
    const std::string wanted = Text::ToLower(name);
    while (!script.empty()) {
        if (SkipNoCode(script)) {
            continue;
        }
        std::size_t length = 0;
        while (length < script.size() && IsWordLetter(script[length])) {
            ++length;
        }
        if (length > 0 && Text::ToLower(script.substr(0, length)) == wanted) {
            return true;
        }
        script.remove_prefix(length > 0 ? length : 1);
    }
    return false;
}

} // namespace Merivane::Photometry
