#pragma once

#include <string_view>
#include <vector>

#include "Photometry/IesFile.hpp"
#include "Photometry/LuminaireContract.hpp"

namespace Merivane::Photometry {

/// Version of the contract that is built, and the latest that is read.
inline constexpr int ContractVersion = 7;

/// The parameters of a luminaire's library part, in the order of the part's list: the whole of the
/// photometric file, what was chosen beside it, and what its user may change. The candela table is
/// kept as read, multiplier not applied. An empty array is one 0, which is what a script can hold.
std::vector<ContractParameter> BuildContract(const IesFile& file,
                                             const LuminaireSettings& settings);

/// Names of all parameters that are the contract's and not a part's own, those of earlier versions
/// included.
const ParameterNames& ContractParameterNames();

/// True for the parameters of the circuit text, which a luminaire keeps when its part is renewed.
bool IsCircuitParameter(std::string_view name);

} // namespace Merivane::Photometry
