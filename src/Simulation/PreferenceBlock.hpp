#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <string_view>

namespace Merivane::Simulation {

/// The add-on's preferences: values by key, keys of eight ASCII characters, in sorted order.
using PreferenceEntries = std::map<std::string, std::string, std::less<>>;

/// Version number under which the host keeps the block.
inline constexpr std::int32_t PreferenceBlockVersion = 2;

/// Reads the one block of bytes that the host keeps. An entry is its key (8 bytes), the length n of
/// its value (32-bit signed, little endian) and n bytes. Reading stops quietly at the first entry
/// that is not whole; a block of another version is empty. Of a key told twice the last one counts.
PreferenceEntries ParsePreferenceBlock(std::int32_t version, std::string_view block);

/// The block for these entries, to be kept under `PreferenceBlockVersion`. Entries whose key is not
/// 8 bytes long are left out.
std::string FormatPreferenceBlock(const PreferenceEntries& entries);

/// The value of `key`, empty when it is absent. Valid as long as the entries are unchanged.
std::string_view PreferenceValue(const PreferenceEntries& entries, std::string_view key);

} // namespace Merivane::Simulation
