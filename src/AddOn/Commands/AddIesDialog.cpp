#include "AddOn/Commands/AddIesDialog.hpp"

#include <cmath>
#include <utility>

#include "AddOn/DarkModeIcon.hpp"
#include "AddOn/Entry/ResourceIds.hpp"
#include "AddOn/RunLog/RunLog.hpp"
#include "Host/Menus.hpp"
#include "Photometry/LuminaireIdentity.hpp"
#include "Simulation/LuminaireDialogTexts.hpp"
#include "Text/Ascii.hpp"
#include "Text/FileName.hpp"
#include "Text/Number.hpp"

namespace Merivane::Commands {

namespace {

namespace Item = ResourceIds::AddIes;

using Simulation::PreviewView;

constexpr double CentimetresInAMetre = 100.0;

/// What a view's title calls it and its two directions.
struct ViewNames {
    const char* title;
    const char* across;
    const char* upright;
};

ViewNames NamesOf(PreviewView view) {
    switch (view) {
    case PreviewView::Front:
        return {"Frente (X-Z)", "X", "Z"};
    case PreviewView::Side:
        return {"Lateral (Y-Z)", "Y", "Z"};
    case PreviewView::Plan:
        break;
    }
    return {"Planta (X-Y)", "X", "Y"};
}

std::string PaneTitle(const PreviewPane& pane) {
    const ViewNames names = NamesOf(pane.view);
    std::string title = names.title + ("   zoom " + Text::FormatFixed(pane.frame.zoom, 1)) + "x";
    if (pane.hasCursor) {
        const Simulation::Point2D place =
            Simulation::ToPlane(pane.frame, {pane.cursor.x, pane.cursor.y});
        title += std::string("   ") + names.across + " " + Simulation::CentimetreText(place.x) +
                 "  " + names.upright + " " + Simulation::CentimetreText(place.y);
    }
    return title;
}

} // namespace

AddIesDialog::AddIesDialog(std::string source, PickedIes ies, Archicad::ObjectPreview object,
                           std::string info)
    : sourceName(std::move(source)), picked(std::move(ies)),
      objectInfo(std::move(info)), panes{{{PreviewView::Front, Item::FrontTitle, Item::FrontView},
                                          {PreviewView::Side, Item::SideTitle, Item::SideView},
                                          {PreviewView::Plan, Item::PlanTitle, Item::PlanView}}} {
    preview.object = std::move(object);
    preview.file = picked.file;
}

bool AddIesDialog::Invoke() {
    Host::DialogEvents events;
    events.opened = [this](Host::DialogId opened) { Open(opened); };
    events.buttonClicked = [this](Host::DialogId, std::int16_t item) { Click(item); };
    events.changed = [this](Host::DialogId, std::int16_t) {
        TakeFields();
        Refresh();
    };
    events.mouseUsed = [this](Host::DialogId, std::int16_t item, const Host::MouseEvent& event) {
        UseMouse(item, event);
    };
    bool accepted = false;
    CheckError("Adicionar fotometria IES", Host::RunDialog(Item::Dialog, events, accepted));
    return accepted;
}

void AddIesDialog::Open(Host::DialogId opened) {
    dialog = opened;
    ShowFile();
    ShowStart();
    DarkModeIcon(dialog);
    TakeFields();
    Refresh();
}

void AddIesDialog::ShowFile() const {
    const Photometry::LuminaireIdentity identity = Photometry::IdentityFromIes(picked.file);
    const std::pair<std::int16_t, std::string> texts[] = {
        {Item::SourceName, sourceName},
        {Item::ObjectInfo, objectInfo},
        {Item::FileName, picked.fileName},
        {Item::Identity, Simulation::FileIdentityLine(picked.file)},
        {Item::Flux, Simulation::FluxLine(picked.file)},
        {Item::Table, Simulation::TableLine(picked.file, picked.warnings.size())},
        {Item::Catalog, identity.catalog},
        {Item::Luminaire, identity.luminaire},
        {Item::Lamp, identity.lamp},
        {Item::Legend, Simulation::PreviewLegend(picked.file)},
    };
    for (const auto& [item, text] : texts) {
        Host::SetItemText(dialog, item, text);
    }
    Host::SetItemNumber(dialog, Item::ColourRendering, identity.colourRendering);
}

void AddIesDialog::ShowStart() {
    const bool hasGeometry = preview.object.geometryRead;
    Host::SetItemText(dialog, Item::PartName,
                      Simulation::ProposePartName(sourceName, picked.baseName));
    Host::SetItemNumber(dialog, Item::MaintenanceFactor,
                        Photometry::LuminaireSettings().maintenanceFactor);
    for (const std::int16_t item : {Item::C0Rotation, Item::TiltAngle, Item::TiltDirection}) {
        Host::SetItemNumber(dialog, item, 0.0);
    }
    for (const std::int16_t button : {Item::LowerFace, Item::Middle, Item::UpperFace}) {
        Host::EnableItem(dialog, button, hasGeometry);
    }
    Host::SetItemText(dialog, Item::Hint,
                      hasGeometry ? Simulation::CenterHint : Simulation::CenterHintWithoutGeometry);
    // Without geometry the box is at the origin.
    CenterAt(preview.object.lowest.z);
}

void AddIesDialog::CenterAt(double z) {
    const Host::Coordinate3D& low = preview.object.lowest;
    const Host::Coordinate3D& high = preview.object.highest;
    const std::pair<std::int16_t, double> places[] = {{Item::CenterX, (low.x + high.x) / 2.0},
                                                      {Item::CenterY, (low.y + high.y) / 2.0},
                                                      {Item::CenterZ, z}};
    for (const auto& [item, metres] : places) {
        // The middle of a body seldom is a round number: a micrometre is enough.
        constexpr double Steps = 1e4;
        const double centimetres = std::round(metres * CentimetresInAMetre * Steps) / Steps;
        Host::SetItemNumber(dialog, item, centimetres + 0.0); // no minus zero
    }
}

void AddIesDialog::Click(std::int16_t item) {
    const double low = preview.object.lowest.z;
    const double high = preview.object.highest.z;
    switch (item) {
    case Item::Accept:
        TakeFields();
        TakeResult();
        Host::CloseDialog(dialog, true);
        return;
    case Item::Cancel:
        Host::CloseDialog(dialog, false);
        return;
    case Item::LowerFace:
        CenterAt(low);
        break;
    case Item::Middle:
        CenterAt((low + high) / 2.0);
        break;
    case Item::UpperFace:
        CenterAt(high);
        break;
    default:
        return;
    }
    TakeFields();
    Refresh();
}

void AddIesDialog::UseMouse(std::int16_t item, const Host::MouseEvent& event) {
    for (PreviewPane& pane : panes) {
        if (pane.item != item) {
            continue;
        }
        const Host::ItemPoint before = std::exchange(pane.cursor, event.position);
        pane.hasCursor = true;
        bool moved = true;
        if (event.action == Host::MouseAction::Wheel) {
            Simulation::ZoomAt(pane.frame, {event.position.x, event.position.y}, event.notches);
        } else if (event.action == Host::MouseAction::DoubleClicked) {
            pane.frame = FrameAll(preview, pane.view);
        } else if (event.action == Host::MouseAction::Moved && pane.dragging) {
            Simulation::Pan(pane.frame, {event.position.x - before.x, event.position.y - before.y});
        } else {
            moved = false;
        }
        if (event.action != Host::MouseAction::Moved && event.action != Host::MouseAction::Wheel) {
            pane.dragging = event.action == Host::MouseAction::Pressed;
        }
        RefreshTitle(pane);
        if (moved) {
            RefreshPicture(pane);
        }
    }
}

/// What the fields say, as the views show it.
void AddIesDialog::TakeFields() {
    Photometry::LuminaireSettings& settings = preview.settings;
    settings.centerX = Host::ItemNumber(dialog, Item::CenterX) / CentimetresInAMetre;
    settings.centerY = Host::ItemNumber(dialog, Item::CenterY) / CentimetresInAMetre;
    settings.centerZ = Host::ItemNumber(dialog, Item::CenterZ) / CentimetresInAMetre;
    settings.c0Rotation = Host::ItemNumber(dialog, Item::C0Rotation);
    settings.tiltAngle = Host::ItemNumber(dialog, Item::TiltAngle);
    settings.tiltDirection = Host::ItemNumber(dialog, Item::TiltDirection);
    settings.maintenanceFactor = Host::ItemNumber(dialog, Item::MaintenanceFactor);
}

void AddIesDialog::TakeResult() {
    result.identity = Photometry::IdentityFromIes(picked.file);
    result.identity.catalog = Host::ItemText(dialog, Item::Catalog);
    result.identity.luminaire = Host::ItemText(dialog, Item::Luminaire);
    result.identity.lamp = Host::ItemText(dialog, Item::Lamp);
    result.identity.colourRendering = Host::ItemNumber(dialog, Item::ColourRendering);
    result.settings = preview.settings;
    result.settings.iesFileName = picked.fileName;
    result.settings.colourRendering = result.identity.colourRendering;
    result.newName = Text::Trim(Host::ItemText(dialog, Item::PartName));
    if (result.newName.empty()) {
        result.newName = picked.baseName;
    }
    result.newName = Text::FileNameOf(result.newName); // the part is a file of that name
}

/// A view that the user has neither zoomed nor moved goes on to hold everything.
void AddIesDialog::Refresh() {
    for (PreviewPane& pane : panes) {
        if (Simulation::IsUntouched(pane.frame)) {
            pane.frame = FrameAll(preview, pane.view);
        }
        RefreshTitle(pane);
        RefreshPicture(pane);
    }
}

void AddIesDialog::RefreshTitle(const PreviewPane& pane) const {
    Host::SetItemText(dialog, pane.title, PaneTitle(pane));
}

void AddIesDialog::RefreshPicture(const PreviewPane& pane) const {
    Host::SetItemPicture(dialog, pane.item,
                         DrawPreview(preview, pane.view, pane.frame, Host::IsDarkMode()));
}

} // namespace Merivane::Commands
