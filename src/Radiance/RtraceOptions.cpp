#include "Radiance/RtraceOptions.hpp"

#include <algorithm>
#include <array>
#include <cstddef>
#include <initializer_list>

#include "Text/Number.hpp"

namespace Merivane::Radiance {

namespace {

using Arguments = std::vector<std::string>;
using Simulation::EngineSettings;
using Simulation::SimulationOptions;

// What `quality` 0, 1 and 2 stand for.
constexpr std::array<EngineSettings, 3> QualityTable = {{
    {.bounces = 1,
     .divisions = 512,
     .supersamples = 128,
     .resolution = 64,
     .accuracy = 0.25,
     .limitWeight = 0.005},
    {.bounces = 2,
     .divisions = 1024,
     .supersamples = 512,
     .resolution = 256,
     .accuracy = 0.15,
     .limitWeight = 0.002},
    {.bounces = 3,
     .divisions = 2048,
     .supersamples = 1024,
     .resolution = 512,
     .accuracy = 0.1,
     .limitWeight = 0.0005},
}};

void AppendAmbient(Arguments& arguments, const EngineSettings& engine) {
    arguments.insert(arguments.end(), {"-ab", std::to_string(engine.bounces)});
    arguments.insert(arguments.end(), {"-ad", std::to_string(engine.divisions)});
    arguments.insert(arguments.end(), {"-as", std::to_string(engine.supersamples)});
    arguments.insert(arguments.end(), {"-ar", std::to_string(engine.resolution)});
    arguments.insert(arguments.end(), {"-aa", Text::FormatGeneral(engine.accuracy)});
    arguments.insert(arguments.end(), {"-lw", Text::FormatGeneral(engine.limitWeight)});
}

void InsertBeforeLast(Arguments& arguments, std::initializer_list<std::string> entries) {
    arguments.insert(arguments.empty() ? arguments.end() : arguments.end() - 1, entries);
}

// The entry behind "-ab", or the end where there is none.
template <typename List> auto FindReflections(List& arguments) {
    auto found = std::find(arguments.begin(), arguments.end(), "-ab");
    return found == arguments.end() ? found : found + 1;
}

} // namespace

Arguments RtraceOptions(const SimulationOptions& options) {
    Arguments arguments = {"-h", "-I+", "-dj", "0", "-lr", "8"};
    if (options.useEngineSettings) {
        AppendAmbient(arguments, Simulation::NormaliseSettings(options.engine));
    } else if (options.quality < QualityTable.size()) {
        AppendAmbient(arguments, QualityTable[options.quality]);
    }
    if (options.repeatable) {
        arguments.emplace_back("-u-");
    }
    arguments.emplace_back(OctreeName);
    return arguments;
}

Arguments WithLineFlush(Arguments arguments) {
    InsertBeforeLast(arguments, {"-x", "1"});
    return arguments;
}

Arguments WithAmbientFile(const SimulationOptions& options, const std::string& ambientFile) {
    Arguments arguments = WithLineFlush(RtraceOptions(options));
    InsertBeforeLast(arguments, {"-af", ambientFile});
    return arguments;
}

Arguments WithoutReflections(Arguments arguments) {
    const auto reflections = FindReflections(arguments);
    if (reflections != arguments.end()) {
        *reflections = "0";
    }
    return arguments;
}

std::int32_t ReflectionCount(const SimulationOptions& options) {
    const Arguments arguments = RtraceOptions(options);
    const auto reflections = FindReflections(arguments);
    double count = 0.0;
    if (reflections != arguments.end()) {
        Text::ReadEntireNumber(*reflections, count);
    }
    return static_cast<std::int32_t>(count);
}

} // namespace Merivane::Radiance
