#include "AddOn/Commands/ConfigureEngine.hpp"

#include <cmath>
#include <cstdint>

#include "AddOn/DarkModeIcon.hpp"
#include "AddOn/Entry/ResourceIds.hpp"
#include "AddOn/RunLog/RunLog.hpp"
#include "Archicad/StoredSettings.hpp"
#include "Host/Dialog.hpp"
#include "Simulation/EngineDialogTexts.hpp"
#include "Simulation/EngineSettings.hpp"
#include "Simulation/LastRunRecord.hpp"

namespace Merivane::Commands {

namespace {

namespace Item = ResourceIds::Engine;

constexpr std::uint32_t ProjectProfile = 1;
constexpr std::uint32_t CustomProfile = 3;

/// Where the items below the advanced block stand, and how high the dialog is [pixels].
struct LowerLayout {
    std::int16_t warningsTop = 0;
    std::int16_t buttonsTop = 0;
    std::int16_t clientHeight = 0;
};

constexpr LowerLayout WithAdvanced = {456, 510, 544};
constexpr LowerLayout WithoutAdvanced = {196, 250, 284};

class EngineDialog {
public:
    EngineDialog(const Simulation::EngineSettings& stored, const Simulation::LastRunRecord& run)
        : settings(stored), lastRun(run) {}

    /// True when the user accepted; `Settings` are then what was chosen.
    bool Invoke() {
        Host::DialogEvents events;
        events.opened = [this](Host::DialogId opened) { Open(opened); };
        events.buttonClicked = [this](Host::DialogId, std::int16_t item) { Click(item); };
        events.changed = [this](Host::DialogId, std::int16_t item) { Change(item); };
        bool accepted = false;
        CheckError("Configuracoes do motor", Host::RunDialog(Item::Dialog, events, accepted));
        return accepted;
    }

    const Simulation::EngineSettings& Settings() const { return settings; }

private:
    void Open(Host::DialogId opened) {
        dialog = opened;
        settings.profile = Simulation::DetectProfile(settings);
        lastProfile = settings.profile == CustomProfile ? ProjectProfile : settings.profile;
        for (std::uint32_t profile = 0; profile <= CustomProfile; ++profile) {
            Host::AppendEntry(dialog, Item::Profile, Simulation::ProfileName(profile));
        }
        Host::SetItemChecked(dialog, Item::ShowAdvanced, settings.profile == CustomProfile);
        DarkModeIcon(dialog);
        LayOut();
        Refresh();
    }

    void Click(std::int16_t item) {
        switch (item) {
        case Item::BackToProfile:
            TakeProfile(lastProfile);
            break;
        case Item::Accept:
            ReadNumbers();
            Host::CloseDialog(dialog, true);
            break;
        case Item::Cancel:
            Host::CloseDialog(dialog, false);
            break;
        default:
            break;
        }
    }

    void Change(std::int16_t item) {
        if (item == Item::Profile) {
            ChooseProfile(static_cast<std::uint32_t>(Host::SelectedEntry(dialog, item) - 1));
        } else if (item == Item::ShowAdvanced) {
            LayOut();
        } else {
            ReadNumbers();
        }
    }

    void ChooseProfile(std::uint32_t profile) {
        if (profile < CustomProfile) {
            lastProfile = profile;
            TakeProfile(profile);
            return;
        }
        // Custom numbers come from editing them alone: this only shows where.
        settings.profile = Simulation::DetectProfile(settings);
        Host::SetItemChecked(dialog, Item::ShowAdvanced, true);
        LayOut();
        Refresh();
    }

    void TakeProfile(std::uint32_t profile) {
        const std::int32_t maxProcesses = settings.maxProcesses;
        settings = Simulation::ProfileSettings(profile);
        settings.maxProcesses = maxProcesses;
        Refresh();
    }

    std::int32_t IntegerOf(std::int16_t item) const {
        return static_cast<std::int32_t>(std::lround(Host::ItemNumber(dialog, item)));
    }

