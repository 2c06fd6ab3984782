#include "Program/Clock.hpp"

#include <array>
#include <cmath>
#include <cstdlib>
#include <ctime>

#include "Text/Number.hpp"

namespace Merivane::Program {

namespace {

constexpr double Year10000 = 253402300800.0; // [s since 1970]

} // namespace

Moment CurrentMoment() {
    const char* const text = std::getenv("SOURCE_DATE_EPOCH");
    double seconds = 0.0;
    if (text && Text::ReadEntireNumber(text, seconds) && seconds >= 0.0 && seconds < Year10000) {
        return {static_cast<std::int64_t>(std::floor(seconds)), true};
    }
    return {static_cast<std::int64_t>(std::time(nullptr)), false};
}

std::string MomentText(const Moment& moment) {
    const auto time = static_cast<std::time_t>(moment.seconds);
    const std::tm* const parts = moment.given ? std::gmtime(&time) : std::localtime(&time);
    std::array<char, 32> text{};
    if (!parts || std::strftime(text.data(), text.size(), "%d/%m/%Y %H:%M", parts) == 0) {
        return {};
    }
    return text.data();
}

} // namespace Merivane::Program
