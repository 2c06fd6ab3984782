#pragma once

#include <string>

namespace Merivane::Archicad {

/// The folder that holds the add-on's own file, without a separator at its end; empty when the
/// host does not tell.
std::wstring AddOnFolder();

} // namespace Merivane::Archicad
