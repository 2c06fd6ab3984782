#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "Host/Types.hpp"
#include "Photometry/IesFile.hpp"
#include "Photometry/LuminaireContract.hpp"

namespace Merivane::Archicad {

/// A luminaire from an object or lamp of the libraries.
struct AddBlockRequest {
    std::int32_t sourceIndex = 0; ///< library index of the part that is copied
    Photometry::IesFile file;
    Photometry::LuminaireSettings settings; ///< `symbolFill` is found, not taken from here
    std::string newName;                    ///< empty = "Luminaria IES"
    bool keepMaterialParameter = false;     ///< `mat` stays though no script names it
    bool addSplitSwitch = false;            ///< adds `seoSplit`
    std::vector<std::pair<std::string, double>> overrides; ///< parameters; angles in radians
};

/// What became of it.
struct AddBlockResult {
    std::int32_t index = 0; ///< library index of the new part
    std::string name;       ///< the first free one
    std::vector<std::string> warnings;
};

/// Copies a part into the add-on's own library folder as a lamp that carries the whole photometry
/// and the generated blocks of script. The source stays as it was; one that is a luminaire already
/// gives one with a new contract and the user's own parameters.
///
/// On failure the host's code; no file is left, and `result` holds the warnings until then, the
/// last of which tells what failed where the host's code alone does not. No undo step may run; the
/// indices of parts given out before may be void afterwards.
Host::ErrorCode AddLuminaireBlockToPart(const AddBlockRequest& request, AddBlockResult& result);

} // namespace Merivane::Archicad
