#pragma once

namespace Merivane::Diagnostics {

/// Shows what was found of Radiance and whether it calculates correctly.
void CheckRadianceInstallation();

} // namespace Merivane::Diagnostics
