#pragma once

#include <string_view>
#include <vector>

#include "Archicad/LibraryPartRequest.hpp"
#include "Host/LibraryParameter.hpp"
#include "Photometry/LuminaireContract.hpp"

/// Lists of parameters of the parts that the add-on makes. Names are compared without regard to
/// case, as the host does.
namespace Merivane::Archicad {

/// The first parameter of this name, null when there is none. Valid as long as the list is
/// unchanged.
Host::LibraryParameter* FindAddPar(std::vector<Host::LibraryParameter>& addPars,
                                   std::string_view name);

/// The switch that leaves the cutting of other elements to a part's operator body, switched on.
Host::LibraryParameter SplitSwitch(std::string_view description);

/// The list of a part made from scratch: general surface, height, split switch, surfaces, symbol
/// fill, plan representation, axis, then the contract. The general surface and the switch are
/// there when the 3D script names them.
std::vector<Host::LibraryParameter> BuildPartParameters(const LibraryPartRequest& request);

/// The list of a part that becomes a luminaire: what it had, then the contract, then the split
/// switch if asked for. What it had of an earlier contract goes, and with `dropMaterial`, unless
/// `keepMaterial`, its general surface `mat`.
std::vector<Host::LibraryParameter>
MergeParameters(const std::vector<Host::LibraryParameter>& existing,
                const std::vector<Photometry::ContractParameter>& contract, bool keepMaterial,
                bool addSplit, bool dropMaterial);

/// Brings the contract's visible parameters in front, in the contract's order, then the settings of
/// surfaces and symbol, then what is hidden of the contract; the part's own follow in the order
/// that they had. Whatever is no title becomes a child of the title above it.
void ReorderParameters(std::vector<Host::LibraryParameter>& addPars,
                       const std::vector<Photometry::ContractParameter>& contract);

} // namespace Merivane::Archicad
