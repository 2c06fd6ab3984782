#include "Document/JsonParts.hpp"

namespace Merivane::Document {

using Catalog::JsonValue;

JsonValue Numbers(const std::vector<double>& values) {
    JsonValue list = JsonValue::MakeArray();
    list.items.reserve(values.size());
    for (const double value : values) {
        list.items.push_back(JsonValue::MakeNumber(value));
    }
    return list;
}

JsonValue Texts(const std::vector<std::string>& texts) {
    JsonValue list = JsonValue::MakeArray();
    for (const std::string& text : texts) {
        list.items.push_back(JsonValue::MakeString(text));
    }
    return list;
}

JsonValue Integer(std::int64_t value) {
    return JsonValue::MakeNumber(static_cast<double>(value));
}

JsonValue NumberOrNull(bool exists, double value) {
    return exists ? JsonValue::MakeNumber(value) : JsonValue();
}

} // namespace Merivane::Document
