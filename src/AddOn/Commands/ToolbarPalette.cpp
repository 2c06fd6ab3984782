#include "AddOn/Commands/ToolbarPalette.hpp"

#include <algorithm>
#include <utility>

#include "AddOn/AddOnState.hpp"
#include "AddOn/CommandTable.hpp"
#include "AddOn/Entry/ResourceIds.hpp"
#include "AddOn/RunLog/RunLog.hpp"
#include "Host/Dialog.hpp"

namespace Merivane::Commands {

namespace {

constexpr std::int16_t DarkIconOffset = 100;

constexpr ToolbarButton Buttons[] = {
    {3, 32520, 10022},  {4, 32519, 10021},  {6, 32504, 10002},  {7, 32503, 10003},
    {8, 32513, 10005},  {9, 32514, 10004},  {11, 32521, 10023}, {13, 32505, 10006},
    {14, 32507, 10007}, {15, 32509, 10008}, {16, 32511, 10009}, {17, 32508, 10012},
    {19, 32516, 10020}, {20, 32517, 10018}, {21, 32515, 10017}, {23, 32512, 10010},
    {24, 32510, 10011}, {25, 32518, 10019},
};

void RunButton(std::int16_t item) {
    const ToolbarButton* const end = std::end(Buttons);
    const ToolbarButton* const button =
        std::find_if(std::begin(Buttons), end,
                     [&](const ToolbarButton& candidate) { return candidate.item == item; });
    if (button != end) {
        ExecuteCommand(button->command);
    }
}

/// The palette, if it was made.
class ToolbarPalette {
public:
    ToolbarPalette() : state(CurrentAddOnState().toolbar) {}

    bool Exists() const { return state.dialog.has_value(); }
    bool IsVisible() const { return Exists() && Host::IsPaletteVisible(*state.dialog); }

    bool Make() {
        Host::DialogEvents events;
        events.buttonClicked = [](Host::DialogId, std::int16_t item) { RunButton(item); };
        events.closeRequested = [](Host::DialogId palette, bool) {
            Host::HidePalette(palette); // hidden is how it closes
            return true;
        };
        Host::DialogId made = 0;
        if (CheckError("Barra de ferramentas",
                       Host::CreatePalette(ResourceIds::Toolbar, events, made)) != Host::NoError) {
            return false;
        }
        state.dialog = made;
        Host::SetDialogTitle(made, "Vantoro");
        if (Host::IsDarkMode()) {
            for (const ToolbarButton& button : Buttons) {
                Host::SetItemIcon(made, button.item,
                                  static_cast<std::int16_t>(button.icon + DarkIconOffset));
            }
        }
        return true;
    }

    void Show() const { Host::ShowPalette(*state.dialog); }

    void Hide() const {
        if (Exists()) {
            Host::HidePalette(*state.dialog);
        }
    }

    void HideWithAll() {
        if (IsVisible()) {
            Hide();
            state.shownBeforeHiding = true;
        }
    }

    void ShowWithAll() {
        if (std::exchange(state.shownBeforeHiding, false) && Exists()) {
            Show();
        }
    }

    void EnableItems(bool enabled) const {
        if (!IsVisible()) {
            return;
        }
        const std::int16_t count = Host::ItemCount(*state.dialog);
        for (std::int16_t item = 1; item <= count; ++item) {
            Host::EnableItem(*state.dialog, item, enabled);
        }
    }

    void Destroy() {
        if (Exists()) {
            Host::DestroyPalette(*state.dialog);
        }
        state = {};
    }

private:
    PaletteState& state;
};

} // namespace

std::span<const ToolbarButton> ToolbarButtons() {
    return Buttons;
}

void ShowToolbar() {
    ToolbarPalette palette;
    if (!palette.Exists() && !palette.Make()) {
        return;
    }
    Host::KeepInMemory();
    palette.Show();
}

void ToggleToolbar() {
    const ToolbarPalette palette;
    if (palette.IsVisible()) {
        palette.Hide();
    } else {
        ShowToolbar();
    }
}

Host::ErrorCode RegisterToolbar() {
    return Host::RegisterPalette(ToolbarGuid, ToolbarPaletteCallback, Host::PaletteEverywhere);
}

void UnregisterToolbar() {
    Host::UnregisterPalette(ToolbarGuid);
    ToolbarPalette().Destroy();
}

Host::ErrorCode ToolbarPaletteCallback(Host::PaletteMessage message, bool& visible) {
    ToolbarPalette palette;
    switch (message) {
    case Host::PaletteMessage::Close:
        palette.Hide();
        break;
    case Host::PaletteMessage::HideAll:
        palette.HideWithAll();
        break;
    case Host::PaletteMessage::ShowAll:
        palette.ShowWithAll();
        break;
    case Host::PaletteMessage::Disable:
        palette.EnableItems(false);
        break;
    case Host::PaletteMessage::Enable:
        palette.EnableItems(true);
        break;
    case Host::PaletteMessage::Open:
        ShowToolbar();
        break;
    case Host::PaletteMessage::IsVisible:
        visible = palette.IsVisible();
        break;
    }
    return Host::NoError;
}

} // namespace Merivane::Commands
