#include "Program/ProfileForRun.hpp"

#include <utility>

#include "AddOn/RunLog/RunLog.hpp"
#include "Archicad/StoredSettings.hpp"
#include "Simulation/ReflectanceText.hpp"
#include "Workbench/PreferencesFile.hpp"
#include "Workbench/Session.hpp"

namespace Merivane::Program {

ProfileForRun::ProfileForRun(std::optional<std::uint32_t> profile) {
    if (!profile) {
        return;
    }
    held = true;
    Workbench::Session& session = Workbench::CurrentSession();
    file = std::exchange(session.options.preferencesFile, {});
    if (!file.empty()) {
        Workbench::LoadPreferences(file, session.preferences); // unreadable ones are none
    }
    Simulation::EngineSettings engine = Simulation::ProfileSettings(*profile);
    engine.maxProcesses = Archicad::LoadEngineSettings().maxProcesses; // the machine's, not its
    Commands::CheckError("Escolher o perfil do motor", Archicad::SaveEngineSettings(engine));
}

ProfileForRun::~ProfileForRun() {
    if (!held) {
        return;
    }
    const Simulation::LastRunRecord lastRun = Archicad::LoadLastRun();
    const Simulation::ReflectanceStore reflectances = Archicad::LoadReflectances();
    Workbench::CurrentSession().options.preferencesFile = file;
    if (lastRun != Archicad::LoadLastRun()) {
        Commands::CheckError("Guardar a duracao do calculo", Archicad::SaveLastRun(lastRun));
    }
    if (Simulation::FormatReflectances(reflectances) !=
        Simulation::FormatReflectances(Archicad::LoadReflectances())) {
        Commands::CheckError("Guardar as refletancias corrigidas",
                             Archicad::SaveReflectances(reflectances));
    }
}

} // namespace Merivane::Program
