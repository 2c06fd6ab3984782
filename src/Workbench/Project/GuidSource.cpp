#include "Workbench/Project/GuidSource.hpp"

#include <cstddef>
#include <random>

namespace Merivane::Workbench {

namespace {

// SplitMix64 (Steele, Lea, Flood): every value of the state once before any repeats.
std::uint64_t NextWord(std::uint64_t& state) {
    state += 0x9E3779B97F4A7C15U;
    std::uint64_t word = state;
    word = (word ^ (word >> 30U)) * 0xBF58476D1CE4E5B9U;
    word = (word ^ (word >> 27U)) * 0x94D049BB133111EBU;
    return word ^ (word >> 31U);
}

} // namespace

GuidSource MakeGuidSource(std::uint64_t seed) {
    if (seed != 0) {
        return {seed};
    }
    std::random_device device;
    const std::uint64_t high = device();
    return {(high << 32U) | device()};
}

Host::Guid NextGuid(GuidSource& source) {
    Host::Guid guid;
    for (std::size_t half = 0; half < 2; ++half) {
        const std::uint64_t word = NextWord(source.state);
        for (std::size_t i = 0; i < 8; ++i) {
            guid.bytes[half * 8 + i] = static_cast<std::uint8_t>(word >> (56U - 8U * i));
        }
    }
    guid.bytes[6] = static_cast<std::uint8_t>((guid.bytes[6] & 0x0FU) | 0x40U); // version 4
    guid.bytes[8] = static_cast<std::uint8_t>((guid.bytes[8] & 0x3FU) | 0x80U); // variant 1
    return guid;
}

} // namespace Merivane::Workbench
