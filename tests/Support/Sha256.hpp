#pragma once

#include <string>
#include <string_view>

namespace Merivane::Tests {

/// SHA-256 of the bytes (FIPS 180-4) as 64 small hexadecimal digits, to hold a long text against a
/// figure that was worked out elsewhere.
std::string Sha256(std::string_view bytes);

} // namespace Merivane::Tests
