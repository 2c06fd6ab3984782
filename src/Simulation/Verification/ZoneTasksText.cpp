#include "Simulation/Verification/ZoneTasksText.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <utility>
#include <vector>

#include "Simulation/Verification/TaskSearch.hpp"
#include "Text/Number.hpp"

namespace Merivane::Simulation {

namespace {

constexpr std::string_view CurrentHeader = "MerivaneZoneTasks 2";
constexpr std::string_view OlderHeader = "MerivaneZoneTasks 1"; // no standard, no screens
constexpr std::string_view BrazilianLine = "norma\tnbr";
constexpr std::string_view InternationalLine = "norma\tiso";

/// One field or line that must not break the form.
bool IsOneField(const std::string& text) {
    return text.find_first_of("\t\r\n") == std::string::npos;
}

// An entry that the reader refuses would cost the project the choices of all its other Zones.
bool CanBeStored(const std::string& key, const ZoneRequirement& requirement) {
    return !key.empty() && IsOneField(key) && IsOneField(requirement.taskId) &&
           std::isfinite(requirement.em) && std::isfinite(requirement.u0);
}

/// Takes what stands before the next `mark`, or all, off the front of `rest`.
std::string_view TakeUpTo(std::string_view& rest, char mark) {
    const std::size_t end = std::min(rest.find(mark), rest.size());
    const std::string_view taken = rest.substr(0, end);
    rest.remove_prefix(std::min(end + 1, rest.size()));
    return taken;
}

std::vector<std::string_view> SplitFields(std::string_view line) {
    std::vector<std::string_view> fields;
    std::size_t start = 0;
    for (std::size_t end = line.find('\t'); end != std::string_view::npos;
         end = line.find('\t', start)) {
        fields.push_back(line.substr(start, end - start));
        start = end + 1;
    }
    fields.push_back(line.substr(start));
    return fields;
}

bool ReadFinite(std::string_view text, double& value) {
    return Text::ReadEntireNumber(text, value) && std::isfinite(value);
}

std::int32_t KnownScreens(double number) {
    for (const std::int32_t screens : {ScreensNone, ScreensClass1And2, ScreensClass3}) {
        if (std::trunc(number) == screens) {
            return screens;
        }
    }
    return ScreensAutomatic;
}

bool ReadEntry(std::string_view line, ZoneRequirementMap& map) {
    const std::vector<std::string_view> fields = SplitFields(line);
    if (fields.size() < 4 || fields.size() > 5 || fields[0].empty()) {
        return false;
    }
    ZoneRequirement requirement;
    requirement.taskId = MigrateTaskId(fields[1]);
    if (!ReadFinite(fields[2], requirement.em) || !ReadFinite(fields[3], requirement.u0)) {
        return false;
    }
    if (fields.size() == 5) {
        double screens = 0.0;
        if (!ReadFinite(fields[4], screens)) {
            return false;
        }
        requirement.screens = KnownScreens(screens);
    }
    map.insert_or_assign(std::string(fields[0]), std::move(requirement));
    return true;
}

/// Takes the lines above the entries. False when they are not those of a known version.
bool TakeHead(std::string_view& rest, ReferenceStandard& standard) {
    const std::string_view header = TakeUpTo(rest, '\n');
    if (header != CurrentHeader) {
        return header == OlderHeader;
    }
    const std::string_view line = TakeUpTo(rest, '\n');
    if (line == InternationalLine) {
        standard = ReferenceStandard::International;
        return true;
    }
    return line == BrazilianLine;
}

} // namespace

std::string SerializeZoneTasks(const ZoneRequirementMap& map, ReferenceStandard standard) {
    std::string text(CurrentHeader);
    text += '\n';
    text += standard == ReferenceStandard::International ? InternationalLine : BrazilianLine;
    text += '\n';
    for (const auto& [key, requirement] : map) {
        if (CanBeStored(key, requirement)) {
            text += key + '\t' + requirement.taskId + '\t' + Text::FormatShortest(requirement.em) +
                    '\t' + Text::FormatShortest(requirement.u0) + '\t' +
                    std::to_string(requirement.screens) + '\n';
        }
    }
    return text;
}

bool ParseZoneTasks(std::string_view text, ZoneRequirementMap& map, ReferenceStandard& standard) {
    map.clear();
    standard = ReferenceStandard::Brazilian;
    ReferenceStandard readStandard = standard;
    ZoneRequirementMap entries;
    if (!TakeHead(text, readStandard)) {
        return false;
    }
    while (!text.empty()) {
        const std::string_view line = TakeUpTo(text, '\n');
        if (!line.empty() && !ReadEntry(line, entries)) {
            return false;
        }
    }
    map = std::move(entries);
    standard = readStandard;
    return true;
}

} // namespace Merivane::Simulation
