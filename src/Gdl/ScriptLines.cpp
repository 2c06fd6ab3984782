#include "Gdl/ScriptLines.hpp"

namespace Merivane::Photometry {

std::string WithCrLf(std::string_view fragment) {
    std::string lines;
    lines.reserve(fragment.size() + fragment.size() / 16);
    for (const char c : fragment) {
        if (c == '\n') {
            lines += '\r';
        }
        lines += c;
    }
    return lines;
}

} // namespace Merivane::Photometry
