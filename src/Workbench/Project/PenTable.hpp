#pragma once

#include <cstdint>

namespace Merivane::Workbench {

/// Pens are numbered from 1 up to this.
inline constexpr std::int32_t LastPen = 255;

inline bool IsPen(std::int32_t pen) {
    return pen >= 1 && pen <= LastPen;
}

} // namespace Merivane::Workbench
