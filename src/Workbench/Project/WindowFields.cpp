#include <algorithm>
#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "Text/Hex.hpp"
#include "Text/ShownText.hpp"
#include "Text/Utf8.hpp"
#include "Workbench/Project/FileGroups.hpp"
#include "Workbench/Project/WindowRules.hpp"

namespace Merivane::Workbench {

namespace {

using Host::WindowType;

constexpr NumberRange Scales = {SmallestScale, LargestScale};
constexpr NumberRange ScalesOrNone = {0.0, LargestScale};
constexpr NumberRange Floors = {-1000.0, 1000.0};

bool IsMarker(const GuidHolder& holder) {
    return holder.kind == GuidKind::Element &&
           (holder.type == Host::ElementType::CutPlane ||
            holder.type == Host::ElementType::Elevation ||
            holder.type == Host::ElementType::InteriorElevation);
}

bool IsElement(const GuidHolder& holder) {
    return holder.kind == GuidKind::Element;
}

bool IsView(const GuidHolder& holder) {
    return holder.kind == GuidKind::View;
}

/// The window types that have a database of their own: all words but the plan's and the model's.
Words<WindowType> DatabaseWords() {
    static const std::vector<Word<WindowType>> OwnWords = [] {
        std::vector<Word<WindowType>> own;
        for (const Word<WindowType>& entry : WindowTypeWords()) {
            if (entry.value != WindowType::FloorPlan && entry.value != WindowType::Model3D) {
                own.push_back(entry);
            }
        }
        return own;
    }();
    return OwnWords;
}

void LineKeys(auto& fields, auto& line) {
    fields.Must("inicio", line.begin);
    fields.Must("fim", line.end);
    fields.May("profundidade", line.depth, 0.0, Lengths);
}

void DatabaseKeys(auto& fields, Is<ProjectDatabase> auto& database) {
    constexpr NumberRange segments = {0.0, 100000.0};
    auto& window = database.window;
    fields.Must("guid", window.database);
    fields.Must("tipo", window.type, DatabaseWords());
    fields.May("nome", window.name, "", ShortText);
    fields.May("referencia", window.reference, "", ShortText);
    fields.May("escala", database.scale, 50.0, Scales);
    fields.May("marcador", window.marker, Host::Guid(),
               GuidRule{fields.Guids(), IsMarker, "nenhum corte e nenhuma elevação"});
    fields.May("parede", window.segment, 0, segments);
    fields.Object(
        "linha", database.section, [](auto& keys, auto& line) { LineKeys(keys, line); }, false);
}

/// A window as others refer to it. What else a window has stands with its database.
bool ReadWindow(const Place& place, FileNames& names, const Project& project, Host::Window& window,
                std::string& error) {
    Host::Window read;
    const auto isDatabase = [](const GuidHolder& holder) {
        return holder.kind == GuidKind::Database;
    };
    FieldsToRead fields(names);
    fields.Must("tipo", read.type, WindowTypeWords());
    fields.May("guid", read.database, Host::Guid(),
               GuidRule{&names.guids, isDatabase, "nenhuma janela"});
    if (!fields.Read(place, error)) {
        return false;
    }
    const bool hasDatabase = !WordOf(DatabaseWords(), read.type).empty();
    if (!hasDatabase && read.database == Host::Guid()) {
        window = read;
        return true;
    }
    const auto found = std::find_if(project.databases.begin(), project.databases.end(),
                                    [&read](const ProjectDatabase& database) {
                                        return database.window.database == read.database &&
                                               database.window.type == read.type;
                                    });
    if (found == project.databases.end()) {
        return Refuse(place,
                      "nenhuma janela \"" + std::string(WordOf(WindowTypeWords(), read.type)) +
                          "\" tem este GUID",
                      error);
    }
    window = found->window;
    return true;
}

void WindowKey(FieldsToRead& fields, std::string_view key, const Project& project,
               Host::Window& window, bool required) {
    fields.Custom(
        key, required,
        [&names = fields.names, &project, &window](const Place& place, std::string& error) {
            return ReadWindow(place, names, project, window, error);
        });
}

void WindowKey(FieldsToWrite& fields, std::string_view key, const Project& project,
               const Host::Window& window, bool required) {
    if (!required && window.type == WindowType::FloorPlan) {
        return;
    }
    FieldsToWrite keys(project, fields.parameterPlaces);
    keys.Must("tipo", window.type, WindowTypeWords());
    keys.May("guid", window.database, Host::Guid());
    fields.Set(key, keys.Take());
}

void ViewKeys(auto& fields, const Project& project, Is<ProjectView> auto& view) {
    fields.Must("guid", view.guid);
    fields.Must("nome", view.name, ShortText);
    fields.May("pasta", view.folder, Host::Guid(),
               GuidRule{fields.Guids(), IsView, "nenhuma pasta de vistas"});
    fields.May("ehPasta", view.isFolder, false);
    WindowKey(fields, "janela", project, view.window, false);
    fields.May("pavimento", view.floorIndex, 0, Floors);
    fields.May("combinacao", view.layerCombination, "", fields.Combinations());
    fields.May("escala", view.scale, 0.0, ScalesOrNone);
}

void LibraryKeys(auto& fields, Is<ProjectLibrary> auto& library) {
    fields.Must("nome", library.name, ShortText);
    fields.Must("caminho", library.path, AnyText);
    fields.May("embutida", library.embedded, false);
}

/// Project data with its name.
struct NamedData {
    std::string name;
    Host::ProjectData data;
};

void BytesKeys(FieldsToRead& fields, std::string& bytes) {
    const auto readHex = [&bytes](const Place& place, std::string& error) {
        bytes.clear();
        if (place.parent->value->Find("texto")) {
            return Refuse(*place.parent, "\"texto\" e \"bytes\" se excluem", error);
        }
        return (place.value->kind == Catalog::JsonKind::String &&
                Text::FromHex(place.value->text, bytes)) ||
               RefuseValue(place, "pares de dígitos hexadecimais minúsculos", error);
    };
    fields.May("texto", bytes, "", AnyText);
    fields.Custom("bytes", false, readHex);
}

/// What the add-on keeps is mostly text, which a person can read in the file.
void BytesKeys(FieldsToWrite& fields, const std::string& bytes) {
    if (Text::IsUtf8(bytes) && bytes.find('\0') == std::string::npos) {
        fields.May("texto", bytes, "");
    } else {
        fields.Set("bytes", Stored(Text::ToHex(bytes)));
    }
}

void DataKeys(auto& fields, Is<NamedData> auto& entry) {
    fields.Must("nome", entry.name, TextRule{1, 0, 0});
    fields.May("versao", entry.data.version, 1, NumberRange{-32768.0, 32767.0});
    fields.May("plataforma", entry.data.platform, 0U, NumberRange{0.0, 65535.0});
    BytesKeys(fields, entry.data.bytes);
}

bool ReadData(const Place& place, FileNames& names, Project& project, std::string& error) {
    const auto readItem = [&names](const Place& item, NamedData& entry, std::string& text) {
        FieldsToRead keys(names);
        DataKeys(keys, entry);
        return keys.Read(item, text);
    };
    std::vector<NamedData> entries;
    if (!Catalog::IntoList(entries, {}, readItem)(place, error)) {
        return false;
    }
    for (std::size_t i = 0; i < entries.size(); ++i) {
        if (!project.data.emplace(entries[i].name, std::move(entries[i].data)).second) {
            const Place item{&place.value->items[i], &place, {}, i};
            return Refuse(Place{item.value->Find("nome"), &item, "nome", 0},
                          "o nome " + Text::QuotedText(entries[i].name) +
                              " já é de outro item da lista",
                          error);
        }
    }
    return true;
}

void DataList(FieldsToRead& fields, Project& project) {
    fields.Custom("dados", false,
                  [&names = fields.names, &project](const Place& place, std::string& error) {
                      return ReadData(place, names, project, error);
                  });
}

void DataList(FieldsToWrite& fields, const Project& project) {
    std::vector<NamedData> entries;
    for (const auto& [name, data] : project.data) {
        entries.push_back({name, data});
    }
    fields.List("dados", entries, [](auto& keys, auto& entry) { DataKeys(keys, entry); });
}

void AllKeys(auto& fields, Is<Project> auto& project) {
    const Project& known = project;
    fields.List("vistas", project.views,
                [&known](auto& keys, auto& view) { ViewKeys(keys, known, view); });
    fields.List("bibliotecas", project.libraries,
                [](auto& keys, auto& library) { LibraryKeys(keys, library); });
    DataList(fields, project);
    fields.May("selecao", project.selection, std::vector<Host::Guid>(),
               GuidRule{fields.Guids(), IsElement, "nenhum elemento"});
    WindowKey(fields, "janelaAtual", project, project.window, false);
    fields.May("pavimentoAtivo", project.activeFloor, 0, Floors);
    fields.May("escalaDaPlanta", project.planScale, 100.0, Scales);
    fields.May("simbolosDeIluminacao", project.lightingSymbols, false);
    fields.May("ultimoCarimbo", project.lastStamp, 0U, NumberRange{0.0, 9007199254740991.0});
}

} // namespace

void DatabaseFields(FieldsToRead& fields, Project& project) {
    fields.List("janelas", project.databases,
                [](auto& keys, auto& database) { DatabaseKeys(keys, database); });
}

void DatabaseFields(FieldsToWrite& fields, const Project& project) {
    fields.List("janelas", project.databases,
                [](auto& keys, auto& database) { DatabaseKeys(keys, database); });
}

void SessionFields(FieldsToRead& fields, Project& project) {
    AllKeys(fields, project);
}

void SessionFields(FieldsToWrite& fields, const Project& project) {
    AllKeys(fields, project);
}

} // namespace Merivane::Workbench
