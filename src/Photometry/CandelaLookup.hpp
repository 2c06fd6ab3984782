#pragma once

#include <cstddef>
#include <vector>

#include "Photometry/IesFile.hpp"

namespace Merivane::Photometry {

/// Finds the cell of an ascending list that holds `x`, with a tolerance of 1e-6 at both ends.
/// `index` is the cell's lower value, `fraction` [0..1] the place between it and the next; both
/// are 0 for a list of one value. Returns false, leaving both untouched, when `x` is outside or the
/// list is empty.
bool FindAngleCell(const std::vector<double>& angles, double x, std::size_t& index,
                   double& fraction);

/// The horizontal angle [deg], any value, as the angle of the file's table that stands for it by
/// the symmetry that the table's ends tell (0-90, 0-180, 90-270). A table with other ends is not
/// folded; what lies outside it takes its nearest end. Needs at least one horizontal angle.
double FoldHorizontal(const IesFile& file, double horizontal);

/// Intensity in a direction [cd], multiplier applied, linear between the table's angles. `vertical`
/// [deg] counts from the nadir, `horizontal` [deg] from the plane C0. 0 outside the table's
/// vertical range and for a file that is not of type C or has no table.
///
/// Allocates nothing: glare and estimates ask millions of times.
double CandelaAt(const IesFile& file, double vertical, double horizontal);

/// Mean of `CandelaAt` over the 36 planes 0, 10, ... 350 [cd].
double MeanCandelaAtVertical(const IesFile& file, double vertical);

} // namespace Merivane::Photometry
