#pragma once

#include <CLI/App.hpp>

#include "Program/ArgumentValues.hpp"
#include "Program/PartArguments.hpp"

namespace Merivane::Program {

/// The arguments of the commands on a library part.
void AddShowPartOptions(CLI::App& command, ShowPartArguments& arguments);
Judgement AddExportPartOptions(CLI::App& command, ExportPartArguments& arguments);

} // namespace Merivane::Program
