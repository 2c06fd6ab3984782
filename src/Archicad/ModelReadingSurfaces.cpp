#include "Archicad/ModelReadingSurfaces.hpp"

#include <string>

#include "Host/Attributes.hpp"
#include "Host/Model3D.hpp"

namespace Merivane::Archicad {

namespace {

std::int32_t AddRecord(SurfaceMapper& mapper, const std::string& key, const std::string& name,
                       const Host::ModelSurface& surface) {
    const Simulation::SurfaceColour colour{surface.colour.red, surface.colour.green,
                                           surface.colour.blue, surface.diffuse,
                                           surface.transparency};
    return static_cast<std::int32_t>(Simulation::AddOrFindReflectance(
        *mapper.reflectances, Simulation::MakeFromColour(key, name, colour)));
}

std::int32_t ReadScriptSurface(SurfaceMapper& mapper, std::int32_t number) {
    Host::ModelSurface surface;
    if (Host::GetScriptSurface(number, surface) != Host::NoError) {
        return -1;
    }
    return AddRecord(mapper, std::string(Simulation::ScriptSurfaceKeyPrefix) + surface.name,
                     surface.name + " (GDL)", surface);
}

std::int32_t ReadAttribute(SurfaceMapper& mapper, std::int32_t number) {
    Host::ModelSurface surface;
    if (Host::GetSurface({number}, surface) != Host::NoError) {
        return -1;
    }
    return AddRecord(mapper, std::string(Simulation::SurfaceKeyPrefix) + surface.name, surface.name,
                     surface);
}

} // namespace

std::int32_t SurfaceRecord(SurfaceMapper& mapper, std::int32_t attributeIndex) {
    if (attributeIndex < 0) {
        return -1;
    }
    const bool isScript = attributeIndex >= Host::FirstScriptSurface;
    auto& known = isScript ? mapper.scriptSurfaces : mapper.attributes;
    const auto found = known.find(attributeIndex);
    if (found != known.end()) {
        return found->second;
    }
    const std::int32_t record = isScript ? ReadScriptSurface(mapper, attributeIndex)
                                         : ReadAttribute(mapper, attributeIndex);
    known.emplace(attributeIndex, record);
    return record;
}

} // namespace Merivane::Archicad
