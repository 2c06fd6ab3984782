#pragma once

#include <string>
#include <string_view>

namespace Merivane::Photometry {

/// The text that tells one type of luminaire from another: luminaires with equal keys are one line
/// of a schedule. Made of catalogue code, name and lamp, white space normalised; a luminaire
/// without code and name goes by its IES file. `isLinear` sets tapes apart from point luminaires.
std::string LuminaireTypeKey(std::string_view code, std::string_view name, std::string_view lamp,
                             std::string_view iesFileName, bool isLinear = false);

} // namespace Merivane::Photometry
