#pragma once

#include <string>
#include <vector>

#include "Program/OutputFiles.hpp"

/// What the session's choices of files, dialogs, alerts and palettes looked like.
namespace Merivane::Program {

/// Writes all of them to standard output, as text that a person can read: the choices of files, the
/// dialogs as they were last seen and the alerts, each in their order, then the palettes that are
/// visible.
void TellDialogs();

/// A picture (PNG) of each: "dialogo-1-32650.png", "alerta-1.png", "paleta-32750.png". Returns
/// false with one Portuguese sentence when one can't be drawn.
bool DrawDialogs(std::vector<OutputFile>& pictures, std::string& error);

} // namespace Merivane::Program
