// The first byte chooses the reader: preference block, engine settings, last run, levels, the
// activities of Zones or corrected reflectances. Whatever the bytes, reading ends without a crash,
// and what is read is written so that it reads back.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "Simulation/EngineSettings.hpp"
#include "Simulation/LastRunRecord.hpp"
#include "Simulation/LevelList.hpp"
#include "Simulation/PreferenceBlock.hpp"
#include "Simulation/ReflectanceText.hpp"
#include "Simulation/Verification/ZoneTasksText.hpp"

using namespace Merivane::Simulation;

namespace {

void Require(bool holds) {
    if (!holds) {
        std::abort();
    }
}

void ReadPreferences(std::string_view bytes) {
    const PreferenceEntries entries = ParsePreferenceBlock(PreferenceBlockVersion, bytes);
    const std::string written = FormatPreferenceBlock(entries);
    Require(ParsePreferenceBlock(PreferenceBlockVersion, written) == entries);
}

void ReadEngineSettings(std::string_view bytes) {
    EngineSettings settings;
    if (!ParseEngineSettings(bytes, settings)) {
        Require(settings == ProfileSettings(1));
        return;
    }
    Require(NormaliseSettings(settings) == settings);
    EngineSettings back;
    Require(ParseEngineSettings(FormatEngineSettings(settings), back) && back == settings);
}

void ReadLastRun(std::string_view bytes) {
    const LastRunRecord record = ParseLastRun(bytes);
    if (record.valid) {
        Require(ParseLastRun(FormatLastRun(record)) == record);
    }
}

void ReadLevels(std::string_view bytes) {
    LevelList levels;
    std::string error;
    if (!ParseLevels(bytes, levels, error)) {
        Require(!error.empty());
        return;
    }
    LevelList back;
    Require(ParseLevels(FormatLevels(levels), back, error) && back == levels);
}

void ReadZoneTasks(std::string_view bytes) {
    ZoneRequirementMap map;
    ReferenceStandard standard = ReferenceStandard::International;
    if (!ParseZoneTasks(bytes, map, standard)) {
        Require(map.empty() && standard == ReferenceStandard::Brazilian);
        return;
    }
    // A line break of another system can stand inside a field that is read; it is never written.
    std::erase_if(map, [](const auto& entry) {
        return entry.first.find('\r') != std::string::npos ||
               entry.second.taskId.find('\r') != std::string::npos;
    });
    ZoneRequirementMap back;
    ReferenceStandard standardBack = ReferenceStandard::Brazilian;
    Require(ParseZoneTasks(SerializeZoneTasks(map, standard), back, standardBack));
    Require(back == map && standardBack == standard);
}

void ReadReflectances(std::string_view bytes) {
    ReflectanceStore store;
    if (!ParseReflectances(bytes, store)) {
        Require(store.empty());
        return;
    }
    // A key of an older text can hold a tab, or the line break of another system; neither is ever
    // written.
    std::erase_if(store, [](const auto& entry) {
        return entry.first.find_first_of("\t\r") != std::string::npos;
    });
    ReflectanceStore back;
    Require(ParseReflectances(FormatReflectances(store), back) && back == store);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) {
        return 0;
    }
    const std::string_view bytes(reinterpret_cast<const char*>(data) + 1, size - 1);
    switch (data[0]) {
    case 'p':
        ReadPreferences(bytes);
        break;
    case 'e':
        ReadEngineSettings(bytes);
        break;
    case 'r':
        ReadLastRun(bytes);
        break;
    case 'l':
        ReadLevels(bytes);
        break;
    case 't':
        ReadZoneTasks(bytes);
        break;
    case 'f':
        ReadReflectances(bytes);
        break;
    default:
        break;
    }
    return 0;
}
