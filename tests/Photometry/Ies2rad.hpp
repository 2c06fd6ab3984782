#pragma once

#include <string>

#include "Photometry/IesFile.hpp"
#include "Support/Places.hpp"

namespace Merivane::Tests {

/// The real `ies2rad` of the build, run in a folder of its own with the arguments of a calculation.
class Ies2rad {
public:
    /// Exit status of converting the text that `WriteIes` makes of `file`; `complaint` takes what
    /// it says on standard error.
    int Convert(const Photometry::IesFile& file, std::string& complaint) const;

private:
    TemporaryFolder folder;
};

} // namespace Merivane::Tests
