#pragma once

#include <string>

#include "Photometry/IesFile.hpp"

namespace Merivane::Photometry {

/// The file as an IES text of LM-63-2002, whatever edition it came from, with CR LF line ends.
/// Numbers are the shortest that read back as the same double, so that reading the text gives the
/// same table. Header lines that were free text come back as keywords named `OTHER`.
std::string WriteIes(const IesFile& file);

} // namespace Merivane::Photometry
