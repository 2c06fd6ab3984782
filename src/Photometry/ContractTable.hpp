#pragma once

#include <span>
#include <string>
#include <variant>
#include <vector>

#include "Photometry/IesFile.hpp"
#include "Photometry/LuminaireContract.hpp"

namespace Merivane::Photometry {

/// The value of a header keyword.
struct KeywordSource {
    const char* key;
};

/// Values that are not one field of a record.
enum class DerivedSource { LuminousFlux, SymbolCount, SymbolData, PackedKeywords, CandelaTable };

/// Where a parameter's value comes from; titles and empty texts have no source.
using ContractSource = std::variant<std::monostate, double, KeywordSource, DerivedSource,
                                    int IesFile::*, double IesFile::*, std::string IesFile::*,
                                    std::vector<double> IesFile::*, int LuminaireSettings::*,
                                    double LuminaireSettings::*, std::string LuminaireSettings::*>;

/// One parameter of the contract.
struct ContractRow {
    const char* name;
    ContractParameterType type;
    bool hidden;
    ContractSource source;
    const char* description; ///< label in the host's parameter list
};

/// The parameters of the contract, in the order of the part's list.
std::span<const ContractRow> ContractTable();

} // namespace Merivane::Photometry
