#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "Workbench/Interface/ResourceScript.hpp"

/// The resources of the session: those that it was opened with, then the add-on's own.
namespace Merivane::Workbench {

/// Reads the scripts that the session was opened with. One that can't be read is left out and told
/// of in the report window.
void ReadSessionResources();

/// Resources by the 16 bits of their number, or null: 33533 is asked for as -32003.
const std::vector<std::string>* FindStringList(std::int16_t resource);
const DialogResource* FindDialog(std::int16_t resource);
const DialogHelpResource* FindDialogHelp(std::int16_t resource);

/// Base name of an icon's image; empty when there is no such icon.
std::string FindIcon(std::int16_t resource);

} // namespace Merivane::Workbench
