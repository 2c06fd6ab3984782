#pragma once

#include <string>

#include "Photometry/IesFile.hpp"

namespace Merivane::Photometry {

/// The file without the header texts that steer `ies2rad`: the name of a geometry file
/// (`[LUMINOUSGEOMETRY]`), which it hands to a program that is not there, and lines longer than its
/// buffer, of which it takes the rest for a line of its own, be it a TILT line. All other header
/// texts are comments to it.
///
/// `warning` is one Portuguese sentence that names the geometry file where there is one, otherwise
/// empty.
IesFile WithInertHeader(const IesFile& file, std::string& warning);

} // namespace Merivane::Photometry
