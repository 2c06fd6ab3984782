#pragma once

#include <string>
#include <string_view>

namespace Merivane::Text {

/// UTF-8 without the accents of the Latin-1 letters, their capitals and those of ASCII lowered:
/// one character for each letter. Other characters pass unchanged.
std::string FoldAccents(std::string_view text);

} // namespace Merivane::Text
