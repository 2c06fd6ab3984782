#pragma once

#include <array>
#include <string>
#include <vector>

#include "Photometry/PlanSymbol.hpp"

namespace Merivane::Photometry {

/// Size of the array of numbers in which a luminaire carries its symbol.
inline constexpr int SymbolDataRows = 256;
inline constexpr int SymbolDataColumns = 6;

/// One row of a symbol's numbers, by its first: 1 = line (x1, y1, x2, y2), 2 = circle (cx, cy, r),
/// 3 = arc (cx, cy, r, begin, end [deg]), 4 = head of a polygon (n), whose corners (x, y) are in
/// columns 2 and 3 of the next n rows, which begin with 0. Columns that are not told are 0.
using SymbolRow = std::array<double, SymbolDataColumns>;

/// The rows of a symbol, or why they can't be stored.
struct SymbolRowsResult {
    bool ok = false;
    std::vector<SymbolRow> rows; ///< those used, at most `SymbolDataRows`; empty when not `ok`
    std::string error;           ///< one Portuguese sentence when not `ok`
    std::string advice;          ///< what the user can do about it when not `ok`
};

/// A symbol as rows. What is filled becomes a polygon, which alone takes the symbol's fill; an
/// outline that is not filled becomes lines, a circle or an arc. Strokes that are not drawable are
/// left out.
SymbolRowsResult BuildSymbolRows(const PlanSymbol& symbol);

/// The whole array, row after row: at most `SymbolDataRows` rows, the rest of it 0.
std::vector<double> SymbolData(const std::vector<SymbolRow>& rows);

} // namespace Merivane::Photometry
