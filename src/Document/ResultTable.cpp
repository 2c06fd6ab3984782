#include "Document/ResultTable.hpp"

#include <algorithm>
#include <array>
#include <cstddef>
#include <set>
#include <string_view>

#include "Document/PlanePoints.hpp"
#include "Simulation/PrintedValue.hpp"
#include "Text/Ascii.hpp"
#include "Text/Utf8.hpp"

namespace Merivane::Document {

namespace {

/// Characters that Windows refuses in a file name, and those that part paths anywhere.
constexpr std::string_view Refused = "<>:\"/\\|?*";

/// Names of devices: Windows opens the device whatever the extension.
bool IsDeviceName(std::string_view name) {
    constexpr std::array<std::string_view, 4> devices = {"CON", "PRN", "AUX", "NUL"};
    const std::string stem = Text::ToUpper(name.substr(0, name.find('.')));
    const bool isPort = stem.size() == 4 && stem[3] >= '0' && stem[3] <= '9' &&
                        (stem.starts_with("COM") || stem.starts_with("LPT"));
    return isPort || std::find(devices.begin(), devices.end(), stem) != devices.end();
}

std::string SafeName(const std::string& title) {
    constexpr std::size_t longest = 120; // bytes; file systems take 255 with the ending
    std::string name;
    for (const char c : title) {
        const bool control = static_cast<unsigned char>(c) < 0x20 || c == 0x7F;
        name += control || Refused.find(c) != std::string_view::npos ? '-' : c;
    }
    name = Text::TruncateUtf8(Text::Trim(name), longest);
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

} // namespace

std::string WritePlaneTable(const Simulation::SensorPlane& plane,
                            const std::vector<double>& values) {
    std::string text = "\xEF\xBB\xBFx;y;z;lux;tarefa\r\n";
    const std::vector<Simulation::Point3D> points = PlanePoints(plane);
    const std::vector<bool> task = Simulation::TaskSelection(plane.grid);
    const std::size_t count = std::min(values.size(), points.size());
    for (std::size_t i = 0; i < count; ++i) {
        text += Simulation::FormatDecimal(points[i].x, 3) + ';';
        text += Simulation::FormatDecimal(points[i].y, 3) + ';';
        text += Simulation::FormatDecimal(points[i].z, 3) + ';';
        text += Simulation::FormatDecimal(values[i], 2);
        text += task[i] ? ";1\r\n" : ";0\r\n";
    }
    return text;
}

std::vector<std::string> UniqueFileNames(const std::vector<std::string>& titles,
                                         const std::string& extension) {
    std::vector<std::string> names;
    std::set<std::string> taken; // in upper case
    for (const std::string& title : titles) {
        const std::string safe = SafeName(title);
        std::string name = safe;
        for (int copy = 2; !taken.insert(Text::ToUpper(name)).second; ++copy) {
            name = safe + " (" + std::to_string(copy) + ")";
        }
        names.push_back(name + extension);
    }
    return names;
}

} // namespace Merivane::Document
