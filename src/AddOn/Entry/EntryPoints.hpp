#pragma once

#include "Host/Menus.hpp"
#include "Host/Types.hpp"

/// The four functions by which a host knows an add-on. The host calls `CheckEnvironment`, then
/// `RegisterInterface` once, `Initialize` at each load and `FreeData` before it unloads.
namespace Merivane {

/// Tells name and description; they stay valid as long as the add-on is loaded.
Host::AddOnType CheckEnvironment(Host::AddOnEnvironment& environment);

/// Registers the menus. Stops at the first error and returns it.
Host::ErrorCode RegisterInterface();

/// Installs the menu handler, catches project events and registers the palettes. Stops at the first
/// error and returns it.
Host::ErrorCode Initialize();

/// Unregisters and destroys the palettes, the last one first. Never fails.
Host::ErrorCode FreeData();

} // namespace Merivane
