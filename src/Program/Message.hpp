#pragma once

#include <string_view>

namespace Merivane::Program {

/// Writes "vantoro: " and the sentence on a line of its own to standard error.
void TellError(std::string_view sentence);

/// The same for a sentence that ends in an address or a path: no full stop is put behind it, which
/// who copies it would take along.
void TellErrorAtAddress(std::string_view sentence);

/// Writes a line to standard output.
void TellLine(std::string_view line);

} // namespace Merivane::Program
