#include "Text/FileName.hpp"

#include <algorithm>
#include <array>
#include <cstddef>

#include "Text/Ascii.hpp"
#include "Text/Utf8.hpp"

namespace Merivane::Text {

namespace {

/// Characters that Windows refuses in a file name, and those that part paths anywhere.
constexpr std::string_view Refused = "<>:\"/\\|?*";

/// Names of devices: Windows opens the device whatever the extension.
bool IsDeviceName(std::string_view name) {
    constexpr std::array<std::string_view, 4> devices = {"CON", "PRN", "AUX", "NUL"};
    const std::string stem = ToUpper(name.substr(0, name.find('.')));
    const bool isPort = stem.size() == 4 && stem[3] >= '0' && stem[3] <= '9' &&
                        (stem.starts_with("COM") || stem.starts_with("LPT"));
    return isPort || std::find(devices.begin(), devices.end(), stem) != devices.end();
}

} // namespace

std::string FileNameOf(std::string_view title) {
    constexpr std::size_t longest = 120; // bytes; file systems take 255 with the ending
    std::string name;
    for (const char c : title) {
        const bool control = static_cast<unsigned char>(c) < 0x20 || c == 0x7F;
        name += control || Refused.find(c) != std::string_view::npos ? '-' : c;
    }
    name = TruncateUtf8(Trim(name), longest);
    // A leading dot hides a file, a leading minus reads as an option, and Windows drops dots and
    // blanks at the end.
    while (!name.empty() && (name.back() == '.' || name.back() == ' ')) {
        name.pop_back();
    }
    if (name.empty() || name.front() == '.' || name.front() == '-' || IsDeviceName(name)) {
        name.insert(0, "_");
    }
    return name;
}

} // namespace Merivane::Text
