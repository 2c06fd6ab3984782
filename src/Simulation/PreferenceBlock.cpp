#include "Simulation/PreferenceBlock.hpp"

#include <cstddef>
#include <limits>

namespace Merivane::Simulation {

namespace {

constexpr std::size_t KeyLength = 8;
constexpr std::size_t HeadLength = KeyLength + 4;

std::uint32_t ReadLittleEndian(std::string_view bytes) {
    std::uint32_t value = 0;
    for (std::size_t i = 0; i < 4; ++i) {
        value |= std::uint32_t{static_cast<unsigned char>(bytes[i])} << (8 * i);
    }
    return value;
}

void AppendLittleEndian(std::string& bytes, std::uint32_t value) {
    for (int i = 0; i < 4; ++i) {
        bytes.push_back(static_cast<char>(static_cast<unsigned char>((value >> (8 * i)) & 0xFFU)));
    }
}

} // namespace

PreferenceEntries ParsePreferenceBlock(std::int32_t version, std::string_view block) {
    PreferenceEntries entries;
    if (version != PreferenceBlockVersion) {
        return entries;
    }
    while (block.size() >= HeadLength) {
        // A negative length, read without its sign, runs past any block.
        const std::uint32_t length = ReadLittleEndian(block.substr(KeyLength));
        if (length > block.size() - HeadLength) {
            break;
        }
        entries[std::string(block.substr(0, KeyLength))] = block.substr(HeadLength, length);
        block.remove_prefix(HeadLength + length);
    }
    return entries;
}

std::string FormatPreferenceBlock(const PreferenceEntries& entries) {
    std::string block;
    for (const auto& [key, value] : entries) {
        if (key.size() != KeyLength || value.size() > std::numeric_limits<std::int32_t>::max()) {
            continue;
        }
        block += key;
        AppendLittleEndian(block, static_cast<std::uint32_t>(value.size()));
        block += value;
    }
    return block;
}

std::string_view PreferenceValue(const PreferenceEntries& entries, std::string_view key) {
    const auto found = entries.find(key);
    if (found == entries.end()) {
        return {};
    }
    return found->second;
}

} // namespace Merivane::Simulation
