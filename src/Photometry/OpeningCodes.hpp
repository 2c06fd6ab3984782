#pragma once

#include <string>

#include "Photometry/IesFile.hpp"

namespace Merivane::Photometry {

/// The file with its luminous opening told as LM-63-2002 does and as `ies2rad` builds it: point,
/// rectangle or box, disk, vertical cylinder, sphere. `WriteIes` of the result passes `ies2rad`
/// whatever the signs and zeros of width, length and height were.
///
/// Editions up to 1995 tell a round shape with one negative side and the other diameter 0; such a
/// file gets the same shape in the code of 2002, silently. A shape that `ies2rad` does not build
/// (ellipse, ellipsoid, horizontal cylinder, a bare line) or that the file's edition does not know
/// becomes the nearest that it does; `warning` is then one Portuguese sentence that names the
/// sides before and after. Otherwise `warning` is empty. `formatVersion` is at least 3 afterwards.
///
/// The header is that of `WithInertHeader`, whose warning comes first where there are both: a
/// geometry file would take the opening's place.
IesFile WithKnownOpening(const IesFile& file, std::string& warning);

} // namespace Merivane::Photometry
