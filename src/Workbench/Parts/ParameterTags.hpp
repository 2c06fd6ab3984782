#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "Host/LibraryParameter.hpp"

/// The names that parameters' kinds and flags have in XML.
namespace Merivane::Workbench::Parts {

std::string_view TagOf(Host::ParameterType type);

/// False for a tag that is no parameter's.
bool FindParameterType(std::string_view tag, Host::ParameterType& type);

struct ParameterFlag {
    std::int32_t bit = 0;
    std::string_view tag;
};

/// Without `ParameterFixed`, which is an element of its own.
std::span<const ParameterFlag> ParameterFlags();

} // namespace Merivane::Workbench::Parts
