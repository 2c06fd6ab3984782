// The SHA extensions of x86 processors. Their instructions do two rounds at a time and hold the
// state as two registers, words (a b e f) and (c d g h), a and c highest.

#include "Catalog/Sha256Blocks.hpp"

#if defined(__x86_64__) || defined(_M_X64)

#include <immintrin.h>

#if defined(_MSC_VER)
#include <intrin.h>
#define VANTORO_SHA_INSTRUCTIONS
#else
#include <cpuid.h>
// This function alone may use them: the rest of the program runs on any processor.
#define VANTORO_SHA_INSTRUCTIONS __attribute__((target("sha,sse4.1,ssse3")))
#endif

namespace Merivane::Catalog {

namespace {

struct CpuAnswer {
    unsigned ebx = 0;
    unsigned ecx = 0;
};

CpuAnswer AskProcessor(unsigned leaf) {
#if defined(_MSC_VER)
    int highest[4] = {};
    __cpuid(highest, 0);
    if (static_cast<unsigned>(highest[0]) < leaf) {
        return {};
    }
    int registers[4] = {};
    __cpuidex(registers, static_cast<int>(leaf), 0);
    return {static_cast<unsigned>(registers[1]), static_cast<unsigned>(registers[2])};
#else
    unsigned eax = 0;
    unsigned ebx = 0;
    unsigned ecx = 0;
    unsigned edx = 0;
    const bool known = __get_cpuid_count(leaf, 0, &eax, &ebx, &ecx, &edx) != 0;
    return known ? CpuAnswer{ebx, ecx} : CpuAnswer{};
#endif
}

bool HasShaInstructions() {
    constexpr unsigned Ssse3 = 1U << 9;
    constexpr unsigned Sse41 = 1U << 19;
    constexpr unsigned Sha = 1U << 29;
    constexpr unsigned ExtendedFeatures = 7;
    return (AskProcessor(1).ecx & (Ssse3 | Sse41)) == (Ssse3 | Sse41) &&
           (AskProcessor(ExtendedFeatures).ebx & Sha) != 0;
}

VANTORO_SHA_INSTRUCTIONS void ShaTakeBlocks(Sha256State& state, const unsigned char* blocks,
                                            std::size_t count) {
    const __m128i bigEndian = _mm_set_epi64x(0x0c0d0e0f08090a0b, 0x0405060700010203);
    auto* const words = reinterpret_cast<__m128i*>(state.data());
    const __m128i cdab = _mm_shuffle_epi32(_mm_loadu_si128(words), 0xB1);
    const __m128i efgh = _mm_shuffle_epi32(_mm_loadu_si128(words + 1), 0x1B);
    __m128i abef = _mm_alignr_epi8(cdab, efgh, 8);
    __m128i cdgh = _mm_blend_epi16(efgh, cdab, 0xF0);

    for (; count > 0; --count, blocks += Sha256BlockSize) {
        const __m128i abefBefore = abef;
        const __m128i cdghBefore = cdgh;
        __m128i w[4]; // the last 16 words of the schedule, four in each
#pragma GCC unroll 4
        for (std::size_t i = 0; i < 4; ++i) {
            const auto* const part = reinterpret_cast<const __m128i*>(blocks) + i;
            w[i] = _mm_shuffle_epi8(_mm_loadu_si128(part), bigEndian);
        }
#pragma GCC unroll 16
        for (std::size_t i = 0; i < 16; ++i) {
            const auto* const constants =
                reinterpret_cast<const __m128i*>(Sha256RoundConstants.data()) + i;
            const __m128i added = _mm_add_epi32(w[i % 4], _mm_loadu_si128(constants));
            cdgh = _mm_sha256rnds2_epu32(cdgh, abef, added);
            abef = _mm_sha256rnds2_epu32(abef, cdgh, _mm_shuffle_epi32(added, 0x0E));
            if (i < 12) {
                const __m128i last = w[(i + 3) % 4];
                const __m128i sevenBack = _mm_alignr_epi8(last, w[(i + 2) % 4], 4);
                const __m128i begun = _mm_sha256msg1_epu32(w[i % 4], w[(i + 1) % 4]);
                w[i % 4] = _mm_sha256msg2_epu32(_mm_add_epi32(begun, sevenBack), last);
            }
        }
        abef = _mm_add_epi32(abef, abefBefore);
        cdgh = _mm_add_epi32(cdgh, cdghBefore);
    }

    const __m128i feba = _mm_shuffle_epi32(abef, 0x1B);
    const __m128i dchg = _mm_shuffle_epi32(cdgh, 0xB1);
    _mm_storeu_si128(words, _mm_blend_epi16(feba, dchg, 0xF0));
    _mm_storeu_si128(words + 1, _mm_alignr_epi8(dchg, feba, 8));
}

} // namespace

BlockFunction ProcessorTakeBlocks() {
    return HasShaInstructions() ? &ShaTakeBlocks : nullptr;
}

} // namespace Merivane::Catalog

#else

namespace Merivane::Catalog {

BlockFunction ProcessorTakeBlocks() {
    return nullptr;
}

} // namespace Merivane::Catalog

#endif
