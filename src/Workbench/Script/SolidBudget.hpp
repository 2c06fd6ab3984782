#pragma once

#include <cstddef>

namespace Merivane::Workbench {

/// What operations on solids may still look at, in vertices of faces: it bounds their time.
struct SolidBudget {
    std::size_t left = 0;
};

/// False when the budget does not reach; then nothing is left of it.
inline bool Spend(SolidBudget& budget, std::size_t looks) {
    const bool reaches = looks <= budget.left;
    budget.left = reaches ? budget.left - looks : 0;
    return reaches;
}

/// What a script is told whose solids take more.
inline constexpr const char* SolidsTakeTooMuch = "as operações com sólidos pedem trabalho demais";

} // namespace Merivane::Workbench
