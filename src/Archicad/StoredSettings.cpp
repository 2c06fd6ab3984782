#include "Archicad/StoredSettings.hpp"

#include <string>
#include <string_view>

#include "Archicad/PreferenceStore.hpp"
#include "Simulation/ReflectanceText.hpp"

namespace Merivane::Archicad {

namespace {

// A value that the host does not give is one that is not there.
std::string ValueOf(std::string_view key) {
    std::string value;
    ReadPreference(key, value);
    return value;
}

} // namespace

Simulation::EngineSettings LoadEngineSettings() {
    Simulation::EngineSettings settings; // "Projeto" also where there is nothing to read
    Simulation::ParseEngineSettings(ValueOf(Simulation::EngineSettingsKey), settings);
    return settings;
}

Host::ErrorCode SaveEngineSettings(const Simulation::EngineSettings& settings) {
    return WritePreference(Simulation::EngineSettingsKey,
                           Simulation::FormatEngineSettings(settings));
}

Simulation::LastRunRecord LoadLastRun() {
    return Simulation::ParseLastRun(ValueOf(Simulation::LastRunKey));
}

Host::ErrorCode SaveLastRun(const Simulation::LastRunRecord& record) {
    return WritePreference(Simulation::LastRunKey, Simulation::FormatLastRun(record));
}

Simulation::ReflectanceStore LoadReflectances() {
    Simulation::ReflectanceStore store;
    LoadReflectances(store);
    return store;
}

Host::ErrorCode LoadReflectances(Simulation::ReflectanceStore& store) {
    std::string text;
    const Host::ErrorCode code = ReadPreference(Simulation::ReflectancesKey, text);
    Simulation::ParseReflectances(text, store); // what can't be read leaves it empty
    return code;
}

Host::ErrorCode SaveReflectances(const Simulation::ReflectanceStore& store) {
    return WritePreference(Simulation::ReflectancesKey, Simulation::FormatReflectances(store));
}

Photometry::UserSymbols LoadUserSymbols() {
    Photometry::UserSymbols symbols;
    LoadUserSymbols(symbols);
    return symbols;
}

Host::ErrorCode LoadUserSymbols(Photometry::UserSymbols& symbols) {
    std::string text;
    const Host::ErrorCode code = ReadPreference(Photometry::UserSymbolsKey, text);
    symbols = Photometry::ParseUserSymbols(text);
    return code;
}

Host::ErrorCode SaveUserSymbols(const Photometry::UserSymbols& symbols) {
    return WritePreference(Photometry::UserSymbolsKey, Photometry::FormatUserSymbols(symbols));
}

} // namespace Merivane::Archicad
