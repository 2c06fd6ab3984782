#include "Archicad/ElementReplacement.hpp"

#include <algorithm>
#include <string>
#include <variant>
#include <vector>

#include "Archicad/FloorPlanDatabase.hpp"
#include "Archicad/LibraryParameters.hpp"
#include "Host/Library.hpp"
#include "Photometry/ContractBuilding.hpp"

namespace Merivane::Archicad {

namespace {

using Host::ErrorCode;
using Host::LibraryParameter;
using Host::ParameterType;

bool HasNoValue(ParameterType type) {
    return type == ParameterType::Title || type == ParameterType::Separator ||
           type == ParameterType::Dictionary;
}

/// True when a value of one can be one of the other.
bool HoldTheSame(const LibraryParameter& a, const LibraryParameter& b) {
    return a.isArray == b.isArray &&
           (a.type == ParameterType::String) == (b.type == ParameterType::String) &&
           !HasNoValue(a.type) && !HasNoValue(b.type);
}

void CarryValue(const LibraryParameter& from, LibraryParameter& to) {
    if (HoldTheSame(from, to)) {
        to.dim1 = from.dim1;
        to.dim2 = from.dim2;
        to.number = from.number;
        to.text = from.text;
        to.numbers = from.numbers;
        to.texts = from.texts;
    }
}

/// The part's parameters with the values of the placed element.
ErrorCode BuildParameters(const Host::Guid& guid, std::int32_t partIndex, bool keepAll,
                          std::vector<LibraryParameter>& parameters) {
    Host::ElementMemo placed;
    if (const ErrorCode code = Host::GetMemo(guid, Host::MemoParts::Parameters, placed)) {
        return code;
    }
    double sizeA = 0.0;
    double sizeB = 0.0;
    if (const ErrorCode code = Host::GetPartParameters(partIndex, sizeA, sizeB, parameters)) {
        return code;
    }
    for (LibraryParameter& parameter : parameters) {
        const bool isNewPhotometry =
            Photometry::ContractParameterNames().contains(parameter.name) &&
            !Photometry::IsCircuitParameter(parameter.name);
        if (isNewPhotometry && !keepAll) {
            continue;
        }
        if (const auto* const before = FindAddPar(placed.parameters, parameter.name)) {
            CarryValue(*before, parameter);
        }
    }
    return Host::NoError;
}

/// A Lamp in the Object's place.
ErrorCode MakeLamp(Host::Element lamp, const Host::Guid& object, const Host::ElementMemo& memo,
                   Host::Guid& newGuid) {
    const FloorPlanDatabase plan;
    lamp.header.type = Host::ElementType::Lamp;
    lamp.header.guid = {};
    if (const ErrorCode code = Host::CreateElement(lamp, memo)) {
        return code;
    }
    if (const ErrorCode code = Host::DeleteElements({object})) {
        return code;
    }
    newGuid = lamp.header.guid;
    return Host::NoError;
}

} // namespace

ErrorCode ReplaceElementLibPart(const Host::Element& element, std::int32_t partIndex,
                                Host::Guid& newGuid, bool keepAll) {
    Host::Element swapped = element;
    auto* const object = std::get_if<Host::ObjectData>(&swapped.data);
    if (object == nullptr) {
        return Host::BadParameters;
    }
    Host::ElementMemo memo;
    if (const ErrorCode code =
            BuildParameters(element.header.guid, partIndex, keepAll, memo.parameters)) {
        return code;
    }
    object->libraryIndex = partIndex;
    if (element.header.type != Host::ElementType::Lamp) {
        return MakeLamp(swapped, element.header.guid, memo, newGuid);
    }
    const ErrorCode code = Host::ChangeElement(swapped, memo, Host::MemoParts::Parameters);
    if (code == Host::NoError) {
        newGuid = element.header.guid;
    }
    return code;
}

} // namespace Merivane::Archicad
