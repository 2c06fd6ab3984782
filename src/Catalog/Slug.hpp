#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace Merivane::Catalog {

/// A text as a word that is safe in addresses and file names and stays the same for ever: ASCII
/// letters in lower case and digits, the Latin-1 letters folded to such ("á" to "a", "ß" to "ss"),
/// and one "-" for each run of anything else between them. At most `maximumBytes` bytes, never with
/// a "-" at an end; may be empty.
std::string Slugify(std::string_view text, std::size_t maximumBytes);

} // namespace Merivane::Catalog
