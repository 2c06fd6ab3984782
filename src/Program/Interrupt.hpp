#pragma once

namespace Merivane::Program {

/// From here on Ctrl-C (and a request to end) no longer ends the program at once: it is remembered,
/// and whoever works asks `Interrupted` and stops cleanly.
void CatchInterrupts();

/// True once the user asked to stop.
bool Interrupted();

} // namespace Merivane::Program
