#pragma once

#include <CLI/App.hpp>

#include "Program/CommandLine.hpp"

namespace Merivane::Program {

/// The arguments of the commands on a catalogue.
void AddCheckCatalogOptions(CLI::App& command, CheckCatalogArguments& arguments);
void AddListCatalogOptions(CLI::App& command, ListCatalogArguments& arguments);

} // namespace Merivane::Program
