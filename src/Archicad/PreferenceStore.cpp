#include "Archicad/PreferenceStore.hpp"

#include <cstdint>

#include "Host/Storage.hpp"
#include "Simulation/PreferenceBlock.hpp"

namespace Merivane::Archicad {

namespace {

Host::ErrorCode ReadEntries(Simulation::PreferenceEntries& entries) {
    std::int32_t version = 0;
    std::string block;
    const Host::ErrorCode code = Host::GetPreferences(version, block);
    if (code == Host::NoError) {
        entries = Simulation::ParsePreferenceBlock(version, block);
    }
    return code;
}

} // namespace

Host::ErrorCode ReadPreference(std::string_view key, std::string& value) {
    Simulation::PreferenceEntries entries;
    const Host::ErrorCode code = ReadEntries(entries);
    value = Simulation::PreferenceValue(entries, key);
    return code;
}

Host::ErrorCode WritePreference(std::string_view key, std::string_view value) {
    Simulation::PreferenceEntries entries;
    if (const Host::ErrorCode code = ReadEntries(entries)) {
        return code;
    }
    entries[std::string(key)] = value;
    return Host::SetPreferences(Simulation::PreferenceBlockVersion,
                                Simulation::FormatPreferenceBlock(entries));
}

} // namespace Merivane::Archicad
