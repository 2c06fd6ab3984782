#include "AddOn/Commands/CalculationDialog.hpp"

#include <utility>

#include "AddOn/AddOnState.hpp"
#include "AddOn/Commands/ConfigureEngine.hpp"
#include "AddOn/DarkModeIcon.hpp"
#include "AddOn/Entry/ResourceIds.hpp"
#include "AddOn/RunLog/RunLog.hpp"
#include "Archicad/StoredSettings.hpp"
#include "Simulation/ColorScale.hpp"
#include "Simulation/EngineSettings.hpp"
#include "Simulation/LevelList.hpp"

namespace Merivane {

namespace {

namespace Item = ResourceIds::Calculation;

using Simulation::CalculationSettings;

/// An item and what it stands for.
template <typename Value> struct ItemField {
    std::int16_t item = 0;
    Value CalculationSettings::*field = nullptr;
};

constexpr ItemField<double> Lengths[] = {
    {Item::WorkPlaneHeight, &CalculationSettings::workPlaneHeight},
    {Item::WallOffset, &CalculationSettings::wallOffset},
    {Item::BorderBand, &CalculationSettings::borderBand},
    {Item::ValueSpacing, &CalculationSettings::valueSpacing},
};

constexpr ItemField<bool> Choices[] = {
    {Item::ReviewReflectances, &CalculationSettings::reviewReflectances},
    {Item::ColouredReflection, &CalculationSettings::colouredReflection},
    {Item::Verify, &CalculationSettings::verify},
    {Item::PlaneFacesViewer, &CalculationSettings::planeFacesViewer},
    {Item::Surfaces, &CalculationSettings::surfaces},
    {Item::Ugr, &CalculationSettings::ugr},
    {Item::Fills, &CalculationSettings::fills},
    {Item::Model3D, &CalculationSettings::model3D},
    {Item::Legend, &CalculationSettings::legend},
    {Item::Curves, &CalculationSettings::curves},
    {Item::CurveLabels, &CalculationSettings::curveLabels},
    {Item::Values, &CalculationSettings::values},
};

/// Asks for what no calculation does so far.
constexpr std::int16_t UnusedItems[] = {Item::PlaneFacesViewer, Item::Model3D};

/// Means nothing on a vertical plane or on walls.
constexpr std::int16_t PlanItems[] = {Item::WorkPlaneHeight, Item::BorderBand,
                                      Item::PlaneFacesViewer, Item::Verify, Item::Ugr};

constexpr const char* WallsTitle = "Vantoro: calcular paredes (Elevacao Interior ativa)";
constexpr const char* SectionTitle = "Vantoro: calcular plano vertical (corte ativo)";

} // namespace

CalculationDialog::CalculationDialog(std::string text, bool onSection, bool onWalls)
    : summaryText(std::move(text)), section(onSection), walls(onWalls),
      settings(CurrentAddOnState().calculation) {}

bool CalculationDialog::Invoke() {
    Host::DialogEvents events;
    events.opened = [this](Host::DialogId opened) { Open(opened); };
    events.buttonClicked = [this](Host::DialogId, std::int16_t item) { Click(item); };
    bool accepted = false;
    Commands::CheckError("Dialogo do calculo", Host::RunDialog(Item::Dialog, events, accepted));
    return accepted;
}

void CalculationDialog::Open(Host::DialogId opened) {
    dialog = opened;
    if (walls || section) {
        Host::SetDialogTitle(dialog, walls ? WallsTitle : SectionTitle);
    }
    Fill();
    GreyUnusedItems();
    DarkModeIcon(dialog);
}

void CalculationDialog::Fill() const {
    Host::SetItemText(dialog, Item::Summary, summaryText);
    for (const auto& [item, field] : Lengths) {
        Host::SetItemNumber(dialog, item, settings.*field);
    }
    for (const auto& [item, field] : Choices) {
        Host::SetItemChecked(dialog, item, settings.*field);
    }
    for (std::uint32_t scale = 0; scale < Simulation::ColorScaleCount; ++scale) {
        Host::AppendEntry(dialog, Item::ColorScale, Simulation::ColorScaleName(scale));
    }
    Host::SelectEntry(dialog, Item::ColorScale, static_cast<std::int16_t>(settings.colorScale + 1));
    Host::SetItemText(dialog, Item::Levels, Simulation::FormatLevels(settings.levels));
    ShowEngine();
}

void CalculationDialog::GreyUnusedItems() const {
    for (const std::int16_t item : UnusedItems) {
        Host::EnableItem(dialog, item, false);
    }
    for (const std::int16_t item : PlanItems) {
        if (section || walls) {
            Host::EnableItem(dialog, item, false);
        }
    }
}

void CalculationDialog::Click(std::int16_t item) {
    switch (item) {
    case Item::OpenEngine:
        Commands::EditEngineSettings();
        ShowEngine();
        break;
    case Item::Accept:
        Accept();
        break;
    case Item::Cancel:
        Host::CloseDialog(dialog, false);
        break;
    default:
        break;
    }
}

void CalculationDialog::Accept() {
    CalculationSettings chosen = ReadItems();
    std::string error;
    if (!Simulation::CheckCalculationSettings(chosen, Host::ItemText(dialog, Item::Levels),
                                              error)) {
        Commands::Alert(error);
        return;
    }
    settings = chosen;
    CurrentAddOnState().calculation = std::move(chosen);
    Host::CloseDialog(dialog, true);
}

/// A greyed item tells nothing: what it stands for stays as it was.
CalculationSettings CalculationDialog::ReadItems() const {
    CalculationSettings chosen = settings;
    for (const auto& [item, field] : Lengths) {
        if (Host::IsItemEnabled(dialog, item)) {
            chosen.*field = Host::ItemNumber(dialog, item);
        }
    }
    for (const auto& [item, field] : Choices) {
        if (Host::IsItemEnabled(dialog, item)) {
            chosen.*field = Host::IsItemChecked(dialog, item);
        }
    }
    if (const std::int16_t entry = Host::SelectedEntry(dialog, Item::ColorScale); entry >= 1) {
        chosen.colorScale = static_cast<std::uint32_t>(entry - 1);
    }
    return chosen;
}

void CalculationDialog::ShowEngine() const {
    Host::SetItemText(dialog, Item::EngineSummary,
                      Simulation::EngineSummary(Archicad::LoadEngineSettings()));
}

} // namespace Merivane
