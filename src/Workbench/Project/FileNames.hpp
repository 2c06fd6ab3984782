#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "Catalog/JsonFields.hpp"
#include "Workbench/Project/Project.hpp"

/// What a reader of a project file looks names and guids up in.
namespace Merivane::Workbench {

/// The attributes of one kind by their names.
struct AttributeNames {
    std::string_view none; ///< "nenhuma camada", of the refusal of an unknown name
    std::unordered_map<std::string, std::int32_t> numbers;
};

/// What has a guid in a project file.
enum class GuidKind { Part, Database, Element, ElementPart, View };

/// Who has a guid, and where it stands in the file.
struct GuidHolder {
    GuidKind kind = GuidKind::Element;
    Host::ElementType type = Host::ElementType::Any; ///< of elements and their parts
    std::size_t index = 0;                           ///< in the list of its kind
    std::size_t part = 0;                            ///< of an element's part, in its `partes`
};

using GuidTable = std::unordered_map<Host::Guid, GuidHolder, GuidHash>;

/// The parameters of a part by name in small letters.
using ParameterPlaces = std::unordered_map<std::string, std::size_t>;

/// Everything that is known of the file while its lists are read one after the other.
struct FileNames {
    AttributeNames layers = {"nenhuma camada", {}};
    AttributeNames combinations = {"nenhuma combinação", {}};
    AttributeNames lineTypes = {"nenhum tipo de linha", {}};
    AttributeNames fills = {"nenhum preenchimento", {}};
    AttributeNames surfaces = {"nenhuma superfície", {}};
    AttributeNames parts = {"nenhuma peça", {}};    ///< library index
    std::vector<ParameterPlaces> parameterPlaces{}; ///< of each part
    GuidTable guids{};
};

/// Finds all guids of a file before its lists are read. Refuses one that stands twice; what has no
/// guid, or none that can be read, is passed over.
bool CollectGuids(const Catalog::Place& root, GuidTable& guids, std::string& error);

/// The path of the one who has a guid: "elementos[2]".
std::string PathOfHolder(const GuidHolder& holder);

ParameterPlaces PlacesOfParameters(const std::vector<Host::LibraryParameter>& parameters);

/// The place of a name, without regard to case; `places.size()` or more when there is none.
std::size_t PlaceOfParameter(const ParameterPlaces& places, std::string_view name);

} // namespace Merivane::Workbench
