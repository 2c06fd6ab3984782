#pragma once

#include <vector>

#include "Host/LibraryParameter.hpp"
#include "Photometry/LuminaireContract.hpp"

namespace Merivane::Archicad {

/// The host's parameters as the contract knows them: angles in degrees, pens, titles and other
/// kinds that the contract does not read as plain reals. Arrays hold what is there, at most
/// `dim1` x `dim2` values; a `dim2` below 1 counts as 1.
std::vector<Photometry::ContractParameter>
FromAddPars(const std::vector<Host::LibraryParameter>& addPars);

/// As above, of the parameters in `names` alone: most of a luminaire is its candela table.
std::vector<Photometry::ContractParameter>
FromAddPars(const std::vector<Host::LibraryParameter>& addPars,
            const Photometry::ParameterNames& names);

/// One parameter as the host keeps it: angles in radians, the name cut to 31 characters, texts to
/// 255 units of UTF-16, never inside a character. A text ends before its first zero byte; a byte
/// that is no UTF-8 is taken as Windows-1252.
void ToAddPar(const Photometry::ContractParameter& parameter, Host::LibraryParameter& addPar);

} // namespace Merivane::Archicad
