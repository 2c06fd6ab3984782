#include "Text/FileName.hpp"

#include <algorithm>
#include <array>
#include <cstddef>

#include "Text/Ascii.hpp"
#include "Text/Utf8.hpp"

namespace Merivane::Text {

namespace {

constexpr std::array<std::string_view, 7> Devices = {"CON",    "PRN",     "AUX",   "NUL",
                                                     "CONIN$", "CONOUT$", "CLOCK$"};
constexpr std::array<std::string_view, 2> NumberedDevices = {"COM", "LPT"};

/// A digit as the names of ports end in, also a raised 1, 2 or 3.
bool IsPortNumber(std::string_view text) {
    return (text.size() == 1 && IsDigit(text[0])) || text == "\xC2\xB9" || text == "\xC2\xB2" ||
           text == "\xC2\xB3";
}

} // namespace

bool IsDeviceName(std::string_view name) {
    const std::string stem = ToUpper(Trim(name.substr(0, name.find('.'))));
    if (std::find(Devices.begin(), Devices.end(), stem) != Devices.end()) {
        return true;
    }
    return std::any_of(NumberedDevices.begin(), NumberedDevices.end(),
                       [&stem](std::string_view device) {
                           return stem.starts_with(device) &&
                                  IsPortNumber(std::string_view{stem}.substr(device.size()));
                       });
}

std::string FileNameOf(std::string_view title) {
    constexpr std::size_t longest = 120; // bytes; file systems take 255 with the ending
    std::string name;
    for (const char c : title) {
        const bool control = static_cast<unsigned char>(c) < 0x20 || c == 0x7F;
        name += control || RefusedInFileNames.find(c) != std::string_view::npos ? '-' : c;
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
