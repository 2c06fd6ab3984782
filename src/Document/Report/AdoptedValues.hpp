#pragma once

#include <string>
#include <vector>

#include "Document/Report/ReportInput.hpp"

namespace Merivane::Document {

/// Adopted values of one kind.
struct AdoptedGroup {
    std::string title; ///< "Zonas"
    std::vector<AdoptedValue> values;
};

/// Every value that the calculation took because nobody had given one, group by group: what the
/// caller told, Zones, luminaires, reflectances, calculation. Zones that share a value stand in one
/// line. Groups without values are left out.
std::vector<AdoptedGroup> CollectAdoptedValues(const ReportInput& input);

} // namespace Merivane::Document
