#include <algorithm>
#include <cstdint>
#include <string>
#include <utility>

#include "Archicad/ContractConversion.hpp"
#include "Archicad/LibraryParameters.hpp"
#include "Gdl/ScriptNames.hpp"
#include "Host/Attributes.hpp"

// The list of parameters of a part made from scratch.
namespace Merivane::Archicad {

namespace {

using Host::LibraryParameter;
using Host::ParameterType;

constexpr double AnySurface = 1.0;
constexpr double VectorPlan = 1.0; // of the plan representations: lines, picture, both
constexpr double FirstPen = 1.0;
constexpr double NoPen = 0.0; // of a fill's ground: nothing is painted

LibraryParameter Parameter(std::string name, std::string description, ParameterType type,
                           double number) {
    LibraryParameter parameter;
    parameter.name = std::move(name);
    parameter.description = std::move(description);
    parameter.type = type;
    parameter.number = number;
    return parameter;
}

/// The project's surface of this name, the first one where there is none.
double SurfaceNumber(const std::string& name) {
    Host::AttributeIndex index;
    const bool found =
        Host::FindAttribute(Host::AttributeType::Surface, name, index) == Host::NoError;
    return found ? static_cast<double>(index.value) : AnySurface;
}

void AddSurfaces(const LibraryPartRequest& request, std::vector<LibraryParameter>& list) {
    int number = 0;
    for (const std::string& surface : request.surfaces) {
        list.push_back(Parameter("mat" + std::to_string(++number), surface, ParameterType::Surface,
                                 SurfaceNumber(surface)));
    }
    if (request.withSurfaceOverride) {
        list.push_back(Parameter("overrideSurfaces", "Sobrepor com as Superficies deste projeto",
                                 ParameterType::Boolean, 0.0));
    }
}

void AddPlanSettings(const LibraryPartRequest& request, std::vector<LibraryParameter>& list) {
    if (request.withSymbolFill) {
        list.push_back(Parameter("symFill", "Preenchimento do simbolo em planta",
                                 ParameterType::FillPattern, request.symbolFillIndex));
        list.push_back(
            Parameter("symFillPen", "Caneta do preenchimento", ParameterType::Pen, FirstPen));
        list.push_back(
            Parameter("symBackPen", "Caneta de fundo do preenchimento", ParameterType::Pen, NoPen));
    }
    if (request.withPlanRepresentation) {
        list.push_back(
            Parameter("symRep", "Representacao em planta", ParameterType::Integer, VectorPlan));
        list.push_back(Parameter("useMVO", "Controlar pela OVM", ParameterType::Boolean, 0.0));
    }
    const bool inContract =
        std::any_of(request.parameters.begin(), request.parameters.end(),
                    [](const Photometry::ContractParameter& p) { return p.name == "showAxis"; });
    if (request.withAxisSwitch && !inContract) {
        list.push_back(
            Parameter("showAxis", "Mostrar eixo (X) no simbolo", ParameterType::Boolean, 0.0));
    }
}

} // namespace

std::vector<LibraryParameter> BuildPartParameters(const LibraryPartRequest& request) {
    std::vector<LibraryParameter> list;
    if (Photometry::ScriptNames(request.script3D, "mat")) {
        list.push_back(Parameter("mat", "Superficie (faces sem superficie)", ParameterType::Surface,
                                 AnySurface));
    }
    if (request.withHeight) {
        list.push_back(Parameter("ZZYZX", "Altura", ParameterType::Length, request.zzyzx));
    }
    if (Photometry::ScriptNames(request.script3D, "seoSplit")) {
        list.push_back(SplitSwitch("Cortar so com o corpo operador"));
    }
    AddSurfaces(request, list);
    AddPlanSettings(request, list);
    for (const Photometry::ContractParameter& parameter : request.parameters) {
        ToAddPar(parameter, list.emplace_back());
    }
    return list;
}

} // namespace Merivane::Archicad
