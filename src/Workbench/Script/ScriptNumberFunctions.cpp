#include <algorithm>
#include <cmath>
#include <numbers>

#include "Workbench/Script/ScriptFunctions.hpp"

// Angles are degrees, and exact where sine and cosine are 0, 1 or -1.
namespace Merivane::Workbench {

namespace {

constexpr double Degree = std::numbers::pi / 180.0;
constexpr double MostBits = 31.0;

bool Give(ScriptMachine& machine, FunctionCall& call, double number) {
    call.result.isText = false;
    call.result.number = number;
    return std::isfinite(number) || Fail(machine, "o resultado é grande demais");
}

bool RefuseTexts(ScriptMachine& machine, const FunctionCall& call) {
    for (std::size_t i = 0; i < call.valueCount; ++i) {
        if (call.values[i].isText) {
            return Fail(machine, "falta um número, há um texto");
        }
    }
    return true;
}

/// A function of one number that has a value everywhere.
template <double (*F)(double)> bool OfOne(ScriptMachine& machine, FunctionCall& call) {
    return RefuseTexts(machine, call) && Give(machine, call, F(call.values[0].number));
}

double SineOf(double degrees) {
    constexpr double half = 180.0;
    const double angle = std::remainder(degrees, 2.0 * half);
    return angle == 0.0 || std::abs(angle) == half ? 0.0 : std::sin(angle * Degree);
}

double CosineOf(double degrees) {
    constexpr double quarter = 90.0;
    return SineOf(degrees + quarter);
}

double SignOf(double x) {
    return x > 0.0 ? 1.0 : (x < 0.0 ? -1.0 : 0.0);
}

double FractionOf(double x) {
    return x - std::floor(x);
}

double RoundOf(double x) {
    constexpr double half = 0.5;
    return std::floor(x + half);
}

double NotOf(double x) {
    return x == 0.0 ? 1.0 : 0.0;
}

double ArcTangentOf(double x) {
    return std::atan(x) / Degree;
}

double AbsoluteOf(double x) {
    return std::abs(x);
}

double CeilingOf(double x) {
    return std::ceil(x);
}

double FloorOf(double x) {
    return std::floor(x);
}

double ExponentialOf(double x) {
    return std::exp(x);
}

bool Tangent(ScriptMachine& machine, FunctionCall& call) {
    if (!RefuseTexts(machine, call)) {
        return false;
    }
    const double cosine = CosineOf(call.values[0].number);
    return cosine == 0.0 ? Fail(machine, "a tangente de um ângulo reto não existe")
                         : Give(machine, call, SineOf(call.values[0].number) / cosine);
}

bool SquareRoot(ScriptMachine& machine, FunctionCall& call) {
    if (!RefuseTexts(machine, call)) {
        return false;
    }
    const double x = call.values[0].number;
    return x < 0.0 ? Fail(machine, "raiz de um número negativo")
                   : Give(machine, call, std::sqrt(x));
}

template <double (*F)(double)> bool LogarithmOf(ScriptMachine& machine, FunctionCall& call) {
    if (!RefuseTexts(machine, call)) {
        return false;
    }
    const double x = call.values[0].number;
    return x <= 0.0 ? Fail(machine, "logaritmo de um número que não é positivo")
                    : Give(machine, call, F(x));
}

double DecimalLogarithm(double x) {
    return std::log10(x);
}

double NaturalLogarithm(double x) {
    return std::log(x);
}

template <double (*F)(double)> bool ArcOf(ScriptMachine& machine, FunctionCall& call) {
    if (!RefuseTexts(machine, call)) {
        return false;
    }
    constexpr double rounding = 1e-9;
    const double x = call.values[0].number;
    return std::abs(x) > 1.0 + rounding ? Fail(machine, "ASN e ACS vão de -1 a 1")
                                        : Give(machine, call, F(std::clamp(x, -1.0, 1.0)) / Degree);
}

double ArcSine(double x) {
    return std::asin(x);
}

double ArcCosine(double x) {
    return std::acos(x);
}

bool Minimum(ScriptMachine& machine, FunctionCall& call) {
    double lowest = call.values[0].number;
    for (std::size_t i = 1; i < call.valueCount; ++i) {
        lowest = std::min(lowest, call.values[i].number);
    }
    return RefuseTexts(machine, call) && Give(machine, call, lowest);
}

bool Maximum(ScriptMachine& machine, FunctionCall& call) {
    double highest = call.values[0].number;
    for (std::size_t i = 1; i < call.valueCount; ++i) {
        highest = std::max(highest, call.values[i].number);
    }
    return RefuseTexts(machine, call) && Give(machine, call, highest);
}

bool Pi(ScriptMachine& machine, FunctionCall& call) {
    return Give(machine, call, std::numbers::pi);
}

// The same numbers in every run: a drawing must not change by itself (SplitMix64).
bool Random(ScriptMachine& machine, FunctionCall& call) {
    if (!RefuseTexts(machine, call)) {
        return false;
    }
    machine.random += 0x9E3779B97F4A7C15U;
    std::uint64_t bits = machine.random;
    bits = (bits ^ (bits >> 30U)) * 0xBF58476D1CE4E5B9U;
    bits = (bits ^ (bits >> 27U)) * 0x94D049BB133111EBU;
    bits ^= bits >> 31U;
    constexpr double scale = 0x1.0p-53;
    return Give(machine, call, static_cast<double>(bits >> 11U) * scale * call.values[0].number);
}

bool ReadBits(ScriptMachine& machine, const FunctionCall& call, std::uint32_t& bits,
              std::uint32_t& place) {
    if (!RefuseTexts(machine, call)) {
        return false;
    }
    constexpr double largest = 4294967295.0;
    const double number = std::floor(call.values[0].number);
    const double at = std::floor(call.values[1].number);
    if (!(std::abs(number) <= largest) || !(at >= 0.0 && at <= MostBits)) {
        return Fail(machine, "BITTEST e BITSET contam 32 bits, a partir de 0");
    }
    bits = static_cast<std::uint32_t>(static_cast<std::int64_t>(number));
    place = static_cast<std::uint32_t>(at);
    return true;
}

bool BitTest(ScriptMachine& machine, FunctionCall& call) {
    std::uint32_t bits = 0;
    std::uint32_t place = 0;
    return ReadBits(machine, call, bits, place) && Give(machine, call, (bits >> place) & 1U);
}

bool BitSet(ScriptMachine& machine, FunctionCall& call) {
    std::uint32_t bits = 0;
    std::uint32_t place = 0;
    if (!ReadBits(machine, call, bits, place)) {
        return false;
    }
    const std::uint32_t mask = 1U << place;
    const bool set = call.valueCount < 3 || call.values[2].number != 0.0;
    return Give(machine, call, static_cast<std::int32_t>(set ? bits | mask : bits & ~mask));
}

constexpr std::int32_t Any = 1000;

constexpr FunctionEntry Entries[] = {
    {"ABS", 1, 1, OfOne<AbsoluteOf>, -1, false, "size without the sign"},
    {"CEIL", 1, 1, OfOne<CeilingOf>, -1, false, "next whole number upwards"},
    {"INT", 1, 1, OfOne<FloorOf>, -1, false, "next whole number downwards: INT (-1.23) is -2"},
    {"FRA", 1, 1, OfOne<FractionOf>, -1, false, "what INT leaves: FRA (-1.23) is 0.77"},
    {"ROUND_INT", 1, 1, OfOne<RoundOf>, -1, false, "nearest whole number, halves upwards"},
    {"SGN", 1, 1, OfOne<SignOf>, -1, false, "-1, 0 or 1"},
    {"SQR", 1, 1, SquareRoot, -1, false, "square root"},
    {"SIN", 1, 1, OfOne<SineOf>, -1, false, "of degrees"},
    {"COS", 1, 1, OfOne<CosineOf>, -1, false, "of degrees"},
    {"TAN", 1, 1, Tangent, -1, false, "of degrees"},
    {"ASN", 1, 1, ArcOf<ArcSine>, -1, false, "in degrees"},
    {"ACS", 1, 1, ArcOf<ArcCosine>, -1, false, "in degrees"},
    {"ATN", 1, 1, OfOne<ArcTangentOf>, -1, false, "in degrees"},
    {"PI", 0, 0, Pi, -1, false, "the number"},
    {"EXP", 1, 1, OfOne<ExponentialOf>, -1, false, "power of e"},
    {"LGT", 1, 1, LogarithmOf<DecimalLogarithm>, -1, false, "logarithm to base 10"},
    {"LOG", 1, 1, LogarithmOf<NaturalLogarithm>, -1, false, "natural logarithm"},
    {"NOT", 1, 1, OfOne<NotOf>, -1, false, "1 for 0, 0 for the rest"},
    {"MIN", 1, Any, Minimum, -1, false, "smallest of the numbers"},
    {"MAX", 1, Any, Maximum, -1, false, "largest of the numbers"},
    {"RND", 1, 1, Random, -1, false, "below the number; the same row of numbers in every run"},
    {"BITTEST", 2, 2, BitTest, -1, false, "one bit, counted from 0"},
    {"BITSET", 2, 3, BitSet, -1, false, "a number with one bit set, or cleared by a third 0"},
};

} // namespace

std::span<const FunctionEntry> NumberFunctions() {
    return Entries;
}

} // namespace Merivane::Workbench
