#pragma once

#include <string>
#include <vector>

#include "Photometry/IesFile.hpp"

namespace Merivane::Examples {

/// A photometric file of the examples. All of them are invented, and so is their maker.
struct SampleLuminaire {
    std::string fileName;           ///< "downlight.ies"
    Photometry::IesFile photometry; ///< header texts in UTF-8, candela rounded to 0.1 cd
    bool windows1252 = false;       ///< the header is written in that code page
};

/// Every sample, made from its formula: between them they show each symmetry, both units, both
/// codes of a round opening, a lamp tilt table and five editions of the standard.
std::vector<SampleLuminaire> BuildSampleLuminaires();

} // namespace Merivane::Examples
