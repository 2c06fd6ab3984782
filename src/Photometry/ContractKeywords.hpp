#pragma once

#include <string>
#include <utility>
#include <vector>

#include "Photometry/IesFile.hpp"

namespace Merivane::Photometry {

/// Longest text of a contract parameter [bytes]: what the host keeps of a string, were each byte a
/// unit of UTF-16.
inline constexpr int LongestContractText = 255;

/// The header texts of a file as strings of at most 255 bytes, none cut inside a UTF-8 sequence:
/// `[KEY] text`, and `[MORE] text` for each further line or piece of a line. Lines above `TILT=`
/// that are no keyword follow under the key OTHER. Never empty: a file without header texts gives
/// one empty string. A key too long to leave room for a character beside it is cut.
std::vector<std::string> PackIesKeywords(const IesFile& file);

/// Keywords from packed strings. `[MORE]` continues the keyword before it behind a '\n'; as the
/// first it is a keyword of that name. Strings without a bracketed key are skipped.
///
/// Not a whole inverse: pieces of a line that was cut come back as lines, other lines as keywords
/// named OTHER.
std::vector<std::pair<std::string, std::string>>
UnpackIesKeywords(const std::vector<std::string>& texts);

} // namespace Merivane::Photometry
