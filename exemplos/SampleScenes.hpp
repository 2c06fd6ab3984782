#pragma once

#include <string>
#include <vector>

#include "Catalog/Json.hpp"

namespace Merivane::Examples {

/// A scene document of the examples; it names the IES files of the folder `ies` beside its own.
struct SampleScene {
    std::string name; ///< of its folder and of its file
    Catalog::JsonValue document;
};

/// The three scenes: a small room, an office with three Zones and glass between two of them, and a
/// corridor so narrow that its border band would cover it whole.
std::vector<SampleScene> BuildSampleScenes();

} // namespace Merivane::Examples
