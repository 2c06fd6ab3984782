#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "Archicad/EmbeddedPicture.hpp"
#include "Host/Library.hpp"
#include "Photometry/LuminaireContract.hpp"

namespace Merivane::Archicad {

/// A library part from scratch. Texts are UTF-8, those of scripts with CR LF line ends.
struct LibraryPartRequest {
    Host::PartType partType = Host::PartType::Lamp;
    std::int32_t parentBuiltIn = 118; ///< number of the host's own subtype; 118 = light sources
    std::string name;                 ///< its file is the first free of this name
    std::string commentText;
    std::string script3D;
    std::string script2D;
    double zzyzx = 1.0; ///< height, where `withHeight` [m]
    bool withHeight = false;
    bool withAxisSwitch = false;       ///< `showAxis`, unless `parameters` bring it
    std::vector<std::string> surfaces; ///< names; one parameter `mat1`, `mat2`... for each
    bool withSurfaceOverride = false;
    std::vector<EmbeddedPicture> pictures; ///< scripts know them by their numbers, from 1
    bool withSymbolFill = false;
    std::int32_t symbolFillIndex = 0; ///< fill attribute
    bool withPlanRepresentation = false;
    std::string parameterScript;
    std::vector<Photometry::ContractParameter> parameters;
    std::wstring folder;    ///< inside one of the project's libraries
    bool useFolder = false; ///< false = the add-on's own library folder
};

/// Writes the part and reads it into the project; `index` is its library index. A list of
/// parameters that the host can't take is told in the run log, and the part is made without one.
/// On any other failure the host's code, and no file is left. No undo step may run; where the
/// add-on's folder becomes a library, indices of before are void.
Host::ErrorCode CreateLibraryPart(const LibraryPartRequest& request, std::int32_t& index);

} // namespace Merivane::Archicad
