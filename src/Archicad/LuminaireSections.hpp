#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "Host/Library.hpp"

/// The sections of a part that becomes a luminaire: the source's, and the generated blocks in its
/// scripts.
namespace Merivane::Archicad {

/// One section with what it holds.
struct CopiedSection {
    Host::PartSection section;
    std::string bytes;

    bool operator==(const CopiedSection&) const = default;
};

/// Reads a part's sections in their order, but its comment, which tells of another part, its
/// parameters, which are written anew, and those that only the host writes. One that can't be read
/// is left out with a warning. The host's code when the part's sections can't be listed.
Host::ErrorCode CopySections(std::int32_t index, std::vector<CopiedSection>& sections,
                             std::vector<std::string>& warnings);

/// The block in the 3D script; a part without one gets a script that is the light source alone,
/// with a warning.
void AddModelBlock(std::vector<CopiedSection>& sections, std::vector<std::string>& warnings);

/// The block in the 2D script. A part that draws its plan as stored lines gets a script that draws
/// them; one that has neither is left as it was, with a warning.
void AddPlanBlock(std::vector<CopiedSection>& sections, std::vector<std::string>& warnings);

/// The block in the parameter script, which is made where there is none; it hides `hiddenNames`.
void AddParameterBlock(std::vector<CopiedSection>& sections,
                       const std::vector<std::string>& hiddenNames);

/// True when one of the scripts names the parameter, or hands all parameters on to a macro.
bool UseParameter(const std::vector<CopiedSection>& sections, std::string_view name);

} // namespace Merivane::Archicad
