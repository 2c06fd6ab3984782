#include "Catalog/Sha256Blocks.hpp"

#include <bit>

namespace Merivane::Catalog {

namespace {

using Word = std::uint32_t;

Word BigEndianWord(const unsigned char* bytes) {
    return Word{bytes[0]} << 24 | Word{bytes[1]} << 16 | Word{bytes[2]} << 8 | Word{bytes[3]};
}

using Schedule = std::array<Word, 64>;

Schedule ExpandBlock(const unsigned char* block) {
    Schedule w;
    for (std::size_t i = 0; i < 16; ++i) {
        w[i] = BigEndianWord(block + 4 * i);
    }
    for (std::size_t i = 16; i < w.size(); ++i) {
        const Word a = w[i - 15];
        const Word b = w[i - 2];
        w[i] = w[i - 16] + (std::rotr(a, 7) ^ std::rotr(a, 18) ^ a >> 3) + w[i - 7] +
               (std::rotr(b, 17) ^ std::rotr(b, 19) ^ b >> 10);
    }
    return w;
}

/// One round that leaves the words in their places: instead of moving each one place on, the next
/// round names them one place further.
inline void Round(Word a, Word b, Word c, Word& d, Word e, Word f, Word g, Word& h, Word added) {
    h += (std::rotr(e, 6) ^ std::rotr(e, 11) ^ std::rotr(e, 25)) + (g ^ (e & (f ^ g))) + added;
    d += h;
    h += (std::rotr(a, 2) ^ std::rotr(a, 13) ^ std::rotr(a, 22)) + ((a & b) | (c & (a | b)));
}

void TakeBlock(Sha256State& state, const unsigned char* block) {
    const Schedule w = ExpandBlock(block);
    auto [a, b, c, d, e, f, g, h] = state;
    for (std::size_t i = 0; i < w.size(); i += 8) {
        const auto added = [&w, i](std::size_t n) {
            return w[i + n] + Sha256RoundConstants[i + n];
        };
        Round(a, b, c, d, e, f, g, h, added(0));
        Round(h, a, b, c, d, e, f, g, added(1));
        Round(g, h, a, b, c, d, e, f, added(2));
        Round(f, g, h, a, b, c, d, e, added(3));
        Round(e, f, g, h, a, b, c, d, added(4));
        Round(d, e, f, g, h, a, b, c, added(5));
        Round(c, d, e, f, g, h, a, b, added(6));
        Round(b, c, d, e, f, g, h, a, added(7));
    }
    const Sha256State words = {a, b, c, d, e, f, g, h};
    for (std::size_t i = 0; i < state.size(); ++i) {
        state[i] += words[i];
    }
}

} // namespace

void PortableTakeBlocks(Sha256State& state, const unsigned char* blocks, std::size_t count) {
    for (std::size_t i = 0; i < count; ++i) {
        TakeBlock(state, blocks + i * Sha256BlockSize);
    }
}

} // namespace Merivane::Catalog
