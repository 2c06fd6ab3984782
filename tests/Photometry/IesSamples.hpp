#pragma once

#include <functional>
#include <random>
#include <string>
#include <vector>

#include "Photometry/IesFile.hpp"

namespace Merivane::Tests {

/// A type C file in metres with the given angles and the intensity of every direction [cd].
Photometry::IesFile MakeTable(std::vector<double> verticals, std::vector<double> horizontals,
                              const std::function<double(double, double)>& intensity);

/// Values from `first` to `last`, both included, `step` apart.
std::vector<double> Steps(double first, double last, double step);

/// A file with random texts, TILT, header numbers and table, as the reader could have given it.
Photometry::IesFile RandomFile(std::mt19937_64& random);

/// Fails the running test where the two files differ in anything but the form of their header.
/// NaN equals NaN.
void ExpectSameNumbers(const Photometry::IesFile& a, const Photometry::IesFile& b);

/// A whole small IES text: `header` as it stands (with its line ends and the TILT line), then one
/// plane of 0, 45, 90 degrees with 100, 50, 0 cd, in metres.
std::string SmallText(const std::string& header);

} // namespace Merivane::Tests
