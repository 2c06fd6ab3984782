#include <algorithm>
#include <cmath>

#include "Catalog/Json.hpp"
#include "Catalog/JsonPlainText.hpp"
#include "Text/Number.hpp"

namespace Merivane::Catalog {

namespace {

// Walks the value with a list of the arrays and objects that are still open, so that a value built
// deeper than the reader would accept costs no stack.
class Writer {
public:
    explicit Writer(const JsonWriteOptions& writeOptions) : options(writeOptions) {}

    std::string WriteDocument(const JsonValue& root);

private:
    struct Open {
        const JsonValue* value;
        std::size_t next; ///< position of the child to write next
    };

    void WriteValue(const JsonValue& value);
    void WriteNextChild();
    void OpenOrWriteEmpty(const JsonValue& value);
    void WriteString(std::string_view string);
    void WriteNumber(double number);
    void WriteNumbersOnOneLine(const std::vector<JsonValue>& numbers);
    void BeginLine();
    bool GoesOnOneLine(const JsonValue& value) const;

    JsonWriteOptions options;
    std::vector<Open> open;
    std::string text;
};

std::size_t CountChildren(const JsonValue& value) {
    return value.kind == JsonKind::Array ? value.items.size() : value.members.size();
}

std::string Writer::WriteDocument(const JsonValue& root) {
    WriteValue(root);
    while (!open.empty()) {
        WriteNextChild();
    }
    text += '\n';
    return std::move(text);
}

void Writer::WriteNextChild() {
    Open& parent = open.back();
    const JsonValue& value = *parent.value;
    const bool isArray = value.kind == JsonKind::Array;
    if (parent.next == CountChildren(value)) {
        open.pop_back();
        BeginLine();
        text += isArray ? ']' : '}';
        return;
    }
    if (parent.next > 0) {
        text += ',';
    }
    BeginLine();
    const std::size_t child = parent.next++;
    if (isArray) {
        WriteValue(value.items[child]);
    } else {
        WriteString(value.members[child].key);
        text += ": ";
        WriteValue(value.members[child].value);
    }
}

void Writer::WriteValue(const JsonValue& value) {
    switch (value.kind) {
    case JsonKind::Null:
        text += "null";
        break;
    case JsonKind::Boolean:
        text += value.boolean ? "true" : "false";
        break;
    case JsonKind::Number:
        WriteNumber(value.number);
        break;
    case JsonKind::String:
        WriteString(value.text);
        break;
    case JsonKind::Array:
    case JsonKind::Object:
        OpenOrWriteEmpty(value);
        break;
    }
}

void Writer::OpenOrWriteEmpty(const JsonValue& value) {
    const bool isArray = value.kind == JsonKind::Array;
    if (CountChildren(value) == 0) {
        text += isArray ? "[]" : "{}";
    } else if (GoesOnOneLine(value)) {
        WriteNumbersOnOneLine(value.items);
    } else {
        text += isArray ? '[' : '{';
        open.push_back({&value, 0});
    }
}

bool Writer::GoesOnOneLine(const JsonValue& value) const {
    return options.numberArraysOnOneLine && value.kind == JsonKind::Array &&
           std::all_of(value.items.begin(), value.items.end(),
                       [](const JsonValue& item) { return item.kind == JsonKind::Number; });
}

void Writer::WriteNumbersOnOneLine(const std::vector<JsonValue>& numbers) {
    const char* separator = "[";
    for (const JsonValue& number : numbers) {
        text += separator;
        WriteNumber(number.number);
        separator = ", ";
    }
    text += ']';
}

void Writer::BeginLine() {
    text += '\n';
    text.append(open.size(), '\t');
}

void Writer::WriteNumber(double number) {
    if (std::isfinite(number)) {
        Text::AppendShortest(text, number);
    } else {
        text += "null";
    }
}

std::string EscapeOf(char c) {
    switch (c) {
    case '"':
        return "\\\"";
    case '\\':
        return "\\\\";
    case '\t':
        return "\\t";
    case '\n':
        return "\\n";
    case '\r':
        return "\\r";
    default:
        constexpr std::string_view Digits = "0123456789abcdef";
        return std::string("\\u00") + Digits[static_cast<unsigned char>(c) / 16] +
               Digits[static_cast<unsigned char>(c) % 16];
    }
}

void Writer::WriteString(std::string_view string) {
    text += '"';
    for (;;) {
        const std::size_t plain = PlainLength(string);
        text.append(string.substr(0, plain));
        if (plain == string.size()) {
            break;
        }
        text += EscapeOf(string[plain]);
        string.remove_prefix(plain + 1);
    }
    text += '"';
}

} // namespace

std::string JsonWrite(const JsonValue& value, const JsonWriteOptions& options) {
    return Writer(options).WriteDocument(value);
}

} // namespace Merivane::Catalog
