#pragma once

#include <string>
#include <string_view>

namespace Merivane::Photometry {

/// The text that tells one type of luminaire from another: luminaires with equal keys are one line
/// of a schedule. Made of catalogue code, name and lamp, white space normalised; a luminaire
/// without code and name goes by its IES file. `isLinear` sets tapes apart from point luminaires.
std::string LuminaireTypeKey(std::string_view code, std::string_view name, std::string_view lamp,
                             std::string_view iesFileName, bool isLinear = false);

/// True for the key of a tape or another linear luminaire.
bool IsLinearTypeKey(std::string_view key);

/// What a key calls its type of luminaire: its name, without one its code; may be empty.
std::string TypeKeyName(std::string_view key);

} // namespace Merivane::Photometry
