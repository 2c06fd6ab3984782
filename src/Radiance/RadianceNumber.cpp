#include "Radiance/RadianceNumber.hpp"

#include "Text/Number.hpp"

namespace Merivane::Radiance {

std::string FormatNumber(double value, int decimals) {
    std::string text = Text::FormatFixed(value, decimals);
    if (text == "-0.000000" || text == "-0") {
        text.erase(0, 1);
    }
    return text;
}

} // namespace Merivane::Radiance
