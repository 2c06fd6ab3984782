#pragma once

#include <array>
#include <cstdint>
#include <span>

#include "Host/Types.hpp"

/// The add-on's menus: seven groups under one top menu, each a string list resource.
namespace Merivane::Commands {

/// One group, by the items of its resource.
struct MenuGroup {
    std::int16_t resourceId = 0; ///< of the light interface; the dark one's is 1000 more
    std::int16_t itemCount = 0;
    std::array<std::int16_t, 8> commands = {}; ///< command numbers by item; 0 behind the last one
};

/// How much higher a group's resource is numbered in the host's dark interface.
inline constexpr std::int16_t DarkMenuOffset = 1000;

/// The one group that a separator parts from those before it.
inline constexpr std::int16_t ToolbarMenuGroup = 32535;

/// The groups in the order in which they stand in the menu.
std::span<const MenuGroup> MenuTable();

/// What is added to `MenuGroup::resourceId` in the interface that the host has now.
std::int16_t MenuThemeOffset();

/// The resource of a group in the interface with that offset. Those of the dark interface are above
/// 32767: they stand as the negative number of the same 16 bits, which is how the host passes them.
std::int16_t MenuResource(const MenuGroup& group, std::int16_t themeOffset);

/// The command of an item, counted from 1, of a menu resource of either interface; 0 when there is
/// none.
std::int16_t FindMenuCommand(std::int16_t menuResource, std::int32_t item);

/// Called by the host when an item is chosen: carries its command out. Never fails.
Host::ErrorCode MenuCommandHandler(std::int16_t menuResource, std::int16_t item);

} // namespace Merivane::Commands
