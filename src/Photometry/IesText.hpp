#pragma once

#include <string>
#include <string_view>

namespace Merivane::Photometry {

/// UTF-8 from a header text of unknown encoding. A text whose bytes all form UTF-8 sequences comes
/// back unchanged; any other is taken as Windows-1252, where the byte pair A1 E3 (a degree sign
/// that some makers write in the encoding GBK) gives U+00B0.
std::string NormaliseIesText(std::string_view text);

} // namespace Merivane::Photometry
