#include "Archicad/LuminairePart.hpp"

#include <algorithm>
#include <string_view>

#include "AddOn/RunLog/RunLog.hpp"
#include "Archicad/LibraryFolder.hpp"
#include "Archicad/LibraryParameters.hpp"
#include "Archicad/LibraryPartWriting.hpp"
#include "Archicad/LuminaireSections.hpp"
#include "Gdl/HiddenLightParameters.hpp"
#include "Host/Attributes.hpp"
#include "Photometry/ContractBuilding.hpp"

namespace Merivane::Archicad {

namespace {

using Host::ErrorCode;
using Host::LibraryParameter;
using Warnings = std::vector<std::string>;

constexpr const char* NameWithoutOne = "Luminaria IES";

/// All that is written into the new part.
struct LuminaireContent {
    std::vector<CopiedSection> sections;
    std::vector<LibraryParameter> parameters;
    double sizeA = 1.0;  ///< [m]
    double sizeB = 1.0;  ///< [m]
    std::string details; ///< how the source treats its parameters, in the host's own form
};

/// The first solid fill of the project, 0 without one.
int FindSolidFill() {
    std::vector<Host::AttributeIndex> fills;
    Host::ListAttributes(Host::AttributeType::Fill, fills);
    for (const Host::AttributeIndex index : fills) {
        Host::Fill fill;
        if (Host::GetFill(index, fill) == Host::NoError && fill.kind == Host::FillKind::Solid) {
            return index.value;
        }
    }
    return 0;
}

bool IsNumeric(const LibraryParameter& parameter) {
    return !parameter.isArray && parameter.type != Host::ParameterType::String &&
           parameter.type != Host::ParameterType::Title &&
           parameter.type != Host::ParameterType::Separator &&
           parameter.type != Host::ParameterType::Dictionary;
}

void ApplyOverrides(const AddBlockRequest& request, std::vector<LibraryParameter>& parameters,
                    Warnings& warnings) {
    for (const auto& [name, value] : request.overrides) {
        LibraryParameter* const parameter = FindAddPar(parameters, name);
        if (parameter == nullptr) {
            warnings.push_back("parametro " + name + " nao existe na peca e nao foi alterado");
        } else if (!IsNumeric(*parameter)) {
            warnings.push_back("parametro " + name + " nao guarda um numero e nao foi alterado");
        } else {
            parameter->number = value;
        }
    }
}

/// A dictionary whose content the host does not tell would be an empty one in the new part.
void DropUntoldDictionaries(std::vector<LibraryParameter>& parameters, Warnings& warnings) {
    const auto isUntold = [](const LibraryParameter& parameter) {
        return parameter.type == Host::ParameterType::Dictionary && parameter.text.empty();
    };
    for (const LibraryParameter& parameter : parameters) {
        if (isUntold(parameter)) {
            warnings.push_back("parametro " + parameter.name +
                               " e um dicionario que nao pode ser lido e nao foi copiado");
        }
    }
    std::erase_if(parameters, isUntold);
}

ErrorCode BuildParameters(const AddBlockRequest& request, LuminaireContent& content,
                          Warnings& warnings) {
    std::vector<LibraryParameter> existing;
    if (const ErrorCode code =
            Host::GetPartParameters(request.sourceIndex, content.sizeA, content.sizeB, existing)) {
        return code;
    }
    if (const ErrorCode code = Host::GetPartDetails(request.sourceIndex, content.details)) {
        return code;
    }
    DropUntoldDictionaries(existing, warnings);
    Photometry::LuminaireSettings settings = request.settings;
    settings.symbolFill = FindSolidFill();
    const auto contract = Photometry::BuildContract(request.file, settings);
    const bool dropMaterial = !UseParameter(content.sections, "mat");
    content.parameters = MergeParameters(existing, contract, request.keepMaterialParameter,
                                         request.addSplitSwitch, dropMaterial);
    ReorderParameters(content.parameters, contract);
    ApplyOverrides(request, content.parameters, warnings);
    return Host::NoError;
}

std::vector<std::string> HiddenNamesIn(std::vector<LibraryParameter>& parameters) {
    std::vector<std::string> names;
    for (const std::string& name : Photometry::HiddenLightParameters()) {
        if (FindAddPar(parameters, name) != nullptr) {
            names.push_back(name);
        }
    }
    return names;
}

ErrorCode BuildContent(const AddBlockRequest& request, LuminaireContent& content,
                       Warnings& warnings) {
    if (const ErrorCode code = CopySections(request.sourceIndex, content.sections, warnings)) {
        return code;
    }
    AddPlanBlock(content.sections, warnings);
    AddModelBlock(content.sections, warnings);
    if (const ErrorCode code = BuildParameters(request, content, warnings)) {
        return code;
    }
    AddParameterBlock(content.sections, HiddenNamesIn(content.parameters));
    return Host::NoError;
}

/// What the part is made from. A lamp goes on deriving from what it did.
ErrorCode DescribeNewPart(const AddBlockRequest& request, Host::NewLibraryPart& part) {
    Host::LibraryPart source;
    if (const ErrorCode code = Host::GetLibraryPart(request.sourceIndex, source)) {
        return code;
    }
    if (const ErrorCode code = EnsureLibraryFolderInProject(part.folder)) {
        return code;
    }
    part.type = Host::PartType::Lamp;
    part.parentId = source.parentId;
    if (source.type != Host::PartType::Lamp || source.parentId.empty()) {
        if (const ErrorCode code = BuiltInParent(LightSubtype, part.parentId)) {
            return code;
        }
    }
    part.name =
        FreePartName(part.folder, request.newName.empty() ? NameWithoutOne : request.newName);
    return Host::NoError;
}

ErrorCode WriteContent(const LuminaireContent& content, const Host::NewLibraryPart& part,
                       Warnings& warnings) {
    for (const CopiedSection& section : content.sections) {
        if (const ErrorCode code = WriteSection(section.section, section.bytes)) {
            warnings.push_back("secao " + section.section.type + " nao pode ser gravada (" +
                               Commands::ErrorName(code) + ")");
            return code;
        }
    }
    ErrorCode listCode = Host::NoError;
    const ErrorCode code = WriteParameterSection(part, content.sizeA, content.sizeB,
                                                 content.parameters, listCode, content.details);
    if (listCode != Host::NoError) {
        warnings.push_back("a lista de parametros nao pode ser montada (" +
                           Commands::ErrorName(listCode) + ")");
    } else if (code != Host::NoError) {
        warnings.push_back("secao " + std::string(ParameterListSection) +
                           " nao pode ser gravada (" + Commands::ErrorName(code) + ")");
    }
    return code;
}

} // namespace

ErrorCode AddLuminaireBlockToPart(const AddBlockRequest& request, AddBlockResult& result) {
    result = {};
    LuminaireContent content;
    if (const ErrorCode code = BuildContent(request, content, result.warnings)) {
        return code;
    }
    Host::NewLibraryPart part;
    if (const ErrorCode code = DescribeNewPart(request, part)) {
        return code;
    }
    PartInMaking making;
    if (const ErrorCode code = making.Begin(part)) {
        return code;
    }
    if (const ErrorCode code = WriteContent(content, part, result.warnings)) {
        return code;
    }
    Host::LibraryPart saved;
    if (const ErrorCode code = making.Finish(saved)) {
        return code;
    }
    result.index = saved.index;
    result.name = saved.name;
    return Host::NoError;
}

} // namespace Merivane::Archicad
