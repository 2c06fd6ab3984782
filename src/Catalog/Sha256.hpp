#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

/// SHA-256 (FIPS 180-4). Digests are shown as 64 small hexadecimal digits.
namespace Merivane::Catalog {

/// A digest under way: what was added so far.
struct Sha256Run {
    /// Fractions of the square roots of the first 8 primes.
    std::array<std::uint32_t, 8> state = {0x6a09e667, 0xbb67ae85, 0x3c6ef372, 0xa54ff53a,
                                          0x510e527f, 0x9b05688c, 0x1f83d9ab, 0x5be0cd19};
    std::array<unsigned char, 64> tail = {}; ///< the first length % 64 count: no block yet
    std::uint64_t length = 0;                ///< of all that was added [bytes]
};

/// Adds bytes behind those added before; how they are divided over the calls does not matter.
void Sha256Add(Sha256Run& run, std::string_view bytes);

/// The digest of what was added; more may be added after.
std::string Sha256Hex(const Sha256Run& run);

/// The digest of these bytes.
std::string Sha256Hex(std::string_view bytes);

} // namespace Merivane::Catalog
