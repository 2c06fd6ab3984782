#pragma once

#include <cstdint>
#include <string_view>

#include "Host/Menus.hpp"
#include "Workbench/Interface/UserInterface.hpp"

/// What the embedded host does with the menus and palettes that the add-on has registered.
namespace Merivane::Workbench {

/// What was registered, or null.
RegisteredMenu* FindMenu(std::int16_t resource);
RegisteredPalette* FindRegisteredPalette(const Host::Guid& palette);

/// Chooses an item of a menu, from 1. BadId when the menu is not registered or no handler is
/// installed, BadIndex when it has no such item; else what the handler answers. As the host does at
/// the beginning of each command, forgets that the add-on asked to be kept in memory.
Host::ErrorCode ChooseMenuItem(std::int16_t resource, std::int32_t item);

/// Sends a message to a registered palette; `visible` takes the answer to `IsVisible`. BadId when
/// it is not registered.
Host::ErrorCode SendPaletteMessage(const Host::Guid& palette, Host::PaletteMessage message,
                                   bool& visible);

} // namespace Merivane::Workbench
