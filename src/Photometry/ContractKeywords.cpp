#include "Photometry/ContractKeywords.hpp"

#include <algorithm>
#include <cstddef>
#include <string_view>

#include "Text/Utf8.hpp"

namespace Merivane::Photometry {

namespace {

constexpr std::size_t Longest = LongestContractText;
constexpr std::string_view MoreKey = "MORE";
constexpr std::string_view MorePrefix = "[MORE] ";
constexpr std::string_view OtherKey = "OTHER";
constexpr std::size_t RoomBehindMore = Longest - MorePrefix.size();

// "[", "] " and one character of four bytes: with a longer key no piece would get on.
constexpr std::size_t LongestKey = Longest - 3 - 4;

std::string PrefixOf(std::string_view key) {
    return "[" + Text::TruncateUtf8(key, LongestKey) + "] ";
}

/// Appends `line` in pieces: the first of an entry, where `pieces` is empty, of at most `room`
/// bytes and the others so short that MORE fits before them as well. An empty line is one empty
/// piece.
void AppendPieces(std::string_view line, std::size_t room, std::vector<std::string>& pieces) {
    do {
        const std::size_t most = pieces.empty() ? room : std::min(room, RoomBehindMore);
        pieces.push_back(Text::TruncateUtf8(line, most));
        line.remove_prefix(pieces.back().size());
    } while (!line.empty());
}

void AppendEntry(std::string_view key, std::string_view value, std::vector<std::string>& texts) {
    const std::string prefix = PrefixOf(key);
    std::vector<std::string> pieces;
    std::size_t end = value.find('\n');
    AppendPieces(value.substr(0, end), Longest - prefix.size(), pieces);
    while (end != std::string_view::npos) {
        value.remove_prefix(end + 1);
        end = value.find('\n');
        AppendPieces(value.substr(0, end), RoomBehindMore, pieces);
    }
    for (std::size_t i = 0; i < pieces.size(); ++i) {
        texts.push_back((i == 0 ? prefix : std::string(MorePrefix)) + pieces[i]);
    }
}

} // namespace

std::vector<std::string> PackIesKeywords(const IesFile& file) {
    std::vector<std::string> texts;
    for (const auto& [key, value] : file.keywords) {
        AppendEntry(key, value, texts);
    }
    for (const std::string& line : file.otherLines) {
        AppendEntry(OtherKey, line, texts);
    }
    if (texts.empty()) {
        texts.emplace_back();
    }
    return texts;
}

std::vector<std::pair<std::string, std::string>>
UnpackIesKeywords(const std::vector<std::string>& texts) {
    std::vector<std::pair<std::string, std::string>> keywords;
    for (const std::string_view text : texts) {
        const std::size_t bracket = text.find(']');
        if (!text.starts_with('[') || bracket == std::string_view::npos) {
            continue;
        }
        const std::string_view key = text.substr(1, bracket - 1);
        std::string_view value = text.substr(bracket + 1);
        if (value.starts_with(' ')) {
            value.remove_prefix(1);
        }
        if (key == MoreKey && !keywords.empty()) {
            keywords.back().second += '\n';
            keywords.back().second += value;
        } else {
            keywords.emplace_back(key, value);
        }
    }
    return keywords;
}

} // namespace Merivane::Photometry
