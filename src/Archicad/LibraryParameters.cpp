#include "Archicad/LibraryParameters.hpp"

#include <algorithm>
#include <array>
#include <cstddef>
#include <map>
#include <set>
#include <string>
#include <utility>

#include "Archicad/ContractConversion.hpp"
#include "Photometry/ContractBuilding.hpp"
#include "Text/Ascii.hpp"

namespace Merivane::Archicad {

namespace {

using Host::LibraryParameter;
using Host::ParameterType;
using Photometry::ContractParameter;

constexpr std::array<std::string_view, 8> SurfaceAndSymbolSettings = {
    "overridesurfaces", "symfill", "symfillpen", "symbackpen",
    "symrep",           "usemvo",  "showaxis",   "seosplit"};

constexpr std::string_view SurfacePrefix = "mat";

/// In lower case: the contract's own spelling differs from part to part.
std::map<std::string, std::size_t> PlacesOf(const std::vector<ContractParameter>& contract) {
    std::map<std::string, std::size_t> places;
    for (std::size_t i = 0; i < contract.size(); ++i) {
        places.emplace(Text::ToLower(contract[i].name), i);
    }
    return places;
}

/// "mat1", "mat02"; not "mat" alone.
bool IsNumberedSurface(std::string_view name) {
    return name.size() > SurfacePrefix.size() && name.starts_with(SurfacePrefix) &&
           std::all_of(name.begin() + SurfacePrefix.size(), name.end(), Text::IsDigit);
}

bool IsSurfaceOrSymbolSetting(std::string_view name) {
    return IsNumberedSurface(name) ||
           std::find(SurfaceAndSymbolSettings.begin(), SurfaceAndSymbolSettings.end(), name) !=
               SurfaceAndSymbolSettings.end();
}

enum class Kind : int { Visible = 1, Setting = 2, Hidden = 3, Own = 4 };

struct Ranked {
    Kind kind = Kind::Own;
    std::size_t position = 0; ///< within its kind
    LibraryParameter parameter;
};

Ranked RankOf(const LibraryParameter& parameter, std::size_t place,
              const std::map<std::string, std::size_t>& places,
              const std::vector<ContractParameter>& contract) {
    const std::string name = Text::ToLower(parameter.name);
    if (const auto found = places.find(name); found != places.end()) {
        const bool hidden = contract[found->second].hidden;
        return {hidden ? Kind::Hidden : Kind::Visible, found->second, {}};
    }
    return {IsSurfaceOrSymbolSetting(name) ? Kind::Setting : Kind::Own, place, {}};
}

/// The contract's names, those of earlier versions included, in lower case.
const std::set<std::string>& LoweredContractNames() {
    static const std::set<std::string> Names = [] {
        std::set<std::string> lowered;
        for (const std::string& name : Photometry::ContractParameterNames()) {
            lowered.insert(Text::ToLower(name));
        }
        return lowered;
    }();
    return Names;
}

} // namespace

LibraryParameter* FindAddPar(std::vector<LibraryParameter>& addPars, std::string_view name) {
    const std::string lowered = Text::ToLower(name);
    const auto found =
        std::find_if(addPars.begin(), addPars.end(), [&](const LibraryParameter& parameter) {
            return Text::ToLower(parameter.name) == lowered;
        });
    return found == addPars.end() ? nullptr : &*found;
}

LibraryParameter SplitSwitch(std::string_view description) {
    LibraryParameter split;
    split.name = "seoSplit";
    split.description = description;
    split.type = ParameterType::Boolean;
    split.number = 1.0;
    return split;
}

std::vector<LibraryParameter> MergeParameters(const std::vector<LibraryParameter>& existing,
                                              const std::vector<ContractParameter>& contract,
                                              bool keepMaterial, bool addSplit, bool dropMaterial) {
    std::vector<LibraryParameter> merged;
    for (const LibraryParameter& parameter : existing) {
        const std::string name = Text::ToLower(parameter.name);
        const bool isMaterial = name == SurfacePrefix && parameter.type == ParameterType::Surface;
        const bool isOldSwitch = addSplit && name == "seosplit";
        if (!LoweredContractNames().contains(name) && !isOldSwitch &&
            !(isMaterial && dropMaterial && !keepMaterial)) {
            merged.push_back(parameter);
        }
    }
    for (const ContractParameter& parameter : contract) {
        ToAddPar(parameter, merged.emplace_back());
    }
    if (addSplit) {
        merged.push_back(SplitSwitch("Cortar so com o corpo operador (Laje)"));
    }
    return merged;
}

void ReorderParameters(std::vector<LibraryParameter>& addPars,
                       const std::vector<ContractParameter>& contract) {
    const std::map<std::string, std::size_t> places = PlacesOf(contract);
    std::vector<Ranked> ranked;
    for (LibraryParameter& parameter : addPars) {
        if (parameter.type != ParameterType::Title) {
            parameter.flags |= Host::ParameterChild;
        }
        ranked.push_back(RankOf(parameter, ranked.size(), places, contract));
        ranked.back().parameter = std::move(parameter);
    }
    std::stable_sort(ranked.begin(), ranked.end(), [](const Ranked& a, const Ranked& b) {
        return std::pair(a.kind, a.position) < std::pair(b.kind, b.position);
    });
    std::transform(ranked.begin(), ranked.end(), addPars.begin(),
                   [](Ranked& rank) { return std::move(rank.parameter); });
}

} // namespace Merivane::Archicad
