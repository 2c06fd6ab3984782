#pragma once

#include <string>
#include <string_view>

#include "Workbench/Script/ScriptMachine.hpp"

/// What variables hold when a script begins.
namespace Merivane::Workbench {

/// The value of a global by its name in upper case; 0 for every other name.
ScriptValue GlobalValue(const ScriptEnvironment& environment, ScriptKind kind,
                        std::string_view name);

/// The parameters of a part by their names in upper case, its sizes A and B among them. Angles are
/// degrees, as scripts count them.
ParameterMap BuildParameterMap(const ScriptPart& part);

/// The parameter a frame runs with, null when the part has none of this name (upper case).
const ScriptVariable* FindParameter(const PartFrame& frame, const std::string& name);

} // namespace Merivane::Workbench
