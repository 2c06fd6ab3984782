#pragma once

#include <string>
#include <vector>

#include "Simulation/Scene.hpp"

namespace Merivane::Document {

/// The values of one plane as a table that a Brazilian spreadsheet opens as it is: UTF-8 with a
/// byte order mark, columns parted by ";", decimal comma, lines ended by CR LF. One row for each
/// calculation point under the header "x;y;z;lux;tarefa": its place in the project [m, three
/// decimals], its illuminance [lux, two decimals], 1 where it counts in the statistics and 0 where
/// it does not. `values` in `ActivePoints` order; stops where the values or the points run out.
std::string WritePlaneTable(const Simulation::SensorPlane& plane,
                            const std::vector<double>& values);

/// A file name for each title, same order: the title with what a file system refuses or a command
/// line trips over replaced by "-", then `extension` (".csv"). No two are equal, upper and lower
/// case taken for the same; the second of a kind ends in " (2)".
std::vector<std::string> UniqueFileNames(const std::vector<std::string>& titles,
                                         const std::string& extension);

} // namespace Merivane::Document
