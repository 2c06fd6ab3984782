#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <set>
#include <utility>
#include <variant>

#include "Text/Ascii.hpp"
#include "Text/ShownText.hpp"
#include "Workbench/Parts/PartDocument.hpp"
#include "Workbench/Project/FileGroups.hpp"
#include "Workbench/Project/ParameterRules.hpp"

namespace Merivane::Workbench {

namespace {

using Catalog::JsonKind;
using Host::LibraryParameter;
using Host::ParameterType;

constexpr NumberRange Flags = {0.0, 2147483647.0};
constexpr NumberRange Rows = {1.0, 1e6};
constexpr NumberRange Columns = {0.0, 1e6};

/// Refuses a list of another length than the dimensions of the parameter tell.
bool CheckCount(const Place& place, const LibraryParameter& parameter, std::string& error) {
    const std::int64_t columns = std::max(parameter.dim2, 1);
    const std::int64_t count = parameter.dim1 * columns;
    if (place.value->kind == JsonKind::Array &&
        static_cast<std::int64_t>(place.value->items.size()) == count) {
        return true;
    }
    return RefuseValue(place,
                       "uma lista de " + std::to_string(count) +
                           (count == 1 ? " valor (" : " valores (") +
                           std::to_string(parameter.dim1) + " x " + std::to_string(columns) + ')',
                       error);
}

FieldReader IntoNumbers(LibraryParameter& parameter) {
    return [&parameter](const Place& place, std::string& error) {
        const auto readNumber = [](const Place& item, double& number, std::string& text) {
            return Into(number)(item, text);
        };
        return CheckCount(place, parameter, error) &&
               Catalog::IntoList(parameter.numbers, {}, readNumber)(place, error);
    };
}

FieldReader IntoTexts(LibraryParameter& parameter) {
    return [&parameter](const Place& place, std::string& error) {
        const auto readText = [](const Place& item, std::string& text, std::string& refusal) {
            return Into(text, ShortText)(item, refusal);
        };
        return CheckCount(place, parameter, error) &&
               Catalog::IntoList(parameter.texts, {}, readText)(place, error);
    };
}

void ArrayValues(FieldsToRead& fields, LibraryParameter& parameter) {
    const bool isText = parameter.type == ParameterType::String;
    fields.Custom("valores", true, isText ? IntoTexts(parameter) : IntoNumbers(parameter));
}

void ArrayValues(FieldsToWrite& fields, const LibraryParameter& parameter) {
    const bool isText = parameter.type == ParameterType::String;
    fields.Set("valores", isText ? Stored(parameter.texts) : Stored(parameter.numbers));
}

/// The value of a parameter whose type is known, and whether it is an array.
void ValueFields(auto& fields, Is<LibraryParameter> auto& parameter) {
    if (parameter.isArray) {
        fields.Must("linhas", parameter.dim1, Rows);
        fields.May("colunas", parameter.dim2, 0, Columns);
        ArrayValues(fields, parameter);
    } else if (parameter.type == ParameterType::String) {
        fields.May("valor", parameter.text, "", ShortText);
    } else {
        fields.May("valor", parameter.number, 0.0);
    }
}

void ParameterFields(auto& fields, Is<LibraryParameter> auto& parameter) {
    fields.Must("nome", parameter.name, ParameterName());
    fields.Must("tipo", parameter.type, ParameterTypeWords());
    fields.May("descricao", parameter.description, "", ShortText);
    fields.May("marcas", parameter.flags, 0, Flags);
    ValueFields(fields, parameter);
}

bool ReadParameter(const Place& place, FileNames& names, LibraryParameter& parameter,
                   std::string& error) {
    // Which keys stand for the value depends on the type.
    if (const JsonValue* const type = place.value->Find("tipo")) {
        if (!Into(parameter.type, ParameterTypeWords())(Place{type, &place, "tipo", 0}, error)) {
            return false;
        }
    }
    parameter.isArray = place.value->Find("linhas") || place.value->Find("valores");
    FieldsToRead fields(names);
    ParameterFields(fields, parameter);
    return fields.Read(place, error);
}

bool ReadParameters(const Place& place, FileNames& names, std::vector<LibraryParameter>& parameters,
                    std::string& error) {
    const auto readItem = [&names](const Place& item, LibraryParameter& parameter,
                                   std::string& text) {
        return ReadParameter(item, names, parameter, text);
    };
    if (!Catalog::IntoList(parameters, {}, readItem)(place, error)) {
        return false;
    }
    ParameterPlaces places = PlacesOfParameters(parameters);
    for (std::size_t i = 0; i < parameters.size(); ++i) {
        if (PlaceOfParameter(places, parameters[i].name) != i) {
            const Place item{&place.value->items[i], &place, {}, i};
            return Refuse(Place{item.value->Find("nome"), &item, "nome", 0},
                          "o nome " + Text::QuotedText(parameters[i].name) +
                              " já é de outro parâmetro da peça",
                          error);
        }
    }
    names.parameterPlaces.back() = std::move(places);
    return true;
}

void ParameterList(FieldsToRead& fields, std::vector<LibraryParameter>& parameters) {
    fields.names.parameterPlaces.emplace_back(); // of the part that begins
    fields.Custom("parametros", false,
                  [&names = fields.names, &parameters](const Place& place, std::string& error) {
                      return ReadParameters(place, names, parameters, error);
                  });
}

void ParameterList(FieldsToWrite& fields, const std::vector<LibraryParameter>& parameters) {
    fields.List("parametros", parameters,
                [](auto& keys, auto& parameter) { ParameterFields(keys, parameter); });
}

void PartFields(auto& fields, Is<ProjectPart> auto& part) {
    fields.Must("nome", part.name, NameRule);
    fields.Must("guid", part.mainGuid);
    fields.May("luminaria", part.isLamp, false);
    fields.May("a", part.sizeA, 1.0, Lengths);
    fields.May("b", part.sizeB, 1.0, Lengths);
    ParameterList(fields, part.parameters);
    fields.List("superficies", part.surfaces,
                [](auto& keys, auto& surface) { SurfaceFields(keys, surface); });
    fields.List("corpos", part.bodies, [](auto& keys, auto& body) { BodyFields(keys, body); });
}

/// Takes the names of the parts of a list, which elements refer to; `parts[first]` is its first.
/// Refuses one that stands above already.
bool NameParts(const Place& list, const std::vector<ProjectPart>& parts, std::size_t first,
               AttributeNames& names, std::string& error) {
    for (std::size_t i = first; i < parts.size(); ++i) {
        const auto index = static_cast<std::int32_t>(i + 1);
        if (!names.numbers.emplace(parts[i].name, index).second) {
            const Place item{&list.value->items[i - first], &list, {}, i - first};
            return Refuse(Place{item.value->Find("nome"), &item, "nome", 0},
                          "o nome " + Text::QuotedText(parts[i].name) +
                              (first == 0 ? " já é de outro item da lista" : " já é de outra peça"),
                          error);
        }
    }
    return true;
}

/// What the file tells of a part that stands in a library: who it is.
void ReferenceFields(auto& fields, Is<ProjectPart> auto& part) {
    fields.Must("nome", part.name, NameRule);
    fields.Must("guid", part.mainGuid);
    fields.May("luminaria", part.isLamp, false);
}

/// The parts of libraries that elements refer to. They are missing until a library gives them.
bool ReadReferences(const Place& place, FileNames& names, Project& project, std::string& error) {
    const auto readPart = [&names](const Place& item, ProjectPart& part, std::string& text) {
        FieldsToRead keys(names);
        ReferenceFields(keys, part);
        part.source = PartSource::Missing;
        return keys.Read(item, text);
    };
    std::vector<ProjectPart> references;
    if (!Catalog::IntoList(references, {}, readPart)(place, error)) {
        return false;
    }
    const std::size_t first = project.parts.size();
    for (ProjectPart& part : references) {
        project.parts.push_back(std::move(part));
        names.parameterPlaces.emplace_back();
    }
    return NameParts(place, project.parts, first, names.parts, error);
}

/// The parts of libraries that elements of the project refer to, in their order.
std::vector<ProjectPart> ReferredParts(const Project& project) {
    std::vector<bool> isReferred(project.parts.size(), false);
    for (const ProjectElement& element : project.elements) {
        const auto* const data = std::get_if<Host::ObjectData>(&element.element.data);
        const auto place = data ? static_cast<std::size_t>(data->libraryIndex) - 1 : 0;
        if (data && place < isReferred.size()) {
            isReferred[place] = true;
        }
    }
    std::vector<ProjectPart> referred;
    for (std::size_t place = 0; place < isReferred.size(); ++place) {
        const ProjectPart& part = project.parts[place];
        if (isReferred[place] && part.source != PartSource::Project) {
            ProjectPart& reference = referred.emplace_back();
            reference.name = part.name;
            reference.mainGuid = part.mainGuid;
            reference.isLamp = part.isLamp;
        }
    }
    return referred;
}

std::vector<ProjectPart> OwnParts(const Project& project) {
    std::vector<ProjectPart> own;
    std::copy_if(project.parts.begin(), project.parts.end(), std::back_inserter(own),
                 [](const ProjectPart& part) { return part.source == PartSource::Project; });
    return own;
}

JsonValue StoredValue(const FieldsToWrite& fields, const LibraryParameter& parameter) {
    if (parameter.isArray) {
        FieldsToWrite array(fields.project, fields.parameterPlaces);
        ValueFields(array, parameter);
        return array.Take();
    }
    return parameter.type == ParameterType::String ? Stored(parameter.text)
                                                   : Stored(parameter.number);
}

bool ReadOwnValue(const Place& place, FileNames& names, LibraryParameter& parameter,
                  std::string& error) {
    if (parameter.isArray) {
        FieldsToRead array(names);
        ValueFields(array, parameter);
        return array.Read(place, error);
    }
    return parameter.type == ParameterType::String ? Into(parameter.text, ShortText)(place, error)
                                                   : Into(parameter.number)(place, error);
}

/// A value of a part that is not there: its form tells what it is.
LibraryParameter LooseParameter(const Catalog::JsonMember& member) {
    LibraryParameter parameter;
    parameter.name = member.key;
    const JsonValue* value = &member.value;
    parameter.isArray = value->kind == JsonKind::Object;
    if (const JsonValue* const values = parameter.isArray ? value->Find("valores") : nullptr;
        values && !values->items.empty()) {
        value = &values->items[0];
    }
    parameter.type = value->kind == JsonKind::String ? ParameterType::String : ParameterType::Real;
    return parameter;
}

bool ReadLooseParameters(const Place& place, FileNames& names,
                         std::vector<LibraryParameter>& parameters, std::string& error) {
    if (place.value->kind != JsonKind::Object) {
        return RefuseValue(place, "um objeto", error);
    }
    std::set<std::string> taken;
    for (const Catalog::JsonMember& member : place.value->members) {
        const bool isName = Parts::IsParameterName(member.key);
        if (!isName || !taken.insert(Text::ToLower(member.key)).second) {
            return Refuse(place,
                          (isName ? "aparece duas vezes o parâmetro "
                                  : "nenhuma peça pode ter o parâmetro ") +
                              Text::QuotedText(member.key),
                          error);
        }
        parameters.push_back(LooseParameter(member));
        if (!ReadOwnValue(Place{&member.value, &place, member.key, 0}, names, parameters.back(),
                          error)) {
            return false;
        }
    }
    return true;
}

bool ReadOwnParameters(const Place& place, FileNames& names, const ProjectPart& part,
                       const ParameterPlaces& places, std::vector<LibraryParameter>& parameters,
                       std::string& error) {
    if (place.value->kind != JsonKind::Object) {
        return RefuseValue(place, "um objeto", error);
    }
    std::vector<bool> taken(part.parameters.size(), false);
    for (const Catalog::JsonMember& member : place.value->members) {
        const std::size_t at = PlaceOfParameter(places, member.key);
        if (at >= taken.size() || taken[at]) {
            return Refuse(place,
                          (at < taken.size() ? "aparece duas vezes o parâmetro "
                                             : "a peça não tem o parâmetro ") +
                              Text::QuotedText(member.key),
                          error);
        }
        taken[at] = true;
        parameters.push_back(part.parameters[at]);
        if (!ReadOwnValue(Place{&member.value, &place, member.key, 0}, names, parameters.back(),
                          error)) {
            return false;
        }
    }
    return true;
}

} // namespace

void LibraryPartFields(FieldsToRead& fields, Project& project) {
    const auto read = [&names = fields.names, &project](const Place& place, std::string& error) {
        const auto readPart = [&names](const Place& item, ProjectPart& part, std::string& text) {
            FieldsToRead keys(names);
            PartFields(keys, part);
            return keys.Read(item, text);
        };
        return Catalog::IntoList(project.parts, {}, readPart)(place, error) &&
               NameParts(place, project.parts, 0, names.parts, error);
    };
    fields.Custom("pecas", false, read);
    fields.Custom("pecasDeBiblioteca", false,
                  [&names = fields.names, &project](const Place& place, std::string& error) {
                      return ReadReferences(place, names, project, error);
                  });
}

void LibraryPartFields(FieldsToWrite& fields, const Project& project) {
    fields.List("pecas", OwnParts(project), [](auto& keys, auto& part) { PartFields(keys, part); });
    fields.List("pecasDeBiblioteca", ReferredParts(project),
                [](auto& keys, auto& part) { ReferenceFields(keys, part); });
}

void OwnParameterFields(FieldsToRead& fields, const Project& project,
                        const std::int32_t& libraryIndex,
                        std::vector<LibraryParameter>& parameters) {
    const auto read = [&names = fields.names, &project, &libraryIndex,
                       &parameters](const Place& place, std::string& error) {
        const auto part = static_cast<std::size_t>(libraryIndex) - 1;
        if (project.parts[part].source == PartSource::Missing) {
            return ReadLooseParameters(place, names, parameters, error);
        }
        return ReadOwnParameters(place, names, project.parts[part], names.parameterPlaces[part],
                                 parameters, error);
    };
    fields.Custom("parametros", false, read);
}

void OwnParameterFields(FieldsToWrite& fields, const Project& project,
                        const std::int32_t& libraryIndex,
                        const std::vector<LibraryParameter>& parameters) {
    const auto part = static_cast<std::size_t>(libraryIndex) - 1;
    if (parameters.empty() || part >= project.parts.size()) {
        return;
    }
    const std::vector<LibraryParameter>& ofPart = project.parts[part].parameters;
    JsonValue own = JsonValue::MakeObject();
    for (const LibraryParameter& parameter : parameters) {
        if (project.parts[part].source == PartSource::Missing && ofPart.empty()) {
            own.Set(parameter.name, StoredValue(fields, parameter));
            continue;
        }
        const std::size_t at = PlaceOfParameter(fields.parameterPlaces[part], parameter.name);
        if (at < ofPart.size() && IsSameKind(parameter, ofPart[at]) &&
            !IsSameValue(parameter, ofPart[at])) {
            own.Set(ofPart[at].name, StoredValue(fields, parameter));
        }
    }
    if (own.members.size() > 0) {
        fields.Set("parametros", std::move(own));
    }
}

} // namespace Merivane::Workbench
