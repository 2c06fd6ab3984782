#include "Archicad/SelectedLuminaire.hpp"

#include <algorithm>
#include <utility>
#include <variant>
#include <vector>

#include "AddOn/RunLog/RunLog.hpp"
#include "Host/Attributes.hpp"

namespace Merivane::Archicad {

namespace {

using Host::ElementType;

/// Reads an element, of a section's window the one of the model that it shows.
bool ReadModelElement(const Host::Guid& guid, Host::Element& element) {
    if (Host::GetElement(guid, element) != Host::NoError) {
        return false;
    }
    const auto* const shown = std::get_if<Host::SectionElementData>(&element.data);
    if (element.header.type != ElementType::SectionElement || shown == nullptr) {
        return true;
    }
    const Host::Guid parent = shown->parent;
    return Host::GetElement(parent, element) == Host::NoError;
}

/// The Objects and Lamps among these, each once: several elements of a section can show one.
std::vector<Host::Element> CollectObjects(const std::vector<Host::Guid>& guids) {
    std::vector<Host::Element> objects;
    for (const Host::Guid& guid : guids) {
        Host::Element element;
        if (!ReadModelElement(guid, element) || (element.header.type != ElementType::Object &&
                                                 element.header.type != ElementType::Lamp)) {
            continue;
        }
        if (std::none_of(objects.begin(), objects.end(), [&](const Host::Element& kept) {
                return kept.header.guid == element.header.guid;
            })) {
            objects.push_back(std::move(element));
        }
    }
    return objects;
}

} // namespace

bool FindSelectedLuminaireObject(Host::Element& element, std::string& errorText) {
    std::vector<Host::Guid> guids;
    const Host::ErrorCode code = Host::GetSelection(guids);
    if (code != Host::NoError) {
        if (code != Host::NoSelection) {
            Commands::CheckError("Ler a selecao", code);
        }
        errorText = "Selecione um objeto de luminaria (Objeto ou Iluminacao) antes de rodar o "
                    "comando.";
        return false;
    }
    std::vector<Host::Element> objects = CollectObjects(guids);
    if (objects.empty()) {
        errorText = "Nenhum Objeto ou objeto de Iluminacao na selecao.";
        return false;
    }
    if (objects.size() > 1) {
        errorText = "Selecione apenas UM objeto - cada luminaria recebe o seu proprio arquivo IES.";
        return false;
    }
    element = std::move(objects.front());
    return true;
}

bool CanBeReplaced(const Host::Element& element, std::string& errorText) {
    if (element.header.locked) {
        errorText = "O objeto selecionado está bloqueado. Desbloqueie-o antes de rodar o comando.";
        return false;
    }
    Host::Layer layer;
    if (Host::GetLayer(element.header.layer, layer) == Host::NoError && layer.locked) {
        errorText = "O objeto selecionado está na camada bloqueada \"" + layer.name +
                    "\". Desbloqueie-a antes de rodar o comando.";
        return false;
    }
    return true;
}

} // namespace Merivane::Archicad
