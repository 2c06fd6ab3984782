#include "Archicad/ResultLayers.hpp"

#include <cstddef>
#include <string>

#include "Archicad/OlderNames.hpp"

namespace Merivane::Archicad {

namespace {

using Host::AttributeIndex;
using Host::AttributeType;
using Host::ErrorCode;

ErrorCode ShowLayer(AttributeIndex index) {
    Host::Layer layer;
    if (const ErrorCode code = Host::GetLayer(index, layer)) {
        return code;
    }
    if (!layer.hidden) {
        return Host::NoError;
    }
    layer.hidden = false;
    return Host::ChangeLayer(index, layer);
}

template <std::size_t Count>
ErrorCode EnsureLayers(const std::array<std::string_view, Count>& names,
                       const std::array<AttributeIndex*, Count>& layers) {
    for (AttributeIndex* const layer : layers) {
        *layer = {};
    }
    for (std::size_t i = 0; i < Count; ++i) {
        AttributeIndex found;
        if (const ErrorCode code = EnsureLayer(names[i], found)) {
            return code;
        }
        *layers[i] = found;
    }
    return Host::NoError;
}

} // namespace

std::array<AttributeIndex, 6> ListLayers(const ResultLayers& layers) {
    return {layers.isolux, layers.falseColor,   layers.values,
            layers.legend, layers.falseColor3D, layers.workPlane3D};
}

std::array<AttributeIndex, 3> ListLayers(const ProjectLayers& layers) {
    return {layers.circuits, layers.dimensions, layers.luminaireLegend};
}

ErrorCode EnsureLayer(std::string_view name, AttributeIndex& index) {
    RenameOlderAttribute(AttributeType::Layer, name);
    const std::string cutName = CutAttributeName(name);
    const ErrorCode code = Host::FindAttribute(AttributeType::Layer, cutName, index);
    if (code == Host::BadName) {
        return Host::CreateLayer({cutName, false, false}, index);
    }
    return code != Host::NoError ? code : ShowLayer(index);
}

ErrorCode EnsureResultLayers(ResultLayers& layers) {
    return EnsureLayers<6>(ResultLayerNames,
                           {&layers.isolux, &layers.falseColor, &layers.values, &layers.legend,
                            &layers.falseColor3D, &layers.workPlane3D});
}

ErrorCode EnsureProjectLayers(ProjectLayers& layers) {
    return EnsureLayers<3>(ProjectLayerNames,
                           {&layers.circuits, &layers.dimensions, &layers.luminaireLegend});
}

Host::LineType DashDotLineType() {
    return {"Vantoro - Traco e ponto", {6.0, 1.5, 0.5, 1.5}};
}

Host::LineType DashedLineType() {
    return {"Vantoro - Tracejada", {3.0, 1.5}};
}

ErrorCode EnsureLineType(const Host::LineType& lineType, AttributeIndex& index) {
    RenameOlderAttribute(AttributeType::LineType, lineType.name);
    const std::string cutName = CutAttributeName(lineType.name);
    const ErrorCode code = Host::FindAttribute(AttributeType::LineType, cutName, index);
    return code == Host::BadName ? Host::CreateLineType({cutName, lineType.dashes}, index) : code;
}

} // namespace Merivane::Archicad
