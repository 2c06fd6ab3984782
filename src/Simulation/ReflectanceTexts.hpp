#pragma once

#include <array>
#include <cstddef>
#include <string>

#include "Simulation/Reflectances.hpp"

/// The texts of the dialog of reflectances that follow from its table. Portuguese, UTF-8.
namespace Merivane::Simulation {

/// Headers of the list's columns.
inline constexpr std::array<const char*, 5> ReflectanceColumns = {"Superficie", "Area m2",
                                                                  "Estimada", "Usada", "Origem"};

/// The line above the list.
std::string ReflectanceHeadLine(std::size_t count);

/// The cells of a record's row, one for each column.
std::array<std::string, ReflectanceColumns.size()>
ReflectanceCells(const SurfaceReflectance& record);

/// Where the estimate of a record comes from.
std::string ReflectanceExplanation(const SurfaceReflectance& record);

} // namespace Merivane::Simulation
