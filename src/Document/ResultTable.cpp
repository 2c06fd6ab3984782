#include "Document/ResultTable.hpp"

#include <algorithm>
#include <cstddef>
#include <set>
#include <string_view>

#include "Document/PlanePoints.hpp"
#include "Simulation/PrintedValue.hpp"
#include "Text/Ascii.hpp"
#include "Text/FileName.hpp"
#include "Text/Utf8.hpp"

namespace Merivane::Document {

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
        const std::string safe = Text::FileNameOf(title);
        std::string name = safe;
        for (int copy = 2; !taken.insert(Text::ToUpper(name)).second; ++copy) {
            name = safe + " (" + std::to_string(copy) + ")";
        }
        names.push_back(name + extension);
    }
    return names;
}

} // namespace Merivane::Document
