#pragma once

#include <cstdint>

namespace Merivane::Host {

/// A host error code, in the host's own numbers; 0 is success.
using ErrorCode = std::int32_t;

inline constexpr ErrorCode NoError = 0;
inline constexpr ErrorCode GeneralError = static_cast<ErrorCode>(0x81060001);
inline constexpr ErrorCode BadParameters = static_cast<ErrorCode>(0x81060068);

} // namespace Merivane::Host
