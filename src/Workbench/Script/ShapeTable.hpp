#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

#include "Workbench/Script/ShapeInput.hpp"
#include "Workbench/Script/ShapeSketch.hpp"

/// The statements that build one shape each.
namespace Merivane::Workbench {

/// How a statement is carried out.
struct ShapeStatement {
    std::string_view keyword;
    std::string_view does; ///< English, for the page of the language
    std::size_t arguments; ///< that must be there at least; where no more may follow, they are all
    bool more;
    std::string (*sketch)(ShapeInput& input, ShapeSketch& sketch);
};

/// All of them, in the order of their bytes.
std::span<const ShapeStatement> ShapeStatements();

/// The statement of a keyword; null for one that there is not.
const ShapeStatement* FindShapeStatement(std::string_view keyword);

} // namespace Merivane::Workbench
