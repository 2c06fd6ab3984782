#pragma once

#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "Photometry/PlanSymbol.hpp"

namespace Merivane::Photometry {

/// Key under which the add-on's preferences keep the user's symbols.
inline constexpr std::string_view UserSymbolsKey = "MVSYMB01";

/// Identifiers of the user's own symbols. They begin far above the built-in ones, so that a later
/// version with more of those leaves them theirs.
inline constexpr int FirstUserSymbol = 1000;
inline constexpr int LastUserSymbol = 999'999'999;

/// What the user made of the plan symbols.
struct UserSymbols {
    int nextId = FirstUserSymbol;    ///< the next free identifier, never one given before
    std::set<int> hiddenBuiltIns;    ///< built-in symbols that the user removed
    std::vector<PlanSymbol> symbols; ///< the user's own, in the order of making

    bool operator==(const UserSymbols&) const = default;
};

/// Reads stored symbols. A text that does not begin with "MVSYMBOLS 1" gives none. Lines that can't
/// be understood are skipped, with a symbol's line its strokes; so are symbols whose identifier is
/// taken. `nextId` is above all identifiers that were read.
UserSymbols ParseUserSymbols(std::string_view text);

/// The text that is stored. Hidden ones of the user's own are gone for good and left out,
/// and so are strokes that are not drawable. A filled circle is written as a polygon, since the
/// form has no sign for it; line breaks in a name become blanks.
std::string FormatUserSymbols(const UserSymbols& symbols);

/// All symbols that luminaires can be given: the built-in ones, with "no symbol" first
/// and those marked that the user removed, then the user's own.
std::vector<PlanSymbol> SymbolLibrary(const UserSymbols& symbols);

} // namespace Merivane::Photometry
