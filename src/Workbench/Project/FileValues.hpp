#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "Catalog/JsonFields.hpp"
#include "Host/Elements.hpp"
#include "Host/Types.hpp"
#include "Workbench/Project/FileNames.hpp"
#include "Workbench/Project/FileWords.hpp"
#include "Workbench/Project/Project.hpp"

/// Values of a project file: for each kind a reader (`Into`) with the rules that it holds the value
/// to, and a writer (`Stored`). Rules live as long as the record that is read.
namespace Merivane::Workbench {

using Catalog::FieldReader;
using Catalog::Into;
using Catalog::JsonValue;
using Catalog::NumberRange;
using Catalog::Place;

/// Where things may stand [m].
inline constexpr NumberRange Coordinates = {-1e9, 1e9};

/// Lengths that may be nothing, and those that may not [m, or mm on paper].
inline constexpr NumberRange Lengths = {0.0, 1e9};
inline constexpr NumberRange Sizes = {1e-6, 1e9};

/// Angles [rad].
inline constexpr NumberRange Angles = {-1e6, 1e6};

/// Which texts a field takes: UTF-8 without the character NUL.
struct TextRule {
    std::size_t fewestBytes = 0;
    std::size_t mostBytes = 0; ///< 0 = any number
    std::size_t mostUtf16 = 0; ///< [units]; 0 = any number
};

inline constexpr TextRule AnyText = {0, 0, 0};
inline constexpr TextRule NameRule = {1, 255, 0};
inline constexpr TextRule ShortText = {0, 0, 255};
inline constexpr TextRule ZoneNumberRule = {0, 0, 31};

/// Names that parts use in their scripts: ASCII without blanks, 1 to 31 characters.
struct ParameterName {};

/// Attributes or parts by their names, for the reader and for the writer.
struct KnownNames {
    const AttributeNames* names = nullptr;
};
template <typename Record> struct NamesOfNumbers { const AttributeTable<Record>* table = nullptr; };
struct NamesOfParts {
    const std::vector<ProjectPart>* parts = nullptr;
};

/// Whose guid a reference may be.
struct GuidRule {
    const GuidTable* guids = nullptr;
    bool (*fits)(const GuidHolder& holder) = nullptr;
    std::string_view none; ///< "nenhuma parede", of the refusal
};

/// How many points a list has at the least.
struct PointRule {
    std::size_t fewest = 0;
};

/// Which polygons a field takes.
struct PolygonRule {
    bool isLine = false; ///< one contour that may be open; else one with an inside
};

FieldReader Into(std::string& target, TextRule rule);
FieldReader Into(std::string& target, ParameterName rule);
FieldReader Into(std::int16_t& target, NumberRange range);
FieldReader Into(std::uint16_t& target, NumberRange range);
FieldReader Into(std::uint64_t& target, NumberRange range);

/// A guid that is not none, in its text form with braces.
FieldReader Into(Host::Guid& target);
FieldReader Into(Host::Guid& target, GuidRule rule);

FieldReader Into(Host::AttributeIndex& target, KnownNames known);
FieldReader Into(std::int32_t& target, KnownNames known);

/// A name that must be known.
FieldReader Into(std::string& target, KnownNames known);

/// [x, y] and [x, y, z], each of `Coordinates`; [r, g, b] of 0 to 1.
FieldReader Into(Host::Coordinate& target);
FieldReader Into(Host::Coordinate3D& target);
FieldReader Into(Host::Colour& target);

FieldReader Into(std::vector<double>& target, NumberRange range);
FieldReader Into(std::vector<Host::Coordinate>& target, PointRule rule);
FieldReader Into(std::vector<Host::Coordinate3D>& target, PointRule rule);
FieldReader Into(std::vector<Host::Guid>& target, GuidRule rule);
FieldReader Into(std::vector<Host::SplineDirection>& target);

/// Contours of a face: each a list of at least three numbers of `vertices`.
using FaceContours = std::vector<std::vector<std::int32_t>>;
struct ContourRule {
    const std::vector<Host::Coordinate3D>* vertices = nullptr;
};
FieldReader Into(FaceContours& target, ContourRule rule);

FieldReader Into(Host::Polygon& target, PolygonRule rule);

template <typename Enum> FieldReader Into(Enum& target, Words<Enum> words) {
    return [&target, words](const Place& place, std::string& error) {
        if (place.value->kind == Catalog::JsonKind::String &&
            FindWord(words, place.value->text, target)) {
            return true;
        }
        std::vector<std::string_view> choices;
        for (const Word<Enum>& entry : words) {
            choices.push_back(entry.word);
        }
        std::size_t ignored = 0;
        return Catalog::IntoChoice(ignored, std::move(choices))(place, error);
    };
}

JsonValue Stored(bool value);
JsonValue Stored(double value);
JsonValue Stored(std::int16_t value);
JsonValue Stored(std::uint16_t value);
JsonValue Stored(std::int32_t value);
JsonValue Stored(std::uint64_t value);
JsonValue Stored(const std::string& value);
JsonValue Stored(const Host::Guid& value);
JsonValue Stored(const Host::Coordinate& value);
JsonValue Stored(const Host::Coordinate3D& value);
JsonValue Stored(const Host::Colour& value);
JsonValue Stored(const Host::SplineDirection& value);
JsonValue Stored(const Host::Polygon& value);

template <typename Item> JsonValue Stored(const std::vector<Item>& items) {
    JsonValue list = JsonValue::MakeArray();
    list.items.reserve(items.size());
    for (const Item& item : items) {
        list.items.push_back(Stored(item));
    }
    return list;
}

template <typename Enum> JsonValue Stored(Enum value, Words<Enum> words) {
    return JsonValue::MakeString(std::string(WordOf(words, value)));
}

template <typename Record>
JsonValue Stored(Host::AttributeIndex index, NamesOfNumbers<Record> names) {
    const auto found = names.table->find(index.value);
    return JsonValue::MakeString(found == names.table->end() ? std::string() : found->second.name);
}

JsonValue Stored(std::int32_t libraryIndex, NamesOfParts names);

} // namespace Merivane::Workbench
