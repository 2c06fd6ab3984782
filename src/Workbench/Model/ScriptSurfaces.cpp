#include "Workbench/Model/ScriptSurfaces.hpp"

#include <algorithm>
#include <cstddef>

#include "Host/Model3D.hpp"
#include "Workbench/Model/PartRuns.hpp"

namespace Merivane::Workbench {

std::int32_t NumberScriptSurface(const Project& project, const ProjectPart& part,
                                 std::string_view name) {
    const auto own =
        std::find_if(part.surfaces.begin(), part.surfaces.end(),
                     [&](const Host::ModelSurface& surface) { return surface.name == name; });
    if (own == part.surfaces.end()) {
        return -1;
    }
    auto number = static_cast<std::size_t>(own - part.surfaces.begin());
    for (const ProjectPart& before : project.parts) {
        if (&before == &part) {
            break;
        }
        number += before.surfaces.size();
    }
    return Host::FirstScriptSurface + static_cast<std::int32_t>(number);
}

std::int32_t FirstRunSurface(const Project& project) {
    std::size_t count = 0;
    for (const ProjectPart& part : project.parts) {
        count += part.surfaces.size();
    }
    return Host::FirstScriptSurface + static_cast<std::int32_t>(count);
}

const Host::ModelSurface* FindScriptSurface(const Project& project, std::int32_t number) {
    if (number < Host::FirstScriptSurface) {
        return nullptr;
    }
    auto left = static_cast<std::size_t>(number - Host::FirstScriptSurface);
    for (const ProjectPart& part : project.parts) {
        if (left < part.surfaces.size()) {
            return &part.surfaces[left];
        }
        left -= part.surfaces.size();
    }
    const PartRuns* const runs = project.runs.kept.get();
    return runs && left < runs->surfaces.size() ? &runs->surfaces[left] : nullptr;
}

} // namespace Merivane::Workbench
