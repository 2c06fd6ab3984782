#pragma once

namespace Merivane::Commands {

/// Has the user choose how hard the calculation works, for all projects.
void ConfigureEngine();

/// The same out of another command's dialog: the log goes on in that command's.
void EditEngineSettings();

} // namespace Merivane::Commands
