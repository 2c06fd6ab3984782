#include "Catalog/JsonFields.hpp"

#include <algorithm>
#include <cmath>
#include <numeric>

#include "Text/Ascii.hpp"
#include "Text/FoldAccents.hpp"
#include "Text/Number.hpp"
#include "Text/ShownText.hpp"

namespace Merivane::Catalog {

namespace {

/// What a place holds, as the end of a sentence.
std::string Found(const JsonValue& value) {
    switch (value.kind) {
    case JsonKind::Null:
        return "null";
    case JsonKind::Boolean:
        return value.boolean ? "true" : "false";
    case JsonKind::Number:
        return NumberText(value.number);
    case JsonKind::String:
        return "o texto " + Text::QuotedText(value.text);
    case JsonKind::Array:
        return value.items.empty() ? "uma lista vazia"
                                   : "uma lista de " + std::to_string(value.items.size());
    case JsonKind::Object:
        return "um objeto";
    }
    return "";
}

/// True for a number inside the range; never for one that is not finite.
bool IsInside(const JsonValue& value, NumberRange range) {
    return value.kind == JsonKind::Number && value.number >= range.lowest &&
           value.number <= range.highest;
}

/// Levenshtein distance: insertions, deletions and exchanges of a byte.
std::size_t EditDistance(std::string_view a, std::string_view b) {
    std::vector<std::size_t> row(b.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t{0});
    for (std::size_t i = 0; i < a.size(); ++i) {
        std::size_t diagonal = row[0];
        row[0] = i + 1;
        for (std::size_t j = 0; j < b.size(); ++j) {
            const std::size_t exchanged = diagonal + (a[i] == b[j] ? 0 : 1);
            diagonal = row[j + 1];
            row[j + 1] = std::min({exchanged, row[j] + 1, row[j + 1] + 1});
        }
    }
    return row.back();
}

/// " (talvez \"altura\")" where a known key is only a slip away, else nothing.
std::string Hint(std::string_view key, std::span<const Field> fields) {
    constexpr std::size_t longest = 40; // no known key is near so long a text
    std::size_t best = std::max<std::size_t>(1, key.size() / 3) + 1;
    std::string_view nearest;
    if (key.size() > longest) {
        return "";
    }
    for (const Field& field : fields) {
        const std::size_t distance =
            EditDistance(Text::FoldAccents(key), Text::FoldAccents(field.key));
        if (distance < best && distance < field.key.size()) {
            best = distance;
            nearest = field.key;
        }
    }
    return nearest.empty() ? "" : " (talvez \"" + std::string(nearest) + "\")";
}

bool CheckKeys(const Place& place, std::span<const Field> fields, std::string_view context,
               std::string& error) {
    const auto hasKey = [](std::string_view key) {
        return [key](const Field& field) { return field.key == key; };
    };
    for (const JsonMember& member : place.value->members) {
        if (std::none_of(fields.begin(), fields.end(), hasKey(member.key))) {
            const std::string where = context.empty() ? "" : " " + std::string(context);
            return Refuse(place,
                          "chave desconhecida " + Text::QuotedText(member.key) + where +
                              Hint(member.key, fields),
                          error);
        }
    }
    for (const Field& field : fields) {
        if (field.required && place.value->Find(field.key) == nullptr) {
            return Refuse(place, "falta a chave \"" + std::string(field.key) + "\"", error);
        }
    }
    return true;
}

} // namespace

std::string PathOf(const Place& place) {
    std::vector<const Place*> way;
    for (const Place* step = &place; step->parent != nullptr; step = step->parent) {
        way.push_back(step);
    }
    std::string path;
    for (auto step = way.rbegin(); step != way.rend(); ++step) {
        if ((*step)->key.empty()) {
            path += '[' + std::to_string((*step)->index) + ']';
        } else {
            path += (path.empty() ? "" : ".") + std::string((*step)->key);
        }
    }
    return path.empty() ? "documento" : path;
}

bool Refuse(const Place& place, const std::string& sentence, std::string& error) {
    error = PathOf(place) + ": " + sentence;
    return false;
}

bool RefuseValue(const Place& place, const std::string& expected, std::string& error) {
    return Refuse(place, "espera-se " + expected + ", mas há " + Found(*place.value), error);
}

std::string NumberText(double value) {
    // The shortest form of 100000 is "1e+05": fit for a program, not for a reader.
    const std::string plain = Text::FormatGeneral(value, 15);
    double back = 0.0;
    const bool exact = Text::ReadEntireNumber(plain, back) && back == value;
    return exact ? plain : Text::FormatShortest(value);
}

std::string RangeText(NumberRange range) {
    return "de " + NumberText(range.lowest) + " a " + NumberText(range.highest);
}

Field Required(std::string_view key, FieldReader read) {
    return {key, true, std::move(read)};
}

Field Optional(std::string_view key, FieldReader read) {
    return {key, false, std::move(read)};
}

bool ReadObject(const Place& place, std::span<const Field> fields, std::string& error,
                std::string_view context) {
    if (place.value->kind != JsonKind::Object) {
        return RefuseValue(place, "um objeto", error);
    }
    if (!CheckKeys(place, fields, context, error)) {
        return false;
    }
    for (const Field& field : fields) {
        const JsonValue* value = place.value->Find(field.key);
        if (value != nullptr && !field.read(Place{value, &place, field.key, 0}, error)) {
            return false;
        }
    }
    return true;
}

bool ReadObject(const Place& place, std::initializer_list<Field> fields, std::string& error,
                std::string_view context) {
    return ReadObject(place, std::span(fields.begin(), fields.size()), error, context);
}

FieldReader Into(std::string& target) {
    return [&target](const Place& place, std::string& error) {
        const JsonValue& value = *place.value;
        const bool isText = value.kind == JsonKind::String && !Text::Trim(value.text).empty();
        if (!isText || !Text::IsPlainText(value.text)) {
            return RefuseValue(place, "um texto não vazio, em UTF-8 e numa linha só", error);
        }
        target = value.text;
        return true;
    };
}

FieldReader Into(bool& target) {
    return [&target](const Place& place, std::string& error) {
        if (place.value->kind != JsonKind::Boolean) {
            return RefuseValue(place, "true ou false", error);
        }
        target = place.value->boolean;
        return true;
    };
}

FieldReader Into(double& target, NumberRange range) {
    return [&target, range](const Place& place, std::string& error) {
        if (!IsInside(*place.value, range)) {
            return RefuseValue(place, "um número " + RangeText(range), error);
        }
        target = place.value->number;
        return true;
    };
}

FieldReader Into(double& target) {
    return [&target](const Place& place, std::string& error) {
        if (place.value->kind != JsonKind::Number) {
            return RefuseValue(place, "um número", error);
        }
        target = place.value->number;
        return true;
    };
}

FieldReader Into(std::int32_t& target, NumberRange range) {
    return [&target, range](const Place& place, std::string& error) {
        const JsonValue& value = *place.value;
        if (!IsInside(value, range) || value.number != std::floor(value.number)) {
            return RefuseValue(place, "um número inteiro " + RangeText(range), error);
        }
        target = static_cast<std::int32_t>(value.number);
        return true;
    };
}

bool ReadNumbers(const Place& place, std::span<double> numbers, NumberRange range,
                 const std::string& expected, std::string& error) {
    const JsonValue& value = *place.value;
    if (value.kind != JsonKind::Array || value.items.size() != numbers.size()) {
        return RefuseValue(place, expected, error);
    }
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        if (!Into(numbers[i], range)(Place{&value.items[i], &place, {}, i}, error)) {
            return false;
        }
    }
    return true;
}

