#include "Photometry/InertHeader.hpp"

#include <algorithm>
#include <string_view>

namespace Merivane::Photometry {

namespace {

constexpr std::string_view GeometryKey = "LUMINOUSGEOMETRY";

// `ies2rad` reads lines into 256 bytes. What stands around the text in its line, "[OTHER] " and the
// end, fits into the difference.
constexpr std::size_t LongestText = 240;

bool HasLongLine(std::string_view key, std::string_view value) {
    std::size_t begin = 0;
    while (begin <= value.size()) {
        const std::size_t end = std::min(value.find('\n', begin), value.size());
        if (key.size() + (end - begin) > LongestText) {
            return true;
        }
        begin = end + 1;
    }
    return false;
}

} // namespace

IesFile WithInertHeader(const IesFile& file, std::string& warning) {
    warning.clear();
    const std::string geometry = FindKeyword(file, GeometryKey);
    if (!geometry.empty()) {
        warning = "a geometria do arquivo " + geometry +
                  " ([LUMINOUSGEOMETRY]) não é lida e vale a abertura luminosa do próprio IES";
    }
    IesFile inert = file;
    std::erase_if(inert.keywords, [](const auto& entry) {
        return entry.first == GeometryKey || HasLongLine(entry.first, entry.second);
    });
    std::erase_if(inert.otherLines,
                  [](const std::string& line) { return line.size() > LongestText; });
    return inert;
}

} // namespace Merivane::Photometry
