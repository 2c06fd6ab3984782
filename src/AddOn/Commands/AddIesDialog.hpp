#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "AddOn/Commands/LuminairePreview.hpp"
#include "AddOn/Commands/PickIesFile.hpp"
#include "Host/Dialog.hpp"

namespace Merivane::Commands {

/// What the user chooses for a luminaire in the making.
struct AddIesDialogResult {
    Photometry::LuminaireSettings settings; ///< its centre in metres, with the IES file's name
    Photometry::LuminaireIdentity identity; ///< to be written into the IES file
    std::string newName;                    ///< of the part; trimmed, never empty
};

/// One of the dialog's three views and what the mouse has done to it.
struct PreviewPane {
    Simulation::PreviewView view = Simulation::PreviewView::Front;
    std::int16_t title = 0; ///< item
    std::int16_t item = 0;
    Simulation::PreviewFrame frame = {};
    Host::ItemPoint cursor = {};
    bool hasCursor = false; ///< the mouse has been over it
    bool dragging = false;
};

/// Asks how an IES file's light stands in an object: what the luminaire is called, where its
/// photometric centre is and where its beam looks, against the object's own geometry.
class AddIesDialog {
public:
    /// `objectInfo` is one more line about the object, or empty.
    AddIesDialog(std::string sourceName, PickedIes picked, Archicad::ObjectPreview object,
                 std::string objectInfo);

    /// Shows the dialog until it closes. True when the user accepts; `Result` is then what was
    /// chosen.
    bool Invoke();

    const AddIesDialogResult& Result() const { return result; }

private:
    void Open(Host::DialogId opened);
    void ShowFile() const;
    void ShowStart();
    void Click(std::int16_t item);
    void UseMouse(std::int16_t item, const Host::MouseEvent& event);
    void CenterAt(double z);
    void TakeFields();
    void TakeResult();
    void Refresh();
    void RefreshTitle(const PreviewPane& pane) const;
    void RefreshPicture(const PreviewPane& pane) const;

    Host::DialogId dialog = 0;
    std::string sourceName;
    PickedIes picked;
    LuminairePreview preview;
    std::string objectInfo;
    std::array<PreviewPane, 3> panes;
    AddIesDialogResult result;
};

} // namespace Merivane::Commands