FieldReader IntoChoice(std::size_t& target, std::vector<std::string_view> choices) {
    return [&target, choices = std::move(choices)](const Place& place, std::string& error) {
        const auto found = std::find(choices.begin(), choices.end(), place.value->text);
        if (place.value->kind == JsonKind::String && found != choices.end()) {
            target = static_cast<std::size_t>(found - choices.begin());
            return true;
        }
        std::string expected;
        for (std::size_t i = 0; i < choices.size(); ++i) {
            const char* joint = i == 0 ? "" : i + 1 == choices.size() ? " ou " : ", ";
            expected += joint + ('"' + std::string(choices[i]) + '"');
        }
        return RefuseValue(place, expected, error);
    };
}

bool CheckList(const Place& place, const ListSize& size, std::string& error) {
    const JsonValue& value = *place.value;
    const std::size_t count = value.items.size();
    const bool tooMany = size.most > 0 && count > size.most;
    if (value.kind == JsonKind::Array && count >= size.fewest && !tooMany) {
        return true;
    }
    const std::string name(size.itemName);
    std::string expected = "uma lista de " + name;
    if (tooMany) {
        expected += ", no máximo " + std::to_string(size.most);
    } else if (size.fewest > 0) {
        expected += ", no mínimo " + std::to_string(size.fewest);
    }
    return RefuseValue(place, expected, error);
}

} // namespace Merivane::Catalog
