#pragma once

#include <cstdint>
#include <string>

#include "Host/Types.hpp"

/// Menus, project events and palettes, as the add-on registers them. Resources have numbers of 16
/// bits: one above 32767 is named, and comes back to a handler, as the negative number of the same
/// bits (33533 as -32003). Defined by whichever host is
/// linked; nothing throws. Main thread only.
namespace Merivane::Host {

/// What the host is told of the add-on when it looks for one.
struct AddOnEnvironment {
    const char* name = nullptr;
    const char* description = nullptr;
};

/// How the host treats an add-on.
enum class AddOnType : std::int32_t { DontRegister = 0, Normal = 1, Preload = 2 };

/// String `index` (from 1) of the string list resource `resource` of the add-on, in UTF-8; empty
/// when there is none.
std::string ResourceString(std::int16_t resource, std::int16_t index);

/// Registers a menu from a string list resource. `separatorBefore` parts it from the one before.
/// BadId when there is no such string list or it is registered already.
ErrorCode RegisterMenu(std::int16_t resource, bool separatorBefore);

/// Called with the resource of a menu and the number of one of its items, from 1.
using MenuHandler = ErrorCode (*)(std::int16_t resource, std::int16_t item);

/// Sends the items of a registered menu to `handler`. BadId when it is not registered.
ErrorCode InstallMenuHandler(std::int16_t resource, MenuHandler handler);

/// Project events, to be added up.
inline constexpr std::int32_t ProjectNew = 1;
inline constexpr std::int32_t ProjectOpen = 4;

using ProjectEventHandler = ErrorCode (*)(std::int32_t event);

/// Calls `handler` for each of `events`; the project must not be changed from inside. A later call
/// takes the place of the one before; a null handler ends it.
ErrorCode CatchProjectEvents(std::int32_t events, ProjectEventHandler handler);

/// What the host tells a palette.
enum class PaletteMessage : std::int32_t {
    Close = 1,
    HideAll = 2,
    ShowAll = 3,
    Disable = 4,
    Enable = 5,
    Open = 6,
    IsVisible = 7,
};

/// `visible` is to be set by the answer to `IsVisible`.
using PaletteHandler = ErrorCode (*)(PaletteMessage message, bool& visible);

/// Windows over which a palette may float: all but layouts' master and model compare.
inline constexpr std::int32_t PaletteEverywhere = 1015;

/// BadId when a palette of this identity is registered already.
ErrorCode RegisterPalette(const Guid& palette, PaletteHandler handler, std::int32_t flags);

/// BadId when it is not registered.
ErrorCode UnregisterPalette(const Guid& palette);

/// Asks the host not to unload the add-on when the command ends.
void KeepInMemory();

/// True when the host's interface is dark.
bool IsDarkMode();

} // namespace Merivane::Host
