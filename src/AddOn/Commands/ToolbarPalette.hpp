#pragma once

#include <cstdint>
#include <span>

#include "Host/Menus.hpp"
#include "Host/Types.hpp"

/// The floating palette with a button for each common command. It is made when it is first shown,
/// hidden when it is closed, and destroyed when the add-on is unloaded.
namespace Merivane::Commands {

/// Under this identity the host knows the palette and remembers its place.
inline constexpr Host::Guid ToolbarGuid = {{0x5B, 0x0E, 0x3C, 0x71, 0x9A, 0x44, 0x4F, 0xD2, 0xA6,
                                            0x18, 0x2D, 0x7F, 0xC3, 0x90, 0xE1, 0x56}};

/// One button.
struct ToolbarButton {
    std::int16_t item = 0;    ///< of the palette
    std::int16_t command = 0; ///< number
    std::int16_t icon = 0;    ///< of the light interface; the dark one's is 100 more
};

/// The buttons, from left to right.
std::span<const ToolbarButton> ToolbarButtons();

/// Shows the palette, in front of the others.
void ShowToolbar();

/// Hides the palette where it is visible, else shows it.
void ToggleToolbar();

/// Makes the palette known to the host. Returns the host's error.
Host::ErrorCode RegisterToolbar();

/// Ends that and destroys the palette.
void UnregisterToolbar();

/// Called by the host; `visible` takes the answer to `IsVisible`. Never fails.
Host::ErrorCode ToolbarPaletteCallback(Host::PaletteMessage message, bool& visible);

} // namespace Merivane::Commands
