#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <initializer_list>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "Catalog/Json.hpp"

/// Reading records from JSON by a table of fields: each record's reader lists its keys, and what
/// the table does not list is refused. All readers return false at the first thing that can't be
/// accepted, with `error` one Portuguese sentence that begins with the path of the place.
namespace Merivane::Catalog {

/// A value and the way to it from the root of its document. Lives on the stack of its reader.
struct Place {
    const JsonValue* value = nullptr;
    const Place* parent = nullptr; ///< null at the root
    std::string_view key;          ///< in an object
    std::size_t index = 0;         ///< in an array
};

/// The path of a place: "zonas[1].contorno[3]"; "documento" for the root.
std::string PathOf(const Place& place);

/// Sets `error` to "<path>: <sentence>"; returns false.
bool Refuse(const Place& place, const std::string& sentence, std::string& error);

/// Sets `error` to "<path>: espera-se <expected>, mas há <what the place holds>"; returns false.
bool RefuseValue(const Place& place, const std::string& expected, std::string& error);

/// A number as messages show it.
std::string NumberText(double value);

/// Takes the value of a place into the record that it was made for.
using FieldReader = std::function<bool(const Place& place, std::string& error)>;

/// One key of an object.
struct Field {
    std::string_view key;
    bool required = false;
    FieldReader read;
};

Field Required(std::string_view key, FieldReader read);
Field Optional(std::string_view key, FieldReader read);

/// Reads an object by its table of fields, in the table's order. Refuses what is no object, then a
/// key that is not in the table, then a required key that is missing. `context` stands behind the
/// name of an unknown key where the table depends on something: "num material \"opaco\"".
bool ReadObject(const Place& place, std::span<const Field> fields, std::string& error,
                std::string_view context = {});
bool ReadObject(const Place& place, std::initializer_list<Field> fields, std::string& error,
                std::string_view context = {});

/// The numbers that a field accepts, both ends included.
struct NumberRange {
    double lowest = 0.0;
    double highest = 0.0;
};

/// A range as messages show it: "de 0 a 1".
std::string RangeText(NumberRange range);

/// Readers of single values. A text is one line of UTF-8, not empty.
FieldReader Into(std::string& target);
FieldReader Into(bool& target);
FieldReader Into(double& target, NumberRange range);
FieldReader Into(std::int32_t& target, NumberRange range);

/// Numbers without a range; JSON has none that is not finite.
FieldReader Into(double& target);

/// Reads a list of exactly `numbers.size()` numbers, each inside `range`. `expected` names it for
/// the messages: "um ponto [x, y]".
bool ReadNumbers(const Place& place, std::span<double> numbers, NumberRange range,
                 const std::string& expected, std::string& error);

/// One of the texts of `choices`; `target` takes its place in the list.
FieldReader IntoChoice(std::size_t& target, std::vector<std::string_view> choices);

/// How many items a list may have, and what the messages call them ("pontos").
struct ListSize {
    std::size_t fewest = 0;
    std::size_t most = 0; ///< 0 = any number
    std::string_view itemName = "itens";
};

/// Refuses what is no list or has too few or too many items.
bool CheckList(const Place& place, const ListSize& size, std::string& error);

/// A list whose items are read by `readItem(place, item, error)` into fresh records.
template <typename Item, typename ReadItem>
FieldReader IntoList(std::vector<Item>& target, const ListSize& size, ReadItem readItem) {
    return [&target, size, readItem = std::move(readItem)](const Place& place, std::string& error) {
        if (!CheckList(place, size, error)) {
            return false;
        }
        const std::vector<JsonValue>& items = place.value->items;
        target.assign(items.size(), Item());
        for (std::size_t i = 0; i < items.size(); ++i) {
            if (!readItem(Place{&items[i], &place, {}, i}, target[i], error)) {
                return false;
            }
        }
        return true;
    };
}

} // namespace Merivane::Catalog
