#pragma once

namespace Merivane::Program {

/// True when standard error is a terminal that can move its cursor.
bool ErrorOutputIsTerminal();

} // namespace Merivane::Program
