#include "Simulation/Study/TextExtent.hpp"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

namespace Merivane::Simulation {

namespace {

/// Advance of a character in hundredths of the height of capitals, rounded up.
struct Advance {
    std::int16_t normal;
    std::int16_t bold;
};

// Widths of DejaVu Sans, the widest of the faces that drawings are commonly lettered in: what has
// room in it has room in Arial or Helvetica.
constexpr std::array<Advance, 95> Ascii = {{
    {44, 48},   {55, 63},   {64, 72},   {115, 115}, {88, 96},   {131, 138}, // blank to %
    {107, 120}, {38, 42},   {54, 63},   {54, 63},   {69, 72},   {115, 115}, // & to +
    {44, 53},   {50, 57},   {44, 53},   {47, 51},   {88, 96},   {88, 96},   // , to 1
    {88, 96},   {88, 96},   {88, 96},   {88, 96},   {88, 96},   {88, 96},   // 2 to 7
    {88, 96},   {88, 96},   {47, 55},   {47, 55},   {115, 115}, {115, 115}, // 8 to =
    {115, 115}, {73, 80},   {138, 138}, {94, 107},  {95, 105},  {96, 101},  // > to C
    {106, 114}, {87, 94},   {79, 94},   {107, 113}, {104, 115}, {41, 52},   // D to I
    {41, 52},   {90, 107},  {77, 88},   {119, 137}, {103, 115}, {108, 117}, // J to O
    {83, 101},  {108, 117}, {96, 106},  {88, 99},   {84, 94},   {101, 112}, // P to U
    {94, 107},  {136, 152}, {94, 106},  {84, 100},  {94, 100},  {54, 63},   // V to [
    {47, 51},   {54, 63},   {115, 115}, {69, 69},   {69, 69},   {85, 93},   // \ to a
    {88, 99},   {76, 82},   {88, 99},   {85, 94},   {49, 60},   {88, 99},   // b to g
    {87, 98},   {39, 48},   {39, 48},   {80, 92},   {39, 48},   {134, 143}, // h to m
    {87, 98},   {84, 95},   {88, 99},   {88, 99},   {57, 68},   {72, 82},   // n to s
    {54, 66},   {87, 98},   {82, 90},   {113, 127}, {82, 89},   {82, 90},   // t to y
    {73, 80},   {88, 98},   {47, 51},   {88, 98},   {115, 115},             // z to ~
}};

struct Sign {
    char32_t code;
    Advance advance;
};

// Signs of the texts that are written here and of units, ascending.
constexpr std::array<Sign, 26> Signs = {{
    {U'\u00a0', {44, 48}},   {U'\u00a7', {69, 69}},   {U'\u00aa', {65, 78}},
    {U'\u00b0', {69, 69}},   {U'\u00b2', {55, 61}},   {U'\u00b3', {55, 61}},
    {U'\u00b4', {69, 69}},   {U'\u00b5', {88, 101}},  {U'\u00b7', {44, 53}},
    {U'\u00b9', {55, 61}},   {U'\u00ba', {65, 78}},   {U'\u00d0', {107, 115}},
    {U'\u00d7', {115, 115}}, {U'\u00de', {83, 102}},  {U'\u00df', {87, 99}},
    {U'\u00f7', {115, 115}}, {U'\u2013', {69, 69}},   {U'\u2018', {44, 53}},
    {U'\u2019', {44, 53}},   {U'\u201c', {72, 91}},   {U'\u201d', {72, 91}},
    {U'\u2022', {81, 88}},   {U'\u2030', {185, 198}}, {U'\u2212', {115, 115}},
    {U'\u2264', {115, 115}}, {U'\u2265', {115, 115}},
}};

// A letter with an accent is as wide as the letter; '\0' for those that stand among the others.
constexpr std::array<char, 65> AccentedLetters = {
    "AAAAAA\0CEEEEIIII\0NOOOOO\0OUUUUY\0\0aaaaaa\0ceeeeiiiionooooo\0ouuuuy\0y"};
constexpr char32_t FirstAccented = 0xC0;
constexpr char32_t LastAccented = 0xFF;

// What has no place above is as wide as the widest that is common: an em, as an ideogram is.
constexpr Advance Em = {144, 149};

Advance AdvanceOf(char32_t code) {
    if (code < U' ') {
        return {0, 0};
    }
    if (code <= U'~') {
        return Ascii[code - U' '];
    }
    if (code >= FirstAccented && code <= LastAccented &&
        AccentedLetters[code - FirstAccented] != '\0') {
        return AdvanceOf(static_cast<unsigned char>(AccentedLetters[code - FirstAccented]));
    }
    const auto sign = std::lower_bound(Signs.begin(), Signs.end(), code,
                                       [](const Sign& a, char32_t b) { return a.code < b; });
    if (sign != Signs.end() && sign->code == code) {
        return sign->advance;
    }
    return code == U'\u2014' || code == U'\u2026' ? Advance{138, 138} : Em;
}

constexpr char32_t Replacement = U'\ufffd'; // drawn where bytes make no character

/// How many bytes go on a character that begins with `lead`; none for a byte that begins none.
std::size_t FollowingBytes(unsigned char lead) {
    if (lead >= 0xF0U) {
        return 3;
    }
    if (lead >= 0xE0U) {
        return 2;
    }
    return lead >= 0xC0U ? 1 : 0;
}

/// Takes the next character off the front.
char32_t TakeCharacter(std::string_view& text) {
    const auto lead = static_cast<unsigned char>(text.front());
    text.remove_prefix(1);
    if (lead < 0x80U) {
        return lead;
    }
    std::size_t missing = FollowingBytes(lead);
    if (missing == 0) {
        return Replacement;
    }
    char32_t code = lead & (0x3FU >> missing);
    while (missing > 0 && !text.empty() &&
           (static_cast<unsigned char>(text.front()) & 0xC0U) == 0x80U) {
        code = code << 6U | (static_cast<unsigned char>(text.front()) & 0x3FU);
        text.remove_prefix(1);
        --missing;
    }
    return missing == 0 ? code : Replacement;
}

} // namespace

double EstimateTextWidth(std::string_view text, double height, bool bold) {
    std::int64_t hundredths = 0;
    while (!text.empty()) {
        const Advance advance = AdvanceOf(TakeCharacter(text));
        hundredths += bold ? advance.bold : advance.normal;
    }
    return static_cast<double>(hundredths) / 100.0 * height;
}

double TextLinePitch(double height) {
    constexpr double Pitch = 1.6; // Arial at single spacing: 1.15 em, capitals of 0.716 em
    return Pitch * height;
}

} // namespace Merivane::Simulation
