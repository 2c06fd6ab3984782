#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace Merivane::Catalog {

/// The names of the macros that a GDL script calls: the texts behind the keyword `call`, trimmed,
/// each once, in order of first call. Names that the script works out are not found.
std::vector<std::string> ExtractMacroCalls(std::string_view script);

} // namespace Merivane::Catalog
