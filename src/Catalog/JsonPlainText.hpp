#pragma once

#include <cstddef>
#include <string_view>

namespace Merivane::Catalog {

/// How many bytes at the start of `text` stand the same in a JSON string as in memory: all but the
/// quote, the backslash and the control characters below 32.
std::size_t PlainLength(std::string_view text);

} // namespace Merivane::Catalog
