#pragma once

#include <string_view>

namespace Merivane::Photometry {

/// True when the code of a script names `name` as a whole word, in either case; what stands in
/// comments and in texts between quotation marks is no code. `name` is ASCII.
bool ScriptNames(std::string_view script, std::string_view name);

} // namespace Merivane::Photometry
