#include "Catalog/InnerPath.hpp"

#include <algorithm>
#include <cstddef>
#include <string>
#include <system_error>

#include "Text/Ascii.hpp"

namespace Merivane::Catalog {

namespace {

// Windows takes these names for devices in every folder, whatever their extension.
constexpr std::string_view Devices[] = {"CON", "PRN", "AUX", "NUL", "CONIN$", "CONOUT$", "CLOCK$"};
constexpr std::string_view NumberedDevices[] = {"COM", "LPT"};

/// A digit as the names of ports end in, also a raised 1, 2 or 3.
bool IsPortNumber(std::string_view text) {
    return (text.size() == 1 && Text::IsDigit(text[0])) || text == "\xC2\xB9" ||
           text == "\xC2\xB2" || text == "\xC2\xB3";
}

bool NamesDevice(std::string_view part) {
    const std::string name = Text::ToUpper(Text::Trim(part.substr(0, part.find('.'))));
    if (std::find(std::begin(Devices), std::end(Devices), name) != std::end(Devices)) {
        return true;
    }
    return std::any_of(std::begin(NumberedDevices), std::end(NumberedDevices),
                       [&name](std::string_view device) {
                           return name.starts_with(device) &&
                                  IsPortNumber(std::string_view{name}.substr(device.size()));
                       });
}

/// ".." as Windows reads it: points and blanks at the end of a name don't count there.
bool LeadsUp(std::string_view part) {
    return part.size() > 1 && part.find_first_not_of(". ") == std::string_view::npos;
}

} // namespace

bool IsInnerPath(std::string_view path) {
    constexpr unsigned char FirstPrintable = 32;
    const bool hasOddBytes = std::any_of(path.begin(), path.end(), [](char c) {
        return c == '\\' || c == ':' || static_cast<unsigned char>(c) < FirstPrintable;
    });
    if (path.empty() || path.front() == '/' || hasOddBytes) {
        return false;
    }
    for (std::size_t start = 0; start <= path.size();) {
        const std::size_t end = std::min(path.find('/', start), path.size());
        const std::string_view part = path.substr(start, end - start);
        if (LeadsUp(part) || NamesDevice(part)) {
            return false;
        }
        start = end + 1;
    }
    return true;
}

bool LeadsInside(const std::filesystem::path& folder, const std::filesystem::path& file) {
    std::error_code code;
    const std::filesystem::path root = std::filesystem::canonical(folder, code);
    if (code) {
        return false;
    }
    const std::filesystem::path target = std::filesystem::canonical(file, code);
    return !code && root != target &&
           std::mismatch(root.begin(), root.end(), target.begin(), target.end()).first ==
               root.end();
}

bool IsFreeOfLinks(const std::filesystem::path& folder, const std::filesystem::path& file) {
    std::filesystem::path place = folder;
    const std::filesystem::path way = file.lexically_relative(folder);
    for (auto part = way.begin(); part != way.end(); ++part) {
        place /= *part;
        std::error_code code;
        const auto type = std::filesystem::symlink_status(place, code).type();
        if (type == std::filesystem::file_type::not_found) {
            return true;
        }
        const bool isLast = std::next(part) == way.end();
        if (type != (isLast ? std::filesystem::file_type::regular
                            : std::filesystem::file_type::directory)) {
            return false;
        }
    }
    return true;
}

} // namespace Merivane::Catalog
