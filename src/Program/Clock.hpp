#pragma once

#include <cstdint>
#include <string>

namespace Merivane::Program {

/// A moment that documents tell.
struct Moment {
    std::int64_t seconds = 0; ///< since 1970, UTC
    bool given = false;       ///< by the environment, not by the clock
};

/// The moment that SOURCE_DATE_EPOCH gives [s since 1970], else the clock's.
Moment CurrentMoment();

/// "21/11/2026 20:15": local time; of a given moment, which must read the same everywhere, UTC.
std::string MomentText(const Moment& moment);

} // namespace Merivane::Program
