#include "Workbench/Script/ScriptStatements.hpp"

#include <algorithm>
#include <cmath>
#include <limits>
#include <unordered_map>
#include <vector>

#include "Host/Model3D.hpp"
#include "Text/Number.hpp"

namespace Merivane::Workbench {

namespace {

const std::vector<const StatementEntry*>& AllStatements() {
    static const auto All = [] {
        std::vector<const StatementEntry*> entries;
        for (const auto table : {TransformStatements(), AttributeStatements(), PlanStatements(),
                                 PlanPolygonStatements(), ModelControlStatements(),
                                 ParameterStatements(), QuietStatements()}) {
            for (const StatementEntry& entry : table) {
                entries.push_back(&entry);
            }
        }
        return entries;
    }();
    return All;
}

} // namespace

std::int32_t FindStatement(std::string_view name) {
    static const auto Places = [] {
        std::unordered_map<std::string_view, std::int32_t> places;
        for (const StatementEntry* entry : AllStatements()) {
            places.emplace(entry->name, static_cast<std::int32_t>(places.size()));
        }
        return places;
    }();
    const auto found = Places.find(name);
    return found == Places.end() ? -1 : found->second;
}

const StatementEntry& StatementAt(std::int32_t index) {
    return *AllStatements()[static_cast<std::size_t>(index)];
}

std::int32_t WholeNumber(double number) {
    constexpr double highest = std::numeric_limits<std::int32_t>::max();
    constexpr double lowest = std::numeric_limits<std::int32_t>::min();
    return static_cast<std::int32_t>(std::clamp(std::round(number), lowest, highest));
}

bool NumberArgument(ScriptMachine& machine, std::size_t place, double& number, double fallback) {
    number = fallback;
    if (place >= machine.argumentCount) {
        return true;
    }
    const ScriptValue& value = machine.arguments[place];
    number = value.number;
    return !value.isText ||
           Fail(machine, "o argumento " + std::to_string(place + 1) + " deve ser um número");
}

bool IntegerArgument(ScriptMachine& machine, std::size_t place, std::int32_t& number,
                     std::int32_t fallback) {
    double value = 0.0;
    if (!NumberArgument(machine, place, value, fallback)) {
        return false;
    }
    number = WholeNumber(value);
    return true;
}

bool AllNumbers(ScriptMachine& machine, std::size_t first) {
    double number = 0.0;
    for (std::size_t i = first; i < machine.argumentCount; ++i) {
        if (!NumberArgument(machine, i, number)) {
            return false;
        }
    }
    return true;
}

std::string ShownValue(const ScriptValue& value) {
    if (value.isText) {
        return value.text;
    }
    constexpr double largestFixed = 1e15;
    if (!(std::abs(value.number) < largestFixed)) {
        return Text::FormatShortest(value.number);
    }
    constexpr int decimals = 6;
    std::string text = Text::FormatFixed(value.number, decimals);
    text.erase(text.find_last_not_of('0') + 1);
    if (text.back() == '.') {
        text.pop_back();
    }
    return text == "-0" ? "0" : text;
}

bool CountShape(ScriptMachine& machine, std::size_t vertices) {
    const ScriptLimits& limits = machine.environment->limits;
    ++machine.shapes;
    machine.vertices += vertices;
    return (machine.shapes <= limits.shapes && machine.vertices <= limits.vertices) ||
           Fail(machine, "o script desenha demais");
}

bool CountText(ScriptMachine& machine, std::size_t bytes) {
    constexpr std::size_t most = std::size_t{256} << 20U;
    machine.storedText += bytes > SmallText ? bytes : 0;
    return machine.storedText <= most || Fail(machine, "o script guarda texto demais");
}

std::int32_t MaterialNumber(const ScriptMachine& machine, const ScriptValue& material) {
    if (!material.isText) {
        const std::int32_t number = WholeNumber(material.number);
        const auto defined = static_cast<std::int64_t>(machine.model.model.surfaces.size());
        const std::int64_t place = number < 0 ? -std::int64_t{number} - 1
                                              : std::int64_t{number} - Host::FirstScriptSurface;
        if (place < 0) {
            return number;
        }
        return place < defined ? Host::FirstScriptSurface + static_cast<std::int32_t>(place) : 0;
    }
    const auto own = machine.materials.find(material.text);
    if (own != machine.materials.end()) {
        return own->second;
    }
    return AttributeNumber(machine, ScriptAttribute::Surface, material);
}

std::int32_t AttributeNumber(const ScriptMachine& machine, ScriptAttribute kind,
                             const ScriptValue& value) {
    if (!value.isText) {
        return std::max(0, WholeNumber(value.number));
    }
    const auto& find = machine.environment->findAttribute;
    return find ? find(kind, value.text) : 0;
}

} // namespace Merivane::Workbench
