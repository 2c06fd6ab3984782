#pragma once

#include <cstdint>

namespace Merivane::Host {

/// A host error code, in the host's own numbers; 0 is success.
using ErrorCode = std::int32_t;

inline constexpr ErrorCode NoError = 0;
inline constexpr ErrorCode GeneralError = static_cast<ErrorCode>(0x81060001);
inline constexpr ErrorCode OutOfMemory = static_cast<ErrorCode>(0x81060002);
inline constexpr ErrorCode Cancelled = static_cast<ErrorCode>(0x81060003);
inline constexpr ErrorCode BadId = static_cast<ErrorCode>(0x81060065);
inline constexpr ErrorCode BadIndex = static_cast<ErrorCode>(0x81060066);
inline constexpr ErrorCode BadParameters = static_cast<ErrorCode>(0x81060068);
inline constexpr ErrorCode BadPolygon = static_cast<ErrorCode>(0x81060069);
inline constexpr ErrorCode BadDatabase = static_cast<ErrorCode>(0x8106006A);
inline constexpr ErrorCode NoPlan = static_cast<ErrorCode>(0x810600CB);
inline constexpr ErrorCode NotMine = static_cast<ErrorCode>(0x81060132);
inline constexpr ErrorCode RefusedCommand = static_cast<ErrorCode>(0x81060388);
inline constexpr ErrorCode ReadOnly = static_cast<ErrorCode>(0x8106038A);
inline constexpr ErrorCode NeedsUndoScope = static_cast<ErrorCode>(0x8106038D);

} // namespace Merivane::Host
