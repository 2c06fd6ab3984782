#pragma once

#include <string>
#include <vector>

#include "Photometry/IesFile.hpp"

namespace Merivane::Commands {

/// An IES file that the user has chosen.
struct PickedIes {
    std::wstring location; ///< its full path
    std::string fileName;  ///< UTF-8, with extension
    std::string baseName;  ///< without
    Photometry::IesFile file;
    std::vector<std::string> warnings; ///< of reading it
};

/// Asks for an IES file and reads it; its header texts come back as UTF-8, its warnings go into the
/// run log too. False when the user chooses none, and for a file that can't be read or is refused,
/// which an alert tells; `picked` is then as it was.
bool PickIesFile(PickedIes& picked);

} // namespace Merivane::Commands
