#pragma once

#include <string_view>
#include <vector>

#include "Photometry/IesFile.hpp"
#include "Photometry/LuminaireContract.hpp"

namespace Merivane::Photometry {

/// The first parameter of exactly this name, null when there is none. Valid as long as the list is
/// unchanged.
const ContractParameter* FindParameter(const std::vector<ContractParameter>& list,
                                       std::string_view name);

/// Photometry of a luminaire from its part's parameters. Header lines that were no keyword come
/// back as keywords named OTHER; `out.formatVersion` is 3.
///
/// `out` is first reset; after a refusal it holds what had been read so far and must not be used.
ContractReadResult ReadContract(const std::vector<ContractParameter>& parameters, IesFile& out);

/// Position, aiming, maintenance and source file from a part's parameters. What is absent, of
/// another kind or no finite number keeps its default; `symbolFill` always does.
LuminaireSettings ReadLuminaireSettings(const std::vector<ContractParameter>& parameters);

} // namespace Merivane::Photometry
