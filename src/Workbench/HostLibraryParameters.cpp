#include <algorithm>
#include <cmath>
#include <cstddef>
#include <set>
#include <string_view>
#include <utility>

#include "Host/Library.hpp"
#include "Text/Ascii.hpp"
#include "Text/ShownText.hpp"
#include "Text/Utf16Length.hpp"
#include "Workbench/PartLibraries.hpp"
#include "Workbench/Parts/BuiltInSubtypes.hpp"
#include "Workbench/Parts/PartXml.hpp"
#include "Workbench/Session.hpp"

// The parameter section of a part that is being made.
namespace Merivane::Host {

namespace {

using namespace Workbench::Parts;

constexpr std::size_t MostArrayValues = 1'000'000;

bool IsGoodArray(const LibraryParameter& parameter) {
    if (parameter.dim1 < 1 || parameter.dim2 < 0) {
        return false;
    }
    const auto rows = static_cast<std::size_t>(parameter.dim1);
    const auto columns = static_cast<std::size_t>(std::max(parameter.dim2, 1));
    const bool isText = parameter.type == ParameterType::String;
    const std::size_t count = isText ? parameter.texts.size() : parameter.numbers.size();
    return count == rows * columns && count <= MostArrayValues;
}

bool IsGoodParameter(const LibraryParameter& parameter) {
    const auto isFinite = [](double number) { return std::isfinite(number); };
    const bool isBare = parameter.type == ParameterType::Dictionary && parameter.text.empty();
    return IsParameterName(parameter.name) && !isBare &&
           (!parameter.isArray || IsGoodArray(parameter)) && isFinite(parameter.number) &&
           std::all_of(parameter.numbers.begin(), parameter.numbers.end(), isFinite);
}

LibraryParameter OfSubtype(std::string_view name, std::string_view description, ParameterType type,
                           std::int32_t flags, double number) {
    LibraryParameter parameter;
    parameter.name = name;
    parameter.description = description;
    parameter.type = type;
    parameter.flags = ParameterFixed | flags;
    parameter.number = number;
    return parameter;
}

/// What the subtype of model elements brings beside A and B; nothing for what is none.
std::vector<LibraryParameter> SubtypeParameters(const NewLibraryPart& part) {
    Guid parent;
    ParseUniqueId(part.parentId, parent);
    const std::vector<Guid> ancestry =
        Workbench::AncestryBelow(Workbench::CurrentSession().project, parent);
    const bool isModelElement = std::find(ancestry.begin(), ancestry.end(),
                                          BuiltInSubtype(ModelElementSubtype)) != ancestry.end();
    std::vector<LibraryParameter> parameters;
    if (isModelElement) {
        parameters.push_back(OfSubtype("ZZYZX", "Altura", ParameterType::Length, 0, 1.0));
    }
    // No part is placed without these three.
    parameters.push_back(OfSubtype("AC_show2DHotspotsIn3D", "Pontos ativos 2D no 3D",
                                   ParameterType::Boolean, ParameterHidden, 0.0));
    parameters.push_back(
        OfSubtype("ac_bottomlevel", "Nível inferior", ParameterType::Length, ParameterHidden, 0.0));
    parameters.push_back(
        OfSubtype("ac_toplevel", "Nível superior", ParameterType::Length, ParameterHidden, 0.0));
    return parameters;
}

bool IsSameName(const LibraryParameter& a, const LibraryParameter& b) {
    return Text::ToLower(a.name) == Text::ToLower(b.name);
}

/// The subtype's own that are not in the list, and the list; in it those of the subtype's are
/// marked as such.
std::vector<LibraryParameter> WithSubtypes(const NewLibraryPart& part,
                                           const std::vector<LibraryParameter>& parameters) {
    std::vector<LibraryParameter> all;
    std::vector<LibraryParameter> given = parameters;
    for (LibraryParameter& own : SubtypeParameters(part)) {
        const auto found =
            std::find_if(given.begin(), given.end(), [&own](const LibraryParameter& parameter) {
                return IsSameName(parameter, own);
            });
        if (found == given.end()) {
            all.push_back(std::move(own));
        } else {
            found->flags |= ParameterFixed;
        }
    }
    all.insert(all.end(), given.begin(), given.end());
    return all;
}

bool HasGoodNames(const std::vector<LibraryParameter>& parameters) {
    std::set<std::string> names = {"a", "b"};
    return std::all_of(parameters.begin(), parameters.end(),
                       [&names](const LibraryParameter& parameter) {
                           return names.insert(Text::ToLower(parameter.name)).second;
                       });
}

/// Whether a list that holds dictionaries, which are not ours to write, reads as what it was to be.
bool ReadsBack(const std::string& xml, const ParameterSection& section) {
    ParameterSection read;
    std::string ignored;
    const auto isSame = [](const PartParameter& a, const PartParameter& b) {
        return a.value.name == b.value.name && a.value.type == b.value.type;
    };
    const bool hasDictionaries =
        std::any_of(section.parameters.begin(), section.parameters.end(),
                    [](const PartParameter& parameter) { return !parameter.kept.empty(); });
    if (!hasDictionaries) {
        return true;
    }
    return ReadParameterXml(xml, read, ignored) &&
           std::equal(read.parameters.begin(), read.parameters.end(), section.parameters.begin(),
                      section.parameters.end(), isSame);
}

} // namespace

ErrorCode MakeParameterSection(const NewLibraryPart& part, double sizeA, double sizeB,
                               const std::vector<LibraryParameter>& parameters,
                               std::string& bytes) {
    if (const ErrorCode code = Workbench::CountProjectCall("MakeParameterSection")) {
        return code;
    }
    if (!std::isfinite(sizeA) || !std::isfinite(sizeB) || sizeA < 0.0 || sizeB < 0.0 ||
        !std::all_of(parameters.begin(), parameters.end(), IsGoodParameter) ||
        !HasGoodNames(parameters)) {
        return BadParameters;
    }
    const ParameterSection section =
        Workbench::MakeFileParameters(sizeA, sizeB, WithSubtypes(part, parameters));
    std::string xml = WriteParameterXml(section);
    if (!ReadsBack(xml, section)) {
        return BadParameters;
    }
    bytes = std::move(xml);
    return NoError;
}

ErrorCode SetPartDetails(std::string_view details, std::string& bytes) {
    if (const ErrorCode code = Workbench::CountProjectCall("SetPartDetails")) {
        return code;
    }
    ParameterSection section;
    ParameterSection read;
    std::string ignored;
    if (!ReadParameterXml(bytes, section, ignored)) {
        return BadParameters;
    }
    section.header = details;
    std::string xml = WriteParameterXml(section);
    if (!ReadParameterXml(xml, read, ignored) || read != section) {
        return BadParameters;
    }
    bytes = std::move(xml);
    return NoError;
}

} // namespace Merivane::Host
