#include "AddOn/Commands/ZoneRequirementDialog.hpp"

#include <algorithm>
#include <array>
#include <iterator>
#include <string>
#include <utility>

#include "AddOn/DarkModeIcon.hpp"
#include "AddOn/Entry/ResourceIds.hpp"
#include "AddOn/RunLog/RunLog.hpp"
#include "Simulation/Verification/TaskSearch.hpp"
#include "Simulation/Verification/ZoneRequirementTexts.hpp"

namespace Merivane {

namespace {

namespace Item = ResourceIds::ZoneRequirement;

using Host::ColumnAlignment;
using Simulation::TaskRow;
using Simulation::ZoneRequirement;
using Simulation::ZoneRequirementRow;

constexpr std::int16_t NoActivity = 1; // entry of the pop-up

/// What the entries of the pop-up of screens stand for.
constexpr std::array<std::int32_t, 4> ScreensByEntry = {
    Simulation::ScreensAutomatic, Simulation::ScreensNone, Simulation::ScreensClass1And2,
    Simulation::ScreensClass3};

constexpr const char* FixedScreenEntries[] = {
    "Não há telas",
    "Telas classes I e II - luminância até 1000 cd/m²",
    "Telas classe III - luminância até 200 cd/m²",
};

std::vector<Host::ListColumn> Columns() {
    return {
        {"Zona", 0, 190, ColumnAlignment::Left},
        {"Atividade", 190, 500, ColumnAlignment::Left},
        {"Em mín.", 500, 575, ColumnAlignment::Right},
        {"U0 mín.", 575, 650, ColumnAlignment::Right},
    };
}

/// The entry of a section in the pop-up; the first one for a Zone without activity.
std::int16_t SectionEntryOf(const TaskRow* task) {
    const auto& sections = Simulation::TaskSections();
    const auto found = std::find_if(sections.begin(), sections.end(), [&](const auto& section) {
        return task && section.first == task->section;
    });
    return found == sections.end()
               ? std::int16_t{1}
               : static_cast<std::int16_t>(std::distance(sections.begin(), found) + 1);
}

std::int16_t ScreensEntryOf(std::int32_t screens) {
    const auto* const found = std::find(ScreensByEntry.begin(), ScreensByEntry.end(), screens);
    return found == ScreensByEntry.end()
               ? std::int16_t{1}
               : static_cast<std::int16_t>(std::distance(ScreensByEntry.begin(), found) + 1);
}

} // namespace

ZoneRequirementDialog::ZoneRequirementDialog(std::vector<ZoneRequirementRow> given,
                                             Simulation::ReferenceStandard stored)
    : rows(std::move(given)), standard(stored) {}

bool ZoneRequirementDialog::Invoke() {
    Host::DialogEvents events;
    events.opened = [this](Host::DialogId opened) { Open(opened); };
    events.buttonClicked = [this](Host::DialogId, std::int16_t item) { Click(item); };
    events.changed = [this](Host::DialogId, std::int16_t item) { Change(item); };
    events.listSelected = [this](Host::DialogId, std::int16_t) { ShowSelectedZone(); };
    bool accepted = false;
    Commands::CheckError("Atividades das Zonas", Host::RunDialog(Item::Dialog, events, accepted));
    return accepted;
}

void ZoneRequirementDialog::Open(Host::DialogId opened) {
    dialog = opened;
    FillPopUps();
    FillZones();
    DarkModeIcon(dialog);
    ShowSelectedZone();
}

void ZoneRequirementDialog::FillPopUps() const {
    using Simulation::ReferenceStandard;
    for (const auto each : {ReferenceStandard::Brazilian, ReferenceStandard::International}) {
        Host::AppendEntry(dialog, Item::Standard, Simulation::StandardEntry(each));
    }
    Host::SelectEntry(dialog, Item::Standard, standard == ReferenceStandard::International ? 2 : 1);
    for (const auto& [number, name] : Simulation::TaskSections()) {
        Host::AppendEntry(dialog, Item::Section, Simulation::SectionEntry(number, name));
    }
    Host::AppendEntry(dialog, Item::Screens, Simulation::AutomaticScreensEntry({}));
    for (const char* const entry : FixedScreenEntries) {
        Host::AppendEntry(dialog, Item::Screens, entry);
    }
}

void ZoneRequirementDialog::FillZones() const {
    Host::SetListColumns(dialog, Item::Zones, Columns());
    for (std::size_t i = 0; i < rows.size(); ++i) {
        RefreshRow(Host::AppendRow(dialog, Item::Zones));
    }
    if (!rows.empty()) {
        Host::SelectRow(dialog, Item::Zones, 1);
    }
}

void ZoneRequirementDialog::Click(std::int16_t item) {
    if (item == Item::Accept || item == Item::Cancel) {
        Host::CloseDialog(dialog, item == Item::Accept);
    } else if (item == Item::UseForAll && Selected()) {
        UseForAll(Host::SelectedRow(dialog, Item::Zones));
    }
}

void ZoneRequirementDialog::Change(std::int16_t item) {
    if (item == Item::Standard) {
        if (const std::int16_t entry = Host::SelectedEntry(dialog, item); entry >= 1) {
            standard = static_cast<Simulation::ReferenceStandard>(entry - 1);
        }
        return;
    }
    ZoneRequirementRow* const row = Selected();
    if (!row) {
        return;
    }
    if (item == Item::Section) {
        ListActivities();
        return;
    }
    if (item == Item::Activity) {
        ChooseActivity(*row);
    } else if (item == Item::Screens) {
        ChooseScreens(*row);
    } else {
        TakeNumbers(*row);
    }
    RefreshRow(Host::SelectedRow(dialog, Item::Zones));
}

void ZoneRequirementDialog::ChooseActivity(ZoneRequirementRow& row) {
    const std::int16_t entry = Host::SelectedEntry(dialog, Item::Activity);
    const std::string id = entry <= NoActivity
                               ? std::string()
                               : listedActivities[static_cast<std::size_t>(entry - 2)]->id;
    if (id != row.requirement.taskId || row.suggested) {
        row.requirement = Simulation::RequirementFromTask(id);
        row.suggested = false;
        RefreshRequirement();
    }
}

void ZoneRequirementDialog::ChooseScreens(ZoneRequirementRow& row) const {
    const std::int16_t entry = Host::SelectedEntry(dialog, Item::Screens);
    if (entry >= 1) {
        row.requirement.screens = ScreensByEntry[static_cast<std::size_t>(entry - 1)];
        row.suggested = false;
    }
}

void ZoneRequirementDialog::TakeNumbers(ZoneRequirementRow& row) const {
    row.requirement.em = Host::ItemNumber(dialog, Item::Illuminance);
    row.requirement.u0 = Host::ItemNumber(dialog, Item::Uniformity);
    row.suggested = false;
}

void ZoneRequirementDialog::UseForAll(std::int16_t chosen) {
    if (chosen < 1) {
        return;
    }
    const ZoneRequirementRow& model = rows[static_cast<std::size_t>(chosen - 1)];
    for (std::size_t i = 0; i < rows.size(); ++i) {
        rows[i].requirement = model.requirement;
        rows[i].suggested = false;
        RefreshRow(static_cast<std::int16_t>(i + 1));
    }
}

void ZoneRequirementDialog::ShowSelectedZone() {
    const ZoneRequirementRow* const row = Selected();
    const TaskRow* const task = row ? Simulation::FindTask(row->requirement.taskId) : nullptr;
    Host::SelectEntry(dialog, Item::Section, SectionEntryOf(task));
    ListActivities();
    RefreshRequirement();
    for (const std::int16_t item : {Item::Section, Item::Activity, Item::UseForAll}) {
        Host::EnableItem(dialog, item, row != nullptr);
    }
}

/// The activities of the chosen section. Where the Zone has one of another section none is
/// selected: the list would tell an activity that the Zone does not have, and choosing it would be
/// no change.
void ZoneRequirementDialog::ListActivities() {
    const std::int16_t sectionEntry = Host::SelectedEntry(dialog, Item::Section);
    const std::int32_t section = // none where the host tells no entry
        sectionEntry >= 1
            ? Simulation::TaskSections()[static_cast<std::size_t>(sectionEntry - 1)].first
            : 0;
    const ZoneRequirementRow* const row = Selected();
    const TaskRow* const chosen = row ? Simulation::FindTask(row->requirement.taskId) : nullptr;

    Host::ClearEntries(dialog, Item::Activity);
    Host::AppendEntry(dialog, Item::Activity, Simulation::NoActivityEntry);
    listedActivities.clear();
    std::int16_t selected = chosen ? std::int16_t{0} : NoActivity;
    for (const TaskRow& task : Simulation::TaskTable()) {
        if (task.section != section) {
            continue;
        }
        Host::AppendEntry(dialog, Item::Activity, Simulation::ActivityEntry(task));
        listedActivities.push_back(&task);
        if (&task == chosen) {
            selected = static_cast<std::int16_t>(listedActivities.size() + 1);
        }
    }
    Host::SelectEntry(dialog, Item::Activity, selected);
}

void ZoneRequirementDialog::RefreshRow(std::int16_t number) const {
    if (number < 1) {
        return; // the list is full
    }
    const ZoneRequirementRow& row = rows[static_cast<std::size_t>(number - 1)];
    const std::string cells[] = {row.zone.name, Simulation::ActivityCell(row),
                                 Simulation::IlluminanceCell(row.requirement),
                                 Simulation::UniformityCell(row.requirement)};
    for (std::size_t i = 0; i < std::size(cells); ++i) {
        Host::SetCell(dialog, Item::Zones, number, static_cast<std::int16_t>(i + 1), cells[i]);
    }
}

void ZoneRequirementDialog::RefreshRequirement() {
    const ZoneRequirementRow* const row = Selected();
    const ZoneRequirement requirement = row ? row->requirement : ZoneRequirement();
    Host::SetItemNumber(dialog, Item::Illuminance, requirement.em);
    Host::SetItemNumber(dialog, Item::Uniformity, requirement.u0);
    Host::SetEntryText(dialog, Item::Screens, 1, Simulation::AutomaticScreensEntry(requirement));
    Host::SelectEntry(dialog, Item::Screens, ScreensEntryOf(requirement.screens));
    Host::SetItemText(dialog, Item::Note, Simulation::ActivityNote(requirement));
    const bool verified = Simulation::FindTask(requirement.taskId) != nullptr;
    for (const std::int16_t item : {Item::Illuminance, Item::Uniformity, Item::Screens}) {
        Host::EnableItem(dialog, item, verified);
    }
}

ZoneRequirementRow* ZoneRequirementDialog::Selected() {
    const std::int16_t row = Host::SelectedRow(dialog, Item::Zones);
    return row >= 1 ? &rows[static_cast<std::size_t>(row - 1)] : nullptr;
}

} // namespace Merivane
