#include "AddOn/Commands/CheckRadianceInstallation.hpp"

#include <string>

#include "AddOn/DarkModeIcon.hpp"
#include "AddOn/Entry/ResourceIds.hpp"
#include "AddOn/RunLog/RunLog.hpp"
#include "Archicad/AddOnFolder.hpp"
#include "Host/Dialog.hpp"
#include "Host/Session.hpp"
#include "Radiance/Installation.hpp"
#include "Simulation/Run/InstallationReport.hpp"
#include "Simulation/Run/SelfTest.hpp"

namespace Merivane::Diagnostics {

namespace {

namespace Item = ResourceIds::RadianceCheck;

Simulation::SelfTestResult RunSelfTest(const Radiance::Installation& installation) {
    std::wstring temporary;
    Simulation::SelfTestResult test;
    if (Host::GetTemporaryFolder(temporary) != Host::NoError) {
        test.message = "a pasta temporária do sistema não foi encontrada";
    } else {
        test =
            Simulation::RadianceSelfTest(installation, temporary + L"/Vantoro/teste_radiance", [] {
                return Host::CheckProcessCancelled() == Host::Cancelled;
            });
    }
    Commands::ReportLine(Simulation::TestLogLine(test));
    return test;
}

class RadianceCheckDialog {
public:
    void Invoke() {
        Host::DialogEvents events;
        events.opened = [this](Host::DialogId opened) {
            dialog = opened;
            DarkModeIcon(dialog);
            Check();
        };
        events.buttonClicked = [this](Host::DialogId, std::int16_t item) { Click(item); };
        bool accepted = false;
        Commands::CheckError("Verificar instalacao do Radiance",
                             Host::RunDialog(Item::Dialog, events, accepted));
    }

private:
    void Click(std::int16_t item) {
        switch (item) {
        case Item::Close:
            Host::CloseDialog(dialog, true);
            break;
        case Item::TestAgain:
            Check();
            break;
        case Item::OpenFolder:
            Commands::CheckError("Abrir pasta", Host::OpenFolder(KnownFolder()));
            break;
        default:
            break;
        }
    }

    /// Looks for the programs and lets them calculate where all are there.
    void Check() {
        installation = Radiance::FindInstallation(Archicad::AddOnFolder());
        ShowInstallation();
        const Simulation::SelfTestResult test =
            installation.complete ? RunSelfTest(installation) : Simulation::SelfTestResult{};
        Host::SetItemText(dialog, Item::TestBox, Simulation::TestText(installation, test));
        Host::SetItemText(dialog, Item::Verdict, Simulation::VerdictLine(installation, test));
    }

    void ShowInstallation() const {
        Host::SetItemText(dialog, Item::InstallationBox,
                          Simulation::InstallationText(installation));
        Host::SetItemText(dialog, Item::ToolsBox, Simulation::ToolsText(installation));
        Host::EnableItem(dialog, Item::TestAgain, installation.complete);
        Host::EnableItem(dialog, Item::OpenFolder, !KnownFolder().empty());
    }

    const std::wstring& KnownFolder() const {
        return installation.binFolder.empty() ? installation.libFolder : installation.binFolder;
    }

    Host::DialogId dialog = 0;
    Radiance::Installation installation;
};

} // namespace

void CheckRadianceInstallation() {
    Commands::BeginLog("Verificar instalacao do Radiance");
    RadianceCheckDialog().Invoke();
}

} // namespace Merivane::Diagnostics
