#include "Workbench/Project/FileValues.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <span>

#include "Host/GuidText.hpp"
#include "Text/ShownText.hpp"
#include "Text/Utf8.hpp"
#include "Workbench/Parts/PartDocument.hpp"
#include "Workbench/Project/TextLimits.hpp"

namespace Merivane::Workbench {

namespace {

using Catalog::JsonKind;

std::string Expected(TextRule rule) {
    std::string text = rule.fewestBytes > 0 ? "um texto não vazio em UTF-8" : "um texto em UTF-8";
    if (rule.mostBytes > 0) {
        text += ", de no máximo " + std::to_string(rule.mostBytes) + " bytes";
    }
    if (rule.mostUtf16 > 0) {
        text += ", de no máximo " + std::to_string(rule.mostUtf16) + " caracteres";
    }
    return text;
}

bool Fits(const std::string& text, TextRule rule) {
    return text.size() >= rule.fewestBytes &&
           (rule.mostBytes == 0 || text.size() <= rule.mostBytes) &&
           (rule.mostUtf16 == 0 || CountUtf16(text) <= rule.mostUtf16) && Text::IsUtf8(text) &&
           text.find('\0') == std::string::npos;
}

template <typename Integer> FieldReader IntoInteger(Integer& target, NumberRange range) {
    return [&target, range](const Place& place, std::string& error) {
        const double number = place.value->number;
        if (place.value->kind != JsonKind::Number || !(number >= range.lowest) ||
            number > range.highest || number != std::floor(number)) {
            return RefuseValue(place, "um número inteiro " + Catalog::RangeText(range), error);
        }
        target = static_cast<Integer>(number);
        return true;
    };
}

/// A list of tuples of so many numbers each, all inside `Coordinates`.
template <std::size_t Count, typename Item, typename Make>
FieldReader IntoTuples(std::vector<Item>& target, std::size_t fewest, std::string_view itemName,
                       std::string_view expected, Make make) {
    return Catalog::IntoList(
        target, {fewest, 0, itemName},
        [expected, make](const Place& place, Item& item, std::string& error) {
            std::array<double, Count> numbers{};
            if (!Catalog::ReadNumbers(place, numbers, Coordinates, std::string(expected), error)) {
                return false;
            }
            item = make(numbers);
            return true;
        });
}

template <std::size_t Count> JsonValue Numbers(const std::array<double, Count>& numbers) {
    JsonValue list = JsonValue::MakeArray();
    list.items.reserve(Count);
    for (const double number : numbers) {
        list.items.push_back(JsonValue::MakeNumber(number));
    }
    return list;
}

bool FindName(const Place& place, const AttributeNames& names, std::int32_t& number,
              std::string& error) {
    if (place.value->kind != JsonKind::String) {
        return RefuseValue(place, "um nome", error);
    }
    const auto found = names.numbers.find(place.value->text);
    if (found == names.numbers.end()) {
        return Refuse(
            place, std::string(names.none) + " tem o nome " + Text::QuotedText(place.value->text),
            error);
    }
    number = found->second;
    return true;
}

constexpr std::string_view PointText = "um ponto [x, y]";
constexpr std::string_view Point3DText = "um ponto [x, y, z]";

Host::Coordinate MakePoint(const std::array<double, 2>& numbers) {
    return {numbers[0], numbers[1]};
}

Host::Coordinate3D MakePoint3D(const std::array<double, 3>& numbers) {
    return {numbers[0], numbers[1], numbers[2]};
}

} // namespace

FieldReader Into(std::string& target, TextRule rule) {
    return [&target, rule](const Place& place, std::string& error) {
        if (place.value->kind != JsonKind::String || !Fits(place.value->text, rule)) {
            return RefuseValue(place, Expected(rule), error);
        }
        target = place.value->text;
        return true;
    };
}

FieldReader Into(std::string& target, ParameterName /*rule*/) {
    return [&target](const Place& place, std::string& error) {
        if (place.value->kind != JsonKind::String || !Parts::IsParameterName(place.value->text)) {
            return RefuseValue(place, "um nome ASCII sem espaços, de no máximo 31 caracteres",
                               error);
        }
        target = place.value->text;
        return true;
    };
}

FieldReader Into(std::int16_t& target, NumberRange range) {
    return IntoInteger(target, range);
}

FieldReader Into(std::uint16_t& target, NumberRange range) {
    return IntoInteger(target, range);
}

FieldReader Into(std::uint64_t& target, NumberRange range) {
    return IntoInteger(target, range);
}

FieldReader Into(Host::Guid& target) {
    return [&target](const Place& place, std::string& error) {
        Host::Guid read;
        if (place.value->kind != JsonKind::String || !Host::ParseGuid(place.value->text, read) ||
            read == Host::Guid()) {
            return RefuseValue(
                place, "um GUID, não só de zeros, como \"{01234567-89AB-CDEF-0123-456789ABCDEF}\"",
                error);
        }
        target = read;
        return true;
    };
}

FieldReader Into(Host::Guid& target, GuidRule rule) {
    return [&target, rule](const Place& place, std::string& error) {
        Host::Guid read;
        if (!Into(read)(place, error)) {
            return false;
        }
        const auto found = rule.guids->find(read);
        if (found == rule.guids->end() || !rule.fits(found->second)) {
            return Refuse(place, std::string(rule.none) + " tem o GUID " + Host::GuidText(read),
                          error);
        }
        target = read;
        return true;
    };
}

FieldReader Into(Host::AttributeIndex& target, KnownNames known) {
    return [&target, known](const Place& place, std::string& error) {
        return FindName(place, *known.names, target.value, error);
    };
}

FieldReader Into(std::int32_t& target, KnownNames known) {
    return [&target, known](const Place& place, std::string& error) {
        return FindName(place, *known.names, target, error);
    };
}

FieldReader Into(std::string& target, KnownNames known) {
    return [&target, known](const Place& place, std::string& error) {
        std::int32_t number = 0;
        if (!FindName(place, *known.names, number, error)) {
            return false;
        }
        target = place.value->text;
        return true;
    };
}

FieldReader Into(Host::Coordinate& target) {
    return [&target](const Place& place, std::string& error) {
        std::array<double, 2> numbers{};
        if (!Catalog::ReadNumbers(place, numbers, Coordinates, std::string(PointText), error)) {
            return false;
        }
        target = MakePoint(numbers);
        return true;
    };
}

FieldReader Into(Host::Coordinate3D& target) {
    return [&target](const Place& place, std::string& error) {
        std::array<double, 3> numbers{};
        if (!Catalog::ReadNumbers(place, numbers, Coordinates, std::string(Point3DText), error)) {
            return false;
        }
        target = MakePoint3D(numbers);
        return true;
    };
}

FieldReader Into(Host::Colour& target) {
    return [&target](const Place& place, std::string& error) {
        std::array<double, 3> numbers{};
        if (!Catalog::ReadNumbers(place, numbers, {0.0, 1.0}, "uma cor [r, g, b]", error)) {
            return false;
        }
        target = {numbers[0], numbers[1], numbers[2]};
        return true;
    };
}

FieldReader Into(std::vector<double>& target, NumberRange range) {
    return Catalog::IntoList(target, {0, 0, "números"},
                             [range](const Place& place, double& number, std::string& error) {
                                 return Into(number, range)(place, error);
                             });
}

FieldReader Into(std::vector<Host::Coordinate>& target, PointRule rule) {
    return IntoTuples<2>(target, rule.fewest, "pontos", PointText, MakePoint);
}

FieldReader Into(std::vector<Host::Coordinate3D>& target, PointRule rule) {
    return IntoTuples<3>(target, rule.fewest, "pontos", Point3DText, MakePoint3D);
}

FieldReader Into(std::vector<Host::Guid>& target, GuidRule rule) {
    return Catalog::IntoList(target, {0, 0, "GUIDs"},
                             [rule](const Place& place, Host::Guid& guid, std::string& error) {
                                 return Into(guid, rule)(place, error);
                             });
}

FieldReader Into(std::vector<Host::SplineDirection>& target) {
    return IntoTuples<3>(target, 0, "direções", "uma direção [antes, depois, ângulo]",
                         [](const std::array<double, 3>& numbers) {
                             return Host::SplineDirection{numbers[0], numbers[1], numbers[2]};
                         });
}

FieldReader Into(FaceContours& target, ContourRule rule) {
    const auto readContour = [rule](const Place& place, std::vector<std::int32_t>& contour,
                                    std::string& error) {
        const double last = static_cast<double>(rule.vertices->size()) - 1.0;
        const auto readVertex = [last](const Place& item, std::int32_t& vertex, std::string& text) {
            return Into(vertex, NumberRange{0.0, last})(item, text);
        };
        return Catalog::IntoList(contour, {3, 0, "vértices"}, readVertex)(place, error);
    };
    return Catalog::IntoList(target, {1, 0, "contornos"}, readContour);
}

JsonValue Stored(bool value) {
    return JsonValue::MakeBool(value);
}

JsonValue Stored(double value) {
    return JsonValue::MakeNumber(value);
}

JsonValue Stored(std::int16_t value) {
    return JsonValue::MakeNumber(value);
}

JsonValue Stored(std::uint16_t value) {
    return JsonValue::MakeNumber(value);
}

JsonValue Stored(std::int32_t value) {
    return JsonValue::MakeNumber(value);
}

JsonValue Stored(std::uint64_t value) {
    return JsonValue::MakeNumber(static_cast<double>(value));
}

JsonValue Stored(const std::string& value) {
    return JsonValue::MakeString(value);
}

JsonValue Stored(const Host::Guid& value) {
    return JsonValue::MakeString(Host::GuidText(value));
}

JsonValue Stored(const Host::Coordinate& value) {
    return Numbers<2>({value.x, value.y});
}

JsonValue Stored(const Host::Coordinate3D& value) {
    return Numbers<3>({value.x, value.y, value.z});
}

JsonValue Stored(const Host::Colour& value) {
    return Numbers<3>({value.red, value.green, value.blue});
}

JsonValue Stored(const Host::SplineDirection& value) {
    return Numbers<3>({value.lengthBefore, value.lengthAfter, value.angle});
}

JsonValue Stored(std::int32_t libraryIndex, NamesOfParts names) {
    const auto count = static_cast<std::int32_t>(names.parts->size());
    const bool exists = libraryIndex >= 1 && libraryIndex <= count;
    return JsonValue::MakeString(
        exists ? (*names.parts)[static_cast<std::size_t>(libraryIndex) - 1].name : std::string());
}

} // namespace Merivane::Workbench
