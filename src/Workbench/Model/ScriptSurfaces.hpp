#pragma once

#include <cstdint>
#include <string_view>

#include "Workbench/Project/Project.hpp"

/// The surfaces that library parts define on their own, numbered from `Host::FirstScriptSurface`
/// up: first those that the project tells of its parts, then those that scripts defined when they
/// ran. Numbers last until parts come or go.
namespace Merivane::Workbench {

/// Number of the surface of this name of one of the project's parts; -1 where the part has none.
std::int32_t NumberScriptSurface(const Project& project, const ProjectPart& part,
                                 std::string_view name);

/// Number of the first surface that scripts define.
std::int32_t FirstRunSurface(const Project& project);

/// The surface of this number, null when there is none.
const Host::ModelSurface* FindScriptSurface(const Project& project, std::int32_t number);

} // namespace Merivane::Workbench
