#pragma once

#include <CLI/App.hpp>

#include "Program/ArgumentValues.hpp"
#include "Program/CalculateArguments.hpp"

namespace Merivane::Program {

/// Adds the options of `vantoro calcular` to its command. They fill `arguments`, which has to last
/// as long as the command; values that are no free text once the judgement is asked.
Judgement AddCalculateOptions(CLI::App& command, CalculateArguments& arguments);

} // namespace Merivane::Program
