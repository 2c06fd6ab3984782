#include "Catalog/Sha256.hpp"

#include <algorithm>

#include "Catalog/Sha256Blocks.hpp"
#include "Text/Hex.hpp"

namespace Merivane::Catalog {

namespace {

constexpr std::size_t LengthBytes = 8; // of the message's length at its end

void TakeBlocks(Sha256State& state, const unsigned char* blocks, std::size_t count) {
    static const BlockFunction Take =
        ProcessorTakeBlocks() != nullptr ? ProcessorTakeBlocks() : &PortableTakeBlocks;
    Take(state, blocks, count);
}

const unsigned char* BytesOf(std::string_view text) {
    return reinterpret_cast<const unsigned char*>(text.data());
}

/// The last block or two: the tail, a bit that is set, zeros, the length in bits, big-endian.
void TakePadding(Sha256Run& run) {
    const std::size_t used = run.length % Sha256BlockSize;
    std::array<unsigned char, 2 * Sha256BlockSize> end = {};
    std::copy_n(run.tail.begin(), used, end.begin());
    end[used] = 0x80;
    const std::size_t blocks = used + 1 + LengthBytes <= Sha256BlockSize ? 1 : 2;
    const std::uint64_t bits = run.length * 8;
    for (std::size_t i = 0; i < LengthBytes; ++i) {
        end[blocks * Sha256BlockSize - 1 - i] = static_cast<unsigned char>(bits >> (8 * i) & 0xFFU);
    }
    TakeBlocks(run.state, end.data(), blocks);
}

} // namespace

void Sha256Add(Sha256Run& run, std::string_view bytes) {
    const std::size_t used = run.length % Sha256BlockSize;
    run.length += bytes.size();
    if (used > 0) {
        const std::string_view filling = bytes.substr(0, Sha256BlockSize - used);
        std::copy_n(BytesOf(filling), filling.size(), run.tail.data() + used);
        if (used + filling.size() < Sha256BlockSize) {
            return;
        }
        TakeBlocks(run.state, run.tail.data(), 1);
        bytes.remove_prefix(filling.size());
    }
    const std::size_t blocks = bytes.size() / Sha256BlockSize;
    TakeBlocks(run.state, BytesOf(bytes), blocks);
    bytes.remove_prefix(blocks * Sha256BlockSize);
    std::copy_n(BytesOf(bytes), bytes.size(), run.tail.begin());
}

std::string Sha256Hex(const Sha256Run& run) {
    Sha256Run whole = run;
    TakePadding(whole);
    std::string digest;
    for (const std::uint32_t word : whole.state) {
        for (const int shift : {24, 16, 8, 0}) {
            digest += static_cast<char>(word >> shift & 0xFFU);
        }
    }
    return Text::ToHex(digest);
}

std::string Sha256Hex(std::string_view bytes) {
    Sha256Run run;
    Sha256Add(run, bytes);
    return Sha256Hex(run);
}

} // namespace Merivane::Catalog
