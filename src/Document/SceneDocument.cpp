#include "Document/SceneDocument.hpp"

#include <cmath>
#include <filesystem>
#include <utility>

#include "Document/SceneFields.hpp"
#include "Text/Ascii.hpp"
#include "Text/FileBytes.hpp"
#include "Text/Utf8.hpp"

namespace Merivane::Document {

namespace {

using Catalog::JsonKind;
using Catalog::JsonValue;

/// A newer format may hold anything, so its number is judged before any other key.
bool CheckFormat(const Place& root, std::string& error) {
    if (root.value->kind != JsonKind::Object) {
        return RefuseValue(root, "um objeto", error);
    }
    const JsonValue* value = root.value->Find("formato");
    if (value == nullptr) {
        return Refuse(root, "falta a chave \"formato\"", error);
    }
    const Place place{value, &root, "formato", 0};
    const double format = value->number;
    if (value->kind != JsonKind::Number || format < 1.0 || format != std::floor(format)) {
        return RefuseValue(place, "um número inteiro a partir de 1", error);
    }
    if (format > SceneFormat) {
        return Refuse(place,
                      "o documento é do formato " + NumberText(format) +
                          ", mais novo que o formato " + std::to_string(SceneFormat) +
                          ", o último que este programa entende",
                      error);
    }
    return true;
}

/// The document that is being filled and what its parts ask of each other.
struct SceneReading {
    Simulation::LightingStudy& document;
    IesLibrary library;
    MaterialNames names;
};

bool ReadMaterials(const Place& place, SceneReading& reading, std::string& error) {
    std::vector<Simulation::SceneMaterial>& materials = reading.document.materials;
    return IntoList(materials, {0, 0, "materiais"}, ReadMaterial)(place, error) &&
           NameMaterials(place, materials, reading.names, error);
}

bool ReadSurfaces(const Place& place, SceneReading& reading, std::string& error) {
    const auto readSurface = [&reading](const Place& item, Simulation::SceneSurface& surface,
                                        std::string& text) {
        return ReadSurface(item, reading.names, surface, text);
    };
    return IntoList(reading.document.surfaces, {0, 0, "superfícies"}, readSurface)(place, error);
}

bool ReadLuminaires(const Place& place, SceneReading& reading, std::string& error) {
    const auto readLuminaire = [&reading](const Place& item, Simulation::SceneLuminaire& luminaire,
                                          std::string& text) {
        luminaire.id = "lum" + std::to_string(item.index + 1);
        return ReadLuminaire(item, reading.library, luminaire, text);
    };
    return IntoList(reading.document.luminaires, {0, 0, "luminárias"}, readLuminaire)(place, error);
}

bool ReadZones(const Place& place, SceneReading& reading, std::string& error) {
    return IntoList(reading.document.zones, {0, 0, "Zonas"}, ReadZone)(place, error);
}

bool ReadPoints(const Place& place, SceneReading& reading, std::string& error) {
    return IntoList(reading.document.points, {0, 0, "pontos"}, ReadPoint)(place, error);
}

bool ReadObservers(const Place& place, SceneReading& reading, std::string& error) {
    return IntoList(reading.document.observers, {0, 0, "observadores"}, ReadObserver)(place, error);
}

bool ReadRoot(const Place& root, SceneReading& reading, std::string& error) {
    Simulation::LightingStudy& document = reading.document;
    const auto part = [&reading](auto reader) -> FieldReader {
        return [&reading, reader](const Place& place, std::string& text) {
            return reader(place, reading, text);
        };
    };
    const FieldReader readEngine = [&document](const Place& place, std::string& text) {
        return ReadEngine(place, document.engine, text);
    };
    const FieldReader readLevels = [&document](const Place& place, std::string& text) {
        return ReadLevels(place, document.levels, text);
    };
    const FieldReader readStandard = [&document](const Place& place, std::string& text) {
        return ReadStandard(place, document.standard, text);
    };
    std::int32_t format = 0;
    // Surfaces name materials, so materials stand before them in the table.
    return ReadObject(
        root,
        {Required("formato", Into(format, {1.0, SceneFormat})),
         Optional("nome", Into(document.name)), Optional("materiais", part(ReadMaterials)),
         Optional("superficies", part(ReadSurfaces)), Optional("luminarias", part(ReadLuminaires)),
         Optional("zonas", part(ReadZones)), Optional("pontos", part(ReadPoints)),
         Optional("observadores", part(ReadObservers)), Optional("norma", readStandard),
         Optional("motor", readEngine), Optional("niveis", readLevels)},
        error);
}

/// The folder of a path with its separator at the end; empty for a bare name.
std::wstring FolderOf(const std::wstring& path) {
    const wchar_t separators[] = {L'/', std::filesystem::path::preferred_separator, L'\0'};
    return path.substr(0, path.find_last_of(separators) + 1);
}

} // namespace

bool ParseSceneDocument(std::string_view text, const IesLoader& loadIes,
                        Simulation::LightingStudy& document, std::string& error) {
    document = {};
    document.engine = Simulation::ProfileSettings(1);
    document.levels = Simulation::DefaultLevels();
    if (Text::Trim(text).empty()) {
        error = "o documento está vazio";
        return false;
    }
    JsonValue value;
    const Catalog::JsonParseResult parsed = Catalog::JsonParse(text, value);
    if (!parsed.ok) {
        error = "não é um documento JSON: " + parsed.error;
        return false;
    }
    const Place root{&value, nullptr, {}, 0};
    SceneReading reading{document, {loadIes, {}, {}}, {}};
    if (!CheckFormat(root, error) || !ReadRoot(root, reading, error)) {
        return false;
    }
    if (document.zones.empty() && document.points.empty()) {
        return Refuse(root, "nada a calcular: espera-se ao menos uma Zona ou um ponto", error);
    }
    document.warnings = std::move(reading.library.warnings);
    for (std::string& warning : ActivityWarnings(document.zones)) {
        document.warnings.push_back(std::move(warning));
    }
    if (document.luminaires.empty()) {
        document.warnings.emplace_back("O documento não tem luminárias: todo valor será 0.");
    }
    return true;
}

bool ReadSceneDocument(const std::wstring& path, Simulation::LightingStudy& document,
                       std::string& error) {
    std::string text;
    const std::string quoted = "\"" + Text::Narrow(path) + "\"";
    if (!Text::ReadFileBytes(path, text)) {
        error = "o documento " + quoted + " não existe ou não pode ser lido";
        return false;
    }
    const std::wstring folder = FolderOf(path);
    const IesLoader loadIes = [&folder](const std::string& iesPath, std::string& bytes) {
        const bool absolute = std::filesystem::path(iesPath).is_absolute();
        return Text::ReadFileBytes((absolute ? L"" : folder) + Text::Widen(iesPath), bytes);
    };
    if (!ParseSceneDocument(text, loadIes, document, error)) {
        error = quoted + ": " + error;
        return false;
    }
    return true;
}

} // namespace Merivane::Document
