#include <algorithm>
#include <cstddef>
#include <set>
#include <string>
#include <variant>
#include <vector>

#include "Text/ShownText.hpp"
#include "Workbench/Project/ElementRules.hpp"
#include "Workbench/Project/FileGroups.hpp"

namespace Merivane::Workbench {

namespace {

using Host::ElementType;

/// Refuses an item of a list at the root, or a member of it where `member` names one.
bool RefuseItem(const Place& root, std::string_view key, std::size_t index, std::string_view member,
                const std::string& sentence, std::string& error) {
    const Place list{root.value->Find(key), &root, key, 0};
    const Place item{&list.value->items[index], &list, {}, index};
    const JsonValue* const value = item.value->Find(member);
    return value ? Refuse(Place{value, &item, member, 0}, sentence, error)
                 : Refuse(item, sentence, error);
}

bool HasStory(const Project& project, std::int16_t floorIndex) {
    return CheckStory(project, floorIndex) == Host::NoError;
}

std::string NoStory(std::int16_t floorIndex) {
    return "nenhum pavimento tem o índice " + std::to_string(floorIndex);
}

bool CheckStories(const Place& root, const Project& project, std::string& error) {
    for (std::size_t i = 1; i < project.stories.size(); ++i) {
        const int expected = project.stories[i - 1].index + 1;
        if (project.stories[i].index != expected) {
            return RefuseItem(root, "pavimentos", i, "indice",
                              "espera-se " + std::to_string(expected) +
                                  ", um a mais que o do pavimento anterior, mas há " +
                                  std::to_string(project.stories[i].index),
                              error);
        }
    }
    if (!HasStory(project, project.activeFloor)) {
        const JsonValue* const value = root.value->Find("pavimentoAtivo");
        return Refuse(value ? Place{value, &root, "pavimentoAtivo", 0} : root,
                      NoStory(project.activeFloor), error);
    }
    return true;
}

/// The place in the file of an attribute, whose table is in order of numbers.
std::size_t ItemOfNumber(const Place& root, std::string_view key, std::int32_t number) {
    const std::vector<JsonValue>& items = root.value->Find(key)->items;
    const auto found = std::find_if(items.begin(), items.end(), [number](const JsonValue& item) {
        return item.NumberOr("numero", 0.0) == number;
    });
    return static_cast<std::size_t>(found - items.begin());
}

bool CheckLayers(const Place& root, const Project& project, std::string& error) {
    if (project.layers.empty()) {
        return Refuse(root, "falta ao menos uma camada", error);
    }
    const auto& [number, first] = *project.layers.begin();
    if (first.hidden || first.locked) {
        return RefuseItem(root, "camadas", ItemOfNumber(root, "camadas", number), {},
                          "a camada do menor número não pode ser oculta nem travada", error);
    }
    for (const auto& [combination, record] : project.combinations) {
        std::set<std::int32_t> seen;
        for (const Host::LayerState& state : record.states) {
            if (!seen.insert(state.layer.value).second) {
                return RefuseItem(
                    root, "combinacoes", ItemOfNumber(root, "combinacoes", combination), "estados",
                    "a camada " + Text::QuotedText(project.layers.at(state.layer.value).name) +
                        " aparece duas vezes",
                    error);
            }
        }
    }
    for (const auto& [lineType, record] : project.lineTypes) {
        if (record.dashes.size() % 2 != 0) {
            return RefuseItem(root, "tiposDeLinha", ItemOfNumber(root, "tiposDeLinha", lineType),
                              "tracos", "espera-se um número par de comprimentos, traço e vão",
                              error);
        }
    }
    return true;
}

/// Why the faces of a given body do not go with the part it belongs to; empty where they do.
std::string FaceProblem(const GivenBody& body, const std::vector<Host::ModelSurface>& surfaces) {
    for (const GivenFace& face : body.faces) {
        if (face.scriptSurface.empty()) {
            continue;
        }
        if (face.surface.value != 0) {
            return "\"superficie\" e \"superficieDaPeca\" se excluem";
        }
        const bool known =
            std::any_of(surfaces.begin(), surfaces.end(), [&face](const auto& surface) {
                return surface.name == face.scriptSurface;
            });
        if (!known) {
            return "nenhuma superfície da peça tem o nome " + Text::QuotedText(face.scriptSurface);
        }
    }
    return {};
}

bool CheckParts(const Place& root, const Project& project, std::string& error) {
    for (std::size_t i = 0; i < project.parts.size(); ++i) {
        for (const GivenBody& body : project.parts[i].bodies) {
            const std::string problem = FaceProblem(body, project.parts[i].surfaces);
            if (!problem.empty()) {
                return RefuseItem(root, "pecas", i, "corpos", problem, error);
            }
        }
    }
    return true;
}

/// Why a geometry can't be built though each of its numbers is good; empty where it can.
std::string GeometryProblem(const ModelGeometry& geometry) {
    if (const auto* const wall = std::get_if<WallGeometry>(&geometry)) {
        return wall->begin == wall->end ? "o início e o fim são o mesmo ponto" : "";
    }
    if (const auto* const bar = std::get_if<BarGeometry>(&geometry)) {
        return bar->begin == bar->end ? "o início e o fim são o mesmo ponto" : "";
    }
    if (const auto* const roof = std::get_if<RoofGeometry>(&geometry)) {
        return roof->pivotBegin == roof->pivotEnd ? "o eixo não tem comprimento" : "";
    }
    if (const auto* const mesh = std::get_if<MeshGeometry>(&geometry)) {
        const bool below =
            std::all_of(mesh->outline.begin(), mesh->outline.end(),
                        [mesh](const auto& place) { return mesh->bottom < place.z; });
        return below ? "" : "a base não fica abaixo de todo o contorno";
    }
    if (const auto* const body = std::get_if<GivenBody>(&geometry)) {
        return FaceProblem(*body, {});
    }
    return {};
}

/// Why an element's own data or what hangs on it can't be; empty where they can.
std::string ContentProblem(const Project& project, const ProjectElement& element) {
    const ElementType type = element.element.header.type;
    switch (CheckElementData(project, element.element)) {
    case Host::NoError:
        break;
    case Host::RefusedParameters:
        return type == ElementType::Lamp ? "a peça não é de luminária"
                                         : "a peça é de luminária, e o elemento é um objeto";
    default:
        return type == ElementType::Line     ? "o início e o fim são o mesmo ponto"
               : type == ElementType::Circle ? "um círculo é inteiro"
                                             : "o arco não tem ângulo";
    }
    if (type == ElementType::Zone || type == ElementType::Hatch ||
        CheckMemo(project, element.element, element.memo) == Host::NoError) {
        return {}; // polygons with an inside were checked as they were read
    }
    return type == ElementType::Text ? "os trechos não cobrem as letras de cada parágrafo, um "
                                       "parágrafo tem fim de linha, ou as tabulações não crescem"
           : type == ElementType::Morph
               ? "cada aresta do corpo é de uma face, ou de duas que a percorrem em sentidos "
                 "opostos"
           : type == ElementType::Spline
               ? "espera-se uma direção por ponto, e que o fim de uma fechada não repita o começo"
               : "espera-se ao menos três vértices numa polilinha fechada, e nenhum arco depois do "
                 "fim de uma aberta";
}

bool CheckElement(const Place& root, const Project& project, std::size_t index,
                  std::string& error) {
    const ProjectElement& element = project.elements[index];
    const Host::ElementHeader& header = element.element.header;
    const auto refuse = [&](std::string_view member, const std::string& sentence) {
        return sentence.empty() || RefuseItem(root, "elementos", index, member, sentence, error);
    };
    if (!HasStory(project, header.floorIndex)) {
        return refuse("pavimento", NoStory(header.floorIndex));
    }
    if (element.database != Host::Guid() && !IsDrawnType(header.type) &&
        header.type != ElementType::SectionElement) {
        return refuse("janela", "um elemento deste tipo só fica na planta");
    }
    for (const ElementPart& part : element.parts) {
        if (!refuse("partes", GeometryProblem(part.geometry))) {
            return false;
        }
    }
    return refuse({}, ContentProblem(project, element)) &&
           refuse({}, GeometryProblem(element.geometry));
}

bool CheckElements(const Place& root, const Project& project, std::string& error) {
    std::uint64_t latest = 0;
    for (std::size_t i = 0; i < project.elements.size(); ++i) {
        latest = std::max(latest, project.elements[i].element.header.stamp);
        if (!CheckElement(root, project, i, error)) {
            return false;
        }
    }
    if (project.lastStamp < latest) {
        const JsonValue* const value = root.value->Find("ultimoCarimbo");
        return Refuse(value ? Place{value, &root, "ultimoCarimbo", 0} : root,
                      "o último carimbo é menor que o de um elemento, " + std::to_string(latest),
                      error);
    }
    return true;
}

bool CheckDatabases(const Place& root, const Project& project, std::string& error) {
    for (std::size_t i = 0; i < project.databases.size(); ++i) {
        const SectionLine& line = project.databases[i].section;
        if (root.value->Find("janelas")->items[i].Find("linha") && line.begin == line.end) {
            return RefuseItem(root, "janelas", i, "linha", "o início e o fim são o mesmo ponto",
                              error);
        }
    }
    return true;
}

bool CheckViews(const Place& root, const Project& project, const FileNames& names,
                std::string& error) {
    const std::vector<ProjectView>& views = project.views;
    for (std::size_t i = 0; i < views.size(); ++i) {
        std::size_t steps = 0;
        for (Host::Guid folder = views[i].folder; folder != Host::Guid(); ++steps) {
            const ProjectView& parent = views[names.guids.at(folder).index];
            if (!parent.isFolder || steps > views.size()) {
                return RefuseItem(root, "vistas", i, "pasta",
                                  parent.isFolder ? "as pastas contêm umas às outras"
                                                  : "a vista deste GUID não é uma pasta",
                                  error);
            }
            folder = parent.folder;
        }
        const bool isPlan =
            !views[i].isFolder && views[i].window.type == Host::WindowType::FloorPlan;
        if (isPlan && !HasStory(project, views[i].floorIndex)) {
            return RefuseItem(root, "vistas", i, "pavimento", NoStory(views[i].floorIndex), error);
        }
    }
    return true;
}

} // namespace

bool CheckProject(const Place& root, const Project& project, const FileNames& names,
                  std::string& error) {
    return CheckStories(root, project, error) && CheckLayers(root, project, error) &&
           CheckParts(root, project, error) && CheckDatabases(root, project, error) &&
           CheckElements(root, project, error) && CheckViews(root, project, names, error);
}

} // namespace Merivane::Workbench
