#include "AddOn/Commands/ReflectanceDialog.hpp"

#include <array>
#include <string>
#include <utility>

#include "AddOn/DarkModeIcon.hpp"
#include "AddOn/Entry/ResourceIds.hpp"
#include "AddOn/RunLog/RunLog.hpp"
#include "Simulation/ReflectanceEditing.hpp"
#include "Simulation/ReflectanceTexts.hpp"

namespace Merivane {

namespace {

namespace Item = ResourceIds::Reflectance;

using Host::ColumnAlignment;
using Simulation::SurfaceReflectance;

/// Places of the list's columns [pixels].
struct ColumnPlace {
    std::int16_t begin = 0;
    std::int16_t end = 0;
    ColumnAlignment alignment = ColumnAlignment::Left;
};

constexpr std::array<ColumnPlace, Simulation::ReflectanceColumns.size()> ColumnPlaces = {{
    {0, 330},
    {330, 420, ColumnAlignment::Right},
    {420, 520, ColumnAlignment::Right},
    {520, 620, ColumnAlignment::Right},
    {632, 756},
}};

std::vector<Host::ListColumn> Columns() {
    std::vector<Host::ListColumn> columns;
    for (std::size_t i = 0; i < ColumnPlaces.size(); ++i) {
        const ColumnPlace& place = ColumnPlaces[i];
        columns.push_back(
            {Simulation::ReflectanceColumns[i], place.begin, place.end, place.alignment});
    }
    return columns;
}

} // namespace

ReflectanceDialog::ReflectanceDialog(std::vector<SurfaceReflectance> given)
    : records(std::move(given)) {}

bool ReflectanceDialog::Invoke() {
    Host::DialogEvents events;
    events.opened = [this](Host::DialogId opened) { Open(opened); };
    events.buttonClicked = [this](Host::DialogId, std::int16_t item) { Click(item); };
    events.changed = [this](Host::DialogId, std::int16_t item) { Change(item); };
    events.listSelected = [this](Host::DialogId, std::int16_t) { RefreshFields(); };
    bool accepted = false;
    Commands::CheckError("Refletancias das superficies",
                         Host::RunDialog(Item::Dialog, events, accepted));
    return accepted;
}

void ReflectanceDialog::Open(Host::DialogId opened) {
    dialog = opened;
    Host::SetItemText(dialog, Item::Head, Simulation::ReflectanceHeadLine(records.size()));
    Host::SetListColumns(dialog, Item::Surfaces, Columns());
    for (std::size_t i = 0; i < records.size(); ++i) {
        RefreshRow(Host::AppendRow(dialog, Item::Surfaces));
    }
    Host::SetItemChecked(dialog, Item::Remember, remember);
    DarkModeIcon(dialog);
    RefreshFields();
}

void ReflectanceDialog::Click(std::int16_t item) {
    switch (item) {
    case Item::Accept:
    case Item::Cancel:
        Host::CloseDialog(dialog, item == Item::Accept);
        break;
    case Item::UseEstimate:
        if (SurfaceReflectance* const record = Selected()) {
            Simulation::ResetToEstimate(*record);
            RefreshRow(Host::SelectedRow(dialog, Item::Surfaces));
            RefreshFields();
        }
        break;
    default:
        break;
    }
}

void ReflectanceDialog::Change(std::int16_t item) {
    if (item == Item::Remember) {
        remember = Host::IsItemChecked(dialog, item);
        return;
    }
    SurfaceReflectance* const record = Selected();
    if (!record) {
        return;
    }
    if (item == Item::Glass) {
        Simulation::SetGlass(*record, Host::IsItemChecked(dialog, item));
        RefreshRow(Host::SelectedRow(dialog, Item::Surfaces));
        RefreshFields();
    } else {
        TakeField(item);
    }
}

/// Reads the one field that changed: the others may show a value held inside their limits.
void ReflectanceDialog::TakeField(std::int16_t item) {
    SurfaceReflectance& record = *Selected();
    Simulation::ReflectanceFields fields = Simulation::FieldsOf(record);
    const std::pair<std::int16_t, double*> places[] = {
        {Item::Used, &fields.reflectance},
        {Item::Transmittance, &fields.transmittance},
        {Item::Inside, &fields.inside},
        {Item::Outside, &fields.outside},
    };
    for (const auto& [place, field] : places) {
        if (place == item) {
            *field = Host::ItemNumber(dialog, item);
        }
    }
    if (Simulation::TakeFields(record, fields)) {
        RefreshRow(Host::SelectedRow(dialog, Item::Surfaces));
    }
}

void ReflectanceDialog::RefreshRow(std::int16_t row) const {
    if (row < 1) {
        return; // the list is full
    }
    const auto cells = Simulation::ReflectanceCells(records[static_cast<std::size_t>(row - 1)]);
    for (std::size_t i = 0; i < cells.size(); ++i) {
        Host::SetCell(dialog, Item::Surfaces, row, static_cast<std::int16_t>(i + 1), cells[i]);
    }
}

void ReflectanceDialog::RefreshFields() {
    const SurfaceReflectance* const selected = Selected();
    const SurfaceReflectance record = selected ? *selected : SurfaceReflectance();
    const Simulation::ReflectanceFields fields = Simulation::FieldsOf(record);
    const Simulation::EditableFields editable =
        selected ? Simulation::EditableFieldsOf(record) : Simulation::EditableFields{};

    Host::SetItemText(dialog, Item::Name, record.name);
    Host::SetItemNumber(dialog, Item::Used, fields.reflectance);
    Host::SetItemNumber(dialog, Item::Transmittance, fields.transmittance);
    Host::SetItemNumber(dialog, Item::Inside, fields.inside);
    Host::SetItemNumber(dialog, Item::Outside, fields.outside);
    Host::SetItemChecked(dialog, Item::Glass, record.glass);
    Host::SetItemText(dialog, Item::Explanation,
                      selected ? Simulation::ReflectanceExplanation(record) : std::string());

    Host::EnableItem(dialog, Item::UseEstimate, selected != nullptr);
    Host::EnableItem(dialog, Item::Glass, selected != nullptr);
    Host::EnableItem(dialog, Item::Used, editable.reflectance);
    for (const std::int16_t item : {Item::Transmittance, Item::Inside, Item::Outside}) {
        Host::EnableItem(dialog, item, editable.glass);
    }
}

SurfaceReflectance* ReflectanceDialog::Selected() {
    const std::int16_t row = Host::SelectedRow(dialog, Item::Surfaces);
    return row >= 1 ? &records[static_cast<std::size_t>(row - 1)] : nullptr;
}

bool ShowReflectanceDialog(std::vector<SurfaceReflectance>& records, bool& remember) {
    ReflectanceDialog dialog(records);
    if (!dialog.Invoke()) {
        return false;
    }
    records = dialog.Records();
    remember = dialog.Remember();
    return true;
}

} // namespace Merivane
