#pragma once

#include <string>
#include <string_view>

namespace Merivane::Text {

/// A text as it stands in XML and HTML, between tags or in an attribute's quotation marks: "&",
/// "<", ">" and both quotation marks as entities. Any UTF-8; control characters are left.
std::string EscapeXml(std::string_view text);

} // namespace Merivane::Text
