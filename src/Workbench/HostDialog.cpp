#include <algorithm>

#include "Host/Dialog.hpp"
#include "Workbench/DialogRun.hpp"
#include "Workbench/Session.hpp"

namespace Merivane::Host {

namespace {

using Workbench::CountCall;

Workbench::UserInterface& Interface() {
    return Workbench::CurrentSession().userInterface;
}

Workbench::OpenDialog* FindOpen(DialogId dialog) {
    const auto found = Interface().open.find(dialog);
    return found == Interface().open.end() ? nullptr : &found->second;
}

bool IsPalette(DialogId dialog) {
    const std::vector<DialogId>& palettes = Interface().palettes;
    return std::find(palettes.begin(), palettes.end(), dialog) != palettes.end();
}

Workbench::Dialog* Reach(std::string_view operation, DialogId dialog) {
    const ErrorCode code = CountCall(operation);
    Workbench::OpenDialog* const open = FindOpen(dialog);
    return code == NoError && open ? &open->state : nullptr;
}

} // namespace

ErrorCode RunDialog(std::int16_t resource, const DialogEvents& events, bool& accepted) {
    if (const ErrorCode code = CountCall("RunDialog")) {
        return code;
    }
    const DialogId dialog =
        Workbench::OpenFromResource(resource, Workbench::DialogKind::Modal, events);
    if (dialog == 0) {
        return BadId;
    }
    accepted = Workbench::RunToItsEnd(dialog);
    return NoError;
}

void CloseDialog(DialogId dialog, bool accept) {
    Workbench::OpenDialog* const open = FindOpen(dialog);
    if (CountCall("CloseDialog") == NoError && open && !IsPalette(dialog)) {
        open->closeAsked = true;
        open->accepted = accept;
    }
}

void SetDialogTitle(DialogId dialog, std::string_view title) {
    if (Workbench::Dialog* const found = Reach("SetDialogTitle", dialog)) {
        found->title = title;
    }
}

void SetClientSize(DialogId dialog, std::int16_t width, std::int16_t height) {
    if (Workbench::Dialog* const found = Reach("SetClientSize", dialog)) {
        found->width = std::max<std::int16_t>(width, 0);
        found->height = std::max<std::int16_t>(height, 0);
    }
}

void GetClientSize(DialogId dialog, std::int16_t& width, std::int16_t& height) {
    const Workbench::Dialog* const found = Reach("GetClientSize", dialog);
    width = found ? found->width : std::int16_t{0};
    height = found ? found->height : std::int16_t{0};
}

std::int16_t ItemCount(DialogId dialog) {
    const Workbench::Dialog* const found = Reach("ItemCount", dialog);
    return found ? static_cast<std::int16_t>(found->items.size()) : std::int16_t{0};
}

std::int16_t AppendIcon(DialogId dialog, std::int16_t icon) {
    Workbench::Dialog* const found = Reach("AppendIcon", dialog);
    return found ? Workbench::AppendIcon(*found, icon) : std::int16_t{0};
}

std::int16_t ShowAlert(AlertKind kind, std::string_view largeText, std::string_view smallText,
                       const std::vector<std::string>& buttons) {
    constexpr std::size_t mostButtons = 3;
    const ErrorCode code = CountCall("ShowAlert");
    Workbench::ShownAlert alert{kind, std::string(largeText), std::string(smallText), buttons, 1};
    alert.buttons.resize(std::min(alert.buttons.size(), mostButtons));
    if (alert.buttons.empty()) {
        alert.buttons.emplace_back("OK");
    }
    return code == NoError ? Workbench::AnswerAlert(std::move(alert))
                           : static_cast<std::int16_t>(alert.buttons.size());
}

ErrorCode CreatePalette(std::int16_t resource, const DialogEvents& events, DialogId& palette) {
    if (const ErrorCode code = CountCall("CreatePalette")) {
        return code;
    }
    const DialogId made =
        Workbench::OpenFromResource(resource, Workbench::DialogKind::Palette, events);
    if (made == 0) {
        return BadId;
    }
    FindOpen(made)->state.visible = false;
    Interface().palettes.push_back(made);
    palette = made;
    if (events.opened) {
        const auto opened = events.opened;
        opened(made);
    }
    return NoError;
}

void ShowPalette(DialogId palette) {
    if (Workbench::Dialog* const found = Reach("ShowPalette", palette)) {
        if (IsPalette(palette)) {
            found->visible = true;
            std::erase(Interface().palettes, palette);
            Interface().palettes.push_back(palette);
        }
    }
}

void HidePalette(DialogId palette) {
    if (Workbench::Dialog* const found = Reach("HidePalette", palette)) {
        found->visible = found->visible && !IsPalette(palette);
    }
}

bool IsPaletteVisible(DialogId palette) {
    const Workbench::Dialog* const found = Reach("IsPaletteVisible", palette);
    return found && found->visible && IsPalette(palette);
}

void DestroyPalette(DialogId palette) {
    if (Reach("DestroyPalette", palette) && IsPalette(palette)) {
        std::erase(Interface().palettes, palette);
        Interface().open.erase(palette);
    }
}

} // namespace Merivane::Host
