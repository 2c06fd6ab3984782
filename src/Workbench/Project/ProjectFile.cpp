#include "Workbench/Project/ProjectFile.hpp"

#include <cmath>
#include <filesystem>
#include <string>
#include <system_error>
#include <utility>

#include "Catalog/Json.hpp"
#include "Text/Ascii.hpp"
#include "Text/FileBytes.hpp"
#include "Text/NativePath.hpp"
#include "Text/Utf8.hpp"
#include "Workbench/Project/FileGroups.hpp"

namespace Merivane::Workbench {

namespace {

using Catalog::JsonKind;

/// Refuses what has no format, or one that only a later program knows.
bool CheckFormat(const Place& root, std::string& error) {
    if (root.value->kind != JsonKind::Object) {
        return RefuseValue(root, "um objeto", error);
    }
    const JsonValue* const value = root.value->Find("formato");
    if (!value) {
        return Refuse(root, "falta a chave \"formato\"", error);
    }
    const Place place{value, &root, "formato", 0};
    const double format = value->number;
    if (value->kind != JsonKind::Number || format < 1.0 || format != std::floor(format)) {
        return RefuseValue(place, "um número inteiro a partir de 1", error);
    }
    return format <= ProjectFormat ||
           Refuse(place,
                  "o projeto é do formato " + Catalog::NumberText(format) +
                      ", mais novo que o formato " + std::to_string(ProjectFormat) +
                      ", o último que este programa entende",
                  error);
}

/// Reads the text as JSON of a format that is understood.
bool ParseDocument(std::string_view bytes, JsonValue& document, std::string& error) {
    if (Text::Trim(bytes).empty()) {
        error = "o arquivo está vazio";
        return false;
    }
    const Catalog::JsonParseResult parsed = Catalog::JsonParse(bytes, document);
    if (!parsed.ok) {
        error = "não é um documento JSON: " + parsed.error;
        return false;
    }
    return CheckFormat(Place{&document, nullptr, {}, 0}, error);
}

void RootKeys(auto& fields, auto& format, Is<Project> auto& project) {
    fields.Must("formato", format, NumberRange{1.0, ProjectFormat});
    fields.May("nome", project.name, "", AnyText);
    AttributeFields(fields, project);
    LibraryPartFields(fields, project);
    DatabaseFields(fields, project);
    ElementListFields(fields, project);
    SessionFields(fields, project);
}

std::string Quoted(const std::wstring& path) {
    return '"' + Text::Narrow(path) + '"';
}

/// What is no project, or one of a later program, is not written over.
bool CheckPresentFile(const std::wstring& path, std::string& error) {
    std::error_code code;
    const auto status = std::filesystem::status(Text::NativePath(path), code);
    if (status.type() == std::filesystem::file_type::not_found) {
        return true;
    }
    std::string present;
    JsonValue document;
    if (!Text::ReadFileBytes(path, present)) {
        error = "não se pode ler o que está lá";
        return false;
    }
    if (!ParseDocument(present, document, error)) {
        error = "o que está lá não é um projeto que este programa entenda: " + error;
        return false;
    }
    return true;
}

} // namespace

bool ParseProject(std::string_view bytes, Project& project, std::string& error) {
    JsonValue document;
    if (!ParseDocument(bytes, document, error)) {
        return false;
    }
    const Place root{&document, nullptr, {}, 0};
    FileNames names;
    if (!CollectGuids(root, names.guids, error)) {
        return false;
    }
    Project read;
    FieldsToRead fields(names);
    std::int32_t format = ProjectFormat;
    RootKeys(fields, format, read);
    if (!fields.Read(root, error)) {
        return false;
    }
    for (ProjectDatabase& database : read.databases) {
        if (!(database.section == SectionLine())) {
            database.section.marker = database.window.marker;
        }
    }
    if (!CheckProject(root, read, names, error)) {
        return false;
    }
    project = std::move(read);
    return true;
}

bool ReadProject(const std::wstring& path, Project& project, std::string& error) {
    std::string bytes;
    if (!Text::ReadFileBytes(path, bytes)) {
        error = "o projeto " + Quoted(path) + " não existe ou não pode ser lido";
        return false;
    }
    if (!ParseProject(bytes, project, error)) {
        error = Quoted(path) + ": " + error;
        return false;
    }
    return true;
}

std::string WriteProject(const Project& project) {
    std::vector<ParameterPlaces> parameterPlaces;
    parameterPlaces.reserve(project.parts.size());
    for (const ProjectPart& part : project.parts) {
        parameterPlaces.push_back(PlacesOfParameters(part.parameters));
    }
    FieldsToWrite fields(project, parameterPlaces);
    RootKeys(fields, ProjectFormat, project);
    Catalog::JsonWriteOptions options;
    options.numberArraysOnOneLine = true;
    return Catalog::JsonWrite(fields.Take(), options);
}

bool SaveProject(const std::wstring& path, const Project& project, std::string& error) {
    const std::string bytes = WriteProject(project);
    Project back;
    const bool good = ParseProject(bytes, back, error) && CheckPresentFile(path, error);
    if (good && Text::ReplaceFile(path, bytes)) {
        return true;
    }
    error = "o projeto não foi gravado em " + Quoted(path) +
            (good ? ": o disco o recusou" : ": " + error);
    return false;
}

} // namespace Merivane::Workbench
