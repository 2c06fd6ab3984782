#include "Workbench/Project/WindowRules.hpp"

#include "Text/Utf8.hpp"
#include "Workbench/Project/TextLimits.hpp"

namespace Merivane::Workbench {

bool IsWindowName(std::string_view name) {
    return !name.empty() && Text::IsUtf8(name) && CountUtf16(name) <= LongestText &&
           name.find('\0') == std::string_view::npos;
}

bool IsScale(double scale) {
    return scale >= SmallestScale && scale <= LargestScale;
}

} // namespace Merivane::Workbench
