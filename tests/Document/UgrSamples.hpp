#pragma once

#include <string>

#include "Document/UgrReport.hpp"

namespace Merivane::Document {

/// A panel of 0.6 x 0.3 m with a plain downward light, as its file tells it.
std::string PanelIes();

/// A file like `PanelIes` with another opening [m] and other intensities at 0, 45, 90, 135 and 180
/// degrees [cd].
std::string OpeningIes(const std::string& opening, const std::string& candela = "900 500 0 0 0");

/// A report of that panel whose table holds made-up values: room r, set s has 10 + r / 2 + s / 10
/// crosswise and 9 + r / 2 + s / 10 lengthwise.
UgrReport MadeUpReport();

} // namespace Merivane::Document
