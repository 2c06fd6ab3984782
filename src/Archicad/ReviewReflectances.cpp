#include "Archicad/ReviewReflectances.hpp"

#include <utility>

#include "AddOn/RunLog/RunLog.hpp"
#include "Archicad/StoredSettings.hpp"
#include "Simulation/SceneMaterials.hpp"

namespace Merivane::Archicad {

namespace {

using Simulation::SurfaceReflectance;

/// What was remembered before.
struct Memory {
    Simulation::ReflectanceStore store;
    bool wasRead = false;
};

bool Edit(std::vector<SurfaceReflectance>& records, Memory& memory,
          const ReflectanceDialog& showDialog) {
    std::vector<SurfaceReflectance> edited = records;
    bool remember = true;
    if (!showDialog(edited, remember)) {
        return false;
    }
    records = std::move(edited);
    if (remember && memory.wasRead) { // else what stands there would be lost
        Simulation::MergeIntoStore(records, memory.store);
        Commands::CheckError("Guardar as refletancias corrigidas", SaveReflectances(memory.store));
    }
    return true;
}

} // namespace

bool ReviewReflectances(std::vector<SurfaceReflectance>& records,
                        const Simulation::CalculationSettings& settings,
                        const ReflectanceDialog& showDialog,
                        std::vector<Simulation::SceneMaterial>& materials,
                        std::vector<std::string>& logLines) {
    Memory memory;
    memory.wasRead = Commands::CheckError("Ler as refletancias corrigidas",
                                          LoadReflectances(memory.store)) == Host::NoError;
    Simulation::ApplyStored(records, memory.store);
    if (settings.reviewReflectances && !records.empty() && !Edit(records, memory, showDialog)) {
        return false;
    }
    materials = Simulation::BuildSceneMaterials(records, settings.colouredReflection);
    for (const SurfaceReflectance& record : records) {
        logLines.push_back(Simulation::ReflectanceLogLine(record));
    }
    return true;
}

} // namespace Merivane::Archicad
