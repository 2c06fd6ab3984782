#include "Radiance/RtraceShares.hpp"

#include <algorithm>

namespace Merivane::Radiance {

namespace {

constexpr std::uint64_t PointsPerProcess = 150;
constexpr std::uint64_t FreeProcessors = 2;
constexpr std::uint64_t MostProcesses = 64;

constexpr std::size_t SeedLines = 100;

void AppendLine(std::string& text, std::string_view line) {
    text += line;
    text += '\n';
}

} // namespace

std::int32_t ProcessCountFor(std::uint64_t points, std::uint32_t logicalProcessors) {
    const std::uint64_t byPoints = std::max<std::uint64_t>(points / PointsPerProcess, 1);
    const std::uint64_t byProcessors =
        logicalProcessors > FreeProcessors ? logicalProcessors - FreeProcessors : 1;
    return static_cast<std::int32_t>(std::min({byPoints, byProcessors, MostProcesses}));
}

std::vector<std::string_view> NonEmptyLines(std::string_view text) {
    std::vector<std::string_view> lines;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        std::string_view line = text.substr(0, end);
        if (line.ends_with('\r')) {
            line.remove_suffix(1);
        }
        if (!line.empty()) {
            lines.push_back(line);
        }
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return lines;
}

std::string SeedPoints(std::string_view sensorsText) {
    const std::vector<std::string_view> lines = NonEmptyLines(sensorsText);
    const std::size_t step = std::clamp<std::size_t>(lines.size() / SeedLines, 2, 24);
    std::string text;
    for (std::size_t i = 0; i < lines.size(); i += step) {
        AppendLine(text, lines[i]);
    }
    return text;
}

std::vector<std::string> SplitPoints(std::string_view sensorsText, std::int32_t count) {
    const std::vector<std::string_view> lines = NonEmptyLines(sensorsText);
    const std::size_t shareCount = count > 0 ? static_cast<std::size_t>(count) : 0;
    std::vector<std::string> shares(shareCount);
    for (std::size_t i = 0; i < shareCount; ++i) {
        const std::size_t end = lines.size() * (i + 1) / shareCount;
        for (std::size_t line = lines.size() * i / shareCount; line < end; ++line) {
            AppendLine(shares[i], lines[line]);
        }
    }
    return shares;
}

} // namespace Merivane::Radiance
