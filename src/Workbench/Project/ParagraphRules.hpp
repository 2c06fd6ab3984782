#pragma once

#include <vector>

#include "Host/Elements.hpp"
#include "Host/Types.hpp"

namespace Merivane::Workbench {

/// The paragraphs of a text. BadParagraphs unless there is one at least, each is UTF-8 without line
/// ends, its stretches cover its characters exactly with none of no characters (an empty paragraph
/// has none, or one of none), letters are higher than 0 mm, and tabs ascend from above 0 mm.
/// BadIndex for a pen outside the pen table.
Host::ErrorCode CheckParagraphs(const std::vector<Host::TextParagraph>& paragraphs);

} // namespace Merivane::Workbench