    void ReadNumbers() {
        settings.bounces = IntegerOf(Item::Bounces);
        settings.divisions = IntegerOf(Item::Divisions);
        settings.supersamples = IntegerOf(Item::Supersamples);
        settings.resolution = IntegerOf(Item::Resolution);
        settings.accuracy = Host::ItemNumber(dialog, Item::Accuracy);
        settings.limitWeight = Host::ItemNumber(dialog, Item::LimitWeight);
        settings.maxProcesses = IntegerOf(Item::MaxProcesses);
        settings = Simulation::NormaliseSettings(settings);
        settings.profile = Simulation::DetectProfile(settings);
        Refresh();
    }

    void Refresh() const {
        Host::SelectEntry(dialog, Item::Profile, static_cast<std::int16_t>(settings.profile + 1));
        Host::SetItemText(dialog, Item::Description,
                          Simulation::ProfileDescription(settings.profile));
        Host::SetItemNumber(dialog, Item::Bounces, settings.bounces);
        Host::SetItemNumber(dialog, Item::Divisions, settings.divisions);
        Host::SetItemNumber(dialog, Item::Supersamples, settings.supersamples);
        Host::SetItemNumber(dialog, Item::Resolution, settings.resolution);
        Host::SetItemNumber(dialog, Item::Accuracy, settings.accuracy);
        Host::SetItemNumber(dialog, Item::LimitWeight, settings.limitWeight);
        Host::SetItemNumber(dialog, Item::MaxProcesses, settings.maxProcesses);
        Host::EnableItem(dialog, Item::BackToProfile, settings.profile == CustomProfile);
        Host::SetItemText(dialog, Item::TimeLine, Simulation::EngineTimeLine(settings, lastRun));
        Host::SetItemText(dialog, Item::Warnings, Simulation::EngineWarningsText(settings));
    }

    /// Folds the advanced block in or out, and what stands below it up or down.
    void LayOut() const {
        const bool advanced = Host::IsItemChecked(dialog, Item::ShowAdvanced);
        Host::ShowItem(dialog, Item::AdvancedBox, advanced);
        for (std::int16_t item = Item::FirstAdvanced; item <= Item::LastAdvanced; ++item) {
            Host::ShowItem(dialog, item, advanced);
        }
        const LowerLayout& layout = advanced ? WithAdvanced : WithoutAdvanced;
        MoveTo(Item::Warnings, layout.warningsTop);
        for (const std::int16_t button : {Item::BackToProfile, Item::Accept, Item::Cancel}) {
            MoveTo(button, layout.buttonsTop);
        }
        std::int16_t width = 0;
        std::int16_t height = 0;
        Host::GetClientSize(dialog, width, height);
        Host::SetClientSize(dialog, width, layout.clientHeight);
    }

    void MoveTo(std::int16_t item, std::int16_t top) const {
        std::int16_t x = 0;
        std::int16_t y = 0;
        Host::GetItemPosition(dialog, item, x, y);
        Host::MoveItem(dialog, item, x, top);
    }

    Host::DialogId dialog = 0;
    Simulation::EngineSettings settings;
    Simulation::LastRunRecord lastRun;
    std::uint32_t lastProfile = ProjectProfile; ///< what "Voltar ao perfil" goes back to
};

} // namespace

void ConfigureEngine() {
    BeginLog("Configuracoes do motor de simulacao");
    EditEngineSettings();
}

void EditEngineSettings() {
    EngineDialog dialog(Archicad::LoadEngineSettings(), Archicad::LoadLastRun());
    if (!dialog.Invoke()) {
        return;
    }
    if (CheckError("Guardar as configuracoes do motor",
                   Archicad::SaveEngineSettings(dialog.Settings())) != Host::NoError) {
        Alert("As configuracoes do motor nao puderam ser guardadas.");
        return;
    }
    ReportLine("Motor: " + Simulation::EngineSummary(dialog.Settings()));
}

} // namespace Merivane::Commands
