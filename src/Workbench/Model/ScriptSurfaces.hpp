#pragma once

#include <cstdint>
#include <string_view>

#include "Workbench/Project/Project.hpp"

/// The surfaces that library parts define on their own, numbered through the project's parts from
/// `Host::FirstScriptSurface` up. Numbers last until parts come or go.
namespace Merivane::Workbench {

/// Number of the surface of this name of one of the project's parts; -1 where the part has none.
std::int32_t NumberScriptSurface(const Project& project, const ProjectPart& part,
                                 std::string_view name);

/// The surface of this number, null when there is none.
const Host::ModelSurface* FindScriptSurface(const Project& project, std::int32_t number);

} // namespace Merivane::Workbench
