#include "Workbench/Project/FileNames.hpp"

#include "Host/GuidText.hpp"
#include "Text/Ascii.hpp"
#include "Workbench/Project/FileWords.hpp"

namespace Merivane::Workbench {

namespace {

using Catalog::JsonKind;
using Catalog::JsonValue;
using Catalog::Place;

struct GuidList {
    GuidKind kind;
    std::string_view key;
};

constexpr GuidList Lists[] = {
    {GuidKind::Part, "pecas"},
    {GuidKind::Database, "janelas"},
    {GuidKind::Element, "elementos"},
    {GuidKind::View, "vistas"},
};

bool AddGuid(const Place& item, GuidHolder holder, GuidTable& guids, std::string& error) {
    const JsonValue* const value = item.value->Find("guid");
    Host::Guid guid;
    if (!value || value->kind != JsonKind::String || !Host::ParseGuid(value->text, guid)) {
        return true;
    }
    if (const JsonValue* const type = item.value->Find("tipo")) {
        FindWord(ElementTypeWords(), type->text, holder.type);
    }
    const auto [present, isNew] = guids.emplace(guid, holder);
    return isNew ||
           Refuse(Place{value, &item, "guid", 0},
                  "o GUID " + Host::GuidText(guid) + " já é o de " + PathOfHolder(present->second),
                  error);
}

bool AddElementParts(const Place& element, GuidHolder holder, GuidTable& guids,
                     std::string& error) {
    const JsonValue* const parts = element.value->Find("partes");
    if (!parts) {
        return true;
    }
    const Place list{parts, &element, "partes", 0};
    holder.kind = GuidKind::ElementPart;
    for (holder.part = 0; holder.part < parts->items.size(); ++holder.part) {
        const Place item{&parts->items[holder.part], &list, {}, holder.part};
        if (!AddGuid(item, holder, guids, error)) {
            return false;
        }
    }
    return true;
}

} // namespace

bool CollectGuids(const Place& root, GuidTable& guids, std::string& error) {
    for (const GuidList& list : Lists) {
        const JsonValue* const value = root.value->Find(list.key);
        if (!value) {
            continue;
        }
        const Place place{value, &root, list.key, 0};
        guids.reserve(guids.size() + value->items.size());
        for (std::size_t i = 0; i < value->items.size(); ++i) {
            const Place item{&value->items[i], &place, {}, i};
            const GuidHolder holder{list.kind, Host::ElementType::Any, i, 0};
            if (!AddGuid(item, holder, guids, error)) {
                return false;
            }
            if (list.kind == GuidKind::Element && !AddElementParts(item, holder, guids, error)) {
                return false;
            }
        }
    }
    return true;
}

std::string PathOfHolder(const GuidHolder& holder) {
    std::string path;
    for (const GuidList& list : Lists) {
        if (list.kind == holder.kind ||
            (list.kind == GuidKind::Element && holder.kind == GuidKind::ElementPart)) {
            path = std::string(list.key) + '[' + std::to_string(holder.index) + ']';
        }
    }
    if (holder.kind == GuidKind::ElementPart) {
        path += ".partes[" + std::to_string(holder.part) + ']';
    }
    return path;
}

ParameterPlaces PlacesOfParameters(const std::vector<Host::LibraryParameter>& parameters) {
    ParameterPlaces places;
    for (std::size_t i = 0; i < parameters.size(); ++i) {
        places.emplace(Text::ToLower(parameters[i].name), i);
    }
    return places;
}

std::size_t PlaceOfParameter(const ParameterPlaces& places, std::string_view name) {
    const auto found = places.find(Text::ToLower(name));
    return found == places.end() ? places.size() : found->second;
}

} // namespace Merivane::Workbench
