#pragma once

#include <string>

#include "Document/Report/Report.hpp"
#include "Document/Report/ReportInput.hpp"

namespace Merivane::Document {

/// The value in use: "50 %", or "vidro: TL 80 %, RL 8/8 %" with the reflectances towards the
/// room and towards outdoors.
std::string ReflectanceText(const Simulation::SurfaceReflectance& record);

/// The section on reflectances: every surface of the project, the largest first, with the estimate,
/// the value in use and where it comes from; without such records the study's materials.
ReportSection BuildReflectanceSection(const ReportInput& input);

} // namespace Merivane::Document
