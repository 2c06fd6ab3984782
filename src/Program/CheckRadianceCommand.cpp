#include "AddOn/RunLog/RunLog.hpp"
#include "Archicad/AddOnFolder.hpp"
#include "Program/Commands.hpp"
#include "Program/Interrupt.hpp"
#include "Program/Message.hpp"
#include "Program/WorkFolder.hpp"
#include "Radiance/Installation.hpp"
#include "Simulation/Run/InstallationReport.hpp"
#include "Simulation/Run/SelfTest.hpp"

namespace Merivane::Program {

namespace {

void TellBox(std::string_view title, std::string_view text) {
    TellLine("");
    TellLine(title);
    TellLine(text);
}

} // namespace

int CheckRadianceCommand(const CheckRadianceArguments& /*arguments*/) {
    Commands::BeginLog("Verificar instalacao do Radiance");
    CatchInterrupts();
    const Radiance::Installation installation = Radiance::FindInstallation(Archicad::AddOnFolder());
    Simulation::SelfTestResult test;
    if (installation.complete) {
        WorkFolder folder;
        std::string error;
        if (!OpenSharedWorkFolder("teste_radiance", folder, error)) {
            TellError(error);
            return StatusFailed;
        }
        test = Simulation::RadianceSelfTest(installation, folder.path, Interrupted);
        RemoveWorkFolder(folder);
        Commands::ReportLine(Simulation::TestLogLine(test));
    }
    if (Interrupted()) {
        TellError("verificação cancelada");
        return StatusCancelled;
    }
    TellLine(Simulation::VerdictLine(installation, test));
    TellBox("Instalação", Simulation::InstallationText(installation));
    if (!installation.binFolder.empty()) {
        TellBox("Programas", Simulation::ToolsText(installation));
        TellBox("Teste", Simulation::TestText(installation, test));
    }
    return test.passed ? StatusDone : StatusFailed;
}

} // namespace Merivane::Program
