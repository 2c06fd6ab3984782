#pragma once

namespace Merivane::Commands {

/// Has the user choose how hard the calculation works, for all projects.
void ConfigureEngine();

} // namespace Merivane::Commands
