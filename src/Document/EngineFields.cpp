#include <algorithm>

#include "Document/SceneFields.hpp"

namespace Merivane::Document {

bool ReadEngine(const Place& place, Simulation::EngineSettings& engine, std::string& error) {
    // The profile is what the numbers beside it change, wherever it stands in the object.
    const Catalog::JsonValue* profileValue = place.value->Find("perfil");
    std::size_t profile = 1;
    const FieldReader readProfile = IntoChoice(profile, {"rapido", "projeto", "final"});
    if (profileValue != nullptr && !readProfile(Place{profileValue, &place, "perfil", 0}, error)) {
        return false;
    }
    engine = Simulation::ProfileSettings(static_cast<std::uint32_t>(profile));
    if (!ReadObject(place,
                    {Optional("perfil", readProfile),
                     Optional("reflexoes", Into(engine.bounces, {0.0, 8.0})),
                     Optional("raios", Into(engine.divisions, {64.0, 8192.0})),
                     Optional("raiosExtras", Into(engine.supersamples, {0.0, 4096.0})),
                     Optional("resolucao", Into(engine.resolution, {16.0, 1024.0})),
                     Optional("tolerancia", Into(engine.accuracy, {0.05, 0.5})),
                     Optional("limite", Into(engine.limitWeight, {0.0001, 0.05})),
                     Optional("processos", Into(engine.maxProcesses, {0.0, 64.0}))},
                    error)) {
        return false;
    }
    engine.profile = Simulation::DetectProfile(engine);
    return true;
}

bool ReadLevels(const Place& place, Simulation::LevelList& levels, std::string& error) {
    const auto readLevel = [](const Place& item, double& level, std::string& text) {
        return Into(level, NumberRange{0.001, 1000000.0})(item, text);
    };
    if (!IntoList(levels, {1, 100, "números"}, readLevel)(place, error)) {
        return false;
    }
    std::sort(levels.begin(), levels.end());
    levels.erase(std::unique(levels.begin(), levels.end()), levels.end());
    return true;
}

} // namespace Merivane::Document
